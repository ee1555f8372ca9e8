// The colour of a control's text and what screen readers call it.
#include "dialog/every_kind_sections.h"
#include "dialog/valued_dialog.h"
#include "support/seen_by_reader.h"

using namespace testing_support;

namespace {

constexpr COLORREF Wanted = RGB(200, 10, 90);

// A text that has pixels of nothing but its colour.
const char* const Text = "■■■";

struct ColouredCL
{
    const char* name;
    int id;
    bool canBeColoured { true };
    bool hasColourOfStyle { false }; // Where there are visual styles, they alone say how it looks.

    bool ShowsM() const { return canBeColoured && !(hasColourOfStyle && HasVisualStyles()); }
};
std::ostream& operator<<(std::ostream& out, const ColouredCL& kind)
{
    return out << kind.name;
}

const ColouredCL Kinds[] = {
    { "Label", 11 },
    { "LabelWithBackground", 12 },
    { "SingleEdit", 13 },
    { "SingleEditReadOnly", 14 },
    { "SpinEdit", 15 },
    { "MultiEdit", 16 },
    { "TextListBox", 17 },
    { "ComboBox", 18 },
    { "ComboBoxWithEdit", 19 },
    { "ListControl", 20 },
    { "RadioButton", 21 },
    { "CheckBox", 22 },
    { "GroupBox", 23, true, true },
    { "Tree", 24 },
    { "StandardButton", 31, false },
    { "BitmapButton", 32, false },
    { "MultiStateButton", 33, false },
    { "RotateButton", 34, false },
    { "BitmapListBox", 35, false },
    { "NormalAnimation", 36, false },
    { "SpecialAnimation", 37, false },
    { "Drawing", 38, false },
};

class LooksDialogCL : public DuBasicDialogCL
{
public:
    LooksDialogCL() { SetConfigFileM(file_.path()); }
    void BuildM()
    {
        CreateM();
        ShowBuiltM();
    }
    void ShowBuiltM()
    {
        for (const int id : { 18, 19 }) {
            EXPECT_TRUE(ValuesM().SetIndexM(id, 0));
        }
        ::SendMessageW(ItemM(13), EM_SETSEL, 0, 0); // It has the focus, and a selection another colour.
        ShowWindow(SW_SHOWNOACTIVATE);
        PumpPending();
    }
    HWND ItemM(int id) const { return ::GetDlgItem(m_hWnd, id); }
    Pixels PixelsM(int id) const
    {
        PumpPending();
        return Pixels(ItemM(id), Pixels::Part::Whole);
    }
    int WantedM(int id) const { return PixelsM(id).CountM(Wanted); }

private:
    SmallPictureCL picture_ { 0x0000FF, 20, 20 };
    DescriptionFileCL file_ { sectionsOfEveryKind(picture_.path(), Text) };
};

} // namespace

TEST(TextColour, IsShownAtOnceAndTakenBack)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    for (const ColouredCL& kind : Kinds) {
        SCOPED_TRACE(kind.name);
        ASSERT_NE(dialog.ItemM(kind.id), nullptr);
        const Pixels before = dialog.PixelsM(kind.id);
        EXPECT_EQ(before.CountM(Wanted), 0);
        EXPECT_EQ(dialog.SetTextColourM(kind.id, Wanted), kind.canBeColoured);
        EXPECT_EQ(dialog.WantedM(kind.id) > 20, kind.ShowsM());
        EXPECT_EQ(dialog.SetTextColourM(kind.id, std::nullopt), kind.canBeColoured);
        EXPECT_EQ(dialog.PixelsM(kind.id).DifferencesM(before), 0);
    }
}

TEST(TextColour, IsKeptForTheBuildAndTheNextOne)
{
    LooksDialogCL dialog;
    // Each its own, so that none shows another's.
    const auto colourOf = [](const ColouredCL& kind) { return RGB(200, kind.id, 90); };
    for (const ColouredCL& kind : Kinds) {
        EXPECT_TRUE(dialog.SetTextColourM(kind.id, colourOf(kind))); // Who knows yet what the file has?
    }
    dialog.BuildM();
    for (const char* const build : { "first", "second" }) {
        for (const ColouredCL& kind : Kinds) {
            const int coloured = dialog.PixelsM(kind.id).CountM(colourOf(kind));
            EXPECT_EQ(coloured > 20, kind.ShowsM()) << build << " " << kind;
        }
        dialog.DestroyM();
        dialog.InitDlgM(&dialog, 1);
        dialog.ShowBuiltM();
    }
}

TEST(TextColour, OfUnknownIdsIsRefused)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    EXPECT_FALSE(dialog.SetTextColourM(999, Wanted));
    EXPECT_FALSE(dialog.SetAccessibleNameM(999, "x"));
}

TEST(TextColour, WhiteOnNavyIsALabelOfAFileAndOneCall)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    EXPECT_TRUE(dialog.SetTextColourM(12, RGB(255, 255, 255)));
    const Pixels seen = dialog.PixelsM(12);
    EXPECT_GT(seen.CountM(RGB(255, 255, 255)), 20);
    EXPECT_GT(seen.CountM(RGB(0, 0, 128)), 500);
}

TEST(TextColour, IsThatOfTheLinesOfAComboBoxToo)
{
    for (const int id : { 18, 19 }) {
        LooksDialogCL dialog;
        dialog.BuildM();
        EXPECT_TRUE(dialog.SetTextColourM(id, Wanted));
        ::SendMessageW(dialog.ItemM(id), CB_SHOWDROPDOWN, TRUE, 0);
        PumpPending();
        COMBOBOXINFO parts {};
        parts.cbSize = sizeof parts;
        ASSERT_TRUE(::GetComboBoxInfo(dialog.ItemM(id), &parts));
        EXPECT_GT(Pixels(parts.hwndList).CountM(Wanted), 20) << id;
    }
}

TEST(TextColour, HoldsInAWindowThatHasTheControlsOfADialog)
{
    PlainWindowCL window;
    LooksDialogCL dialog;
    EXPECT_TRUE(dialog.SetTextColourM(11, Wanted));
    dialog.InitDlgM(&window, 0);
    PumpPending();
    EXPECT_GT(Pixels(::GetDlgItem(window.m_hWnd, 11)).CountM(Wanted), 20);
    EXPECT_TRUE(dialog.SetTextColourM(13, Wanted));
    PumpPending();
    EXPECT_GT(Pixels(::GetDlgItem(window.m_hWnd, 13)).CountM(Wanted), 20);
}

TEST(TextColour, GoesWithACopyOfAControl)
{
    PlainWindowCL window;
    DuLabelCL label;
    const int size[2] = { 80, 20 };
    label.SetSizeM(size);
    label.SetInitTextM(slUtf8ToGbk(Text).c_str());
    label.SetTextColourM(Wanted);
    DuLabelCL copy(label);
    DuLabelCL assigned;
    assigned = label;
    for (DuLabelCL* one : { &copy, &assigned }) {
        EXPECT_EQ(one->Create(&window), 1);
        PumpPending();
        EXPECT_GT(Pixels(one->m_hWnd).CountM(Wanted), 20);
        one->DestroyWindow();
    }
}

TEST(AccessibleName, IsWhatAReaderHears)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    const long before = SeenByReaderCL(dialog.ItemM(32)).RoleM();
    EXPECT_TRUE(dialog.SetAccessibleNameM(32, ValueTextCL(L"打开 \u00F6")));
    const SeenByReaderCL seen(dialog.ItemM(32));
    ASSERT_NE(seen.ObjectM(), nullptr);
    EXPECT_EQ(seen.NameM(), L"打开 \u00F6");
    EXPECT_EQ(seen.RoleM(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_NE(before, ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(seen.ActionM(), L"Press");
    CRect place;
    ::GetClientRect(dialog.ItemM(32), &place);
    ::MapWindowPoints(dialog.ItemM(32), nullptr, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(CRect(seen.PlaceM()), place);
}

TEST(AccessibleName, LeavesTheRestToTheSystem)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    for (const ColouredCL& kind : Kinds) {
        const bool isButton = kind.id == 32 || kind.id == 33;
        const HWND window = dialog.ItemM(kind.id);
        const SeenByReaderCL before(window);
        ASSERT_NE(before.ObjectM(), nullptr) << kind;
        EXPECT_NE(before.NameM(), L"a name") << kind;
        EXPECT_TRUE(dialog.SetAccessibleNameM(kind.id, L"a name")) << kind;
        const SeenByReaderCL named(window);
        EXPECT_EQ(named.NameM(), L"a name") << kind;
        EXPECT_EQ(named.StateM(), before.StateM()) << kind;
        EXPECT_EQ(CRect(named.PlaceM()), CRect(before.PlaceM())) << kind;
        if (!isButton) {
            EXPECT_EQ(named.RoleM(), before.RoleM()) << kind;
            EXPECT_EQ(named.ActionM(), before.ActionM()) << kind;
        }
        EXPECT_TRUE(dialog.SetAccessibleNameM(kind.id, nullptr)) << kind;
        EXPECT_EQ(SeenByReaderCL(window).NameM(), before.NameM()) << kind;
    }
}

TEST(AccessibleName, IsKeptForTheBuildAndTheNextOne)
{
    LooksDialogCL dialog;
    EXPECT_TRUE(dialog.SetAccessibleNameM(36, L"a name"));
    dialog.BuildM();
    EXPECT_EQ(SeenByReaderCL(dialog.ItemM(36)).NameM(), L"a name");
    dialog.InitDlgM(&dialog, 1);
    EXPECT_EQ(SeenByReaderCL(dialog.ItemM(36)).NameM(), L"a name");
}

TEST(AccessibleName, LetsAReaderPressAPictureButton)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    MessageRecorder reports(dialog.m_hWnd, { ButtonDownMsg, ButtonActionMsg });
    for (const int id : { 32, 33 }) {
        const MessageRecorder clicks(dialog.ItemM(id), { WM_LBUTTONDOWN, WM_LBUTTONUP });
        EXPECT_TRUE(dialog.SetAccessibleNameM(id, L"open"));
        EXPECT_TRUE(SeenByReaderCL(dialog.ItemM(id)).PressM());
        EXPECT_TRUE(reports.ListM().empty()); // Nobody waits for what the press does.
        PumpPending();
        const std::string middle = " l=" + std::to_string(MAKELPARAM(10, 10));
        EXPECT_EQ(clicks.ListM(),
            (std::vector<std::string> { "posted 513 w=1" + middle, "posted 514 w=0" + middle }));
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(
            reports.ListM().back(), "posted 1424 w=" + std::to_string(id) + " l=" + (id == 33 ? "1" : "0"));
        dialog.EnableAllCtrlM(0);
        reports.ClearM();
        EXPECT_FALSE(SeenByReaderCL(dialog.ItemM(id)).PressM());
        PumpPending();
        EXPECT_TRUE(reports.ListM().empty());
        dialog.EnableAllCtrlM(1);
    }
}

TEST(AccessibleName, OutlivesTheControlInTheHandsOfAReader)
{
    LooksDialogCL dialog;
    dialog.BuildM();
    EXPECT_TRUE(dialog.SetAccessibleNameM(32, L"open"));
    const SeenByReaderCL seen(dialog.ItemM(32));
    dialog.DestroyM();
    EXPECT_EQ(seen.NameM(), L"open");
    EXPECT_FALSE(seen.PressM());
}
