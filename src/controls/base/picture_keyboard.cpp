// Pictures that take clicks, worked by keys.
#include "controls/base/picture_static.h"

namespace {

constexpr LPARAM IsRepeated = 1 << 30; // Of WM_KEYDOWN: the key was down already.
constexpr int FrameInset = 2;          // Pixels from the edge of the picture, if it has so many.
constexpr WORD Chequer[8] = { 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA };

} // namespace

void PictureStaticCL::UseKeyboardM(bool use)
{
    if (use == usesKeyboard_) {
        return;
    }
    cancelKeyM();
    usesKeyboard_ = use;
    if (m_hWnd == nullptr) {
        return;
    }
    if (takesKeysM()) {
        addTabStopM();
    } else if (hasOwnTabStop_) {
        ModifyStyle(WS_TABSTOP, 0);
        hasOwnTabStop_ = false;
    }
    showFocusM();
}

void PictureStaticCL::addTabStopM()
{
    isKeyDown_ = false; // A copy's window has none down.
    hasOwnTabStop_ = ModifyStyle(0, WS_TABSTOP) != FALSE;
}

LRESULT PictureStaticCL::dialogCodeM(const MSG* message) const
{
    LRESULT code = DLGC_BUTTON;
    code |= (keysM() & TurnKeys) != 0 ? DLGC_WANTARROWS : 0;
    // Else Enter is the dialog's.
    if ((keysM() & EnterKey) != 0 && message != nullptr && message->message == WM_KEYDOWN
        && message->wParam == VK_RETURN) {
        code |= DLGC_WANTMESSAGE;
    }
    return code;
}

bool PictureStaticCL::handleKeyM(UINT message, WPARAM wParam, LPARAM lParam)
{
    const unsigned keys = keysM();
    if (message == WM_KILLFOCUS) {
        cancelKeyM();
        return false;
    }
    if (message == WM_KEYUP && wParam == VK_SPACE && isKeyDown_) {
        isKeyDown_ = false;
        keyReleaseM();
        return true;
    }
    if (message != WM_KEYDOWN) {
        return false;
    }
    const bool isFirst = (lParam & IsRepeated) == 0;
    if (wParam == VK_SPACE && (keys & PressKey) != 0) {
        if (isFirst && !isKeyDown_ && !holdsMouseM()) {
            isKeyDown_ = true;
            keyPressM();
        }
        return true;
    }
    if (wParam == VK_RETURN && (keys & EnterKey) != 0) {
        if (isFirst && !isKeyDown_ && !holdsMouseM()) {
            clickByKeyM();
        }
        return true;
    }
    const bool isForward = wParam == VK_RIGHT || wParam == VK_UP;
    if ((keys & TurnKeys) != 0 && (isForward || wParam == VK_LEFT || wParam == VK_DOWN)) {
        if (!isKeyDown_ && !holdsMouseM()) {
            keyTurnM(isForward);
        }
        return true;
    }
    return false;
}

void PictureStaticCL::clickByKeyM()
{
    const HWND window = m_hWnd;
    keyPressM();
    if (CWnd::FromHandlePermanent(window) == this) { // The application may have been asked.
        keyReleaseM();
    }
}

void PictureStaticCL::cancelKeyM()
{
    if (isKeyDown_) {
        isKeyDown_ = false;
        const HWND window = m_hWnd;
        if (holdsMouseM()) {
            SendMessage(WM_CANCELMODE);
        }
        if (::GetCapture() == window) {
            ::ReleaseCapture();
        }
    }
}

// Wine 8 doesn't keep the state.
void PictureStaticCL::keepFocusStateM(WPARAM change)
{
    if ((HIWORD(change) & UISF_HIDEFOCUS) != 0) {
        hidesFocus_ = LOWORD(change) == UIS_SET;
    }
}

void PictureStaticCL::showFocusM()
{
    invalidateM(true);
    if (pictureSizeM() == CSize()) { // Nothing will be painted over the frame.
        invalidateInParentM();
    }
}

// Dots of both colours are seen on every picture, and can be drawn again over themselves.
void PictureStaticCL::drawFocusM()
{
    if (::GetFocus() != m_hWnd || hidesFocus_ || (SendMessage(WM_QUERYUISTATE) & UISF_HIDEFOCUS) != 0) {
        return;
    }
    CRect frame;
    GetClientRect(&frame);
    const CSize size = pictureSizeM();
    if (size != CSize()) { // Beside the picture nothing would be painted over it.
        frame.IntersectRect(frame, CRect(CPoint(), size));
    }
    if (std::min(frame.Width(), frame.Height()) > 4 * FrameInset) {
        frame.DeflateRect(FrameInset, FrameInset);
    }
    CBitmap pattern;
    CBrush brush;
    if (pattern.CreateBitmap(8, 8, 1, 1, Chequer) && brush.CreatePatternBrush(&pattern)) {
        CClientDC dc(this);
        dc.SetTextColor(RGB(0, 0, 0));
        dc.SetBkColor(RGB(255, 255, 255));
        dc.FrameRect(&frame, &brush);
    }
}
