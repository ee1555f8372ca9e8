#include "controls/text/text_box.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <cstring>
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// A text box of the test's own window, with limits 0..10 for both kinds of numbers.
struct BoxCL
{
    explicit BoxCL(int type = 4)
    {
        box.SetEditTypeM(static_cast<EditConstant>(type));
        const int ints[2] = { 0, 10 };
        const float reals[2] = { 0, 10 };
        box.SetMinMaxValM(ints);
        box.SetMinMaxValM(reals);
        box.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 200, 30), &parent, 5);
    }
    std::string TypedM(const wchar_t* text)
    {
        ActivateM(parent.m_hWnd);
        FocusM(box.m_hWnd);
        TypeM(text);
        return TextM();
    }
    std::string TextM() const { return textOf(box.m_hWnd); }
    void ShowM(const std::string& utf8) { box.SetWindowText(slUtf8ToGbk(utf8).c_str()); }
    // Result and number, which is 77 before.
    std::string IntM() const
    {
        int value = 77;
        const int result = box.GetIntM(&value);
        return std::to_string(result) + " " + std::to_string(value);
    }
    std::string RealM() const
    {
        float value = 77;
        const int result = box.GetRealM(&value);
        char text[40];
        std::snprintf(text, sizeof text, "%d %g", result, static_cast<double>(value));
        return text;
    }

    PlainWindowCL parent;
    DuTextBox box;
};

} // namespace

TEST(TextBox, FreshOneTakesEveryCharacter)
{
    EXPECT_EQ(DuTextBox().GetEditTypeM(), 4);
    EXPECT_EQ(BoxCL().TypedM(L"a+-.中 7"), "a+-.中 7");
}

TEST(TextBox, TypeZeroTakesDigitsAndBackspaceOnly)
{
    BoxCL box(0);
    EXPECT_EQ(box.TypedM(L"0a-1+.e中9 "), "019");
    KeyM(VK_BACK);
    EXPECT_EQ(box.TextM(), "01");
}

TEST(TextBox, TypeTwoTakesAlsoMinusAndPointAnywhereButNoPlus)
{
    BoxCL box(2);
    EXPECT_EQ(box.TypedM(L"1-+.e,-.5"), "1-.-.5");
    KeyM(VK_BACK);
    EXPECT_EQ(box.TextM(), "1-.-.");
}

TEST(TextBox, OtherTypesTakeEveryCharacter)
{
    for (const int type : { 1, 3, -1 }) {
        EXPECT_EQ(BoxCL(type).TypedM(L"a+1"), "a+1") << type;
    }
}

TEST(TextBox, LimitsOfIntsAndRealsAreKeptApart)
{
    DuTextBox box;
    const int ints[2] = { -3, 8 };
    const float reals[2] = { -0.5F, 2.5F };
    EXPECT_EQ(box.SetMinMaxValM(ints), 1);
    EXPECT_EQ(box.SetMinMaxValM(reals), 1);
    int gotInts[2] = {};
    float gotReals[2] = {};
    EXPECT_EQ(box.GetMinMaxValueM(gotInts), 1);
    EXPECT_EQ(box.GetMinMaxValM(gotReals), 1);
    EXPECT_EQ(gotInts[0], -3);
    EXPECT_EQ(gotInts[1], 8);
    EXPECT_EQ(gotReals[0], -0.5F);
    EXPECT_EQ(gotReals[1], 2.5F);
}

TEST(TextBox, IntsWithinTheLimitsAreReadAndOthersGiveMinusOne)
{
    BoxCL box;
    const char* const cases[][2] = { { "7", "1 7" }, { "0", "1 0" }, { "10", "1 10" }, { " +3x", "1 3" },
        { "9.9", "1 9" }, { "11", "-1 -1" }, { "-1", "-1 -1" }, { "99999999999", "-1 -1" } };
    for (const auto& [text, result] : cases) {
        box.ShowM(text);
        EXPECT_EQ(box.IntM(), result) << text;
    }
}

TEST(TextBox, RealsWithinTheLimitsAreReadAndOthersGiveMinusOne)
{
    BoxCL box;
    const char* const cases[][2] = { { "2.5", "1 2.5" }, { "0", "1 0" }, { "10", "1 10" }, { ".5e1x", "1 5" },
        { "10.001", "-1 -1" }, { "-0.1", "-1 -1" }, { "1e99", "-1 -1" } };
    for (const auto& [text, result] : cases) {
        box.ShowM(text);
        EXPECT_EQ(box.RealM(), result) << text;
    }
}

TEST(TextBox, BlankTextGivesMinusOneAndLeavesTheOutput)
{
    BoxCL box;
    for (const char* blank : { "", "  \t" }) {
        box.ShowM(blank);
        EXPECT_EQ(box.IntM(), "-1 77");
        EXPECT_EQ(box.RealM(), "-1 77");
    }
}

TEST(TextBox, TextThatIsNoNumberIsNeverReportedAsOne)
{
    BoxCL box;
    for (const char* text : { "abc", "-", "+", ".", "中" }) {
        box.ShowM(text);
        EXPECT_EQ(box.IntM().substr(0, 2), "0 ") << text;
        EXPECT_EQ(box.RealM().substr(0, 2), "0 ") << text;
    }
    const int beyond[2] = { 5, 10 };
    box.box.SetMinMaxValM(beyond);
    EXPECT_EQ(box.IntM(), "-1 -1");
}

TEST(TextBox, NumbersWithinTheLimitsAreShownAndOthersEmptyTheField)
{
    BoxCL box;
    EXPECT_EQ(box.box.SetIntM(10, "<%03d>"), 1);
    EXPECT_EQ(box.TextM(), "<010>");
    EXPECT_EQ(box.box.SetIntM(15, "%d"), 1);
    EXPECT_EQ(box.TextM(), "");
    EXPECT_EQ(box.box.SetRealM(2.5F, "%.2f"), 1);
    EXPECT_EQ(box.TextM(), "2.50");
    EXPECT_EQ(box.box.SetRealM(-0.5F, "%.2f"), 1);
    EXPECT_EQ(box.TextM(), "");
}

TEST(TextBox, StringsAreCopiedAndTheEmptyOneIsReported)
{
    BoxCL box;
    char text[50] = "before";
    EXPECT_EQ(box.box.GetStringM(text), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(box.box.SetStringM(slUtf8ToGbk("转速").c_str(), "[%s]"), 1);
    EXPECT_EQ(box.TextM(), "[转速]");
    EXPECT_EQ(box.box.GetStringM(text), 1);
    EXPECT_EQ(slGbkToUtf8(text), "[转速]");
}

TEST(TextBox, LongWindowTextIsCutAtACharacterAndNothingWrittenPastFiftyBytes)
{
    BoxCL box;
    std::string text = "x";
    for (int i = 0; i < 40; ++i) {
        text += "中";
    }
    box.ShowM(text);
    char read[60];
    std::memset(read, '#', sizeof read);
    EXPECT_EQ(box.box.GetStringM(read), 1);
    EXPECT_EQ(std::strlen(read), 49U);
    EXPECT_EQ(std::string(read + 50, 10), "##########");
    box.ShowM("x" + text); // Now the 49th byte would be half a character.
    EXPECT_EQ(box.box.GetStringM(read), 1);
    EXPECT_EQ(std::strlen(read), 48U);
}

TEST(TextBox, FormatsThatWouldOverflowAreCutAtACharacter)
{
    BoxCL box;
    EXPECT_EQ(box.box.SetIntM(7, "%0300d"), 1);
    EXPECT_EQ(box.TextM(), std::string(49, '0'));
    EXPECT_EQ(box.box.SetRealM(7, "%.300f"), 1);
    EXPECT_EQ(box.TextM(), "7." + std::string(47, '0'));
    std::string text;
    std::string kept;
    for (int i = 0; i < 40; ++i) {
        text += "中";
        kept += i < 24 ? "中" : "";
    }
    EXPECT_EQ(box.box.SetStringM(slUtf8ToGbk(text).c_str(), "%s"), 1);
    EXPECT_EQ(box.TextM(), kept);
    EXPECT_EQ(box.box.SetStringM(slUtf8ToGbk(text).c_str(), "x%s"), 1);
    EXPECT_EQ(box.TextM(), "x" + kept);
}

TEST(TextBox, NullTextsAndFormatsAreRefused)
{
    BoxCL box;
    box.ShowM("before");
    EXPECT_EQ(box.box.SetStringM(nullptr, "%s"), 0);
    EXPECT_EQ(box.box.SetIntM(3, nullptr), 0);
    EXPECT_EQ(box.TextM(), "before");
}
