#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <gtest/gtest.h>
#include <string>

using namespace testing_support;

namespace {

class ComboBox : public testing::Test
{
protected:
    void makeM(DWORD style) { ASSERT_TRUE(combo.Create(WS_VISIBLE | style, Place, &parent, 1)); }
    HWND editM() const { return ::GetWindow(combo, GW_CHILD); }

    ParentWindowCL parent;
    CComboBox combo;
};

} // namespace

TEST_F(ComboBox, EditSelectionCountsBytes)
{
    makeM(CBS_DROPDOWN);
    combo.SetWindowText("a\xD6\xD0"
                        "b\xCE\xC4");
    EXPECT_TRUE(combo.SetEditSel(1, 4));
    EXPECT_EQ(static_cast<DWORD>(::SendMessageW(editM(), EM_GETSEL, 0, 0)), MAKELONG(1, 3));
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 4)));
    EXPECT_TRUE(combo.SetEditSel(2, -1)); // Within a character: its beginning.
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 6)));
}

TEST_F(ComboBox, LimitCountsTheBytesThatAreTyped)
{
    makeM(CBS_DROPDOWN);
    EXPECT_TRUE(combo.LimitText(3));
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(editM()));
    TypeM(L"\u4E2D\u6587ab");
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(text,
        "\xD6\xD0"
        "a");
}
