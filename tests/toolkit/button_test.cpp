#include "parent_window.h"
#include "support/input.h"
#include "support/visual_styles.h"
#include "support/window.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class DrawnButtonCL : public CButton
{
public:
    UINT lastAction = 0;
    bool isPressed = false;
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        lastAction = draw->itemAction;
        isPressed = (draw->itemState & ODS_SELECTED) != 0;
    }
};

} // namespace

TEST(Button, KeepsCheckStateAndStyle)
{
    ParentWindowCL parent;
    CButton button;
    ASSERT_TRUE(button.Create(ChineseText, WS_VISIBLE | BS_AUTO3STATE, Place, &parent, 3));
    CString text;
    button.GetWindowText(text);
    EXPECT_EQ(text, ChineseText);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    button.SetState(TRUE);
    EXPECT_EQ(button.GetState(), static_cast<UINT>(BST_INDETERMINATE | BST_PUSHED));
    button.SetState(FALSE);
    button.SetButtonStyle(BS_AUTOCHECKBOX);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
    ASSERT_TRUE(ActivateM(parent));
    button.SetCheck(BST_UNCHECKED);
    ClickM(button, 5, 75);
    EXPECT_EQ(button.GetCheck(), BST_CHECKED);
}

TEST(Button, ShowsWideCaption)
{
    ParentWindowCL parent;
    CButton button;
    ASSERT_TRUE(button.Create(L"\u4E2D\xE4", WS_VISIBLE, Place, &parent, 3));
    wchar_t shown[10] = {};
    ::GetWindowTextW(button, shown, 10);
    EXPECT_STREQ(shown, L"\u4E2D\xE4");
}

TEST(Button, KeepsPicturesAndGivesTheOneBefore)
{
    ParentWindowCL parent;
    CButton bitmaps;
    CButton icons;
    ASSERT_TRUE(bitmaps.Create("", WS_VISIBLE | BS_BITMAP, Place, &parent, 1));
    ASSERT_TRUE(icons.Create("", WS_VISIBLE | BS_ICON, Place, &parent, 2));
    CBitmap one;
    one.CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(bitmaps.SetBitmap(one), nullptr);
    EXPECT_EQ(bitmaps.GetBitmap(), static_cast<HBITMAP>(one));
    const HICON icon = ::LoadIconW(nullptr, MAKEINTRESOURCEW(32512));
    EXPECT_EQ(icons.SetIcon(icon), nullptr);
    EXPECT_EQ(icons.GetIcon(), icon);
    EXPECT_EQ(icons.SetIcon(nullptr), icon);
}

TEST(Button, DrawsItselfWhereItsOwnerIsToDraw)
{
    ParentWindowCL parent;
    DrawnButtonCL button;
    ASSERT_TRUE(button.Create("", WS_VISIBLE | BS_OWNERDRAW, Place, &parent, 3));
    button.RedrawWindow();
    EXPECT_EQ(button.lastAction, static_cast<UINT>(ODA_DRAWENTIRE));
    EXPECT_FALSE(button.isPressed);
    button.SetState(TRUE);
    button.UpdateWindow();
    // The buttons of the common controls 6 are drawn whole whenever something changes.
    EXPECT_EQ(button.lastAction, static_cast<UINT>(HasVisualStyles() ? ODA_DRAWENTIRE : ODA_SELECT));
    EXPECT_TRUE(button.isPressed);
}
