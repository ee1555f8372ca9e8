#include "popup.h"

PopupCL::~PopupCL()
{
    if (window_ != nullptr) {
        ::DestroyWindow(window_);
    }
}

bool PopupCL::createM(HWND dialog, DWORD style)
{
    if (window_ != nullptr) {
        return true;
    }
    WNDCLASSW type {};
    type.lpfnWndProc = &PopupCL::procedure;
    type.hInstance = ::GetModuleHandleW(nullptr);
    type.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    type.lpszClassName = L"PanelkitViewPopup";
    ::RegisterClassW(&type); // Fails from the second time on, as it is there.
    window_ = ::CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, type.lpszClassName, L"",
        style | WS_POPUP, 0, 0, 1, 1, dialog, nullptr, type.hInstance, nullptr);
    if (window_ != nullptr) {
        ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    return window_ != nullptr;
}

void PopupCL::HideM()
{
    if (window_ != nullptr) {
        ::ShowWindow(window_, SW_HIDE);
    }
}

void PopupCL::RaiseM()
{
    if (window_ != nullptr && ::IsWindowVisible(window_)) {
        for (const HWND place : { HWND_TOPMOST, HWND_NOTOPMOST }) { // A place that it has is no move.
            ::SetWindowPos(window_, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        }
        ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
}

LRESULT CALLBACK PopupCL::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const popup = reinterpret_cast<PopupCL*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (popup == nullptr) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    switch (message) {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_NCHITTEST:
        return popup->isHit() ? ::DefWindowProcW(window, message, wParam, lParam) : HTTRANSPARENT;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        RECT client {};
        ::GetClientRect(window, &client);
        popup->paintM(::BeginPaint(window, &paint), client);
        ::EndPaint(window, &paint);
        return 0;
    }
    case WM_NCDESTROY:
        popup->window_ = nullptr; // With the dialog.
        break;
    default:
        break;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}
