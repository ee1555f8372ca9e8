#include "controls/text/spin_edit.h"
#include "controls/text/spin_edit_record.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

using namespace testing_support;

namespace {

using ListTP = std::vector<std::string>;

simpleValD ints(int first, int second = 0)
{
    simpleValD value;
    value.numbers[0] = first;
    value.numbers[1] = second;
    return value;
}

simpleValD reals(float first, float second = 0)
{
    simpleValD value;
    value.reals[0] = first;
    value.reals[1] = second;
    return value;
}

// A parent that notes what the arrows report.
class ParentCL : public PlainWindowCL
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NOTIFY
            && reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(UDN_DELTAPOS)) {
            deltas.push_back(reinterpret_cast<NMUPDOWN*>(lParam)->iDelta);
        }
        return PlainWindowCL::WindowProc(message, wParam, lParam);
    }
    std::vector<int> deltas;
};

// A spin edit (7) with arrows (8), and another edit (9) to go to.
struct SpinCL
{
    SpinCL(int type, const simpleValD& range, const simpleValD& step, const simpleValD& initial,
        int decimals = 0)
    {
        edits.InitialSizeM(1);
        edits.SetItemM(DuSpinEditCL(AliveTag), 0);
        DuSpinEditCL& edit = EditM();
        const int position[2] = { 20, 30 };
        const int size[2] = { 120, 40 };
        edit.SetPositionM(position);
        edit.SetSizeM(size);
        edit.SetFunctionIDM(7);
        edit.SetDataTypeM(type, decimals);
        edit.SetRangeM(range);
        edit.SetStepM(step);
        edit.SetInitValM(initial);
        edit.SetSpinLenM(16);
        edit.SpinButtonM().SetFunctionIDM(8);
        edits.Create(&parent);
        other.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(20, 100, 120, 130), &parent, 9);
        ActivateM(parent.m_hWnd);
        FocusM(other.m_hWnd);
        PumpPending();
    }
    DuSpinEditCL& EditM() { return edits.ElementAtM(0); }
    HWND WindowM() { return EditM().m_hWnd; }
    HWND ArrowsM() { return EditM().SpinButtonM().m_hWnd; }
    std::string TextM() { return textOf(WindowM()); }
    void ShowM(const char* text) { EditM().SetWindowText(text); }
    POINT PlaceOfArrowM(bool upper)
    {
        CRect client;
        EditM().SpinButtonM().GetClientRect(&client);
        return { client.Width() / 2, upper ? client.Height() / 4 : client.Height() * 3 / 4 };
    }
    std::string ClickM(bool upper)
    {
        const POINT at = PlaceOfArrowM(upper);
        testing_support::ClickM(ArrowsM(), at.x, at.y);
        return TextM();
    }
    std::string UpM() { return ClickM(true); }
    std::string DownM() { return ClickM(false); }
    // What the user is told, one text a message box; each has the warning's looks.
    ListTP ToldM() const
    {
        ListTP texts;
        for (const MessageBoxSeen& seen : boxes.SeenM()) {
            EXPECT_EQ(seen.caption, L"注意");
            EXPECT_EQ(seen.icon, static_cast<UINT>(MB_ICONEXCLAMATION));
            EXPECT_EQ(seen.buttons, 1);
            EXPECT_EQ(seen.owner, parent.m_hWnd); // The top-level window of the edit.
            texts.push_back(slGbkToUtf8(slWideToGbk(seen.text).c_str()));
        }
        return texts;
    }

    MessageBoxWatcher boxes;
    ParentCL parent;
    DuSpinEditArr edits;
    CEdit other;
};

using SpinPtr = std::unique_ptr<SpinCL>;

SpinPtr spinOf(int low, int high, int step, int initial)
{
    return std::make_unique<SpinCL>(1, ints(low, high), ints(step), ints(initial));
}

SpinPtr tenths()
{
    return std::make_unique<SpinCL>(2, reals(0, 1), reals(0.1F), reals(0), 1);
}

const char* const Own = "1 0 10 0 3 2 9 5 12 16\n";

std::string described(const std::string& own)
{
    return HeaderSections + ("[带spin的文本]\n1\n0\n1 11 20 30 120 24 " + own);
}

} // namespace

TEST(SpinEdit, WindowsHaveStylesIdsTextAndPlaceOfTheirRecord)
{
    const TestDialogCL dialog(described(Own));
    const HWND edit = dialog.ItemM(11);
    const HWND arrows = dialog.ItemM(12);
    ASSERT_NE(edit, nullptr);
    ASSERT_NE(arrows, nullptr);
    EXPECT_EQ(styleOf(edit), 0x56030080U);
    EXPECT_EQ(exStyleOf(edit) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
    EXPECT_EQ(styleOf(arrows), 0x50000024U);
    EXPECT_EQ(reinterpret_cast<HWND>(::SendMessageW(arrows, UDM_GETBUDDY, 0, 0)), edit);
    EXPECT_EQ(textOf(edit), "9");
    RECT onScreen {};
    ::GetWindowRect(arrows, &onScreen);
    ::MapWindowPoints(nullptr, dialog.m_hWnd, reinterpret_cast<POINT*>(&onScreen), 2);
    EXPECT_NEAR(onScreen.right, 140, 2); // The right edge that the record gives to the edit.
    EXPECT_EQ(onScreen.top, 30);
    EXPECT_EQ(placeOf(edit).substr(0, 6), "20 30 ");
}

TEST(SpinEdit, StyleFollowsAlignment)
{
    constexpr DWORD Base = 0x56030080;
    for (const char* left : { "2", "1", "0", "5" }) {
        EXPECT_EQ(
            styleOf(TestDialogCL(described("1 0 10 0 3 " + std::string(left) + " 9 5 12 16\n")).ItemM(11)),
            Base);
    }
    EXPECT_EQ(styleOf(TestDialogCL(described("1 0 10 0 3 3 9 5 12 16\n")).ItemM(11)), Base | ES_CENTER);
    EXPECT_EQ(styleOf(TestDialogCL(described("1 0 10 0 3 4 9 5 12 16\n")).ItemM(11)), Base | ES_RIGHT);
}

TEST(SpinEdit, ItsOwnWindowIndexDecidesTheStacking)
{
    const auto stack = [](const std::string& own) {
        return TestDialogCL(described(own) + "[标题]\n1\n0\n3 20 0 0 9 9 1\nx\n0 -1 0 0\n").StackM();
    };
    EXPECT_EQ(stack(Own).substr(0, 5), "20 11"); // 3 above 5, not 1 above 3.
    EXPECT_EQ(stack("1 0 10 0 3 2 9 2 12 16\n").substr(0, 5), "11 20");
    EXPECT_EQ(stack("7 0 10 0 3 2 9 5 12 16\n").substr(0, 5), "11 20"); // Unknown type: 0.
}

TEST(SpinEdit, WidthsThatNoWindowHasAreHeldBack)
{
    for (const char* width : { "2147483647", "-2147483648" }) {
        const TestDialogCL dialog(described("1 0 10 0 3 2 9 5 12 " + std::string(width) + "\n"));
        EXPECT_NE(dialog.ItemM(11), nullptr);
        EXPECT_NE(dialog.ItemM(12), nullptr);
    }
}

TEST(SpinEdit, ArrowsStepOnceAClick)
{
    const SpinPtr spin = spinOf(0, 10, 3, 3);
    EXPECT_EQ(spin->TextM(), "3");
    EXPECT_EQ(spin->UpM(), "6");
    EXPECT_EQ(spin->UpM(), "9");
    EXPECT_EQ(spin->DownM(), "6");
    EXPECT_EQ(spin->parent.deltas, (std::vector<int> { -1, -1, 1 }));
    EXPECT_EQ(spin->ToldM(), ListTP());
}

TEST(SpinEdit, UpperArrowPastMaximumKeepsOldValueAndWarns)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    EXPECT_EQ(spin->UpM(), "9");
    EXPECT_EQ(spin->ToldM(), ListTP { "输入整数已到最大!\n(不得大于10)" });
}

TEST(SpinEdit, LowerArrowPastMinimumKeepsOldValueAndWarns)
{
    const SpinPtr spin = spinOf(0, 10, 3, 0);
    EXPECT_EQ(spin->DownM(), "0");
    EXPECT_EQ(spin->ToldM(), ListTP { "输入整数已到最小!\n(不得小于0)" });
}

TEST(SpinEdit, LimitsThemselvesAreReached)
{
    const SpinPtr spin = spinOf(-3, 3, 3, 0);
    EXPECT_EQ(spin->UpM(), "3");
    EXPECT_EQ(spin->DownM(), "0");
    EXPECT_EQ(spin->DownM(), "-3");
    EXPECT_EQ(spin->ToldM(), ListTP());
}

TEST(SpinEdit, ValuesNeverWrapAround)
{
    const SpinPtr spin = spinOf(-2147483647 - 1, 2147483647, 2147483647, 2147483647);
    EXPECT_EQ(spin->UpM(), "2147483647");
    EXPECT_EQ(spin->ToldM(), ListTP { "输入整数已到最大!\n(不得大于2147483647)" });
}

TEST(SpinEdit, TenthsWalkFromLimitToLimitAndBack)
{
    const SpinPtr spin = tenths();
    EXPECT_EQ(spin->TextM(), "0.0");
    const char* const texts[] = { "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1.0" };
    for (const char* text : texts) {
        EXPECT_EQ(spin->UpM(), text);
    }
    EXPECT_EQ(spin->ToldM(), ListTP());
    EXPECT_EQ(spin->UpM(), "1.0");
    for (int i = 8; i >= 0; --i) {
        EXPECT_EQ(spin->DownM(), texts[i]);
    }
    EXPECT_EQ(spin->DownM(), "0.0");
    EXPECT_EQ(spin->DownM(), "0.0");
    EXPECT_EQ(spin->ToldM(),
        (ListTP { "输入浮点数已到最大!\n(不得大于1.0)", "输入浮点数已到最小!\n(不得小于0.0)" }));
}

TEST(SpinEdit, TypedNumberIsSteppedFromAndSurplusDecimalsAreCut)
{
    const SpinPtr spin = tenths();
    spin->ShowM("0.39");
    EXPECT_EQ(spin->UpM(), "0.4");
}

TEST(SpinEdit, StepFromBeyondALimitBringsBackTheValueBeforeTheTyping)
{
    SpinPtr spin = spinOf(0, 10, 3, 6);
    spin->ShowM("50");
    EXPECT_EQ(spin->DownM(), "6");
    spin->ShowM("-50");
    EXPECT_EQ(spin->UpM(), "6");
    EXPECT_EQ(
        spin->ToldM(), (ListTP { "输入整数已到最大!\n(不得大于10)", "输入整数已到最小!\n(不得小于0)" }));
    spin.reset();
    const SpinPtr real = tenths();
    real->ShowM("50");
    EXPECT_EQ(real->DownM(), "0.0");
    real->ShowM("-50");
    EXPECT_EQ(real->UpM(), "0.0");
    EXPECT_EQ(real->ToldM(),
        (ListTP { "输入浮点数已到最大!\n(不得大于1.0)", "输入浮点数已到最小!\n(不得小于0.0)" }));
}

TEST(SpinEdit, UnreadableTextIsSteppedFromTheLastGoodValue)
{
    const SpinPtr spin = spinOf(0, 10, 1, 6);
    spin->ShowM("abc");
    EXPECT_EQ(spin->UpM(), "7");
    spin->ShowM("");
    EXPECT_EQ(spin->DownM(), "6");
}

TEST(SpinEdit, ArrowKeysStep)
{
    const SpinPtr spin = spinOf(0, 10, 3, 3);
    FocusM(spin->WindowM());
    KeyM(VK_UP);
    EXPECT_EQ(spin->TextM(), "6");
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    EXPECT_EQ(spin->TextM(), "0");
    KeyM(VK_DOWN);
    EXPECT_EQ(spin->TextM(), "0");
    EXPECT_EQ(spin->ToldM(), ListTP { "输入整数已到最小!\n(不得小于0)" });
}

TEST(SpinEdit, ArrowHeldDownStepsOnlyWhileItReportsSingleSteps)
{
    const SpinPtr spin = spinOf(0, 1000000, 1, 0);
    UDACCEL speeds[] = { { 0, 1 }, { 1, 5 } }; // Fives after a second.
    spin->EditM().SpinButtonM().SetAccel(2, speeds);
    const POINT at = spin->PlaceOfArrowM(true);
    MoveMouseToM(spin->ArrowsM(), at.x, at.y);
    PressM();
    auto& deltas = spin->parent.deltas;
    const auto count = [&deltas](int delta) { return std::count(deltas.begin(), deltas.end(), delta); };
    EXPECT_TRUE(PumpUntil([&] { return count(-5) >= 3; }));
    ReleaseM();
    EXPECT_GT(count(-1), 1);
    EXPECT_EQ(spin->TextM(), std::to_string(count(-1)));
    EXPECT_EQ(count(-1) + count(-5), static_cast<long>(deltas.size()));
}

TEST(SpinEdit, OtherPositionChangesOnlyShowTheValue)
{
    const SpinPtr spin = spinOf(0, 100, 1, 6);
    for (const int delta : { 0, 2, -2, 5, -20 }) {
        EXPECT_EQ(::SendMessageW(spin->WindowM(), 1725, static_cast<WPARAM>(delta), 0), 0);
        EXPECT_EQ(spin->TextM(), "6") << delta;
    }
}

TEST(SpinEdit, ArrowIsFreeAgainAfterAWarningThatTookTheRelease)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    const POINT at = spin->PlaceOfArrowM(true);
    MoveMouseToM(spin->ArrowsM(), at.x, at.y);
    PressM(); // The warning opens and is answered within; the button is still down.
    EXPECT_TRUE(PumpUntil([] { return ::GetCapture() == nullptr; }));
    ReleaseM();
    EXPECT_EQ(spin->ToldM().size(), 1U);
    EXPECT_EQ(spin->DownM(), "6");
}

TEST(SpinEdit, CharactersOfNumbersAreTaken)
{
    SpinPtr spin = spinOf(0, 10, 3, 0);
    spin->ShowM("");
    FocusM(spin->WindowM());
    TypeM(L"1a.e-+2 ");
    EXPECT_EQ(spin->TextM(), "1-+2");
    KeyM(VK_BACK);
    EXPECT_EQ(spin->TextM(), "1-+");
    spin.reset();
    const SpinPtr real = tenths();
    real->ShowM("");
    FocusM(real->WindowM());
    TypeM(L"1,e.-x+2");
    EXPECT_EQ(real->TextM(), "1.-+2");
}

TEST(SpinEdit, CurrentValueIsCheckedButNeverWrittenOut)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    const std::pair<const char*, int> cases[] = { { "4", 4 }, { "0", 4 }, { "10", 4 }, { "-1", 3 },
        { "11", 5 }, { "x", 0 }, { "", 0 }, { "7x", 4 } };
    for (const auto& [text, code] : cases) {
        simpleValD value = ints(77);
        spin->ShowM(text);
        EXPECT_EQ(spin->EditM().GetCurValM(&value), code) << text;
        EXPECT_EQ(value.number, 77);
    }
    EXPECT_EQ(spin->EditM().DispEditM(), 1);
    EXPECT_EQ(spin->TextM(), "7"); // The last that could be read.
}

TEST(SpinEdit, CheckRequestTellsOfBadValuesAndKeepsThemAsTyped)
{
    SpinPtr spin = spinOf(1, 10, 3, 9);
    for (const char* text : { "x", "0", "11", "5" }) {
        spin->ShowM(text);
        EXPECT_EQ(::SendMessageW(spin->WindowM(), 1626, 0, 0), 0);
        EXPECT_EQ(spin->TextM(), text);
    }
    EXPECT_EQ(spin->ToldM(),
        (ListTP { "输入数据错误,请重新输入", "输入整数太小,请重新输入!\n(不得小于1)",
            "输入整数太大,请重新输入!\n(不得大于10)" }));
    EXPECT_EQ(::GetFocus(), spin->WindowM()); // Given to the field that is to be mended.

    spin.reset();
    const SpinPtr real = tenths();
    for (const char* text : { "-0.5", "1.1", "1.05" }) {
        real->ShowM(text);
        ::SendMessageW(real->WindowM(), 1626, 0, 0);
    }
    EXPECT_EQ(real->ToldM(),
        (ListTP {
            "输入浮点数太小,请重新输入!\n(不得小于0.0)", "输入浮点数太大,请重新输入!\n(不得大于1.0)" }));
}

TEST(SpinEdit, FocusStoriesReachTheParentInOrder)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    MessageRecorder messages(spin->parent.m_hWnd, { 8, 1624, 1625 });
    ClickM(spin->WindowM(), 5, 5);
    EXPECT_EQ(messages.ListM(), ListTP { "posted 1625 w=7 l=0" });
    ClickM(spin->other.m_hWnd, 5, 5);
    EXPECT_EQ(messages.ListM(), (ListTP { "posted 1625 w=7 l=0", "posted 8 w=7 l=0" }));
    EXPECT_EQ(spin->ToldM(), ListTP());
    FocusM(spin->ArrowsM());
    PumpPending();
    EXPECT_EQ(messages.ListM().back(), "posted 1625 w=8 l=0");
}

TEST(SpinEdit, LeavingABadValueTellsGivesTheFocusBackAndReports)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    FocusM(spin->WindowM());
    spin->ShowM("");
    TypeM(L"50");
    MessageRecorder messages(spin->parent.m_hWnd, { 1624, 1625 });
    MessageRecorder left(spin->parent.m_hWnd, { 8 });
    ClickM(spin->other.m_hWnd, 5, 5);
    EXPECT_EQ(spin->ToldM(), ListTP { "输入整数太大,请重新输入!\n(不得大于10)" });
    EXPECT_EQ(spin->TextM(), "50");
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == spin->WindowM(); }));
    EXPECT_EQ(left.ListM().back(), "posted 8 w=7 l=0");
    EXPECT_EQ(messages.ListM(), ListTP()); // It had the focus all along, as far as the user goes.
}

TEST(SpinEdit, WarningOfAnArrowIsNoLeaving)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    FocusM(spin->WindowM());
    PumpPending();
    MessageRecorder messages(spin->parent.m_hWnd, { 1625 });
    MessageRecorder left(spin->parent.m_hWnd, { 8 });
    KeyM(VK_UP);
    EXPECT_EQ(spin->ToldM().size(), 1U);
    EXPECT_EQ(messages.ListM(), ListTP());
    EXPECT_EQ(std::count(left.ListM().begin(), left.ListM().end(), "posted 8 w=7 l=0"), 0);
}

TEST(SpinEdit, ClosingTheParentIsNoLeaving)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    FocusM(spin->WindowM());
    spin->ShowM("50");
    spin->parent.DestroyWindow();
    PumpPending();
    EXPECT_EQ(spin->ToldM(), ListTP());
}

TEST(SpinEdit, UnknownTypesAreInert)
{
    for (const int type : { 0, 3, 9 }) {
        SpinCL spin(type, ints(0, 10), ints(1), ints(5));
        DuSpinEditCL& edit = spin.EditM();
        EXPECT_EQ(edit.SetRangeM(ints(0, 10)), 0);
        EXPECT_EQ(edit.SetStepM(ints(1)), 0);
        EXPECT_EQ(edit.SetInitValM(ints(1)), 0);
        EXPECT_EQ(edit.DispEditM(), 0);
        EXPECT_EQ(spin.TextM(), "");
        FocusM(spin.WindowM());
        TypeM(L"5a");
        EXPECT_EQ(spin.TextM(), "");
        EXPECT_EQ(spin.UpM(), "");
        EXPECT_EQ(edit.GetCurValM(nullptr), 0);
    }
}

TEST(SpinEdit, CommandsAndDeletionReachTheArrowsToo)
{
    const SpinPtr spin = spinOf(0, 10, 3, 9);
    const HWND edit = spin->WindowM();
    const HWND arrows = spin->ArrowsM();
    EXPECT_EQ(spin->edits.SetItemCmdM(7, 4), 1);
    EXPECT_EQ((styleOf(edit) | styleOf(arrows)) & WS_VISIBLE, 0U);
    EXPECT_EQ(spin->edits.SetItemCmdM(-1, 3), 1);
    EXPECT_NE(styleOf(edit) & styleOf(arrows) & WS_VISIBLE, 0U);
    EXPECT_EQ(spin->EditM().SetItemCmdM(2), 1);
    EXPECT_NE(styleOf(edit) & styleOf(arrows) & WS_DISABLED, 0U);
    EXPECT_EQ(spin->EditM().SetItemCmdM(6), 0);
    spin->EditM().DelItemM();
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(::IsWindow(arrows));
    EXPECT_EQ(spin->EditM().GetDeleteTagM(), DeletedTag);
}

TEST(SpinEdit, RecordGivesItAWindowIndexAndItsArrowsAnId)
{
    const DescriptionFileCL file("1 11 2 3 4 5 " + std::string(Own));
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrSpinEditCL record(AliveTag);
    record.FmReadInterfaceM(&io);
    DuSpinEditCL control;
    EXPECT_EQ(record.InitSpinEditM(&control), 1);
    EXPECT_EQ(control.GetWinIdxM(), 5);
    EXPECT_EQ(control.SpinButtonM().GetFunctionIDM(), 12);
}

namespace {

// A field that keeps the focus while its value is bad, as a single-line edit does.
class KeepingEditCL : public CEdit
{
public:
    int told { 0 };

protected:
    afx_msg void OnKillFocus(CWnd* next)
    {
        CEdit::OnKillFocus(next);
        slTellAboutField(this, [this] { ++told; });
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(KeepingEditCL, CEdit)
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

} // namespace

TEST(SpinEdit, ArrowThatTheUserDidNotReachNeitherStepsNorHoldsTheMouse)
{
    SpinCL spin(1, ints(0, 10), ints(1), ints(5));
    KeepingEditCL keeping;
    keeping.Create(WS_CHILD | WS_VISIBLE, CRect(20, 150, 120, 180), &spin.parent, 10);
    FocusM(keeping.m_hWnd);
    const POINT at = spin.PlaceOfArrowM(true);
    MoveMouseToM(spin.ArrowsM(), at.x, at.y);
    PressM();
    EXPECT_EQ(keeping.told, 1);
    EXPECT_EQ(::GetFocus(), keeping.m_hWnd);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(spin.TextM(), "5");
    ReleaseM();
    EXPECT_EQ(spin.TextM(), "5");
}
