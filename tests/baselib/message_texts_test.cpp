#include "baselib/gbk.h"
#include "baselib/message_texts.h"
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
