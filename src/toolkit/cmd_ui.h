#pragma once
#include "toolkit/menu.h"
#include "toolkit/message_map.h"

// What an ON_UPDATE_COMMAND_UI handler is asked about: an item of a menu, or a control. Texts are GBK, or
// wide.
class PANELKIT_API CCmdUI
{
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;
    CCmdUI(const CCmdUI&) = delete;
    CCmdUI& operator=(const CCmdUI&) = delete;

    UINT m_nID = 0;                  // of the command or control
    UINT m_nIndex = 0;               // place in the menu
    CMenu* m_pMenu = nullptr;        // null: a control
    CMenu* m_pSubMenu = nullptr;     // the item is this submenu
    CWnd* m_pOther = nullptr;        // the control
    BOOL m_bEnableChanged = FALSE;   // Enable has been called
    BOOL m_bContinueRouting = FALSE; // the next handler is asked too
    UINT m_nIndexMax = 0;            // how many items the menu has

    // Enables the item or control, or disables it.
    virtual void Enable(BOOL on = TRUE);
    virtual void SetCheck(int check = 1); // 0, 1, or 2 for undetermined
    // Checks it with the mark of one choice of several, or unchecks it.
    virtual void SetRadio(BOOL on = TRUE);
    // Its text.
    virtual void SetText(LPCSTR text);
    AFX_WIDE_TEXT void SetText(const WideTP* text) { setTextM(text); }
    void ContinueRouting() { m_bContinueRouting = TRUE; } // the handler has not dealt with it after all
    // Asks the target. disableIfNoHandler: what no ON_COMMAND knows is disabled, unless the target enabled
    // it.
    BOOL DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler);

private:
    void setTextM(LPCWSTR text);
};

// The lines of a message map for how the items or controls with these ids are to look: void handler(CCmdUI*).
#define ON_UPDATE_COMMAND_UI_RANGE(first, last, memberFxn)                                                   \
    AFX_ENTRY(WM_UPDATE_COMMAND_UI, 0, first, last, CCmdUI* ui = static_cast<CCmdUI*>(m.extra);              \
              ui->m_bContinueRouting = FALSE; (self->*(memberFxn))(ui); return !ui->m_bContinueRouting;)

// The same for one id.
#define ON_UPDATE_COMMAND_UI(nID, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(nID, nID, memberFxn)
