// The application in one dialog, as a user drives it.
#include "../../examples/idiom/resource.h"
#include "idiom/child_program.h"
#include "support/temp_file.h"
#include <optional>

using namespace testing_support;

namespace {

constexpr const wchar_t* Title = L"Order - dialog_application";
constexpr const wchar_t* Key = L"Software\\Panelkit Examples";
constexpr COLORREF BadColor = RGB(255, 200, 200);
using Lines = std::vector<std::wstring>;

class DialogApplication : public testing::Test
{
protected:
    DialogApplication() { ::RegDeleteTreeW(HKEY_CURRENT_USER, Key); }
    ~DialogApplication() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, Key); }

    void StartM()
    {
        program_.emplace("dialog_application");
        dialog_ = program_->WindowM(Title);
        ASSERT_NE(dialog_, nullptr);
        ASSERT_TRUE(FocusBecomes(*program_, ItemM(IDC_QUANTITY)));
    }
    HWND ItemM(int id) const { return ::GetDlgItem(dialog_, id); }
    bool LinesBecomeM(const Lines& lines) const
    {
        const bool are = Becomes([&] { return LinesOf(ItemM(IDC_LIST)) == lines; });
        EXPECT_TRUE(are) << testing::PrintToString(LinesOf(ItemM(IDC_LIST)));
        return are;
    }

    std::optional<ChildProgram> program_;
    HWND dialog_ { nullptr };
};

} // namespace

TEST_F(DialogApplication, ShowsItsValuesAndComputesWhileTheUserTypes)
{
    StartM();
    EXPECT_EQ(TextOf(dialog_, IDC_CUSTOMER), L"Nobody");
    EXPECT_EQ(TextOf(dialog_, IDC_QUANTITY), L"1");
    EXPECT_EQ(TextOf(dialog_, IDC_PRICE), L"2.5");
    EXPECT_EQ(TextOf(dialog_, IDC_TOTAL), L"1 x 2.5 = 2.50");
    EXPECT_EQ(TextOf(dialog_, IDC_GOODS), L"Steel (heavy)");
    TypeM(L"7"); // Its text was selected.
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"7 x 2.5 = 17.50"));
    ClickM(ItemM(IDC_EXPRESS), 5, 5);
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"7 x 2.5 = 27.40"));
    KeyM(VK_UP); // In a check box: nothing. In the edit the arrows of its buddy.
    ClickM(ItemM(IDC_QUANTITY), 20, 5);
    KeyM(VK_UP);
    EXPECT_TRUE(TextBecomes(dialog_, IDC_QUANTITY, L"8"));
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"8 x 2.5 = 29.90"));
}

TEST_F(DialogApplication, ColoursAFieldThatIsWrong)
{
    StartM();
    EXPECT_EQ(CountOnScreen(ItemM(IDC_QUANTITY), BadColor), 0);
    TypeM(L"0");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"The quantity is from 1 to 100."));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_QUANTITY), BadColor) > 200; }));
    EXPECT_FALSE(::IsWindowEnabled(ItemM(IDOK)));
    KeyM(VK_HOME);
    TypeM(L"4");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"40 x 2.5 = 100.00"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_QUANTITY), BadColor) == 0; }));
    EXPECT_TRUE(::IsWindowEnabled(ItemM(IDOK)));
}

TEST_F(DialogApplication, FillsItsListAndObeysMenuAndAccelerators)
{
    StartM();
    ClickMiddle(ItemM(IDC_SPLIT));
    EXPECT_TRUE(LinesBecomeM({ L"bolts", L"nuts", L"washers" }));
    ClickMiddle(ItemM(IDC_SPLIT)); // What is there already is left out.
    ::SendMessageW(ItemM(IDC_WORDS), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"axles,nuts"));
    ClickMiddle(ItemM(IDC_SPLIT));
    EXPECT_TRUE(LinesBecomeM({ L"bolts", L"nuts", L"washers", L"axles" }));
    KeyM(VK_F5);
    EXPECT_TRUE(LinesBecomeM({ L"axles", L"bolts", L"nuts", L"washers" }));
    DoubleClickM(ItemM(IDC_LIST), 10, 5);
    EXPECT_TRUE(LinesBecomeM({ L"bolts", L"nuts", L"washers" }));
    ChordM(VK_CONTROL, 'L');
    EXPECT_TRUE(LinesBecomeM({}));

    ChordM(VK_MENU, 'L');
    ASSERT_NE(program_->WindowOfClassM(L"#32768"), nullptr);
    TypeM(L"c"); // Disabled, as the list is empty: the menu stays.
    KeyM(VK_ESCAPE);
    KeyM(VK_ESCAPE);
    EXPECT_TRUE(Becomes([&] { return !program_->HasWindowOfClassM(L"#32768"); }));
}

TEST_F(DialogApplication, TheMenuShowsHowThingsStand)
{
    StartM();
    // The keyboard opens the menu with its first item lit: within its column of marks only a mark has the
    // colour of lit text. The mark is painted before the text, so it is there or not once the text shows.
    const auto isChecked = [this] {
        ChordM(VK_MENU, 'O');
        const HWND menu = program_->WindowOfClassM(L"#32768");
        const RECT marks { 4, 4, ::GetSystemMetrics(SM_CXMENUCHECK) + 4, ::GetSystemMetrics(SM_CYMENU) - 4 };
        const RECT text { marks.right, marks.top, 4 * marks.right, marks.bottom };
        const auto count
            = [&](int color, const RECT& part) { return CountOnScreen(menu, ::GetSysColor(color), &part); };
        EXPECT_TRUE(Becomes([&] {
            return count(COLOR_HIGHLIGHT, marks) > 50 && count(COLOR_HIGHLIGHTTEXT, text) > 10;
        })) << "the menu does not show";
        const bool marked = count(COLOR_HIGHLIGHTTEXT, marks) > 0;
        KeyM(VK_ESCAPE);
        KeyM(VK_ESCAPE);
        EXPECT_TRUE(Becomes([&] { return !program_->HasWindowOfClassM(L"#32768"); }));
        return marked;
    };
    // Wine raises a window once more when the display tells that it shows; a menu open by then lies below it.
    // Before the program shows a change on the screen it has handled what the display told.
    ASSERT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_SWATCH), RGB(200, 40, 40)) > 100; }));
    // The mark of a check box is painted over what is the window's colour until then, whatever the look.
    const auto light = [this] { return CountOnScreen(ItemM(IDC_EXPRESS), ::GetSysColor(COLOR_WINDOW)); };
    const int unchecked = light();
    ChordM(VK_CONTROL, 'E');
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"1 x 2.5 = 12.40"));
    ASSERT_TRUE(Becomes([&] { return light() < unchecked; }));
    EXPECT_TRUE(isChecked());
    ChordM(VK_CONTROL, 'E');
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"1 x 2.5 = 2.50"));
    EXPECT_FALSE(isChecked());
    ChordM(VK_MENU, 'O');
    program_->WindowOfClassM(L"#32768");
    TypeM(L"b");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_GOODS, L"Brass (shiny)"));
    EXPECT_TRUE(LinesBecomeM({ L"SHINY: Brass" }));
}

TEST_F(DialogApplication, AComboBoxOfItemDataColoursTheSwatch)
{
    StartM();
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_SWATCH), RGB(200, 40, 40)) > 100; }));
    ClickMiddle(ItemM(IDC_GOODS));
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    KeyM(VK_RETURN);
    EXPECT_TRUE(TextBecomes(dialog_, IDC_GOODS, L"Plastic (light)"));
    EXPECT_TRUE(Becomes([&] { return CountOnScreen(ItemM(IDC_SWATCH), RGB(40, 80, 200)) > 100; }));
}

TEST_F(DialogApplication, AThreadSendsAndTellsHowFarItIs)
{
    StartM();
    ClickMiddle(ItemM(IDC_SPLIT));
    EXPECT_TRUE(LinesBecomeM({ L"bolts", L"nuts", L"washers" }));
    ClickMiddle(ItemM(IDC_SEND));
    EXPECT_TRUE(TextBecomes(dialog_, IDC_TOTAL, L"3 lines were sent for Nobody."));
    EXPECT_EQ(::SendMessageW(ItemM(IDC_PROGRESS), PBM_GETPOS, 0, 0), 100);
    EXPECT_TRUE(::IsWindowEnabled(ItemM(IDC_SEND)));
}

TEST_F(DialogApplication, TakesNothingThatItsFieldsForbid)
{
    StartM();
    ClickM(ItemM(IDC_PRICE), 10, 5);
    SelectAll();
    TypeM(L"2000");
    KeyM(VK_RETURN);
    const HWND box = program_->WindowM(L"dialog_application"); // The message about it.
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(::GetWindow(box, GW_OWNER), dialog_);
    KeyM(VK_RETURN);
    EXPECT_TRUE(FocusBecomes(*program_, ItemM(IDC_PRICE)));
    TypeM(L"3"); // The text is selected.
    EXPECT_TRUE(TextBecomes(dialog_, IDC_PRICE, L"3"));
    ClickM(ItemM(IDC_CUSTOMER), 10, 5);
    for (int i = 0; i < 30; ++i) {
        TypeM(L"x"); // The field takes as many as may be.
    }
    EXPECT_TRUE(Becomes([&] { return TextOf(dialog_, IDC_CUSTOMER).size() == 20; }));
}

TEST_F(DialogApplication, KeepsWhatWasAccepted)
{
    StartM();
    TypeM(L"12");
    ClickM(ItemM(IDC_CUSTOMER), 10, 5);
    SelectAll();
    TypeM(L"Ann");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_CUSTOMER, L"Ann"));
    KeyM(VK_RETURN);
    EXPECT_EQ(program_->ExitCodeM(), 0);
    StartM();
    EXPECT_EQ(TextOf(dialog_, IDC_CUSTOMER), L"Ann");
    EXPECT_EQ(TextOf(dialog_, IDC_QUANTITY), L"12");
    TypeM(L"13");
    EXPECT_TRUE(TextBecomes(dialog_, IDC_QUANTITY, L"13"));
    KeyM(VK_ESCAPE);
    EXPECT_EQ(program_->ExitCodeM(), 1);
    StartM();
    EXPECT_EQ(TextOf(dialog_, IDC_QUANTITY), L"12");
}

TEST_F(DialogApplication, OpensAboutAndAFile)
{
    StartM();
    KeyM(VK_F1);
    const HWND about = program_->WindowM(L"About");
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(::IsWindowEnabled(dialog_));
    KeyM(VK_RETURN);
    EXPECT_TRUE(Becomes([&] { return ::GetForegroundWindow() == dialog_ && ::IsWindowEnabled(dialog_); }));

    const TempFile file("pins;caps\r\nrods\r\n");
    ChordM(VK_CONTROL, 'O');
    ASSERT_TRUE(
        Becomes([&] { return !::IsWindowEnabled(dialog_) && program_->HasWindowOfClassM(L"#32770"); }));
    ASSERT_TRUE(Becomes([&] {
        wchar_t name[32] = L"";
        ::GetClassNameW(program_->FocusM(), name, 32);
        return std::wstring(name) == L"Edit" && ::GetForegroundWindow() != dialog_;
    }));
    const std::string path = file.path();
    TypeM(std::wstring(path.begin(), path.end()).c_str());
    KeyM(VK_RETURN);
    EXPECT_TRUE(LinesBecomeM({ L"pins", L"caps", L"rods" }));
}
