#include "baselib/gbk.h"
#include "toolkit/text.h"
#include "toolkit/wnd.h"
#include <cstring>

namespace {

HRGN regionOfM(CRgn* region)
{
    return region == nullptr ? nullptr : static_cast<HRGN>(*region);
}

HDC contextOfM(CDC* dc)
{
    return dc == nullptr ? nullptr : dc->m_hDC;
}

constexpr int PathSize = MAX_PATH;

} // namespace

HWND WndCallsCL::GetSafeHwnd() const
{
    // Applications call it for a null, which the compiler would take for impossible.
    const WndCallsCL* const volatile self = this;
    return self == nullptr ? nullptr : self->m_hWnd;
}

int WndCallsCL::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id) {
        if (IsDlgButtonChecked(id) != BST_UNCHECKED) {
            return id;
        }
    }
    return 0;
}

int WndCallsCL::DlgDirList(LPSTR path, int listId, int textId, UINT kinds)
{
    wchar_t wide[PathSize] = {};
    slGbkToShown(path).copy(wide, PathSize - 1);
    const int done = ::DlgDirListW(m_hWnd, wide, listId, textId, kinds);
    slCopyText(path, static_cast<int>(std::strlen(path)) + 1, WideToGbk(wide));
    return done;
}

int WndCallsCL::DlgDirListComboBox(LPSTR path, int comboId, int textId, UINT kinds)
{
    wchar_t wide[PathSize] = {};
    slGbkToShown(path).copy(wide, PathSize - 1);
    const int done = ::DlgDirListComboBoxW(m_hWnd, wide, comboId, textId, kinds);
    slCopyText(path, static_cast<int>(std::strlen(path)) + 1, WideToGbk(wide));
    return done;
}

BOOL WndCallsCL::DlgDirSelect(LPSTR to, int size, int listId)
{
    wchar_t wide[PathSize] = {};
    const BOOL isFolder = ::DlgDirSelectExW(m_hWnd, wide, PathSize, listId);
    slCopyText(to, size, WideToGbk(wide));
    return isFolder;
}

BOOL WndCallsCL::DlgDirSelectComboBox(LPSTR to, int size, int comboId)
{
    wchar_t wide[PathSize] = {};
    const BOOL isFolder = ::DlgDirSelectComboBoxExW(m_hWnd, wide, PathSize, comboId);
    slCopyText(to, size, WideToGbk(wide));
    return isFolder;
}

BOOL WndCallsCL::FlashWindowEx(DWORD flags, UINT count, DWORD milliseconds)
{
    FLASHWINFO info = { sizeof(FLASHWINFO), m_hWnd, flags, count, milliseconds };
    return ::FlashWindowEx(&info);
}

BOOL WndCallsCL::GetWindowPlacement(WINDOWPLACEMENT* placement) const
{
    placement->length = sizeof *placement;
    return ::GetWindowPlacement(m_hWnd, placement);
}

BOOL WndCallsCL::SetWindowPlacement(const WINDOWPLACEMENT* placement)
{
    WINDOWPLACEMENT own = *placement;
    own.length = sizeof own;
    return ::SetWindowPlacement(m_hWnd, &own);
}

void WndCallsCL::CalcWindowRect(LPRECT rect, UINT adjust)
{
    const DWORD exStyle
        = adjust == adjustBorder ? GetExStyle() & ~static_cast<DWORD>(WS_EX_CLIENTEDGE) : GetExStyle();
    ::AdjustWindowRectEx(rect, GetStyle(), FALSE, exStyle);
}

BOOL WndCallsCL::UpdateLayeredWindow(CDC* screen, POINT* at, SIZE* size, CDC* from, POINT* fromAt,
    COLORREF key, BLENDFUNCTION* blend, DWORD flags)
{
    return ::UpdateLayeredWindow(
        m_hWnd, contextOfM(screen), at, size, contextOfM(from), fromAt, key, blend, flags);
}

void WndCallsCL::ValidateRgn(CRgn* region)
{
    ::ValidateRgn(m_hWnd, regionOfM(region));
}

int WndCallsCL::GetUpdateRgn(CRgn* region, BOOL erase)
{
    return ::GetUpdateRgn(m_hWnd, regionOfM(region), erase);
}

CDC* WndCallsCL::GetDCEx(CRgn* clip, DWORD flags)
{
    HRGN handle = clip == nullptr ? nullptr : static_cast<HRGN>(clip->Detach());
    return CDC::FromHandle(::GetDCEx(m_hWnd, handle, flags));
}

void WndCallsCL::Print(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(contextOfM(dc)), static_cast<LPARAM>(flags));
}

void WndCallsCL::PrintClient(CDC* dc, DWORD flags) const
{
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(contextOfM(dc)), static_cast<LPARAM>(flags));
}

BOOL WndCallsCL::PrintWindow(CDC* dc, UINT flags) const
{
    return ::PrintWindow(m_hWnd, contextOfM(dc), flags);
}

BOOL WndCallsCL::DrawCaption(CDC* dc, LPCRECT rect, UINT flags)
{
    return ::DrawCaption(m_hWnd, contextOfM(dc), rect, flags);
}
