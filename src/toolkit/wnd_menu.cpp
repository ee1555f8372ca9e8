#include "baselib/gbk.h"
#include "toolkit/cmd_ui.h"
#include "toolkit/life.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"

namespace {

bool holdsItselfM(HMENU menu, UINT id)
{
    for (int place = ::GetMenuItemCount(menu) - 1; place >= 0; --place) {
        if (::GetMenuItemID(menu, place) == id) {
            return true;
        }
    }
    return false;
}

} // namespace

// Here, not with the others of their classes: the windows know menus and updates, so those must not know
// windows.
BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* window, LPCRECT)
{
    return TrackPopupMenuEx(flags, x, y, window, nullptr);
}

BOOL CMenu::TrackPopupMenuEx(UINT flags, int x, int y, CWnd* window, TPMPARAMS* params)
{
    return ::TrackPopupMenuEx(m_hMenu, flags, x, y, window == nullptr ? nullptr : window->m_hWnd, params);
}

void CCmdUI::Enable(BOOL on)
{
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        }
    } else if (m_pOther != nullptr) {
        // A disabled control must not keep the keyboard.
        if (!on && ::GetFocus() == m_pOther->m_hWnd) {
            if (CWnd* parent = m_pOther->GetParent()) {
                ::SendMessageW(*parent, WM_NEXTDLGCTL, 0, FALSE);
            }
        }
        m_pOther->EnableWindow(on);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int check)
{
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (check != 0 ? MF_CHECKED : MF_UNCHECKED));
        }
    } else if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
    }
}

void CCmdUI::SetRadio(BOOL on)
{
    SetCheck(on ? 1 : 0);
    if (m_pMenu != nullptr && m_pSubMenu == nullptr && on) {
        m_pMenu->CheckMenuRadioItem(m_nIndex, m_nIndex, m_nIndex, MF_BYPOSITION);
    }
}

void CCmdUI::SetText(LPCSTR text)
{
    setTextM(slGbkToShown(text).c_str());
}

void CCmdUI::setTextM(LPCWSTR text)
{
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr) {
            MENUITEMINFOW info = {};
            info.cbSize = sizeof info;
            info.fMask = MIIM_STRING;
            info.dwTypeData = const_cast<LPWSTR>(text);
            m_pMenu->SetMenuItemInfo(m_nIndex, &info, TRUE);
        }
    } else if (m_pOther != nullptr) {
        m_pOther->SetWindowText(text);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF) {
        return TRUE;
    }
    m_bEnableChanged = FALSE;
    const BOOL isHandled = target->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (disableIfNoHandler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info = {};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return isHandled;
}

void CWnd::updateMenuM(CMenu* menu)
{
    LifeCL life(this);
    CCmdUI ui;
    ui.m_pMenu = menu;
    // Handlers may add and remove items.
    for (ui.m_nIndex = 0; life.IsAliveM() && ui.m_nIndex < menu->GetMenuItemCount(); ++ui.m_nIndex) {
        const int place = static_cast<int>(ui.m_nIndex);
        ui.m_nIndexMax = menu->GetMenuItemCount();
        ui.m_nID = menu->GetMenuItemID(place);
        ui.m_pSubMenu = nullptr;
        if (ui.m_nID == static_cast<UINT>(-1)) {
            // A submenu is asked about under the id of its first item.
            ui.m_pSubMenu = menu->GetSubMenu(place);
            ui.m_nID = ui.m_pSubMenu == nullptr ? 0 : ui.m_pSubMenu->GetMenuItemID(0);
        }
        ui.DoUpdate(this, FALSE);
    }
}

// An owner-drawn item asks the window; the object that owns its menu may answer.
bool CWnd::drawMenuM(UINT message, LPARAM lParam)
{
    if (message == WM_DRAWITEM) {
        auto* item = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
        CMenu* menu = item->CtlType == ODT_MENU
            ? CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(item->hwndItem))
            : nullptr;
        if (menu != nullptr) {
            menu->DrawItem(item);
        }
        return menu != nullptr;
    }
    auto* item = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
    if (item->CtlType == ODT_MENU) {
        // Only the id is known here.
        for (const auto& [handle, menu] : ThreadStateCL::ThisM().permanentMenus) {
            if (holdsItselfM(handle, item->itemID)) {
                menu->MeasureItem(item);
                return true;
            }
        }
    }
    return false;
}

void WndHandlersCL::OnInitMenuPopup(CMenu* menu, UINT, BOOL isSystemMenu)
{
    CWnd* self = static_cast<CWnd*>(this);
    LifeCL life(self);
    if (!isSystemMenu) {
        self->updateMenuM(menu);
    }
    if (life.IsAliveM()) {
        Default();
    }
}

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler)
{
    LifeCL life(this);
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr && life.IsAliveM();
         child = ::GetNextWindow(child, GW_HWNDNEXT)) {
        CCmdUI ui;
        ui.m_nID = static_cast<UINT>(::GetDlgCtrlID(child));
        ui.m_pOther = FromHandle(child);
        const bool isButton = (::SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
        ui.DoUpdate(target, disableIfNoHandler && isButton);
    }
}

BOOL WndRelationsCL::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu == nullptr ? nullptr : menu->m_hMenu);
}

BOOL WndRelationsCL::HiliteMenuItem(CMenu* menu, UINT item, UINT flags)
{
    return ::HiliteMenuItem(m_hWnd, menu == nullptr ? nullptr : menu->m_hMenu, item, flags);
}
