#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/text.h"
#include "toolkit/wnd.h"
#include <vector>

namespace {

std::string textOfM(HWND hWnd)
{
    int length = ::GetWindowTextLengthW(hWnd);
    std::vector<wchar_t> text(static_cast<size_t>(length) + 1);
    int used = ::GetWindowTextW(hWnd, text.data(), length + 1);
    return used <= 0 ? std::string() : WideToGbk(text.data(), used);
}

BOOL modifyM(HWND hWnd, int which, DWORD remove, DWORD add, UINT swpFlags)
{
    DWORD old = static_cast<DWORD>(::GetWindowLongPtrW(hWnd, which));
    DWORD wanted = (old & ~remove) | add;
    if (old == wanted) {
        return FALSE;
    }
    ::SetWindowLongPtrW(hWnd, which, static_cast<LONG_PTR>(wanted));
    if (swpFlags != 0) {
        ::SetWindowPos(
            hWnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | swpFlags);
    }
    return TRUE;
}

void sendDownM(HWND parent, const MSG& message, bool deep, bool permanentOnly)
{
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = next) {
        next = ::GetNextWindow(child, GW_HWNDNEXT); // the child may go
        if (!permanentOnly) {
            ::SendMessageW(child, message.message, message.wParam, message.lParam);
        } else if (CWnd::FromHandlePermanent(child) != nullptr) {
            AfxWndProc(child, message.message, message.wParam, message.lParam);
        }
        if (deep && ::IsWindow(child)) {
            sendDownM(child, message, deep, permanentOnly);
        }
    }
}

} // namespace

HWND WndCallsCL::handleOfM(const CWnd* wnd)
{
    return wnd == nullptr ? nullptr : wnd->m_hWnd;
}

BOOL WndCallsCL::ModifyStyle(DWORD remove, DWORD add, UINT swpFlags)
{
    return modifyM(m_hWnd, GWL_STYLE, remove, add, swpFlags);
}

BOOL WndCallsCL::ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags)
{
    return modifyM(m_hWnd, GWL_EXSTYLE, remove, add, swpFlags);
}

void WndCallsCL::SetWindowText(LPCSTR text)
{
    ::SetWindowTextW(m_hWnd, slGbkToShown(text).c_str());
}

int WndCallsCL::GetWindowText(LPSTR to, int size) const
{
    return slCopyText(to, size, textOfM(m_hWnd));
}

void WndCallsCL::GetWindowText(CString& to) const
{
    to = textOfM(m_hWnd).c_str();
}

int WndCallsCL::GetWindowTextLength() const
{
    return static_cast<int>(textOfM(m_hWnd).size());
}

void WndCallsCL::SetDlgItemText(int id, LPCSTR text)
{
    ::SetDlgItemTextW(m_hWnd, id, slGbkToShown(text).c_str());
}

int WndCallsCL::GetDlgItemText(int id, LPSTR to, int size) const
{
    return slCopyText(to, size, textOfM(::GetDlgItem(m_hWnd, id)));
}

int WndCallsCL::GetDlgItemText(int id, CString& to) const
{
    to = textOfM(::GetDlgItem(m_hWnd, id)).c_str();
    return to.GetLength();
}

void WndCallsCL::SetFont(CFont* font, BOOL redraw)
{
    HFONT handle = font == nullptr ? nullptr : static_cast<HFONT>(*font);
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(handle), redraw ? 1 : 0);
}

CFont* WndCallsCL::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

HICON WndCallsCL::SetIcon(HICON icon, BOOL big)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, big ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(icon)));
}

int WndCallsCL::MessageBox(LPCSTR text, LPCSTR caption, UINT type)
{
    const std::wstring wideCaption = slGbkToShown(caption);
    return showMessageM(slGbkToShown(text).c_str(), caption == nullptr ? nullptr : wideCaption.c_str(), type);
}

int WndCallsCL::showMessageM(LPCWSTR text, LPCWSTR caption, UINT type)
{
    return ::MessageBoxW(
        m_hWnd, text, caption == nullptr ? slGbkToShown(AfxGetAppName()).c_str() : caption, type);
}

void WndCallsCL::MoveWindow(LPCRECT rect, BOOL redraw)
{
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, redraw);
}

BOOL WndCallsCL::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags)
{
    return ::SetWindowPos(m_hWnd, handleOfM(after), x, y, width, height, flags);
}

void WndCallsCL::CenterWindow(CWnd* over)
{
    HWND base = over != nullptr ? over->m_hWnd : ::GetParent(m_hWnd);
    CRect area;
    if (base == nullptr) {
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    } else if (GetStyle() & WS_CHILD) {
        ::GetClientRect(base, &area);
        ::MapWindowPoints(base, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&area), 2);
    } else {
        ::GetWindowRect(base, &area);
    }
    CRect own;
    GetWindowRect(&own);
    int x = area.left + (area.Width() - own.Width()) / 2;
    int y = area.top + (area.Height() - own.Height()) / 2;
    SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WndCallsCL::ClientToScreen(LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2);
}

void WndCallsCL::ScreenToClient(LPRECT rect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2);
}

void WndCallsCL::MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const
{
    ::MapWindowPoints(m_hWnd, handleOfM(to), points, count);
}

void WndCallsCL::MapWindowPoints(CWnd* to, LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, handleOfM(to), reinterpret_cast<POINT*>(rect), 2);
}

void WndCallsCL::InvalidateRgn(CRgn* region, BOOL erase)
{
    ::InvalidateRgn(m_hWnd, region == nullptr ? nullptr : static_cast<HRGN>(*region), erase);
}

BOOL WndCallsCL::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    return ::RedrawWindow(m_hWnd, rect, region == nullptr ? nullptr : static_cast<HRGN>(*region), flags);
}

int WndCallsCL::ReleaseDC(CDC* dc)
{
    return dc == nullptr ? 0 : ::ReleaseDC(m_hWnd, dc->m_hDC);
}

void WndCallsCL::SendMessageToDescendants(
    UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL permanentOnly)
{
    sendDownM(m_hWnd, { nullptr, message, wParam, lParam, 0, {} }, deep != FALSE, permanentOnly != FALSE);
}
