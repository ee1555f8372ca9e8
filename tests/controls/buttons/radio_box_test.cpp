#include "described_buttons.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(RadioBox, StyleHasNoTabStopAndTheFirstOfAGroupBeginsIt)
{
    const TestDialogCL dialog(HeaderSections + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 0) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50000009U | WS_GROUP);
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50000009U);
    EXPECT_EQ(textOf(dialog.ItemM(12)), "横向");
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

TEST(RadioBox, EachGroupKeepsItsCheck)
{
    ShownDialogCL dialog(HeaderSections
        + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 1), radio(3, 13, 2, 1), radio(4, 14, 2, 0),
            radio(5, 15, 3, 1) }));
    EXPECT_EQ(checkedOf(dialog, 11, 15), "-xx-x");
    dialog.ClickItemM(14);
    EXPECT_EQ(checkedOf(dialog, 11, 15), "-x-xx");
}

TEST(RadioBox, EachGroupOfTheApplicationsClassKeepsItsCheck)
{
    struct OwnRadioCL : DuRadioBoxCL
    {
    };
    const DescriptionFileCL file(HeaderSections
        + radios({ radio(1, 11, 1, 0), radio(2, 12, 1, 1), radio(3, 13, 2, 1), radio(4, 14, 2, 0) }));
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    dialog.SetFactoryM<DuRadioBoxCL>([](int) { return std::make_unique<OwnRadioCL>(); });
    ASSERT_EQ(dialog.CreateM(), 1);
    for (const int id : { 11, 12, 13, 14 }) {
        EXPECT_EQ(isChecked(::GetDlgItem(dialog.m_hWnd, id)), id == 12 || id == 13) << id;
    }
}

TEST(RadioBox, ClickLeavesOnlyTheClickedOneOfItsGroupChecked)
{
    ShownDialogCL dialog(HeaderSections
        + radios({ radio(1, 11, 1, 1), radio(2, 12, 1, 1), radio(3, 13, 1, 0), radio(4, 14, 2, 1),
            radio(5, 15, 2, 0) }));
    // Two checks in one group stay until the first click; with visual styles the last one stays.
    EXPECT_EQ(checkedOf(dialog, 11, 15), HasVisualStyles() ? "-x-x-" : "xx-x-");
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
