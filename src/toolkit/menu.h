#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/gdi_objects.h"
#include "toolkit/wide_text.h"

class CWnd;

// Owns one menu and destroys it with itself; one that belongs to a window or to another menu is detached
// before. Texts are GBK, or wide. Items are named by command id, or by place from 0 with MF_BYPOSITION in the
// flags.
class PANELKIT_API CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }

    HMENU m_hMenu = nullptr;    // null: none
    HMENU GetSafeHmenu() const; // null also where there is no object
    operator HMENU() const { return m_hMenu; }
    // Compare the handles.
    BOOL operator==(const CMenu& other) const { return m_hMenu == other.m_hMenu; }
    BOOL operator!=(const CMenu& other) const { return m_hMenu != other.m_hMenu; }
    BOOL Attach(HMENU menu);                       // FALSE: null
    HMENU Detach();                                // gives it back, not destroyed; null: there was none
    static CMenu* FromHandle(HMENU menu);          // the object that owns it, else a temporary one (see CWnd)
    static CMenu* FromHandlePermanent(HMENU menu); // null: no object owns it

    // FALSE: there is a menu already, or the system refused.
    BOOL CreateMenu() { return m_hMenu == nullptr && Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return m_hMenu == nullptr && Attach(::CreatePopupMenu()); }
    BOOL LoadMenu(UINT id) { return loadM(MAKEINTRESOURCEW(id)); } // from the application's resources
    BOOL LoadMenu(LPCSTR name);
    AFX_WIDE_TEXT BOOL LoadMenu(const WideTP* name) { return loadM(name); }
    BOOL LoadMenuIndirect(const void* menuTemplate);
    BOOL DestroyMenu(); // FALSE: there was none

    // flags say what the text is: MF_STRING and its kin; with MF_POPUP the id is the handle of a menu, which
    // then belongs to this one.
    BOOL AppendMenu(UINT flags, UINT_PTR id = 0, LPCSTR text = nullptr);
    AFX_WIDE_TEXT BOOL AppendMenu(UINT flags, UINT_PTR id, const WideTP* text)
    {
        return ::AppendMenuW(m_hMenu, flags, id, text);
    }
    BOOL AppendMenu(UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL InsertMenu(UINT before, UINT flags, UINT_PTR id = 0, LPCSTR text = nullptr);
    AFX_WIDE_TEXT BOOL InsertMenu(UINT before, UINT flags, UINT_PTR id, const WideTP* text)
    {
        return ::InsertMenuW(m_hMenu, before, flags, id, text);
    }
    BOOL InsertMenu(UINT before, UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL ModifyMenu(UINT item, UINT flags, UINT_PTR id = 0, LPCSTR text = nullptr);
    AFX_WIDE_TEXT BOOL ModifyMenu(UINT item, UINT flags, UINT_PTR id, const WideTP* text)
    {
        return ::ModifyMenuW(m_hMenu, item, flags, id, text);
    }
    BOOL ModifyMenu(UINT item, UINT flags, UINT_PTR id, const CBitmap* bitmap);
    BOOL RemoveMenu(UINT item, UINT flags) { return ::RemoveMenu(m_hMenu, item, flags); } // keeps a submenu
    BOOL DeleteMenu(UINT item, UINT flags) { return ::DeleteMenu(m_hMenu, item, flags); }

    // Results: what was before; -1: no such item.
    UINT CheckMenuItem(UINT item, UINT check) { return ::CheckMenuItem(m_hMenu, item, check); }
    UINT EnableMenuItem(UINT item, UINT enable)
    {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, item, enable));
    }
    BOOL CheckMenuRadioItem(UINT first, UINT last, UINT item, UINT flags)
    {
        return ::CheckMenuRadioItem(m_hMenu, first, last, item, flags);
    }
    BOOL SetDefaultItem(UINT item, BOOL byPosition = FALSE)
    {
        return ::SetMenuDefaultItem(m_hMenu, item, static_cast<UINT>(byPosition));
    }
    UINT GetDefaultItem(UINT flags, BOOL byPosition = FALSE) const
    {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(byPosition), flags);
    }
    BOOL SetMenuItemBitmaps(
        UINT item, UINT flags, const CBitmap* uncheckedBitmap, const CBitmap* checkedBitmap);
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    UINT GetMenuItemID(int place) const { return ::GetMenuItemID(m_hMenu, place); } // -1: a submenu
    UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
    CMenu* GetSubMenu(int place) const { return FromHandle(::GetSubMenu(m_hMenu, place)); } // null: none
    // Results: bytes of GBK, or wide characters, without the final zero; a cut text ends between characters.
    int GetMenuString(UINT item, LPSTR to, int size, UINT flags) const;
    int GetMenuString(UINT item, CString& to, UINT flags) const;
    AFX_WIDE_TEXT int GetMenuString(UINT item, WideTP* to, int size, UINT flags) const
    {
        return ::GetMenuStringW(m_hMenu, item, to, size, flags);
    }
    BOOL GetMenuItemInfo(UINT item, MENUITEMINFOW* info, BOOL byPosition = FALSE)
    {
        return ::GetMenuItemInfoW(m_hMenu, item, byPosition, info);
    }
    BOOL SetMenuItemInfo(UINT item, MENUITEMINFOW* info, BOOL byPosition = FALSE)
    {
        return ::SetMenuItemInfoW(m_hMenu, item, byPosition, info);
    }
    BOOL InsertMenuItem(UINT before, MENUITEMINFOW* info, BOOL byPosition = FALSE)
    {
        return ::InsertMenuItemW(m_hMenu, before, byPosition, info);
    }
    BOOL GetMenuInfo(MENUINFO* info) const { return ::GetMenuInfo(m_hMenu, info); }
    BOOL SetMenuInfo(const MENUINFO* info) { return ::SetMenuInfo(m_hMenu, info); }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }
    BOOL SetMenuContextHelpId(DWORD id) { return ::SetMenuContextHelpId(m_hMenu, id); }

    // At a point of the screen; the command comes to the window as WM_COMMAND, or with TPM_RETURNCMD is the
    // result.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* window, LPCRECT ignored = nullptr);
    BOOL TrackPopupMenuEx(UINT flags, int x, int y, CWnd* window, TPMPARAMS* params);

    // Of MF_OWNERDRAW items, where the window that shows the menu has no handler.
    virtual void DrawItem(LPDRAWITEMSTRUCT) { }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) { }

private:
    BOOL loadM(LPCWSTR name);
};
