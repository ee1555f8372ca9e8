// Values by function id, and the protocol between fields and host.
#include "controls/text/edit_story.h"

using namespace testing_support;

namespace {

// An application's dialog whose handlers the test may call.
class ValuesDialogCL : public TestDialogCL
{
public:
    explicit ValuesDialogCL(const std::string& more = "")
        : TestDialogCL(editSection({ editRecord(11, "1 0 100", "5"), editRecord(12, "2 0 9.5", "1.5", 2),
                           editRecord(13, "3 0 5", "abc") })
            + more)
    {
    }
    using TestDialogCL::onCtrlLostFocusM;
    using TestDialogCL::onCtrlSetFocusM;

    void ShowM()
    {
        ShowWindow(SW_SHOW);
        ASSERT_TRUE(ActivateM(m_hWnd));
    }
    int FocusM() const { return ::GetFocus() == nullptr ? 0 : ::GetDlgCtrlID(::GetFocus()); }
    std::string TextM(int id) const { return textOf(ItemM(id)); }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ValuesDialogCL, DuBasicDialogCL)
ON_MESSAGE(ValueReportMsg, &ValuesDialogCL::onCtrlLostFocusM)
ON_MESSAGE(FocusGainedMsg, &ValuesDialogCL::onCtrlSetFocusM)
END_MESSAGE_MAP()

const char* const TooLargeInteger = "输入整数太大,请重新输入!\n(不得大于100)";

std::string told(const MessageBoxWatcher& watcher)
{
    std::string all;
    for (const auto& box : watcher.SeenM()) {
        all += (all.empty() ? "" : " | ") + slGbkToUtf8(slWideToGbk(box.text).c_str());
    }
    return all;
}

} // namespace

TEST(Values, AreReadAndWrittenByFunctionId)
{
    ValuesDialogCL dialog;
    int number = 0;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &number), 1);
    EXPECT_EQ(number, 5);
    float real = 0;
    EXPECT_EQ(dialog.GetSingleEditValM(12, &real), 1);
    EXPECT_EQ(real, 1.5F);
    char text[260];
    EXPECT_EQ(dialog.GetSingleEditValM(13, text), 1);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(dialog.SetSingleEditValM(11, 7), 1);
    EXPECT_EQ(dialog.SetSingleEditValM(12, 2.25F), 1);
    EXPECT_EQ(dialog.SetSingleEditValM(13, "xy"), 1);
    EXPECT_EQ(dialog.TextM(11) + " " + dialog.TextM(12) + " " + dialog.TextM(13), "7 2.25 xy");
}

TEST(Values, AUnionGivesTheCheckCode)
{
    ValuesDialogCL dialog;
    simpleValD value;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &value), 4);
    EXPECT_EQ(value.number, 5);
    value.number = 101;
    EXPECT_EQ(dialog.SetSingleEditValM(11, value), 1);
    EXPECT_EQ(dialog.TextM(11), "101"); // No range check.
    value.number = 3;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &value), 5);
    EXPECT_EQ(value.number, 3);
    dialog.SetSingleEditValM(11, -1);
    EXPECT_EQ(dialog.GetSingleEditValM(11, &value), 3);
    ::SetWindowTextW(dialog.ItemM(11), L"x");
    EXPECT_EQ(dialog.GetSingleEditValM(11, &value), 0);
    int number = 9;
    EXPECT_EQ(dialog.GetSingleEditValM(11, &number), 0);
    EXPECT_EQ(number, 9);
}

TEST(Values, AnUnknownIdOrAnotherKindGivesZero)
{
    ValuesDialogCL dialog("[标题]\n1\n0\n1 21 20 30 120 20 1\nx\n0 -1 0 0\n");
    for (int id : { 21, 99, 0, -1 }) {
        int number = 9;
        float real = 9;
        char text[260] = "9";
        simpleValD value;
        EXPECT_EQ(dialog.SetSingleEditValM(id, 1), 0);
        EXPECT_EQ(dialog.SetSingleEditValM(id, 1.0F), 0);
        EXPECT_EQ(dialog.SetSingleEditValM(id, "1"), 0);
        EXPECT_EQ(dialog.SetSingleEditValM(id, value), 0);
        EXPECT_EQ(dialog.GetSingleEditValM(id, &number), 0);
        EXPECT_EQ(dialog.GetSingleEditValM(id, &real), 0);
        EXPECT_EQ(dialog.GetSingleEditValM(id, text), 0);
        EXPECT_EQ(dialog.GetSingleEditValM(id, &value), 0);
        EXPECT_EQ(number, 9);
    }
    EXPECT_EQ(dialog.TextM(21), "x");
}

TEST(Values, EnablingReachesOneEditOrAll)
{
    ValuesDialogCL dialog;
    const auto enabled = [&dialog] {
        std::string all;
        for (int id : { 11, 12, 13 }) {
            all += ::IsWindowEnabled(dialog.ItemM(id)) ? '1' : '0';
        }
        return all;
    };
    EXPECT_EQ(dialog.EnableSingleEditM(-1, 0), 1);
    EXPECT_EQ(enabled(), "000");
    EXPECT_EQ(dialog.EnableSingleEditM(12, 1), 1);
    EXPECT_EQ(enabled(), "010");
    EXPECT_EQ(dialog.EnableSingleEditM(-1, 1), 1);
    EXPECT_EQ(dialog.EnableSingleEditM(11, 2), 1); // Only 1 enables.
    EXPECT_EQ(enabled(), "011");
    EXPECT_EQ(dialog.EnableSingleEditM(99, 1), 1);
    EXPECT_EQ(enabled(), "011");
}

TEST(ValueStatus, IsWhatWasSetOrReportedLast)
{
    ValuesDialogCL dialog;
    EXPECT_EQ(dialog.GetValueStatusM(), 0);
    EXPECT_EQ(dialog.SetValueStatusM(5), 1);
    EXPECT_EQ(dialog.GetValueStatusM(), 5);
    EXPECT_EQ(dialog.onCtrlLostFocusM(11, -1), 0);
    EXPECT_EQ(dialog.GetValueStatusM(), -1);
}

TEST(ValueCheck, WithoutAFocusedEditIsZero)
{
    ValuesDialogCL dialog;
    dialog.ShowM();
    dialog.SetValueStatusM(-1);
    ::SetFocus(nullptr);
    EXPECT_EQ(dialog.CheckValueLegalM(), 0);
    DuBasicDialogCL unborn;
    unborn.SetValueStatusM(-1);
    EXPECT_EQ(unborn.CheckValueLegalM(), 0);
}

TEST(ValueCheck, TellsABadValueAtOnceAndOnceAndTheEditKeepsTheFocus)
{
    ValuesDialogCL dialog;
    dialog.ShowM();
    ASSERT_TRUE(testing_support::FocusM(dialog.ItemM(11)));
    ::SetWindowTextW(dialog.ItemM(11), L"abc");
    ::SetWindowTextW(dialog.ItemM(12), L"abc"); // Nobody was there: it isn't told of.
    MessageBoxWatcher watcher;
    EXPECT_EQ(dialog.CheckValueLegalM(), -1);
    EXPECT_EQ(told(watcher), "输入数据错误,请重新输入");
    EXPECT_EQ(dialog.FocusM(), 11);
    PumpPending();
    EXPECT_EQ(dialog.GetValueStatusM(), -1);
    EXPECT_EQ(told(watcher), "输入数据错误,请重新输入");
    ::SetWindowTextW(dialog.ItemM(11), L"7");
    EXPECT_EQ(dialog.CheckValueLegalM(), 0);
}

TEST(ValueCheck, ReportsABadValueThatItForcedIntoItsLimits)
{
    ValuesDialogCL dialog;
    dialog.ShowM();
    ASSERT_TRUE(testing_support::FocusM(dialog.ItemM(11)));
    ::SetWindowTextW(dialog.ItemM(11), L"101");
    MessageBoxWatcher watcher;
    EXPECT_EQ(dialog.CheckValueLegalM(), -1);
    EXPECT_EQ(dialog.TextM(11), "100");
    EXPECT_EQ(dialog.CheckValueLegalM(), 0);
    EXPECT_EQ(watcher.SeenM().size(), 1U);
}

TEST(FocusReport, HasTheFieldLeftLastCheckedUnlessTheCancelControlSentIt)
{
    ValuesDialogCL dialog;
    dialog.ShowM();
    dialog.SetCancelIdM(32);
    MessageBoxWatcher watcher;
    ::SetWindowTextW(dialog.ItemM(11), L"200");
    EXPECT_EQ(dialog.onCtrlSetFocusM(31, 0), 0); // Nothing was left yet.
    EXPECT_EQ(told(watcher), "");
    dialog.onCtrlLostFocusM(11, 0);
    EXPECT_EQ(dialog.onCtrlSetFocusM(32, 0), 0);
    EXPECT_EQ(told(watcher), "");
    EXPECT_EQ(dialog.onCtrlSetFocusM(31, 0), 0);
    EXPECT_EQ(told(watcher), TooLargeInteger);
    EXPECT_EQ(dialog.FocusM(), 11);
    dialog.SetSingleEditValM(11, 5);
}

TEST(FocusReport, AFieldThatIsGoneIsNotAsked)
{
    ValuesDialogCL dialog;
    dialog.onCtrlLostFocusM(99, -1);
    EXPECT_EQ(dialog.onCtrlSetFocusM(31, 0), 0);
    DuBasicDialogCL unborn;
    ValuesDialogCL destroyed;
    destroyed.onCtrlLostFocusM(11, 0);
    destroyed.DestroyM();
    EXPECT_EQ(destroyed.onCtrlSetFocusM(31, 0), 0);
}

TEST(ValueCheck, WorksInAWindowThatTheApplicationOwns)
{
    PlainWindowCL frame;
    const DescriptionFileCL file(
        HeaderSections + std::string("[单行文本]\n1\n0\n1 11 20 30 120 24 1 0 100 0 0 2\n5\n0 1 255 0 0\n"));
    DuBasicDialogCL host;
    host.SetConfigFileM(file.path());
    host.InitDlgM(&frame, 0);
    ActivateM(frame.m_hWnd);
    const HWND edit = ::GetDlgItem(frame.m_hWnd, 11);
    ASSERT_TRUE(FocusM(edit));
    ::SetWindowTextW(edit, L"x");
    MessageBoxWatcher watcher;
    host.CheckValueLegalM(); // The frame gets the report; here nobody routes it to the host.
    EXPECT_EQ(told(watcher), "输入数据错误,请重新输入");
    EXPECT_EQ(::GetFocus(), edit);
}

TEST(HostValues, DoubleIsTakenAsFloat)
{
    TestDialogCL dialog(
        HeaderSections + std::string("[单行文本]\n1\n0\n1 13 0 0 80 20 2 0 9 2 0 2 5 0 1 255 255 255\n"));
    EXPECT_EQ(dialog.SetSingleEditValM(13, 2.25), 1);
    float value = 0;
    EXPECT_EQ(dialog.GetSingleEditValM(13, &value), 1);
    EXPECT_EQ(value, 2.25F);
}
