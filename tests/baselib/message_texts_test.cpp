#include "baselib/gbk.h"
#include "baselib/message_catalogue.h"
#include "baselib/message_texts.h"
#include "support/catalogue_file.h"
#include <gtest/gtest.h>
#include <set>

namespace {

std::string utf8(const std::u16string& text)
{
    return slUtf16ToUtf8(text.data(), text.size());
}

// The library's own texts again when it goes.
class MessageTextsTest : public testing::Test
{
protected:
    ~MessageTextsTest() override
    {
        for (int id = 0; id < MessageTextCount; ++id) {
            slSetMessageTemplate(id, nullptr);
        }
        slSetMessageLanguage("");
    }
    static void replaceM(int id, const std::u16string& text) { EXPECT_TRUE(slSetMessageTemplate(id, &text)); }
};

} // namespace

TEST_F(MessageTextsTest, AreChineseToBeginWith)
{
    EXPECT_EQ(utf8(slMessageTemplate(BadValueMessage)), "输入数据错误,请重新输入");
    EXPECT_EQ(utf8(slMessageTemplate(NumberTooSmallMessage)), "输入数太小,请重新输入!\n(不得小于{minimum})");
    EXPECT_EQ(utf8(slMessageTemplate(TextTooLongMessage)), "输入字符串太长,请重新输入!\n(不得长于{maximum})");
    EXPECT_EQ(utf8(slMessageTemplate(RealAtMaximumMessage)), "输入浮点数已到最大!\n(不得大于{maximum})");
    EXPECT_EQ(utf8(slMessageTemplate(SingleEditCaption)), "");
    EXPECT_EQ(utf8(slMessageTemplate(SpinEditCaption)), "注意");
    EXPECT_EQ(utf8(slMessageText(IntegerBetweenMessage, u"1", u"9")), "请键入一个在 1 和 9 之间的整数。");
    EXPECT_EQ(utf8(slMessageTemplate(BadArgumentMessage)), "参数无效。");
}

TEST_F(MessageTextsTest, DifferFromEachOther)
{
    std::set<std::u16string> all;
    for (int id = 0; id < MessageTextCount; ++id) {
        EXPECT_TRUE(all.insert(slMessageTemplate(id)).second) << id;
    }
}

TEST_F(MessageTextsTest, HaveTheLimitsWhereTheirNamesStand)
{
    replaceM(IntTooLargeMessage, u"{minimum}..{maximum}, {maximum}! {value} {minimum");
    EXPECT_EQ(slMessageText(IntTooLargeMessage, u"-1", u"{minimum}"),
        u"-1..{minimum}, {minimum}! {value} {minimum");
    EXPECT_EQ(slMessageTemplate(IntTooLargeMessage), u"{minimum}..{maximum}, {maximum}! {value} {minimum");
}

TEST_F(MessageTextsTest, AreReplacedOneByOneAndGivenBack)
{
    const std::u16string own = slMessageTemplate(BadValueMessage);
    replaceM(BadValueMessage, u"Bad value \u00F6");
    EXPECT_EQ(slMessageText(BadValueMessage), u"Bad value \u00F6");
    EXPECT_NE(slMessageText(NumberTooSmallMessage), u"Bad value \u00F6");
    replaceM(BadValueMessage, u"");
    EXPECT_EQ(slMessageText(BadValueMessage), u"");
    EXPECT_TRUE(slSetMessageTemplate(BadValueMessage, nullptr));
    EXPECT_EQ(slMessageText(BadValueMessage), own);
}

TEST_F(MessageTextsTest, RefuseNumbersThatAreNone)
{
    const std::u16string text = u"x";
    for (const int id : { -1, MessageTextCount, 1 << 30 }) {
        EXPECT_FALSE(slSetMessageTemplate(id, &text)) << id;
        EXPECT_FALSE(slSetMessageTemplate(id, nullptr)) << id;
        EXPECT_EQ(slMessageTemplate(id), u"") << id;
    }
}

TEST_F(MessageTextsTest, AreEnglishForThatLanguageAlone)
{
    for (const char* const language : { "en", "en_GB", "en-US" }) {
        slSetMessageLanguage(language);
        EXPECT_EQ(slMessageText(IntegerBetweenMessage, u"1", u"9"),
            u"Please enter a whole number between 1 and 9.");
        slSetMessageLanguage("");
    }
    for (const char* const language : { "", "zh", "de", "enm" }) {
        slSetMessageLanguage(language);
        EXPECT_EQ(utf8(slMessageTemplate(BadArgumentMessage)), "参数无效。") << language;
    }
}

TEST_F(MessageTextsTest, InEnglishSayTheSameLimitsAndDiffer)
{
    std::set<std::u16string> all;
    for (int id = 0; id < MessageTextCount; ++id) {
        slSetMessageLanguage("");
        const std::u16string chinese = slMessageTemplate(id);
        slSetMessageLanguage("en");
        const std::u16string english = slMessageTemplate(id);
        for (const char16_t* const limit : { u"{minimum}", u"{maximum}" }) {
            EXPECT_EQ(chinese.find(limit) == chinese.npos, english.find(limit) == english.npos) << id;
        }
        EXPECT_EQ(chinese.empty(), english.empty()) << id;
        EXPECT_TRUE(std::all_of(english.begin(), english.end(), [](char16_t unit) { return unit < 0x80; }));
        EXPECT_TRUE(all.insert(english).second) << id;
    }
}

TEST_F(MessageTextsTest, OfTheCatalogueComeBeforeEnglishAndBehindTheApplications)
{
    MessageCatalogueCL catalogue;
    ASSERT_TRUE(catalogue.ReadM(CatalogueFileCL().BytesM({ { "message 24\4参数无效。", "Неверный аргумент." },
        { "message 13\4别的", "Другое" }, { "操作失败。", "Не удалось." } })));
    for (const char* const language : { "ru", "en" }) {
        slSetMessageLanguage(language, &catalogue);
        EXPECT_EQ(utf8(slMessageTemplate(BadArgumentMessage)), "Неверный аргумент.");
        EXPECT_EQ(utf8(slMessageTemplate(FailedMessage)), "Не удалось.");
    }
    EXPECT_EQ(slMessageTemplate(SpinEditCaption), u"Warning"); // Its text is another one.
    replaceM(BadArgumentMessage, u"Nonsense!");
    EXPECT_EQ(slMessageTemplate(BadArgumentMessage), u"Nonsense!");
    slSetMessageLanguage("en");
    EXPECT_EQ(slMessageTemplate(BadArgumentMessage), u"Nonsense!");
    EXPECT_TRUE(slSetMessageTemplate(BadArgumentMessage, nullptr));
    EXPECT_EQ(slMessageTemplate(BadArgumentMessage), u"An argument is not valid.");
}
