// The scale of a dialog of the C interface and of a form, together with its language.
#include "form/form.h"
#include "form/opened_dialog.h"
#include "support/catalogue_file.h"

namespace {

const std::string Sections = HeaderSections
    + std::string("[标题]\n1\n0\n1 11 10 10 80 20 1\n速度\n0 -1 0 0\n"
                  "[单行文本]\n1\n0\n2 12 100 10 80 20 1 0 100 0 0 1 5 0 1 255 255 255\n");

std::wstring shownBy(HWND window)
{
    wchar_t text[100] = L"";
    ::GetWindowTextW(window, text, 100);
    return text;
}

} // namespace

TEST(FormScale, LeavesInCWhatIsHalfTyped)
{
    OpenedDialogCL opened(Sections);
    int32_t percent = 0;
    EXPECT_EQ(panelkit_get_scale(opened.dialog, &percent), PANELKIT_OK);
    EXPECT_EQ(percent, 100);
    EXPECT_EQ(placeOf(opened.ItemM(12)), "100 10 80 20");
    EXPECT_EQ(panelkit_set_scale(opened.dialog, 900), PANELKIT_ERROR_ARGUMENT);
    opened.ShowM();
    ::SetFocus(opened.ItemM(12));
    ::SetWindowTextW(opened.ItemM(12), L"12-");
    opened.StoryM();
    const HWND edit = opened.ItemM(12);
    EXPECT_EQ(panelkit_set_scale(opened.dialog, 150), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_scale(opened.dialog, &percent), PANELKIT_OK);
    EXPECT_EQ(percent, 150);
    EXPECT_EQ(opened.ItemM(12), edit);
    EXPECT_EQ(placeOf(edit), "150 15 120 30");
    EXPECT_EQ(shownBy(edit), L"12-");
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_EQ(opened.StoryM(), "");
    EXPECT_EQ(panelkit_set_scale(opened.dialog, 100), PANELKIT_OK);
    EXPECT_EQ(placeOf(edit), "100 10 80 20");
    EXPECT_EQ(shownBy(edit), L"12-");
    ::SetWindowTextW(edit, L"12");
}

TEST(FormScale, OfAFormInAnotherLanguage)
{
    const DescriptionFileCL file(Sections);
    const CatalogueBesideCL catalogue(file.path(), "ru", TextsTP { { "速度", "Скорость" } });
    panelkit::FormOptions options;
    options.language = "ru";
    panelkit::Form form(file.path(), options);
    ASSERT_TRUE(form) << form.Error();
    EXPECT_TRUE(form.SetScale(200));
    EXPECT_EQ(form.Scale(), 200);
    EXPECT_FALSE(form.SetScale(20));
    EXPECT_FALSE(form.SetScale(0));
    EXPECT_EQ(form.Scale(), 200);
    EXPECT_EQ(form.Caption(11), "Скорость");
    EXPECT_EQ(form.Int(12), 5);
    const auto dialog = static_cast<HWND>(form.Native());
    EXPECT_EQ(placeOf(::GetDlgItem(dialog, 11)), "20 20 160 40");
    EXPECT_TRUE(form.AutoScale());
    const HDC screen = ::GetDC(nullptr);
    EXPECT_EQ(form.Scale(), ::MulDiv(100, ::GetDeviceCaps(screen, LOGPIXELSX), 96));
    ::ReleaseDC(nullptr, screen);
    slSetMessageLanguage("");
}
