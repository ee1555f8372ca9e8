#pragma once
#include "toolkit/dc.h"
#include "toolkit/menu.h"
#include "toolkit/message_map.h"
#include "toolkit/wide_text.h"

class CWnd;

// What the window system does for one window: its styles, texts, place and picture. Base of CWnd; its objects
// are always CWnds.
class PANELKIT_API WndCallsCL : public CCmdTarget
{
public:
    HWND m_hWnd = nullptr;    // null: no window
    HWND GetSafeHwnd() const; // null also where there is no object
    operator HWND() const { return m_hWnd; }
    // Compare the windows.
    BOOL operator==(const WndCallsCL& other) const { return m_hWnd == other.m_hWnd; }
    BOOL operator!=(const WndCallsCL& other) const { return m_hWnd != other.m_hWnd; }

    // The object that owns the window, else a temporary one that lives at least until the thread idles.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd); // null: no object owns it

    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    // swpFlags other than 0: SetWindowPos with them follows. FALSE: nothing changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT swpFlags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags = 0);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam);
    }
    // To all children, and to theirs if deep; permanentOnly: to those that have objects of their own, whose
    // WindowProc is called at once.
    void SendMessageToDescendants(
        UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL deep = TRUE, BOOL permanentOnly = FALSE);
    static const MSG* GetCurrentMessage(); // the one being handled

    // Texts are GBK, or wide where a wide one is given. Lengths and sizes count bytes of GBK or wide
    // characters; a cut text never ends in half a character.
    void SetWindowText(LPCSTR text);
    AFX_WIDE_TEXT void SetWindowText(const WideTP* text) { ::SetWindowTextW(m_hWnd, text); }
    int GetWindowText(LPSTR to, int size) const; // result: bytes copied, without the final zero
    AFX_WIDE_TEXT int GetWindowText(WideTP* to, int size) const { return ::GetWindowTextW(m_hWnd, to, size); }
    void GetWindowText(CString& to) const;
    int GetWindowTextLength() const; // in bytes of GBK
    void SetDlgItemText(int id, LPCSTR text);
    AFX_WIDE_TEXT void SetDlgItemText(int id, const WideTP* text) { ::SetDlgItemTextW(m_hWnd, id, text); }
    // The text of a child; the result is its bytes without the final zero.
    int GetDlgItemText(int id, LPSTR to, int size) const;
    AFX_WIDE_TEXT int GetDlgItemText(int id, WideTP* to, int size) const
    {
        return static_cast<int>(::GetDlgItemTextW(m_hWnd, id, to, size));
    }
    int GetDlgItemText(int id, CString& to) const;
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE)
    {
        ::SetDlgItemInt(m_hWnd, id, value, isSigned);
    }
    UINT GetDlgItemInt(int id, BOOL* ok = nullptr, BOOL isSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, id, ok, isSigned);
    }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    void CheckRadioButton(int first, int last, int checked)
    {
        ::CheckRadioButton(m_hWnd, first, last, checked);
    }
    int GetCheckedRadioButton(int first, int last) const; // its id; 0: none
    // Lists file names in the list box or combo box; path (GBK) may be changed by the call.
    int DlgDirList(LPSTR path, int listId, int textId, UINT kinds);
    int DlgDirListComboBox(LPSTR path, int comboId, int textId, UINT kinds);

    // The name selected in such a list. TRUE: it is a folder or drive.
    BOOL DlgDirSelect(LPSTR to, int size, int listId);
    BOOL DlgDirSelectComboBox(LPSTR to, int size, int comboId);
    void SetFont(CFont* font, BOOL redraw = TRUE); // null: the system's
    CFont* GetFont() const;
    HICON SetIcon(HICON icon, BOOL big);
    HICON GetIcon(BOOL big) const
    {
        return reinterpret_cast<HICON>(SendMessage(WM_GETICON, big ? ICON_BIG : ICON_SMALL));
    }
    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK); // null: the application's name
    AFX_WIDE_TEXT int MessageBox(const WideTP* text, LPCWSTR caption = nullptr, UINT type = MB_OK)
    {
        return showMessageM(text, caption, type);
    }

    BOOL ShowWindow(int show) { return ::ShowWindow(m_hWnd, show); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL show = TRUE) { ::ShowOwnedPopups(m_hWnd, show); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void CloseWindow() { ::CloseWindow(m_hWnd); } // makes it an icon
    BOOL OpenIcon() { return ::OpenIcon(m_hWnd); }
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    BOOL FlashWindow(BOOL invert) { return ::FlashWindow(m_hWnd, invert); }
    BOOL FlashWindowEx(DWORD flags, UINT count, DWORD milliseconds);
    void MoveWindow(int x, int y, int w, int h, BOOL redraw = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, w, h, redraw);
    }
    void MoveWindow(LPCRECT rect, BOOL redraw = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    void CenterWindow(CWnd* over = nullptr); // null: its parent or owner, else the screen
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const; // sets its length too
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement);
    BOOL GetWindowInfo(WINDOWINFO* info) const { return ::GetWindowInfo(m_hWnd, info); }
    BOOL GetTitleBarInfo(TITLEBARINFO* info) const { return ::GetTitleBarInfo(m_hWnd, info); }
    // Makes the wanted client rectangle that of a window. adjustOutside: with room for scroll bars.
    virtual void CalcWindowRect(LPRECT rect, UINT adjust = adjustBorder);
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    int GetWindowRgn(HRGN region) const { return ::GetWindowRgn(m_hWnd, region); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    // Both corners.
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    // Both corners.
    void ScreenToClient(LPRECT rect) const;

    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;
    BOOL SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags)
    {
        return ::SetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }
    BOOL GetLayeredWindowAttributes(COLORREF* key, BYTE* alpha, DWORD* flags) const
    {
        return ::GetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
    }
    BOOL UpdateLayeredWindow(CDC* screen, POINT* at, SIZE* size, CDC* from, POINT* fromAt, COLORREF key,
        BLENDFUNCTION* blend, DWORD flags);

    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    void ValidateRgn(CRgn* region); // null: all of it
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, rect, erase); }
    int GetUpdateRgn(CRgn* region, BOOL erase = FALSE);
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
        UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetDCEx(CRgn* clip, DWORD flags); // the region is the system's from then on
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    int ReleaseDC(CDC* dc);
    CDC* BeginPaint(LPPAINTSTRUCT paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }
    void Print(CDC* dc, DWORD flags) const;
    void PrintClient(CDC* dc, DWORD flags) const;
    BOOL PrintWindow(CDC* dc, UINT flags) const;
    BOOL DrawAnimatedRects(int which, CONST RECT* from, LPCRECT to)
    {
        return ::DrawAnimatedRects(m_hWnd, which, from, to);
    }
    BOOL DrawCaption(CDC* dc, LPCRECT rect, UINT flags);

    // How CalcWindowRect is to reckon.
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };

protected:
    static HWND handleOfM(const CWnd* wnd); // null for null
    int showMessageM(LPCWSTR text, LPCWSTR caption, UINT type);
};
