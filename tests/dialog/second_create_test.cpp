#include "controls/buttons/new_rotate_btn.h"
#include "controls/text/text_box.h"
#include "controls/text/tool_tip.h"
#include "dialog/basic_dialog.h"
#include "support/handles.h"
#include "support/kind_types.h"
#include "support/pump.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// Each is created the way that its kind has.
template <class ControlTP> int createIn(ControlTP& control, CWnd* parent)
{
    const int size[2] = { 60, 40 };
    control.SetFunctionIDM(31);
    control.SetSizeM(size);
    return control.Create(parent);
}
int createIn(DuSpinButtonCL& control, CWnd* parent)
{
    return control.Create(CRect(0, 0, 20, 40), parent);
}
int createIn(DuTextBox& control, CWnd* parent)
{
    return control.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 40), parent, 31);
}

template <class ControlTP> class SecondCreateTest : public testing::Test
{
};

template <class RowTP> using ControlOfTP = typename RowTP::Controls::ControlTP;

} // namespace

using CreatedTP = EveryKindTP<ControlOfTP, DuNewRotateBtnCL, DuSpinButtonCL, DuTextBox>;
TYPED_TEST_SUITE(SecondCreateTest, CreatedTP);

TYPED_TEST(SecondCreateTest, ReplacesTheWindowOfTheFirst)
{
    PlainWindowCL parent;
    {
        TypeParam control;
        ASSERT_EQ(createIn(control, &parent), 1);
        const HWND first = control.m_hWnd;
        const int children = childrenOf(parent.m_hWnd);
        ASSERT_EQ(createIn(control, &parent), 1);
        EXPECT_FALSE(::IsWindow(first));
        EXPECT_EQ(childrenOf(parent.m_hWnd), children);
        EXPECT_EQ(CWnd::FromHandlePermanent(first), nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(control.m_hWnd), &control);
        PumpPending();
    }
    EXPECT_EQ(childrenOf(parent.m_hWnd), 0);
}

TYPED_TEST(SecondCreateTest, LeavesNoWindowWhenItFails)
{
    PlainWindowCL parent;
    CWnd nowhere;
    TypeParam control;
    ASSERT_EQ(createIn(control, &parent), 1);
    EXPECT_EQ(createIn(control, &nowhere), 0);
    EXPECT_EQ(control.m_hWnd, nullptr);
    EXPECT_EQ(childrenOf(parent.m_hWnd), 0);
}

TEST(SecondCreate, OfADialogReplacesItsWindow)
{
    TestDialogCL dialog(HeaderSections + std::string("[标题]\n1\n0\n1 11 20 30 120 20 1\nx\n0 -1 0 0\n"));
    const HWND first = dialog.m_hWnd;
    const int windows = LiveWindowsM();
    ASSERT_EQ(dialog.CreateM(), 1);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(LiveWindowsM(), windows);
    EXPECT_NE(dialog.ItemM(11), nullptr);
}

TEST(SecondCreate, OfAToolTipByTheProgramReplacesItsWindow)
{
    uToolTipCtrl tip;
    ASSERT_EQ(tip.InitialM(), 1);
    ASSERT_EQ(tip.ShowHelpM(nullptr, CRect(10, 10, 90, 30), "help"), 1);
    const HWND first = tip.m_hWnd;
    ASSERT_TRUE(tip.CreateEx(0, "MyToolTipCtrl", "", WS_POPUP, CRect(10, 10, 90, 30), nullptr, 0));
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(CWnd::FromHandlePermanent(tip.m_hWnd), &tip);
}
