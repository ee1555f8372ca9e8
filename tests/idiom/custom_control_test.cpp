// A control that an application made itself, as a user drives it.
#include "../../examples/idiom/resource.h"
#include "idiom/child_program.h"

using namespace testing_support;

namespace {

class CustomControl : public testing::Test
{
protected:
    CustomControl()
        : program_("custom_control")
        , dialog_(program_.WindowM(L"Grid"))
        , grid_(::GetDlgItem(dialog_, IDC_GRID))
    {
        // The cells are as wide as the lines between them tell.
        const Pixels screen(::GetDesktopWindow());
        POINT origin {};
        ::ClientToScreen(grid_, &origin);
        while (cell_.cx < 200 && screen.AtM(origin.x + cell_.cx, origin.y + 1) != LineColor) {
            ++cell_.cx;
        }
        while (cell_.cy < 200 && screen.AtM(origin.x + 1, origin.y + cell_.cy) != LineColor) {
            ++cell_.cy;
        }
        ++cell_.cx;
        ++cell_.cy;
    }
    POINT MiddleM(int row, int column) const
    {
        return { column * cell_.cx + cell_.cx / 2, row * cell_.cy + cell_.cy / 2 };
    }
    void ClickCellM(int row, int column) { ClickM(grid_, MiddleM(row, column).x, MiddleM(row, column).y); }
    bool SelectionBecomesM(const wchar_t* text) const { return TextBecomes(dialog_, IDC_SELECTION, text); }
    COLORREF BackgroundM(int row, int column) const
    {
        return ScreenPixel(grid_, column * cell_.cx + 1, row * cell_.cy + 1);
    }

    static constexpr COLORREF LineColor = RGB(192, 192, 192);
    ChildProgram program_;
    HWND dialog_;
    HWND grid_;
    SIZE cell_ {};
};

} // namespace

TEST_F(CustomControl, StandsInATemplateAndTakesTheFocus)
{
    ASSERT_NE(grid_, nullptr);
    EXPECT_TRUE(FocusBecomes(program_, grid_));
    EXPECT_TRUE(SelectionBecomesM(L"cell 1"));
    EXPECT_TRUE(Becomes([&] { return BackgroundM(0, 0) == ::GetSysColor(COLOR_HIGHLIGHT); }));
    EXPECT_EQ(BackgroundM(0, 1), ::GetSysColor(COLOR_WINDOW));
    KeyM(VK_TAB); // The slider is next.
    EXPECT_TRUE(Becomes([&] { return program_.FocusM() != grid_; }));
}

TEST_F(CustomControl, TheMouseSelectsAndDragsEvenOutsideOfIt)
{
    ClickCellM(1, 2);
    EXPECT_TRUE(SelectionBecomesM(L"cell 8"));
    MoveMouseToM(grid_, MiddleM(0, 1).x, MiddleM(0, 1).y);
    PressM();
    EXPECT_TRUE(SelectionBecomesM(L"cell 2"));
    MoveMouseToM(grid_, MiddleM(2, 3).x, MiddleM(2, 3).y);
    EXPECT_TRUE(SelectionBecomesM(L"cells 2 to 14"));
    EXPECT_TRUE(Becomes([&] { return BackgroundM(1, 4) == ::GetSysColor(COLOR_HIGHLIGHT); }));
    MoveMouseToM(dialog_, 2, 2); // Captured: nobody else's now.
    ReleaseM();
    MoveMouseToM(grid_, MiddleM(0, 0).x, MiddleM(0, 0).y); // The button is up: nothing is dragged.
    ClickCellM(0, 4);
    EXPECT_TRUE(SelectionBecomesM(L"cell 5"));
    DoubleClickM(grid_, MiddleM(2, 2).x, MiddleM(2, 2).y);
    EXPECT_TRUE(TextBecomes(dialog_, IDC_ACTIVATED, L"13 was activated"));
}

TEST_F(CustomControl, TheKeyboardIsItsOwn)
{
    ASSERT_TRUE(FocusBecomes(program_, grid_));
    EXPECT_TRUE(SelectionBecomesM(L"cell 1"));
    KeyM(VK_RIGHT); // To a dialog the arrows would mean its next control.
    EXPECT_TRUE(SelectionBecomesM(L"cell 2"));
    KeyM(VK_DOWN);
    EXPECT_TRUE(SelectionBecomesM(L"cell 7"));
    ChordM(VK_SHIFT, VK_RIGHT);
    EXPECT_TRUE(SelectionBecomesM(L"cells 7 to 8"));
    KeyM(VK_END);
    EXPECT_TRUE(SelectionBecomesM(L"cell 60"));
    KeyM(VK_RETURN); // Not the default button's.
    EXPECT_TRUE(TextBecomes(dialog_, IDC_ACTIVATED, L"60 was activated"));
    EXPECT_EQ(program_.FocusM(), grid_);
    KeyM(VK_HOME);
    EXPECT_TRUE(SelectionBecomesM(L"cell 1"));
    KeyM(VK_ESCAPE);
    EXPECT_EQ(program_.ExitCodeM(), 0);
}

TEST_F(CustomControl, ScrollsByBarAndWheel)
{
    RECT client {};
    ::GetClientRect(grid_, &client);
    ClickM(grid_, client.right + 5, client.bottom - 5); // The arrow at the end of the bar.
    EXPECT_TRUE(
        Becomes([&] { return BackgroundM(0, 0) == ::GetSysColor(COLOR_WINDOW); })); // Cell 1 is above.
    ClickCellM(0, 0);
    EXPECT_TRUE(SelectionBecomesM(L"cell 6"));
    WheelM(-WHEEL_DELTA);
    EXPECT_TRUE(Becomes([&] { return BackgroundM(0, 0) == ::GetSysColor(COLOR_WINDOW); }));
    ClickCellM(0, 0);
    EXPECT_TRUE(SelectionBecomesM(L"cell 11"));
    WheelM(2 * WHEEL_DELTA);
    EXPECT_TRUE(Becomes([&] { return BackgroundM(2, 0) == ::GetSysColor(COLOR_HIGHLIGHT); }));
}

TEST_F(CustomControl, EachCellHasATip)
{
    MoveMouseToM(grid_, MiddleM(1, 1).x, MiddleM(1, 1).y);
    const HWND tip = program_.WindowOfClassM(TOOLTIPS_CLASSW);
    EXPECT_TRUE(Becomes([&] {
        wchar_t text[64] = L"";
        ::SendMessageW(tip, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text));
        return std::wstring(text) == L"cell 7 of 60";
    }));
}

TEST_F(CustomControl, OneMadeAtRunTimeSetsTheColumnsOfTheOther)
{
    const HWND second = ::GetDlgItem(dialog_, IDC_SECOND_GRID);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(::GetDlgItem(dialog_, IDC_SECOND_PLACE), nullptr);
    ClickM(second, cell_.cx + cell_.cx / 2, cell_.cy / 2); // Its second cell: two columns.
    EXPECT_TRUE(FocusBecomes(program_, second));
    ClickCellM(1, 1);
    EXPECT_TRUE(SelectionBecomesM(L"cell 4"));
    const HWND slider = ::GetDlgItem(dialog_, IDC_ROWS);
    RECT rect {};
    ::GetClientRect(slider, &rect);
    ClickM(slider, rect.right - 15, rect.bottom / 3); // On its channel: some rows more.
    EXPECT_TRUE(Becomes([&] { return ::SendMessageW(slider, TBM_GETPOS, 0, 0) > 12; }));
    const int cells = 5 * static_cast<int>(::SendMessageW(slider, TBM_GETPOS, 0, 0));
    ClickCellM(0, 0);
    KeyM(VK_END);
    EXPECT_TRUE(SelectionBecomesM((L"cell " + std::to_wstring(cells)).c_str()));
}
