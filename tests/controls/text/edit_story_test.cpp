// What users do in fields and what they and the parent then see.
#include "edit_story.h"

using namespace testing_support;

BEGIN_MESSAGE_MAP(ReportingButtonCL, CButton)
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(EditStoryCL, DuBasicDialogCL)
ON_MESSAGE(ValueReportMsg, &EditStoryCL::onCtrlLostFocusM)
ON_MESSAGE(FocusGainedMsg, &EditStoryCL::onCtrlSetFocusM)
END_MESSAGE_MAP()

namespace {

const char* const TooLarge = "输入数太大,请重新输入!\n(不得大于100)";
const char* const TooSmall = "输入数太小,请重新输入!\n(不得小于0)";
const char* const BadData = "输入数据错误,请重新输入";

void copyToClipboard(const wchar_t* text)
{
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    const size_t bytes = (wcslen(text) + 1) * sizeof(wchar_t);
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    memcpy(::GlobalLock(block), text, bytes);
    ::GlobalUnlock(block);
    ::SetClipboardData(CF_UNICODETEXT, block);
    ::CloseClipboard();
}

std::string integers(int id, const char* initial = "5")
{
    return editRecord(id, "1 0 100", initial);
}

} // namespace

TEST(EditStory, TabFromAGoodValuePostsItsReport)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 12);
    EXPECT_EQ(story.ReportsM(), "posted 1624 w=11 l=0");
    EXPECT_EQ(story.ToldM(), "");
    EXPECT_EQ(story.GetValueStatusM(), 0);
}

TEST(EditStory, ANumberTooLargeBecomesTheLimitAndTheFocusComesBack)
{
    CWinApp app("\xC3\xE6\xB0\xE5");
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    TypeM(L"101");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.TextM(11), "100");
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
    EXPECT_EQ(story.GetValueStatusM(), -1);
    const auto seen = story.watcher.SeenM();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(story.ToldM(), TooLarge);
    EXPECT_EQ(seen[0].caption, L"面板");
    EXPECT_EQ(seen[0].icon, 0U);
    EXPECT_EQ(seen[0].buttons, 1);
    EXPECT_EQ(seen[0].owner, story.m_hWnd);
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 12);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1, posted 1624 w=11 l=0");
    EXPECT_EQ(story.GetValueStatusM(), 0);
}

TEST(EditStory, LettersAreNotTypedIntoANumber)
{
    EditStoryCL story({ integers(11), editRecord(12, "2 0 9.5", "1", 2) });
    story.EnterM(11);
    TypeM(L"a1.e,2速\t");
    EXPECT_EQ(story.TextM(11), "12");
    story.EnterM(12);
    TypeM(L"1e,.2a5");
    EXPECT_EQ(story.TextM(12), "1.25");
    KeyM(VK_BACK);
    EXPECT_EQ(story.TextM(12), "1.2");
}

TEST(EditStory, PastedTextIsTakenUpToItsNumber)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    copyToClipboard(L"12abc");
    ChordM(VK_CONTROL, 'V');
    EXPECT_EQ(story.TextM(11), "12abc");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 12);
    EXPECT_EQ(story.ReportsM(), "posted 1624 w=11 l=0");
    int value = 0;
    EXPECT_EQ(story.GetSingleEditValM(11, &value), 1);
    EXPECT_EQ(value, 12);
}

TEST(EditStory, PastedLettersAreBadDataAndStay)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    copyToClipboard(L"abc");
    ChordM(VK_CONTROL, 'V');
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.TextM(11), "abc");
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
}

TEST(EditStory, AnEmptyNumberIsBadDataAndANegativeOneIsForcedUp)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    story.FillM(11, "");
    KeyM(VK_TAB);
    TypeM(L"-5");
    KeyM(VK_TAB);
    EXPECT_EQ(story.TextM(11), "0");
    EXPECT_EQ(story.ToldM(), BadData + std::string(" | ") + TooSmall);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1, sent 1624 w=11 l=-1");
}

TEST(EditStory, DoubleByteTextIsTypedAndPasted)
{
    EditStoryCL story({ editRecord(11, "3 0 20", "null"), integers(12) });
    story.EnterM(11);
    EXPECT_EQ(story.TextM(11), "");
    TypeM(L"转速a");
    copyToClipboard(L"表");
    ChordM(VK_CONTROL, 'V');
    EXPECT_EQ(story.TextM(11), "转速a表");
    char value[260] = "";
    EXPECT_EQ(story.GetSingleEditValM(11, value), 1);
    EXPECT_EQ(slGbkToUtf8(value), "转速a表");
}

TEST(EditStory, ATextTooLongIsCutAtACharacter)
{
    EditStoryCL story({ editRecord(11, "3 2 5", "a"), integers(12) });
    story.EnterM(11);
    TypeM(L"abcdefg");
    KeyM(VK_TAB);
    EXPECT_EQ(story.TextM(11), "abcde");
    story.FillM(11, "转速表");
    KeyM(VK_TAB);
    EXPECT_EQ(story.TextM(11), "转速");
    const std::string told = "输入字符串太长,请重新输入!\n(不得长于5)";
    EXPECT_EQ(story.ToldM(), told + " | " + told);
    EXPECT_EQ(story.FocusM(), 11);
    story.FillM(11, "a"); // Shorter than the minimum.
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 12);
}

TEST(EditStory, RealsAreCutNotRoundedAndTheirLimitsHaveTheDecimals)
{
    EditStoryCL story({ editRecord(11, "2 0.5 9.5", "1", 2), editRecord(12, "2 0 9", "1", 0) });
    story.EnterM(11);
    TypeM(L"9.509");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 12);
    float value = 0;
    EXPECT_EQ(story.GetSingleEditValM(11, &value), 1);
    EXPECT_EQ(value, 9.5F);
    EXPECT_EQ(story.TextM(11), "9.509"); // What was typed stays.
    story.EnterM(11);
    story.FillM(11, "9.51");
    KeyM(VK_TAB);
    story.FillM(11, "0.4");
    KeyM(VK_TAB);
    EXPECT_EQ(story.TextM(11), "0.50");
    EXPECT_EQ(
        story.ToldM(), "输入数太大,请重新输入!\n(不得大于9.50) | 输入数太小,请重新输入!\n(不得小于0.50)");
}

TEST(EditStory, AFieldOfUnknownTypeIsAlwaysBad)
{
    EditStoryCL story({ editRecord(12, "1 0 9", "1"), std::string("11 11 20 50 120 24 7\n") });
    story.EnterM(11);
    TypeM(L"5a");
    EXPECT_EQ(story.TextM(11), "");
    KeyM(VK_TAB);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
    simpleValD value;
    EXPECT_EQ(story.GetSingleEditValM(11, &value), 0);
    EXPECT_EQ(story.SetSingleEditValM(11, value), 0);
    EXPECT_EQ(story.SetSingleEditValM(11, 5), 1);
    EXPECT_EQ(story.TextM(11), "");
}

TEST(EditStory, TabBetweenTwoBadFieldsTellsOfTheFirstOnce)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.FillM(12, "x");
    story.EnterM(11);
    story.FillM(11, "y");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
}

TEST(EditStory, AControlThatTheUserDidNotReachReportsNoFocus)
{
    EditStoryCL story({ integers(11) });
    story.EnterM(11);
    story.FillM(11, "y");
    KeyM(VK_TAB); // To the button: its report would have the field checked, and told of, once more.
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
    story.FillM(11, "7");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 31);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1, posted 1624 w=11 l=0, posted 1625 w=31 l=0");
    EXPECT_EQ(story.ToldM(), BadData);
}

TEST(EditStory, AnotherControlHasTheFieldLeftLastCheckedAgain)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    KeyM(VK_TAB);
    story.FillM(11, "200"); // Behind the user's back.
    KeyM(VK_TAB);
    story.EnterM(11);
    KeyM(VK_TAB);
    EXPECT_EQ(story.ToldM(), TooLarge);
}

TEST(EditStory, TheCancelControlHasNothingChecked)
{
    EditStoryCL story({ integers(11) });
    story.EnterM(11);
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 31);
    story.FillM(11, "200");
    KeyM(VK_TAB);
    EXPECT_EQ(story.FocusM(), 32);
    EXPECT_EQ(story.ToldM(), "");
    ChordM(VK_SHIFT, VK_TAB); // To the other button: now the field takes the focus back.
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.ToldM(), "输入整数太大,请重新输入!\n(不得大于100)");
    EXPECT_EQ(story.TextM(11), "200"); // Told, not forced.
}

TEST(EditStory, EscWithABadValueClosesTheDialogWithoutAMessage)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.EnterM(11);
    story.FillM(11, "x");
    story.FillM(12, "x");
    KeyM(VK_ESCAPE);
    EXPECT_EQ(story.cancelled, 1);
    EXPECT_EQ(story.m_hWnd, nullptr);
    EXPECT_EQ(story.ReportsM(), "");
    EXPECT_EQ(story.ToldM(), "");
}

TEST(EditStory, ClosingTheWindowWithABadValueShowsNoMessage)
{
    EditStoryCL story({ integers(11) });
    story.EnterM(11);
    story.FillM(11, "x");
    ChordM(VK_MENU, VK_F4);
    EXPECT_TRUE(PumpUntil([&story] { return story.m_hWnd == nullptr; }));
    EXPECT_EQ(story.ReportsM(), "");
    EXPECT_EQ(story.ToldM(), "");
}

namespace {

// Asks whether the values are legal before it closes, as an application does that saves them.
class SavingStoryCL : public EditStoryCL
{
public:
    using EditStoryCL::EditStoryCL;
    int legal { 5 };

protected:
    void OnCancel() override { legal = CheckValueLegalM(); }
};

} // namespace

TEST(EditStory, ApplicationThatAsksWhileClosingIsToldOfABadValue)
{
    SavingStoryCL story({ integers(11) });
    story.EnterM(11);
    story.FillM(11, "x");
    KeyM(VK_ESCAPE);
    EXPECT_EQ(story.legal, -1);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.FocusM(), 11);
    story.FillM(11, "5");
    story.SendMessage(WM_CLOSE);
    PumpPending();
    EXPECT_EQ(story.legal, 0);
    EXPECT_EQ(story.ToldM(), BadData);
}

TEST(EditStory, HidingDisablingOrDestroyingAFieldIsNotLeavingIt)
{
    EditStoryCL story({ integers(11), integers(12), integers(13) });
    for (int id : { 11, 12, 13 }) {
        story.EnterM(id);
        story.FillM(id, "x");
        if (id == 11) {
            story.ShowContrlM(id, 0);
        } else if (id == 12) {
            ::EnableWindow(story.ItemM(id), FALSE);
        } else {
            int kind = 0;
            static_cast<DuSingleEditCL*>(story.GetContrlPtrM(id, &kind))->DelItemM();
        }
        EXPECT_NE(story.FocusM(), id);
        PumpPending();
        EXPECT_EQ(story.ToldM(), "") << id;
    }
    story.EnterM(31);
    story.ShowWindow(SW_HIDE);
    EXPECT_EQ(story.ToldM(), "");
}

TEST(EditStory, DestroyingEverythingTellsOfNothing)
{
    EditStoryCL story({ integers(11), integers(12) });
    story.FillM(12, "x");
    story.EnterM(11);
    story.FillM(11, "x");
    story.DestroyM();
    PumpPending();
    EXPECT_EQ(story.ToldM(), "");
    EXPECT_EQ(story.ReportsM(), "");
}

TEST(EditStory, SwitchingToAnotherWindowAndBackTellsOnce)
{
    PlainWindow other(100, 80, 600, 500);
    EditStoryCL story({ integers(11) });
    story.EnterM(11);
    story.FillM(11, "x");
    ::SetForegroundWindow(other.HandleM());
    SettleM();
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_TRUE(ActivateM(story.m_hWnd));
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.ToldM(), BadData);
    EXPECT_EQ(story.ReportsM(), "sent 1624 w=11 l=-1");
}

namespace {

// Closes as soon as the platform says that a field loses the focus.
class HastyStoryCL : public EditStoryCL
{
public:
    using EditStoryCL::EditStoryCL;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) == EN_KILLFOCUS) {
            DestroyWindow();
        }
        return EditStoryCL::OnCommand(wParam, lParam);
    }
};

} // namespace

TEST(EditStory, DialogDestroyedWhenAFieldLosesTheFocusTellsOfNothing)
{
    // More fields than an array keeps in place: their memory is given back with them.
    HastyStoryCL story({ integers(11), integers(12), integers(13), integers(14), integers(15) });
    story.EnterM(11);
    story.FillM(11, "x");
    ::SetFocus(story.ItemM(12));
    PumpPending();
    EXPECT_EQ(story.m_hWnd, nullptr);
    EXPECT_EQ(story.ToldM(), "");
    EXPECT_EQ(story.ReportsM(), "");
}

namespace {

// A dialog without a loop of its own, ended like one with it.
class EndedStoryCL : public EditStoryCL
{
public:
    using EditStoryCL::EditStoryCL;

protected:
    void OnCancel() override { CDialog::OnCancel(); }
};

} // namespace

TEST(EditStory, EndingADialogWithoutALoopTellsOfNothing)
{
    EndedStoryCL story({ editRecord(11, "1 0 100", "5") });
    story.EnterM(11);
    story.FillM(11, "x");
    KeyM(VK_RETURN);
    PumpPending();
    EXPECT_FALSE(story.IsWindowVisible());
    EXPECT_EQ(story.ToldM(), "");
    EXPECT_EQ(story.ReportsM(), "");
}

namespace {

// Asks at each report whether the values are legal.
class AskingStoryCL : public EditStoryCL
{
public:
    using EditStoryCL::EditStoryCL;
    std::vector<int> answers;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = EditStoryCL::WindowProc(message, wParam, lParam);
        if (message == ValueReportMsg && answers.size() < 5) {
            answers.push_back(CheckValueLegalM());
        }
        return result;
    }
};

} // namespace

TEST(EditStory, AskingWithinTheReportOfAnUnreadableTextSaysItOnceMoreButTellsItOnce)
{
    AskingStoryCL story({ editRecord(11, "1 0 100", "5") });
    story.EnterM(11);
    story.FillM(11, "x");
    KeyM(VK_TAB);
    EXPECT_EQ(story.answers, std::vector<int> { -1 });
    EXPECT_EQ(story.watcher.SeenM().size(), 1U);
    EXPECT_EQ(story.FocusM(), 11);
    EXPECT_EQ(story.GetValueStatusM(), -1);
    EXPECT_EQ(story.CheckValueLegalM(), -1); // And when the application asks for the check itself.
    EXPECT_EQ(story.answers, (std::vector<int> { -1, -1 }));
    EXPECT_EQ(story.watcher.SeenM().size(), 2U);
    EXPECT_EQ(story.FocusM(), 11);
}

TEST(EditStory, AskingWithinTheReportOfAForcedValueFindsItLegal)
{
    AskingStoryCL story({ editRecord(11, "1 0 100", "5") });
    story.EnterM(11);
    story.FillM(11, "101");
    KeyM(VK_TAB);
    EXPECT_EQ(story.answers, std::vector<int> { 0 });
    EXPECT_EQ(story.TextM(11), "100");
    EXPECT_EQ(story.watcher.SeenM().size(), 1U);
    EXPECT_EQ(story.FocusM(), 11);
}
