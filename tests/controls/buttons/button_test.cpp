#include "support/shown_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

std::string button(int index, int id, const char* caption, int flag)
{
    return std::to_string(index) + " " + std::to_string(id) + " 200 " + std::to_string(index * 20)
        + " 80 18\n" + caption + "\n" + std::to_string(flag) + "\n";
}
std::string radio(int index, int id, int group, int check)
{
    return std::to_string(index) + " " + std::to_string(id) + " 10 " + std::to_string(index * 20) + " 80 18 "
        + std::to_string(group) + " " + std::to_string(check) + "\n横向\n";
}
std::string check(int index, int id, int checked)
{
    return std::to_string(index) + " " + std::to_string(id) + " 100 " + std::to_string(index * 20) + " 80 18 "
        + std::to_string(checked) + "\n自动\n";
}
std::string section(const char* header, const std::vector<std::string>& records)
{
    std::string text = header + ("\n" + std::to_string(records.size())) + "\n0\n";
    for (const std::string& record : records) {
        text += record;
    }
    return text;
}
std::string buttons(const std::vector<std::string>& records)
{
    return section("[标准按钮]", records);
}
std::string radios(const std::vector<std::string>& records)
{
    return section("[单选按钮]", records);
}
std::string checks(const std::vector<std::string>& records)
{
    return section("[多选按钮]", records);
}

bool isChecked(HWND window)
{
    return ::SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::string checkedOf(const TestDialogCL& dialog, int first, int last)
{
    std::string text;
    for (int id = first; id <= last; ++id) {
        text += isChecked(dialog.ItemM(id)) ? "x" : "-";
    }
    return text;
}

} // namespace

TEST(StandardButton, StyleAndCaptionFollowTheRecord)
{
    const TestDialogCL dialog(HeaderSections
        + buttons({ button(1, 11, "确定", 1), button(2, 12, "取消", 0), button(3, 13, "x", 2) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50010001U);
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50010000U);
    EXPECT_EQ(styleOf(dialog.ItemM(13)), 0x50010000U); // Only 1 makes the default button.
    EXPECT_EQ(textOf(dialog.ItemM(11)), "确定");
    EXPECT_EQ(placeOf(dialog.ItemM(12)), "200 40 80 18");
}

TEST(RadioBox, StyleHasNoTabStopAndTheFirstOfAGroupBeginsIt)
{
    const TestDialogCL dialog(HeaderSections + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 0) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50000009U | WS_GROUP);
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50000009U);
    EXPECT_EQ(textOf(dialog.ItemM(12)), "横向");
}

TEST(CheckBox, StyleCaptionAndCheckFollowTheRecord)
{
    const TestDialogCL dialog(HeaderSections + checks({ check(1, 11, 1), check(2, 12, 0), check(3, 13, 2) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50010003U);
    EXPECT_EQ(textOf(dialog.ItemM(11)), "自动");
    EXPECT_EQ(checkedOf(dialog, 11, 13), "x--");
}

TEST(RadioBox, RunsOfEqualNumbersFormGroups)
{
    const TestDialogCL dialog(HeaderSections
        + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 0), radio(3, 13, 2, 0), radio(4, 14, 2, 0),
            radio(5, 15, 1, 0) }));
    std::string groups;
    for (int id = 11; id <= 15; ++id) {
        groups += (styleOf(dialog.ItemM(id)) & WS_GROUP) != 0 ? "G" : "-";
    }
    EXPECT_EQ(groups, "G-G-G");
}

TEST(RadioBox, GroupNumberOfTheFirstNeedNotBeOther)
{
    const TestDialogCL dialog(HeaderSections + radios({ radio(1, 11, 0, 0) }));
    EXPECT_TRUE(styleOf(dialog.ItemM(11)) & WS_GROUP);
    DuRadioBoxArr none;
    EXPECT_EQ(none.MakeGroupM(), 0);
}

TEST(RadioBox, ClickLeavesOnlyTheClickedOneOfItsGroupChecked)
{
    ShownDialogCL dialog(HeaderSections
        + radios({ radio(1, 11, 1, 1), radio(2, 12, 1, 1), radio(3, 13, 1, 0), radio(4, 14, 2, 1),
            radio(5, 15, 2, 0) }));
    EXPECT_EQ(checkedOf(dialog, 11, 15), "xx-x-"); // As described, both.
    dialog.StoryM();
    dialog.ClickItemM(13);
    EXPECT_EQ(checkedOf(dialog, 11, 15), "--xx-");
    EXPECT_EQ(dialog.StoryM(), "posted 1625 w=13 l=0; posted 1734 w=13 l=0");
}

TEST(RadioBox, ArrowKeysMoveInsideTheGroup)
{
    ShownDialogCL dialog(HeaderSections
        + radios({ radio(1, 11, 1, 1), radio(2, 12, 1, 0), radio(3, 13, 2, 1), radio(4, 14, 2, 0) })
        + buttons({ button(5, 20, "x", 0) }));
    dialog.StartAtM(11);
    KeyM(VK_DOWN);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 12);
    EXPECT_EQ(checkedOf(dialog, 11, 14), "-xx-");
    KeyM(VK_DOWN);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 11); // Around, not into the next group.
    EXPECT_EQ(checkedOf(dialog, 11, 14), "x-x-");
    EXPECT_EQ(dialog.StoryM(),
        "posted 1625 w=12 l=0; posted 1734 w=12 l=0; posted 1625 w=11 l=0; posted 1734 w=11 l=0");
}

TEST(RadioBox, StateIsHandedToThePlatformAsItIs)
{
    class RecordingRadioCL : public DuRadioBoxCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == BM_SETCHECK) {
                seen += std::to_string(wParam) + " ";
            }
            return DuRadioBoxCL::WindowProc(message, wParam, lParam);
        }
        std::string seen;
    };
    PlainWindowCL parent;
    RecordingRadioCL control;
    control.Create(&parent);
    EXPECT_EQ(control.SetCurCheckM(2), 1);
    EXPECT_EQ(control.SetCurCheckM(0), 1);
    EXPECT_EQ(control.SetCurCheckM(1), 1);
    EXPECT_EQ(control.seen, "2 0 1 ");
    EXPECT_EQ(control.GetCheck(), 1);
}

TEST(RadioBox, AnyFlagButOneClearsTheWholeStyle)
{
    PlainWindowCL parent;
    DuRadioBoxCL control;
    control.SetGroupNoM(6);
    int group = 0;
    EXPECT_EQ(control.GetGroupNoM(&group), 1);
    EXPECT_EQ(group, 6);
    control.Create(&parent);
    EXPECT_EQ(control.SetGroupM(1), 1);
    EXPECT_EQ(styleOf(control.m_hWnd), 0x50000009U | WS_GROUP);
    EXPECT_EQ(control.SetGroupM(0), 1);
    // The window system itself keeps one bit of a window that is no child.
    EXPECT_EQ(styleOf(control.m_hWnd) & ~static_cast<DWORD>(WS_CLIPSIBLINGS), 0U);
}

TEST(RadioBox, TheArrayShowsTheControlAtAPlace)
{
    TestDialogCL dialog(HeaderSections + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 0) }));
    const auto visible = [&dialog](int id) { return (styleOf(dialog.ItemM(id)) & WS_VISIBLE) != 0; };
    dialog.ShowObjectM(11, 1, false);
    EXPECT_TRUE(visible(11));
    EXPECT_FALSE(visible(12));
    dialog.ShowObjectM(12, 0, false); // A kind that it doesn't concern.
    dialog.ShowObjectM(11, 2, false);
    dialog.ShowObjectM(11, -1, false);
    EXPECT_TRUE(visible(11));
    dialog.ShowObjectM(11, 1, true);
    EXPECT_TRUE(visible(12));
}

TEST(CheckBox, OnlyOneChecks)
{
    PlainWindowCL parent;
    DuCheckBoxCL control;
    control.Create(&parent);
    EXPECT_EQ(control.SetCurCheckM(1), 1);
    EXPECT_EQ(control.GetCheck(), 1);
    EXPECT_EQ(control.SetCurCheckM(2), 1);
    EXPECT_EQ(control.GetCheck(), 0);
    control.SetCurCheckM(1);
    EXPECT_EQ(control.SetCurCheckM(0), 1);
    EXPECT_EQ(control.GetCheck(), 0);
}

TEST(CheckBox, SpaceAndClickChangeTheCheckAndPostWithoutAFocusReport)
{
    ShownDialogCL dialog(HeaderSections + checks({ check(1, 11, 0), check(2, 12, 0) }));
    dialog.StartAtM(11);
    KeyM(VK_SPACE);
    EXPECT_TRUE(isChecked(dialog.ItemM(11)));
    EXPECT_EQ(dialog.StoryM(), "posted 1739 w=11 l=0");
    KeyM(VK_SPACE);
    EXPECT_FALSE(isChecked(dialog.ItemM(11)));
    dialog.StoryM();
    dialog.ClickItemM(12);
    EXPECT_TRUE(isChecked(dialog.ItemM(12)));
    EXPECT_EQ(dialog.StoryM(), "posted 1739 w=12 l=0");
}

TEST(StandardButton, ClickReachesTheDialogBeforeItReturns)
{
    TestDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }) + radios({ radio(2, 12, 1, 0) })
        + checks({ check(3, 13, 0) }));
    const MessageRecorder recorder(dialog.m_hWnd);
    dialog.SendDlgItemMessage(12, BM_CLICK);
    dialog.SendDlgItemMessage(13, BM_CLICK);
    const auto clicks = [&recorder] {
        std::string text;
        for (const std::string& message : recorder.ListM()) {
            text += message.find(" 1625 ") == std::string::npos ? message + "; " : "";
        }
        return text;
    };
    dialog.SendDlgItemMessage(11, BM_CLICK);
    EXPECT_EQ(clicks(), "sent 1424 w=11 l=0; ");
    PumpPending();
    EXPECT_EQ(clicks(), "sent 1424 w=11 l=0; posted 1734 w=12 l=0; posted 1739 w=13 l=0; ");
}

TEST(StandardButton, EnterPressesTheDefaultButtonFromAnotherControl)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(2, 11, "a", 1) }) + checks({ check(1, 13, 0) }));
    dialog.StartAtM(13);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=11 l=0");
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 13);
    dialog.DestroyM();
    dialog.InitDlgM(&dialog, 1);
    dialog.StartAtM(13);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=11 l=0");
}

TEST(StandardButton, OfSeveralDefaultButtonsAllKeepTheStyleAndTheFirstAnswersEnter)
{
    ShownDialogCL dialog(HeaderSections
        + buttons({ button(2, 11, "a", 0), button(3, 12, "b", 1), button(4, 13, "c", 1) })
        + checks({ check(1, 31, 0) }));
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50010001U);
    EXPECT_EQ(styleOf(dialog.ItemM(13)), 0x50010001U);
    dialog.StartAtM(31);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=12 l=0");
}

TEST(StandardButton, OkAndCancelLeaveClosingToTheApplication)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, IDOK, "a", 1), button(2, IDCANCEL, "b", 0) }));
    dialog.StartAtM(IDOK);
    KeyM(VK_RETURN);
    KeyM(VK_ESCAPE);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=1 l=0; sent 1424 w=2 l=0");
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST(StandardButton, EscWithoutACancelButtonClosesTheDialog)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }));
    dialog.StartAtM(11);
    KeyM(VK_ESCAPE);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.StoryM(), "");
}

TEST(StandardButton, AParentThatIsNoDialogGetsNoDialogMessages)
{
    PlainWindowCL parent;
    const MessageRecorder recorder(parent.m_hWnd);
    DuStandardButtonCL push;
    push.SetDefaultM(1);
    push.Create(&parent);
    EXPECT_TRUE(recorder.ListM().empty());
}

TEST(StandardButton, EnterPressesTheFocusedButtonInsteadOfTheDefaultOne)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(2, 11, "a", 1), button(3, 12, "b", 0) }));
    dialog.StartAtM(11);
    KeyM(VK_TAB);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "posted 1625 w=12 l=0; sent 1424 w=12 l=0");
}

TEST(StandardButton, MouseClickGivesTheFocusAndPresses)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0), button(2, 12, "b", 0) }));
    dialog.StartAtM(11);
    dialog.ClickItemM(12);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 12);
    EXPECT_EQ(dialog.StoryM(), "posted 1625 w=12 l=0; sent 1424 w=12 l=0");
}

TEST(Buttons, TabOrderFollowsTheWindowIndexAndTakesOneStopForAGroup)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(5, 11, "a", 0), button(1, 12, "b", 0) })
        + radios({ radio(2, 21, 1, 0), radio(3, 22, 1, 1) }) + checks({ check(4, 31, 0) }));
    EXPECT_EQ(dialog.StackM(), "12 21 22 31 11");
    dialog.StartAtM(12);
    std::string order;
    for (int i = 0; i < 4; ++i) {
        KeyM(VK_TAB);
        order += std::to_string(ShownDialogCL::FocusedIdM()) + " ";
    }
    EXPECT_EQ(order, "22 31 11 12 ");
    ChordM(VK_SHIFT, VK_TAB);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 11);
    EXPECT_EQ(dialog.StoryM(),
        "posted 1625 w=22 l=0; posted 1625 w=11 l=0; posted 1625 w=12 l=0; posted 1625 w=11 l=0");
}

TEST(Buttons, IdOfACheckBoxAndAStandardButtonMeansTheStandardButton)
{
    TestDialogCL dialog(HeaderSections + checks({ check(1, 11, 0) }) + buttons({ button(2, 11, "b", 0) })
        + radios({ radio(3, 12, 1, 0) }));
    int kind = 0;
    EXPECT_NE(dialog.GetContrlPtrM(11, &kind), nullptr);
    EXPECT_EQ(kind, 13);
    dialog.GetContrlPtrM(12, &kind);
    EXPECT_EQ(kind, 11);
}

TEST(Buttons, CommandsReachEveryKind)
{
    TestDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }) + radios({ radio(2, 12, 1, 0) })
        + checks({ check(3, 13, 0) }));
    dialog.EnableAllCtrlM(0);
    dialog.ShowAllCtrlM(0);
    for (int id = 11; id <= 13; ++id) {
        EXPECT_EQ(styleOf(dialog.ItemM(id)) & (WS_DISABLED | WS_VISIBLE), static_cast<DWORD>(WS_DISABLED))
            << id;
    }
}

TEST(Buttons, CaptionsAreCutAtACharacterAndSetOnceAtCreation)
{
    PlainWindowCL parent;
    DuCheckBoxCL box;
    EXPECT_EQ(box.SetTextM((std::string(258, 'x') + "\xD6\xD0").c_str()), 1);
    box.Create(&parent);
    EXPECT_EQ(textOf(box.m_hWnd), std::string(258, 'x'));
    EXPECT_EQ(box.SetTextM("y"), 1);
    EXPECT_EQ(textOf(box.m_hWnd), std::string(258, 'x'));
    DuStandardButtonCL push;
    EXPECT_EQ(push.SetTextM(nullptr), 0);
    EXPECT_EQ(push.Create(&parent), 1);
    EXPECT_EQ(textOf(push.m_hWnd), "");
}

TEST(Buttons, OnlyAliveRecordsAreApplied)
{
    const DescriptionFileCL file("1 11 2 3 4 5 1\nx\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrCheckBoxCL record(AliveTag);
    record.FmReadInterfaceM(&io);
    DVrCheckBoxArr records;
    records.AddItemM(record);
    records.AddItemM(record);
    records.DelItemM(0);
    DuCheckBoxCL control;
    EXPECT_EQ(records.InitCheckBoxM(0, &control), 1);
    EXPECT_EQ(control.GetFunctionIDM(), 0);
    EXPECT_EQ(records.InitCheckBoxM(1, &control), 1);
    EXPECT_EQ(control.GetFunctionIDM(), 11);
}
