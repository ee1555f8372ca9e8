// The C interface: what callbacks are told of real input.
#include "form/opened_dialog.h"

using namespace testing_support;

namespace {

class CEvents : public testing::Test
{
protected:
    CEvents() { opened_.ShowM(); }
    void StartAtM(int id)
    {
        EXPECT_TRUE(FocusM(opened_.ItemM(id)));
        opened_.StoryM();
    }
    void ClickItemM(int id) { ClickM(opened_.ItemM(id), 5, 5); }

    OpenedDialogCL opened_;
};

} // namespace

TEST_F(CEvents, ButtonsTellOfClicks)
{
    StartAtM(43);
    ClickItemM(43);
    EXPECT_EQ(opened_.StoryM(), "click 43 13 0");
    ClickItemM(42);
    EXPECT_EQ(opened_.StoryM(), "click 42 12 0");
    ClickItemM(33);
    EXPECT_EQ(opened_.StoryM(), "focus 33 11 0; click 33 11 0");
    ClickItemM(44);
    EXPECT_EQ(opened_.StoryM(), "click 44 15 1");
}

TEST_F(CEvents, FieldsTellOfEachChangeAndOfBeingLeft)
{
    StartAtM(43);
    ClickItemM(13);
    EXPECT_EQ(opened_.StoryM(), "focus 13 4 0");
    TypeM(L"xy");
    EXPECT_EQ(opened_.StoryM(), "change 13 4 0; change 13 4 0");
    KeyM(VK_TAB);
    EXPECT_EQ(opened_.StoryM(), "leave 13 4 0 good; focus 14 6 0");
    KeyM(VK_UP); // Its arrows move the value.
    EXPECT_NE(opened_.StoryM().find("change 14 6 0"), std::string::npos);
    ClickItemM(16);
    const std::string story = opened_.StoryM();
    EXPECT_EQ(story.find("leave 14 6 0"), 0u) << story;
    EXPECT_NE(story.find("focus 16 5 0"), std::string::npos) << story;
    ClickItemM(43);
    EXPECT_EQ(opened_.StoryM().find("leave 16 5 0 good"), 0u);
}

TEST_F(CEvents, ABadValueIsToldByTheLibraryAndThenReported)
{
    StartAtM(11);
    ChordM(VK_CONTROL, 'A');
    TypeM(L"-");
    opened_.StoryM();
    MessageBoxWatcher watcher;
    ClickItemM(42);
    EXPECT_TRUE(watcher.WaitForM(1));
    EXPECT_TRUE(PumpUntil([this] { return ::GetFocus() == opened_.ItemM(11); }));
    const std::string story = opened_.StoryM();
    EXPECT_NE(story.find("leave 11 4 0 bad"), std::string::npos) << story;
    EXPECT_EQ(story.find("click 42"), std::string::npos) << story;
    EXPECT_EQ(watcher.SeenM().size(), 1u);
}

TEST_F(CEvents, ListsTellOfOtherSelections)
{
    StartAtM(43);
    ClickItemM(17);
    EXPECT_EQ(opened_.StoryM(), "select 17 7 0");
    KeyM(VK_DOWN);
    EXPECT_EQ(opened_.StoryM(), "select 17 7 1");
    DoubleClickM(opened_.ItemM(17), 5, 5);
    EXPECT_EQ(opened_.StoryM(), "select 17 7 0; double click 17 7 0");
    StartAtM(22);
    KeyM(VK_DOWN);
    EXPECT_EQ(opened_.StoryM(), "select 22 9 0");
    StartAtM(25);
    KeyM(VK_HOME);
    opened_.StoryM();
    KeyM(VK_DOWN);
    EXPECT_EQ(opened_.StoryM(), "select 25 10 1"); // Once, though two rows have changed.
    StartAtM(46);
    KeyM(VK_RIGHT); // Expands.
    EXPECT_EQ(opened_.StoryM(), "");
    KeyM(VK_DOWN);
    EXPECT_EQ(opened_.StoryM(), "select 46 18 0");
}

TEST_F(CEvents, TheFieldOfAComboBoxTellsOfChanges)
{
    StartAtM(43);
    ClickItemM(23);
    opened_.StoryM();
    TypeM(L"x");
    EXPECT_EQ(opened_.StoryM(), "change 23 9 0");
    EXPECT_EQ(opened_.TextM(23), "x");
    ClickItemM(43);
    EXPECT_EQ(opened_.StoryM().find("leave 23 9 0 good"), 0u);
}

TEST_F(CEvents, WhatTheProgramDoesIsNone)
{
    StartAtM(43);
    EXPECT_EQ(panelkit_set_text(opened_.dialog, 13, "xyz"), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_int(opened_.dialog, 14, 8), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_index(opened_.dialog, 25, 2), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_path(opened_.dialog, 46, "top"), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_text(opened_.dialog, 23, "free"), PANELKIT_OK);
    EXPECT_EQ(panelkit_set_checked(opened_.dialog, 33, 1), PANELKIT_OK);
    EXPECT_EQ(panelkit_clear_lines(opened_.dialog, 17), PANELKIT_OK);
    EXPECT_EQ(opened_.StoryM(), "");
}

TEST_F(CEvents, TimersRunUntilTheyAreStopped)
{
    int ticks[2] = {};
    opened_.handler = [&](const panelkit_event& event) {
        if (event.kind == PANELKIT_EVENT_TIMER) {
            ++ticks[event.id == -5 ? 1 : 0];
        }
        return 0;
    };
    EXPECT_EQ(panelkit_start_timer(opened_.dialog, 6107, 10), PANELKIT_OK);
    EXPECT_EQ(panelkit_start_timer(opened_.dialog, -5, 10), PANELKIT_OK);
    EXPECT_EQ(panelkit_start_timer(opened_.dialog, -5, 20), PANELKIT_OK); // Anew.
    EXPECT_TRUE(PumpUntil([&] { return ticks[0] > 2 && ticks[1] > 2; }));
    EXPECT_EQ(panelkit_stop_timer(opened_.dialog, -5), PANELKIT_OK);
    EXPECT_EQ(panelkit_stop_timer(opened_.dialog, -5), PANELKIT_ERROR_ID);
    ticks[0] = ticks[1] = 0;
    EXPECT_EQ(panelkit_close(opened_.dialog, 0), PANELKIT_OK); // Hidden they run on.
    EXPECT_TRUE(PumpUntil([&] { return ticks[0] > 4; }));
    EXPECT_EQ(ticks[1], 0);
}

TEST_F(CEvents, TheUserClosesUnlessTheProgramKeepsItOpen)
{
    int keep = 1;
    int32_t open = 0;
    int32_t result = 0;
    opened_.handler
        = [&keep](const panelkit_event& event) { return event.kind == PANELKIT_EVENT_CLOSING ? keep : 1; };
    StartAtM(43);
    KeyM(VK_ESCAPE);
    EXPECT_EQ(opened_.StoryM(), "closing 0 0 2");
    ::SendMessageW(opened_.WindowM(), WM_CLOSE, 0, 0);
    EXPECT_EQ(opened_.StoryM(), "closing 0 0 2");
    EXPECT_EQ(panelkit_is_open(opened_.dialog, &open), PANELKIT_OK);
    EXPECT_EQ(open, 1);
    keep = 0;
    KeyM(VK_ESCAPE);
    EXPECT_EQ(opened_.StoryM(), "closing 0 0 2; closed 0 0 2");
    EXPECT_EQ(panelkit_is_open(opened_.dialog, &open), PANELKIT_OK);
    EXPECT_EQ(open, 0);
    EXPECT_EQ(panelkit_result(opened_.dialog, &result), PANELKIT_OK);
    EXPECT_EQ(result, 2);
    EXPECT_EQ(panelkit_close(opened_.dialog, 5), PANELKIT_OK); // Closed already: nothing.
    EXPECT_EQ(opened_.StoryM(), "");
    opened_.ShowM(); // Again, the same values in it; the program closes without being asked.
    EXPECT_EQ(opened_.TextM(13), "abc");
    EXPECT_EQ(panelkit_close(opened_.dialog, 9), PANELKIT_OK);
    EXPECT_EQ(opened_.StoryM(), "closed 0 0 9");
}

TEST_F(CEvents, CheckingTellsABadFieldAndSaysSo)
{
    int32_t good = 7;
    EXPECT_EQ(panelkit_check(opened_.dialog, &good), PANELKIT_OK);
    EXPECT_EQ(good, 1);
    StartAtM(11);
    ChordM(VK_CONTROL, 'A');
    TypeM(L"-");
    MessageBoxWatcher watcher;
    EXPECT_EQ(panelkit_check(opened_.dialog, &good), PANELKIT_OK);
    EXPECT_EQ(good, 0);
    EXPECT_EQ(watcher.SeenM().size(), 1u);
    EXPECT_EQ(::GetFocus(), opened_.ItemM(11));
}

TEST_F(CEvents, CheckingKnowsSpinEditsToo)
{
    int32_t good = 7;
    StartAtM(14);
    EXPECT_EQ(panelkit_check(opened_.dialog, &good), PANELKIT_OK);
    EXPECT_EQ(good, 1);
    StartAtM(14);
    ChordM(VK_CONTROL, 'A');
    TypeM(L"99");
    MessageBoxWatcher watcher;
    EXPECT_EQ(panelkit_check(opened_.dialog, &good), PANELKIT_OK);
    EXPECT_EQ(good, 0);
    EXPECT_EQ(watcher.SeenM().size(), 1u);
    EXPECT_EQ(::GetFocus(), opened_.ItemM(14));
}

TEST_F(CEvents, AControlGetsTheFocusAsByAKey)
{
    StartAtM(11);
    EXPECT_EQ(panelkit_focus_control(opened_.dialog, 43), PANELKIT_OK);
    EXPECT_EQ(::GetFocus(), opened_.ItemM(43));
    EXPECT_EQ(opened_.StoryM(), "leave 11 4 0 good; focus 43 13 0");
    EXPECT_EQ(panelkit_enable_control(opened_.dialog, 42, 0), PANELKIT_OK);
    EXPECT_EQ(panelkit_focus_control(opened_.dialog, 42), PANELKIT_ERROR_REFUSED);
    EXPECT_EQ(::GetFocus(), opened_.ItemM(43));

    StartAtM(11);
    ChordM(VK_CONTROL, 'A');
    TypeM(L"-");
    MessageBoxWatcher watcher;
    EXPECT_EQ(panelkit_focus_control(opened_.dialog, 43), PANELKIT_ERROR_REFUSED); // The field keeps it.
    EXPECT_EQ(watcher.SeenM().size(), 1u);
    EXPECT_EQ(::GetFocus(), opened_.ItemM(11));
}

TEST(CAnswers, ButtonsOneAndTwoCloseTheDialog)
{
    const std::string answers = HeaderSections
        + std::string(
            "[标准按钮]\n3\n0\n1 1 10 10 70 20\nyes\n1\n2 2 10 40 70 20\nno\n0\n3 3 10 70 70 20\nmore\n0\n");
    OpenedDialogCL opened(answers);
    const auto after = [&opened](const std::function<void()>& act) {
        int32_t open = 1;
        if (panelkit_is_open(opened.dialog, &open) == PANELKIT_OK && open == 0) {
            opened.ShowM();
        }
        EXPECT_TRUE(FocusM(opened.ItemM(3)));
        opened.StoryM();
        act();
        return opened.StoryM();
    };
    EXPECT_EQ(after([&] { ClickM(opened.ItemM(3), 5, 5); }), "click 3 13 0");
    EXPECT_EQ(after([] { KeyM(VK_ESCAPE); }), "click 2 13 0; closing 0 0 2; closed 0 0 2");
    const std::string clicked = after([&] { ClickM(opened.ItemM(1), 5, 5); });
    EXPECT_NE(clicked.find("click 1 13 0; closing 0 0 1; closed 0 0 1"), std::string::npos) << clicked;
    opened.handler = [&](const panelkit_event& event) {
        if (event.kind == PANELKIT_EVENT_CLICK) {
            EXPECT_EQ(panelkit_close(opened.dialog, 20), PANELKIT_OK); // Asks nobody.
        }
        return 0;
    };
    EXPECT_EQ(after([] { KeyM(VK_ESCAPE); }), "click 2 13 0; closed 0 0 20");
}
