// Every function of every kind of control, with null where it wants a pointer and with arguments by chance:
// before there is a window, while there is one, and when it is gone.
#include "soak/control_operations.h"
#include "soak/told_step.h"
#include "support/kind_types.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

namespace {

// What the user sees of a control and what it holds.
template <class ControlTP> std::string shownM(ControlTP& control)
{
    return control.m_hWnd == nullptr ? ""
                                     : textOf(control.m_hWnd) + " " + placeOf(control.m_hWnd) + " "
            + std::to_string(styleOf(control.m_hWnd)) + " "
            + std::to_string(::SendMessageW(control.m_hWnd, LB_GETCOUNT, 0, 0));
}

template <class ControlTP> void callAll(ControlTP& control, const char* state, bool onlyNull)
{
    unsigned seed = 0;
    for (const auto& operation : ControlOperationsCL<ControlTP>::ListM()) {
        PickedArgumentsCL pick(++seed, onlyNull);
        ToldStepCL::NoteM(seed, onlyNull ? 0 : 1, state, operation.name);
        const std::string before = onlyNull ? shownM(control) : "";
        operation.run(control, pick);
        EXPECT_TRUE(pick.IsRoomKeptM()) << ToldStepCL::TextM();
        const bool stacks = std::string(operation.name) == "SetZOrderM"; // Behind nobody is at the top.
        if (onlyNull && pick.HasGivenNullM() && !stacks) {
            EXPECT_EQ(shownM(control), before) << ToldStepCL::TextM();
        }
    }
}

template <class ControlTP> void callAllInEachState(ControlTP& control, PlainWindowCL& parent)
{
    const ToldStepCL telling;
    const int place[2] = { 10, 10 };
    const int size[2] = { 80, 60 };
    for (const bool onlyNull : { true, false }) {
        callAll(control, "before creation", onlyNull);
        control.SetPositionM(place);
        control.SetSizeM(size);
        control.SetFunctionIDM(7);
        ASSERT_EQ(control.Create(&parent), 1);
        callAll(control, "created", onlyNull);
        control.DestroyWindow();
        callAll(control, "destroyed", onlyNull);
        control.DelItemM();
        callAll(control, "deleted", onlyNull);
        EXPECT_EQ(childrenOf(parent.m_hWnd), 0);
    }
}

template <class RowTP> class WithoutWindowTest : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(WithoutWindowTest, EveryRowTP, KindNamesCL);

TYPED_TEST(WithoutWindowTest, EveryFunctionIsHarmless)
{
    PlainWindowCL parent;
    typename TypeParam::Controls::ControlTP control(AliveTag);
    callAllInEachState(control, parent);
}

TEST(WithoutWindow, EveryFunctionOfTheSeriesOfPicturesIsHarmless)
{
    PlainWindowCL parent;
    DuNewRotateBtnCL control(AliveTag);
    callAllInEachState(control, parent);
}

// What is refused before creation leaves nothing for afterwards either.
TEST(WithoutWindow, ARegionIsMadeOnlyOfAWindow)
{
    PlainWindowCL parent;
    DuMultiStateButtonCL button(AliveTag);
    const int size[2] = { 40, 30 };
    button.SetSizeM(size);
    EXPECT_EQ(button.InitRgnM(), 1);
    EXPECT_EQ(button.GetButtonRgnM()->GetSafeHandle(), nullptr);
    ASSERT_EQ(button.Create(&parent), 1);
    EXPECT_TRUE(button.GetButtonRgnM()->PtInRegion(CPoint(20, 15)));
}

TEST(WithoutWindow, LinesAreRefused)
{
    int number = 5;
    char text[TextSize] = "kept";
    const SmallPictureCL picture(0x0000FF, 6, 6);
    DuListCtrlCL table;
    EXPECT_EQ(table.InsertColumnM(0, 50, "a"), 0);
    EXPECT_EQ(table.InsertItemM(0, 1, "a"), 0);
    EXPECT_EQ(table.SetItemTextM(0, 0, "a"), 0);
    EXPECT_EQ(table.GetFirstSelM(&number, &number), 0);
    EXPECT_EQ(table.GetNextSelM(-1, &number, &number), 0);
    EXPECT_EQ(table.DeleteItemM(0), 0);
    EXPECT_EQ(table.DelAllM(), 0);
    DuTextListBoxCL texts;
    EXPECT_EQ(texts.AddItemM(1, "a"), -1);
    EXPECT_EQ(texts.InsertItemM(0, 1, "a"), 0);
    EXPECT_EQ(texts.DelItemM(0), 0);
    EXPECT_EQ(texts.SetSelM(0), 0);
    EXPECT_EQ(texts.GetItemM(&number, &number), 0);
    DuBmpListBoxCL bitmaps;
    EXPECT_EQ(bitmaps.AddItemM(1, picture.path()), 0);
    EXPECT_EQ(bitmaps.InsertItemM(0, 1, picture.path()), 0);
    EXPECT_EQ(bitmaps.DelItemM(0), 0);
    EXPECT_EQ(bitmaps.SetSelM(0), 0);
    EXPECT_EQ(bitmaps.GetFirstItemM(&number, &number), 0);
    DuComboBoxCL combo;
    EXPECT_EQ(combo.AddItemM(1, "a"), -1);
    EXPECT_EQ(combo.InsertItemM(0, 1, "a"), 0);
    EXPECT_EQ(combo.DelItemM(0), 0);
    EXPECT_EQ(combo.SetSelM(0), 0);
    EXPECT_EQ(combo.SetDataSelM(1), 0);
    EXPECT_EQ(combo.GetCurItemM(&number, &number, text), 0);
    DuTreeCL tree;
    EXPECT_EQ(tree.InsertItemM(TVI_ROOT, 1, "a", picture.path(), picture.path()), nullptr);
    EXPECT_EQ(tree.GetCurSelM(&number), nullptr);
    EXPECT_EQ(number, 5);
    EXPECT_STREQ(text, "kept");
}
