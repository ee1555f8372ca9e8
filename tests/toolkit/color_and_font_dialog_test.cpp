#include "parent_window.h"
#include "support/input.h"
#include "support/script.h"
#include <colordlg.h>
#include <dlgs.h>
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class RefusingColorsCL : public CColorDialog
{
public:
    using CColorDialog::CColorDialog;
    int refusals = 0;
    int asked = 0;
    int initialised = 0;
    BOOL OnInitDialog() override
    {
        ++initialised;
        return TRUE;
    }
    BOOL OnColorOK() override
    {
        ++asked;
        return refusals-- > 0;
    }
};

void pressM(CWnd* dialog, int id)
{
    dialog->PostMessage(WM_COMMAND, static_cast<WPARAM>(id), 0);
}

} // namespace

TEST(ColorDialog, GivesTheColourThatIsChosen)
{
    ParentWindowCL parent;
    RefusingColorsCL dialog(RGB(12, 34, 56), CC_FULLOPEN, &parent);
    dialog.refusals = 1;
    Script script([&] { pressM(&dialog, IDCANCEL); });
    script.WaitM([&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([&] {
        EXPECT_EQ(dialog.GetDlgItemInt(COLOR_RED), 12u);
        dialog.SetDlgItemInt(COLOR_GREEN, 77);
        pressM(&dialog, IDOK);
    });
    script.WaitM([&] { return dialog.asked == 1; }, "the refusal");
    script.DoM([&] { pressM(&dialog, IDOK); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.initialised, 1);
    EXPECT_EQ(dialog.asked, 2);
    EXPECT_EQ(GetRValue(dialog.GetColor()), 12);
    EXPECT_EQ(GetGValue(dialog.GetColor()), 77);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ColorDialog, CancelLeavesTheColourAlone)
{
    ParentWindowCL parent;
    CColorDialog dialog(RGB(1, 2, 3), 0, &parent);
    Script script;
    script.WaitM([&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([] { KeyM(VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetColor(), RGB(1, 2, 3));
    EXPECT_EQ(CColorDialog::GetSavedCustomColors()[15], RGB(255, 255, 255));
}

TEST(FontDialog, StartsWithAFontAndGivesTheOneThatIsChosen)
{
    ParentWindowCL parent;
    LOGFONTA font = {};
    font.lfHeight = -16;
    font.lfWeight = FW_BOLD;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyA(font.lfFaceName, "Tahoma");
    CFontDialog dialog(&font, CF_EFFECTS | CF_SCREENFONTS, nullptr, &parent);
    LOGFONTA seen = {};
    Script script([&] { pressM(&dialog, IDCANCEL); });
    script.WaitM([&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([&] {
        dialog.GetCurrentFont(&seen);
        dialog.CheckDlgButton(chx2, BST_CHECKED); // underlined
        pressM(&dialog, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(seen.lfWeight, FW_BOLD);
    EXPECT_TRUE(dialog.IsBold());
    EXPECT_TRUE(dialog.IsUnderline());
    EXPECT_FALSE(dialog.IsItalic());
    EXPECT_EQ(dialog.GetWeight(), FW_BOLD);
    EXPECT_EQ(std::string(dialog.GetFaceName()), std::string(dialog.m_lf.lfFaceName));
    EXPECT_GT(dialog.GetSize(), 0);
    dialog.GetCurrentFont(&seen);
    EXPECT_EQ(seen.lfUnderline, 1);
}

TEST(FontDialog, CancelLeavesTheFontAlone)
{
    ParentWindowCL parent;
    LOGFONTW font = {};
    font.lfHeight = -16;
    ::lstrcpyW(font.lfFaceName, ChineseWide);
    CFontDialog dialog(&font, CF_SCREENFONTS, nullptr, &parent);
    EXPECT_STREQ(dialog.m_lf.lfFaceName, ChineseText);
    Script script;
    script.WaitM([&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([] { KeyM(VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    LOGFONTW seen = {};
    dialog.GetCurrentFont(&seen);
    EXPECT_STREQ(seen.lfFaceName, ChineseWide);
}
