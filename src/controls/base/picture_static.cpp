#include "controls/base/picture_static.h"

BOOL PictureStaticCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_TABSTOP | SS_NOTIFY;
    return CStatic::PreCreateWindow(create);
}

void PictureStaticCL::PreSubclassWindow()
{
    ModifyStyle(0, SS_NOTIFY); // Without it the mouse goes to what lies behind.
    CStatic::PreSubclassWindow();
}

LRESULT PictureStaticCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    if (takesKeysM()) {
        if (message == WM_GETDLGCODE) {
            return dialogCodeM(reinterpret_cast<const MSG*>(lParam));
        }
        if (handleKeyM(message, wParam, lParam)) {
            return 0;
        }
    }
    const LRESULT result = ControlCL::WindowProc(message, wParam, lParam);
    if (CWnd::FromHandlePermanent(window) == this && takesKeysM()) {
        if (message == WM_CREATE) {
            addTabStopM();
        } else if (message == WM_UPDATEUISTATE) {
            keepFocusStateM(wParam);
            showFocusM();
        } else if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
            showFocusM();
        } else if (message == WM_PAINT) {
            drawFocusM();
        }
    }
    if (message == WM_ENABLE) {
        // Wine 8's statics paint themselves at once, without WM_PAINT, over what the control shows.
        ::InvalidateRect(window, nullptr, TRUE);
    }
    return result;
}

bool PictureStaticCL::beginClickM()
{
    if (holdsMouseM()) {
        return false;
    }
    SetCapture();
    return true;
}

void PictureStaticCL::invalidateM(bool erase)
{
    if (m_hWnd != nullptr) {
        Invalidate(erase ? TRUE : FALSE);
    }
}

void PictureStaticCL::clientRgnM(CRgn* region) const
{
    CRect client;
    GetClientRect(&client);
    region->DeleteObject();
    region->CreateRectRgnIndirect(&client);
}

void PictureStaticCL::clipWindowM(const CRgn& region)
{
    const HRGN copy = ::CreateRectRgn(0, 0, 0, 0);
    ::CombineRgn(copy, region, nullptr, RGN_COPY);
    if (SetWindowRgn(copy, TRUE) == 0) {
        ::DeleteObject(copy);
    }
}

void PictureStaticCL::invalidateInParentM()
{
    CWnd* const parent = m_hWnd != nullptr ? GetParent() : nullptr;
    if (parent != nullptr) {
        CRect rect;
        GetWindowRect(&rect);
        parent->ScreenToClient(&rect);
        parent->InvalidateRect(&rect, TRUE);
    }
}

void PictureStaticCL::drawBehindM(CDC* dc, const CRect& part) const
{
    const HWND parent = m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr;
    auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(
        parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc->m_hDC), reinterpret_cast<LPARAM>(m_hWnd)));
    const RECT all { 0, 0, part.Width(), part.Height() };
    ::SetBrushOrgEx(dc->m_hDC, -part.left, -part.top, nullptr); // A pattern begins at the control's corner.
    ::FillRect(dc->m_hDC, &all, brush != nullptr ? brush : ::GetSysColorBrush(COLOR_BTNFACE));
}

int PictureStaticCL::appendPictureM(DVrBitmapArr* pictures, const char* file) const
{
    const int index = pictures->AddItemM(DVrBitmapCL(AliveTag));
    DVrBitmapCL* const picture = pictures->ElementAtPM(index);
    return picture != nullptr && picture->LoadScaledM(file, PictureScaleM()) == 1 ? index : -1;
}
