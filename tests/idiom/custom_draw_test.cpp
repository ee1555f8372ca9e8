// Controls that draw themselves, as a user sees and drives them.
#include "../../examples/idiom/resource.h"
#include "idiom/child_program.h"

using namespace testing_support;

namespace {

constexpr COLORREF LowColor = RGB(192, 0, 0);
constexpr COLORREF OddRowColor = RGB(232, 240, 255);
constexpr COLORREF BadColor = RGB(255, 220, 160);
constexpr COLORREF Green = RGB(60, 170, 80);
constexpr COLORREF Blue = RGB(100, 140, 255);

class CustomDraw : public testing::Test
{
protected:
    CustomDraw()
        : program_("custom_draw", PANELKIT_EXAMPLES "/idiom/machine.dlg")
        , dialog_(program_.WindowM(L"Parts"))
        , header_(::FindWindowExW(ItemM(IDC_PARTS), nullptr, L"SysHeader32", nullptr))
    {
        RECT rect {};
        ::GetClientRect(header_, &rect);
        firstRow_ = rect.bottom;
    }
    HWND ItemM(int id) const { return ::GetDlgItem(dialog_, id); }
    bool StatusBecomesM(const wchar_t* text) const { return TextBecomes(dialog_, IDC_STATUS, text); }
    // Clicks the row that is so many pixels of a line's height below the header.
    void ClickRowM(int row) { ClickM(ItemM(IDC_PARTS), 20, firstRow_ + 6 + row * RowHeightM()); }
    int RowHeightM() const
    {
        return static_cast<int>(HIWORD(::SendMessageW(ItemM(IDC_PARTS), LVM_APPROXIMATEVIEWRECT, 2, -1)))
            - static_cast<int>(HIWORD(::SendMessageW(ItemM(IDC_PARTS), LVM_APPROXIMATEVIEWRECT, 1, -1)));
    }

    ChildProgram program_;
    HWND dialog_;
    HWND header_;
    int firstRow_ { 0 };
};

} // namespace

TEST_F(CustomDraw, ListPaintsItsCellsAndSortsByColumns)
{
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_PARTS), LowColor) > 0; }));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_PARTS), OddRowColor) > 1000; }));
    ClickRowM(0);
    EXPECT_TRUE(StatusBecomesM(L"Chosen: Washer"));
    ClickM(header_, 30, 5); // Code.
    EXPECT_TRUE(StatusBecomesM(L"Sorted by Code"));
    ClickRowM(0);
    EXPECT_TRUE(StatusBecomesM(L"Chosen: axle"));
    ClickRowM(3); // Washer is chosen already, so something else first.
    EXPECT_TRUE(StatusBecomesM(L"Chosen: Washer"));
    ClickM(header_, 30, 5);
    ClickRowM(3);
    EXPECT_TRUE(StatusBecomesM(L"Chosen: axle"));
    ClickM(header_, 120, 5); // Number: by its value, not by its digits.
    EXPECT_TRUE(StatusBecomesM(L"Sorted by Number"));
    ClickRowM(0);
    EXPECT_TRUE(StatusBecomesM(L"Chosen: Bolt"));
    ClickRowM(1);
    EXPECT_TRUE(StatusBecomesM(L"Chosen: Gear"));
    // The number moved with its item.
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_PARTS), LowColor) > 0; }));
}

TEST_F(CustomDraw, EditTakesDigitsAndShowsWhatIsOutOfRange)
{
    const HWND edit = ItemM(IDC_NUMBER);
    ClickM(edit, 10, 5);
    SelectAll();
    TypeM(L"a9x0.");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_NUMBER, L"90"));
    EXPECT_EQ(CountOnScreen(edit, BadColor), 0);
    TypeM(L"0");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_NUMBER, L"900"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(edit, BadColor) > 200; }));
    ClickMiddle(ItemM(IDC_ADD)); // Refused: the focus goes back to the field.
    EXPECT_TRUE(FocusBecomes(program_, edit));
    EXPECT_EQ(::SendMessageW(ItemM(IDC_PARTS), LVM_GETITEMCOUNT, 0, 0), 4);
    TypeM(L"44");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_NUMBER, L"44"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(edit, BadColor) == 0; }));
    SelectAll();
    ChordM(VK_CONTROL, 'C');
    KeyM(VK_END);
    ChordM(VK_CONTROL, 'V');
    EXPECT_TRUE(TextBecomes(dialog_, IDC_NUMBER, L"4444"));
}

TEST_F(CustomDraw, ButtonShowsTheColourOfTheComboBox)
{
    const HWND button = ItemM(IDC_ADD);
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(button, Green) > 300; })); // The darkest comes first.
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_COLOUR), Green) > 50; }));
    ClickMiddle(ItemM(IDC_COLOUR));
    const HWND list = program_.WindowOfClassM(L"ComboLBox");
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(list, Blue) > 100; }));
    ClickM(list, 40, 30); // Items are 20 pixels high.
    EXPECT_TRUE(StatusBecomesM(L"The button is blue"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(button, Blue) > 300; }));
    ClickMiddle(button);
    EXPECT_TRUE(Becomes([&] { return ::SendMessageW(ItemM(IDC_PARTS), LVM_GETITEMCOUNT, 0, 0) == 5; }));
    KeyM(VK_SPACE);
    EXPECT_TRUE(Becomes([&] { return ::SendMessageW(ItemM(IDC_PARTS), LVM_GETITEMCOUNT, 0, 0) == 6; }));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(button, Blue) > 300; }));
}

TEST_F(CustomDraw, TreeEditsTheLabelsThatMayChange)
{
    const HWND tree = ItemM(IDC_TREE);
    EXPECT_TRUE(
        Becomes([&] { return CountOnScreen(tree, RGB(200, 150, 60)) > 50; })); // The picture of the store.
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(tree, RGB(210, 225, 240)) > 100; }));
    ::SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(tree), TRUE);
    ASSERT_TRUE(FocusBecomes(program_, tree));
    KeyM(VK_END);
    EXPECT_TRUE(StatusBecomesM(L"Shelf C, number 3"));
    const HTREEITEM shelf = reinterpret_cast<HTREEITEM>(::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    ::PostMessageW(tree, TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(shelf));
    ASSERT_TRUE(Becomes([&] { return ::SendMessageW(tree, TVM_GETEDITCONTROL, 0, 0) != 0; }));
    TypeM(L"Box");
    KeyM(VK_RETURN); // The label's, not the default button's.
    EXPECT_TRUE(Becomes([&] { return ::SendMessageW(tree, TVM_GETEDITCONTROL, 0, 0) == 0; }));
    KeyM(VK_HOME);
    EXPECT_TRUE(StatusBecomesM(L"Store, 4 items"));
    KeyM(VK_END);
    EXPECT_TRUE(StatusBecomesM(L"Box, number 3"));

    const HTREEITEM root = reinterpret_cast<HTREEITEM>(::SendMessageW(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
    EXPECT_EQ(::SendMessageW(tree, TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(root)), 0);
}

TEST_F(CustomDraw, OpensAPanelkitDialog)
{
    ClickMiddle(ItemM(IDC_MACHINE));
    const HWND machine = program_.WindowM(L"Machine");
    ASSERT_NE(machine, nullptr);
    const HWND name = ::GetDlgItem(machine, 1001);
    EXPECT_EQ(TextOf(machine, 1001), L"Lathe");
    ClickM(name, 10, 10);
    SelectAll();
    TypeM(L"Drill");
    EXPECT_TRUE(TextBecomes(machine, 1001, L"Drill"));
    KeyM(VK_RETURN);
    EXPECT_TRUE(StatusBecomesM(L"Machine: Drill"));
    EXPECT_TRUE(Becomes([&] { return ::GetForegroundWindow() == dialog_; }));
    KeyM(VK_ESCAPE);
    EXPECT_EQ(program_.ExitCodeM(), 0);
}
