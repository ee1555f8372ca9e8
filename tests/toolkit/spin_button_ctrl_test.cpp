#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class SpinButtonCtrl : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(edit.Create(WS_VISIBLE, CRect(10, 10, 80, 34), &parent, 1));
        ASSERT_TRUE(
            spin.Create(WS_VISIBLE | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(80, 10, 100, 34), &parent, 2));
    }

    ParentWindowCL parent;
    CEdit edit;
    CSpinButtonCtrl spin;
};

} // namespace

TEST_F(SpinButtonCtrl, KnowsItsBuddy)
{
    EXPECT_EQ(spin.SetBuddy(&edit), nullptr);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    spin.SetRange32(-100000, 100000);
    spin.SetPos32(70000);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, "70000");
    BOOL isWrong = TRUE;
    EXPECT_EQ(spin.GetPos32(&isWrong), 70000);
    EXPECT_FALSE(isWrong);
    edit.SetWindowText("no number");
    spin.GetPos32(&isWrong);
    EXPECT_TRUE(isWrong);
    EXPECT_EQ(spin.SetBuddy(nullptr), &edit);
}

TEST_F(SpinButtonCtrl, KeepsRangeBaseAndSteps)
{
    int low = 0;
    int high = 0;
    spin.SetRange(-3, 9);
    spin.GetRange(low, high);
    EXPECT_EQ(low, -3);
    EXPECT_EQ(high, 9);
    EXPECT_EQ(spin.GetRange(), static_cast<DWORD>(MAKELONG(9, -3)));
    spin.SetRange32(-100000, 200000);
    spin.GetRange32(low, high);
    EXPECT_EQ(low, -100000);
    EXPECT_EQ(high, 200000);
    EXPECT_EQ(spin.SetBase(16), 10);
    EXPECT_EQ(spin.GetBase(), 16u);
    UDACCEL steps[] = { { 0, 2 }, { 3, 10 } };
    EXPECT_TRUE(spin.SetAccel(2, steps));
    UDACCEL seen[2] = {};
    EXPECT_EQ(spin.GetAccel(2, seen), 2u);
    EXPECT_EQ(seen[1].nInc, 10u);
    spin.SetRange(0, 100);
    spin.SetPos(50);
    ASSERT_TRUE(ActivateM(parent));
    ClickM(spin, 10, 4);
    EXPECT_EQ(spin.GetPos(), 52);
}
