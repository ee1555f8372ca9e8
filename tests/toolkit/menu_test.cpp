#include "support/input.h"
#include "support/pump.h"
#include "support/script.h"
#include "support/window.h"
#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace testing_support;

namespace {

enum Id : UINT
{
    OpenId = 0x8001,
    SaveId = 0x8002,
    SmallId = 0x8003,
    LargeId = 0x8004
};

class MenuWndCL : public OwnerCL
{
public:
    std::vector<UINT> commands;
    bool canSave = false;
    HACCEL keys = nullptr;
    BOOL PreTranslateMessage(MSG* message) override
    {
        return (keys != nullptr && ::TranslateAccelerator(m_hWnd, keys, message))
            || OwnerCL::PreTranslateMessage(message);
    }

protected:
    afx_msg BOOL OnAny(UINT id)
    {
        commands.push_back(id);
        return TRUE;
    }
    afx_msg void OnNoRoom() { commands.push_back(0); }
    afx_msg void OnUpdateSave(CCmdUI* ui) { ui->Enable(canSave); }
    afx_msg void OnUpdateOpen(CCmdUI* ui) { ui->SetText("\xB4\xF2\xBF\xAA"); } // 打开
    afx_msg void OnUpdateSize(CCmdUI* ui) { ui->SetRadio(ui->m_nID == LargeId); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuWndCL, OwnerCL)
ON_COMMAND_EX_RANGE(OpenId, LargeId, &MenuWndCL::OnAny)
ON_CBN_ERRSPACE(SaveId, &MenuWndCL::OnNoRoom)
ON_UPDATE_COMMAND_UI(SaveId, &MenuWndCL::OnUpdateSave)
ON_UPDATE_COMMAND_UI(OpenId, &MenuWndCL::OnUpdateOpen)
ON_UPDATE_COMMAND_UI_RANGE(SmallId, LargeId, &MenuWndCL::OnUpdateSize)
END_MESSAGE_MAP()

std::string textM(const CMenu& menu, UINT item, UINT flags = MF_BYCOMMAND)
{
    CString text;
    menu.GetMenuString(item, text, flags);
    return text.GetString();
}

void fillM(CMenu* menu)
{
    ASSERT_TRUE(menu->CreatePopupMenu());
    ASSERT_TRUE(menu->AppendMenu(MF_STRING, OpenId, "\xD6\xD0\xCE\xC4")); // 中文
    ASSERT_TRUE(menu->AppendMenu(MF_STRING, SaveId, L"\u6587"));
    ASSERT_TRUE(menu->AppendMenu(MF_SEPARATOR));
    ASSERT_TRUE(menu->AppendMenu(MF_STRING, SmallId, "small"));
}

} // namespace

TEST(Menu, ItemsAreMadeChangedAndTakenAway)
{
    CMenu menu;
    ASSERT_NO_FATAL_FAILURE(fillM(&menu));
    EXPECT_FALSE(menu.CreateMenu()) << "it has one";
    EXPECT_TRUE(menu.InsertMenu(3, MF_BYPOSITION | MF_STRING, LargeId, "large"));
    EXPECT_EQ(menu.GetMenuItemCount(), 5U);
    EXPECT_EQ(menu.GetMenuItemID(3), static_cast<UINT>(LargeId));
    EXPECT_EQ(menu.GetMenuItemID(2), 0U);
    EXPECT_EQ(textM(menu, OpenId), "\xD6\xD0\xCE\xC4");
    EXPECT_EQ(textM(menu, 1, MF_BYPOSITION), "\xCE\xC4");
    EXPECT_TRUE(menu.ModifyMenu(OpenId, MF_BYCOMMAND | MF_STRING, OpenId, "other"));
    EXPECT_EQ(textM(menu, OpenId), "other");
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYPOSITION));
    EXPECT_TRUE(menu.RemoveMenu(LargeId, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 3U);
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(menu.DestroyMenu());
}

TEST(Menu, CutTextEndsBetweenCharacters)
{
    CMenu menu;
    ASSERT_NO_FATAL_FAILURE(fillM(&menu));
    char text[8] = "";
    EXPECT_EQ(menu.GetMenuString(OpenId, text, 4, MF_BYCOMMAND), 2);
    EXPECT_STREQ(text, "\xD6\xD0");
    wchar_t wide[8] = L"";
    EXPECT_EQ(menu.GetMenuString(OpenId, wide, 8, MF_BYCOMMAND), 2);
    EXPECT_STREQ(wide, L"\u4E2D\u6587");
}

TEST(Menu, ItemsAreCheckedAndEnabled)
{
    CMenu menu;
    ASSERT_NO_FATAL_FAILURE(fillM(&menu));
    EXPECT_EQ(menu.CheckMenuItem(OpenId, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(menu.GetMenuState(OpenId, MF_BYCOMMAND) & MF_CHECKED, static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(menu.EnableMenuItem(OpenId, MF_GRAYED), static_cast<UINT>(MF_ENABLED));
    EXPECT_EQ(menu.EnableMenuItem(OpenId, MF_ENABLED), static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(menu.EnableMenuItem(4711, MF_GRAYED), static_cast<UINT>(-1));
    EXPECT_TRUE(menu.CheckMenuRadioItem(OpenId, SaveId, SaveId, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuState(OpenId, MF_BYCOMMAND) & MF_CHECKED, 0U);
    EXPECT_TRUE(menu.SetDefaultItem(SaveId));
    EXPECT_EQ(menu.GetDefaultItem(0), static_cast<UINT>(SaveId));
}

TEST(Menu, ObjectThatOwnsAMenuIsFoundByItsHandle)
{
    CMenu bar;
    ASSERT_TRUE(bar.CreateMenu());
    CMenu popup;
    ASSERT_NO_FATAL_FAILURE(fillM(&popup));
    EXPECT_EQ(CMenu::FromHandle(popup.m_hMenu), &popup);
    ASSERT_TRUE(bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), "file"));
    EXPECT_EQ(bar.GetSubMenu(0), &popup);
    const HMENU handle = popup.Detach();
    EXPECT_EQ(CMenu::FromHandlePermanent(handle), nullptr);
    CMenu* const temporary = bar.GetSubMenu(0);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hMenu, handle);
    EXPECT_EQ(bar.GetSubMenu(7), nullptr);
    AfxGetThread()->OnIdle(0);
    EXPECT_TRUE(::IsMenu(handle)) << "a temporary object does not own its menu";
}

TEST(Menu, OneFromATemplate)
{
    const WORD words[] = { 0, 0, MF_END, OpenId, 'a', 0 };
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenuIndirect(words));
    EXPECT_EQ(textM(menu, OpenId), "a");
    CMenu missing;
    EXPECT_FALSE(missing.LoadMenu(4711));
    EXPECT_FALSE(missing.LoadMenu("no such menu"));
    EXPECT_FALSE(missing.LoadMenu(MAKEINTRESOURCE(4711)));
    EXPECT_EQ(missing.m_hMenu, nullptr);
}

TEST(Menu, WindowHasItsMenu)
{
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "x", WS_OVERLAPPEDWINDOW, 0, 0, 90, 90, nullptr, nullptr));
    EXPECT_EQ(wnd.GetMenu(), nullptr);
    CMenu bar;
    ASSERT_TRUE(bar.CreateMenu());
    bar.AppendMenu(MF_STRING, OpenId, "open");
    ASSERT_TRUE(wnd.SetMenu(&bar));
    wnd.DrawMenuBar();
    EXPECT_EQ(wnd.GetMenu(), &bar);
    ASSERT_NE(wnd.GetSystemMenu(FALSE), nullptr);
    EXPECT_NE(wnd.GetSystemMenu(FALSE)->GetMenuState(SC_CLOSE, MF_BYCOMMAND), static_cast<UINT>(-1));
    EXPECT_TRUE(wnd.SetMenu(nullptr));
}

TEST(CmdUI, ItemsAreAskedForBeforeTheMenuOpens)
{
    MenuWndCL wnd;
    CMenu menu;
    ASSERT_NO_FATAL_FAILURE(fillM(&menu));
    menu.AppendMenu(MF_STRING, LargeId, "large");
    wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_TRUE(menu.GetMenuState(SaveId, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(textM(menu, OpenId), "\xB4\xF2\xBF\xAA");
    EXPECT_TRUE(menu.GetMenuState(LargeId, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(menu.GetMenuState(SmallId, MF_BYCOMMAND) & MF_CHECKED);
    wnd.canSave = true;
    wnd.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_FALSE(menu.GetMenuState(SaveId, MF_BYCOMMAND) & MF_GRAYED);
}

TEST(CmdUI, NotificationOfTheSameCodeIsNoQuestion)
{
    MenuWndCL wnd;
    const RECT place = { 0, 0, 50, 90 };
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST, place, &wnd, SaveId));
    wnd.SendMessage(WM_COMMAND, MAKEWPARAM(SaveId, CBN_ERRSPACE), reinterpret_cast<LPARAM>(combo.m_hWnd));
    EXPECT_EQ(wnd.commands, (std::vector<UINT> { 0 }));
    wnd.UpdateDialogControls(&wnd, FALSE);
    EXPECT_EQ(wnd.commands.size(), 1U);
    EXPECT_FALSE(combo.IsWindowEnabled());
}

TEST(CmdUI, ControlsAreAskedFor)
{
    MenuWndCL wnd;
    const RECT place = { 0, 0, 50, 20 };
    CButton save;
    CButton unknown;
    ASSERT_TRUE(save.Create("s", WS_VISIBLE, place, &wnd, SaveId));
    ASSERT_TRUE(unknown.Create("u", WS_VISIBLE, place, &wnd, 77));
    wnd.UpdateDialogControls(&wnd, FALSE);
    EXPECT_FALSE(save.IsWindowEnabled());
    EXPECT_TRUE(unknown.IsWindowEnabled());
    wnd.canSave = true;
    wnd.UpdateDialogControls(&wnd, TRUE);
    EXPECT_TRUE(save.IsWindowEnabled());
    EXPECT_FALSE(unknown.IsWindowEnabled()) << "nobody handles it";
}

namespace {

class DrawnMenuCL : public CMenu
{
public:
    int drawn = 0;
    int measured = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn += static_cast<int>(item->itemID == OpenId); }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        measured += static_cast<int>(item->itemID == OpenId);
        item->itemWidth = 50;
        item->itemHeight = 20;
    }
};

} // namespace

TEST(Menu, ObjectDrawsItsItems)
{
    MenuWndCL wnd;
    DrawnMenuCL menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    ASSERT_TRUE(menu.AppendMenu(MF_OWNERDRAW, OpenId, "data"));
    ActivateM(wnd);
    Script script([] { ::EndMenu(); });
    script.WaitM([&menu] { return menu.drawn > 0; }, "the item is drawn").DoM([] { KeyM(VK_ESCAPE); });
    menu.TrackPopupMenu(TPM_LEFTALIGN, 30, 30, &wnd);
    EXPECT_EQ(menu.measured, 1);
    EXPECT_TRUE(wnd.commands.empty());
}

TEST(Menu, UserPicksAnItemOfAPopup)
{
    MenuWndCL wnd;
    CMenu menu;
    ASSERT_NO_FATAL_FAILURE(fillM(&menu));
    ActivateM(wnd);
    Script script([] { ::EndMenu(); });
    const auto isOpen = [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; };
    script.WaitM(isOpen, "the menu opens").DoM([] { KeyM(VK_DOWN); }).DoM([] { KeyM(VK_RETURN); });
    menu.TrackPopupMenu(TPM_LEFTALIGN, 30, 30, &wnd);
    EXPECT_TRUE(PumpUntil([&] { return !wnd.commands.empty(); }));
    EXPECT_EQ(wnd.commands, (std::vector<UINT> { OpenId }));
}

TEST(Menu, AcceleratorOfTheWindowIsACommand)
{
    MenuWndCL wnd;
    ACCEL key = { FVIRTKEY, VK_F5, SaveId };
    wnd.keys = ::CreateAcceleratorTableW(&key, 1);
    ActivateM(wnd);
    FocusM(wnd);
    pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
    KeyM(VK_F5);
    EXPECT_TRUE(PumpUntil([&] { return !wnd.commands.empty(); }));
    pumpFilter = nullptr;
    EXPECT_EQ(wnd.commands, (std::vector<UINT> { SaveId }));
    ::DestroyAcceleratorTable(wnd.keys);
}
