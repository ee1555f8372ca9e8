#pragma once
#include "toolkit/common_control.h"

// Short texts that appear over windows, or parts of them (tools), while the pointer rests there. The messages
// of those windows have to be relayed. Texts are GBK; a text of LPSTR_TEXTCALLBACK is asked for by
// TTN_NEEDTEXT. A tool is a window as a whole (id 0), or a rectangle of it under an id of the caller's.
class PANELKIT_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    // FALSE: the system refused.
    BOOL Create(CWnd* parent, DWORD style = 0);

    // A new tool. rect (null: all of the window): in its client area. FALSE: the system
    // refused.
    BOOL AddTool(CWnd* wnd, LPCSTR text = LPSTR_TEXTCALLBACKA, LPCRECT rect = nullptr, UINT_PTR id = 0)
    {
        return addToolM(wnd, ItemTextCL(text).PointerM(), rect, id);
    }
    AFX_WIDE_TEXT BOOL AddTool(CWnd* wnd, const WideTP* text, LPCRECT rect = nullptr, UINT_PTR id = 0)
    {
        return addToolM(wnd, text, rect, id);
    }
    BOOL AddTool(CWnd* wnd, UINT textId, LPCRECT rect = nullptr, UINT_PTR id = 0); // a text of the resources
    void DelTool(CWnd* wnd, UINT_PTR id = 0);

    // Another text for a tool; nothing where there is none.
    void UpdateTipText(LPCSTR text, CWnd* wnd, UINT_PTR id = 0)
    {
        updateTextM(ItemTextCL(text).PointerM(), wnd, id);
    }
    AFX_WIDE_TEXT void UpdateTipText(const WideTP* text, CWnd* wnd, UINT_PTR id = 0)
    {
        updateTextM(text, wnd, id);
    }
    void UpdateTipText(UINT textId, CWnd* wnd, UINT_PTR id = 0);

    // The text of a tool; empty where there is none.
    void GetText(CString& to, CWnd* wnd, UINT_PTR id = 0) const;
    // Another rectangle for a tool that is one.
    void SetToolRect(CWnd* wnd, UINT_PTR id, LPCRECT rect);
    int GetToolCount() const { return AfxSendInt(*this, TTM_GETTOOLCOUNT); }
    BOOL HitTest(CWnd* wnd, CPoint at, LPTOOLINFOW found) const;
    // The text in it is wide; where one is wanted, lpszText points to a buffer of 80 characters.
    BOOL GetToolInfo(LPTOOLINFOW to, CWnd* wnd, UINT_PTR id = 0) const;
    void SetToolInfo(LPTOOLINFOW tool);

    void RelayEvent(LPMSG message) { SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message)); }
    void Activate(BOOL active) { SendMessage(TTM_ACTIVATE, AfxWordOf(active)); }
    void Pop() { SendMessage(TTM_POP); }
    void Update() { SendMessage(TTM_UPDATE); }
    // In milliseconds; which: TTDT_AUTOPOP, TTDT_INITIAL, TTDT_RESHOW, TTDT_AUTOMATIC.
    int GetDelayTime(DWORD which) const
    {
        return AfxSendInt(*this, TTM_GETDELAYTIME, static_cast<int>(which));
    }
    void SetDelayTime(DWORD which, int time) { SendMessage(TTM_SETDELAYTIME, which, MAKELPARAM(time, 0)); }
    void SetDelayTime(UINT time) { SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(time)); }
    // In pixels; -1: texts have one line.
    int GetMaxTipWidth() const { return AfxSendInt(*this, TTM_GETMAXTIPWIDTH); }
    int SetMaxTipWidth(int width)
    {
        return AfxSendInt(*this, TTM_SETMAXTIPWIDTH, 0, width);
    } // the one before
    void GetMargin(LPRECT margin) const { SendMessage(TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(margin)); }
    void SetMargin(LPCRECT margin) { SendMessage(TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(margin)); }
    COLORREF GetTipBkColor() const { return static_cast<COLORREF>(SendMessage(TTM_GETTIPBKCOLOR)); }
    void SetTipBkColor(COLORREF color) { SendMessage(TTM_SETTIPBKCOLOR, color); }
    COLORREF GetTipTextColor() const { return static_cast<COLORREF>(SendMessage(TTM_GETTIPTEXTCOLOR)); }
    void SetTipTextColor(COLORREF color) { SendMessage(TTM_SETTIPTEXTCOLOR, color); }
    // A line above the text; icon: TTI_ numbers.
    BOOL SetTitle(UINT icon, LPCSTR title) { return SetTitle(icon, slGbkToShown(title).c_str()); }
    AFX_WIDE_TEXT BOOL SetTitle(UINT icon, const WideTP* title)
    {
        return SendMessage(TTM_SETTITLEW, icon, AfxTextOf(title)) != 0;
    }

private:
    BOOL addToolM(CWnd* wnd, LPCWSTR text, LPCRECT rect, UINT_PTR id);
    void updateTextM(LPCWSTR text, CWnd* wnd, UINT_PTR id);
};
