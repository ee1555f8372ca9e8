// The frame of a dialog that can be made larger, and what it is told by it.
#include "dialog/basic_dialog.h"
#include "dialog/deferred_places.h"
#include <algorithm>

namespace {

void setWindowSize(HWND window, const int (&size)[2])
{
    ::SetWindowPos(window, nullptr, 0, 0, size[0], size[1],
        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

// Gives the dialog the frame to be resized by, around the client area that it has.
void DuBasicDialogCL::makeSizableM(const TurnCL& turn)
{
    const LONG style = ::GetWindowLongW(m_hWnd, GWL_STYLE);
    if ((style & WS_CHILD) != 0 || header_.borderKind == 1 || ::IsIconic(m_hWnd)) {
        return;
    }
    const LONG box = (style & WS_CAPTION) == WS_CAPTION ? WS_MAXIMIZEBOX : 0;
    const LONG sizable = style | WS_THICKFRAME | box;
    ::SetWindowLongW(m_hWnd, GWL_STYLE, sizable);
    if (turn.IsOverM()) {
        return;
    }
    RECT rect { 0, 0, bound_.fileSize[0], bound_.fileSize[1] };
    ::AdjustWindowRectEx(&rect, static_cast<DWORD>(sizable), ::GetMenu(m_hWnd) != nullptr,
        static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)));
    bound_.least[0] = rect.right - rect.left;
    bound_.least[1] = rect.bottom - rect.top;
    setWindowSize(m_hWnd, bound_.least);
    if (turn.IsOverM()) {
        return;
    }
    RECT client {}; // The frame may be that of another screen than the system's first.
    ::GetClientRect(m_hWnd, &client);
    if (client.right != bound_.fileSize[0] || client.bottom != bound_.fileSize[1]) {
        bound_.least[0] += bound_.fileSize[0] - client.right;
        bound_.least[1] += bound_.fileSize[1] - client.bottom;
        setWindowSize(m_hWnd, bound_.least);
    }
}

// The size that the user gave the dialog outlives another build of it.
void DuBasicDialogCL::stretchAgainM(const DialogStretchCL& before)
{
    if (!before.IsLargerM()) {
        return;
    }
    if (before.isZoomed) {
        const HWND window = m_hWnd;
        ::SetWindowLongW(window, GWL_STYLE, ::GetWindowLongW(window, GWL_STYLE) | WS_MAXIMIZE);
        ::SetWindowPos(window, nullptr, before.zoomed.left, before.zoomed.top,
            before.zoomed.right - before.zoomed.left, before.zoomed.bottom - before.zoomed.top,
            SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        return;
    }
    RECT window {};
    RECT client {};
    ::GetWindowRect(m_hWnd, &window);
    ::GetClientRect(m_hWnd, &client);
    const int size[2] = { static_cast<int>(window.right - window.left - client.right)
            + before.OfM(0, bound_.fileSize[0]),
        static_cast<int>(window.bottom - window.top - client.bottom) + before.OfM(1, bound_.fileSize[1]) };
    setWindowSize(m_hWnd, size);
}

// What an opaque control covers is not painted beneath it: it would flicker while the dialog is resized.
void DuBasicDialogCL::leaveOutOpaqueM(HDC dc)
{
    RECT painted {};
    if (!bound_.isOwn || ::GetClipBox(dc, &painted) <= NULLREGION) {
        return;
    }
    eachControlsM([&painted, dc](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(Opaque)) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                const auto& control = controls.ControlAtM(i);
                const HWND window = control.m_hWnd;
                if (window == nullptr || !slIsJust(control) || !::IsWindowVisible(window)) {
                    continue;
                }
                const EdgesCL edges = slEdgesInParent(window);
                if (edges.left < painted.right && edges.right > painted.left && edges.top < painted.bottom
                    && edges.bottom > painted.top) {
                    ::ExcludeClipRect(dc, edges.left, edges.top, edges.right, edges.bottom);
                }
            }
        }
    });
}

LRESULT DuBasicDialogCL::whileBoundM(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SIZE && wParam != SIZE_MINIMIZED) {
        const LifeCL life(this);
        ResizeM(LOWORD(lParam), HIWORD(lParam)); // Before the application places what it has itself.
        if (!life.IsAliveM()) {
            return 0;
        }
    } else if (message == WM_ERASEBKGND && ::WindowFromDC(reinterpret_cast<HDC>(wParam)) == m_hWnd) {
        const auto dc = reinterpret_cast<HDC>(wParam);
        const int saved = ::SaveDC(dc);
        leaveOutOpaqueM(dc);
        const LRESULT result = CDialog::WindowProc(message, wParam, lParam);
        ::RestoreDC(dc, saved);
        return result;
    }
    const int least[2] = { bound_.least[0], bound_.least[1] };
    const LRESULT result = CDialog::WindowProc(message, wParam, lParam);
    if (message == WM_GETMINMAXINFO) {
        auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
        limits.ptMinTrackSize.x = std::max<LONG>(limits.ptMinTrackSize.x, least[0]);
        limits.ptMinTrackSize.y = std::max<LONG>(limits.ptMinTrackSize.y, least[1]);
        limits.ptMaxTrackSize.x = std::max(limits.ptMaxTrackSize.x, limits.ptMinTrackSize.x);
        limits.ptMaxTrackSize.y = std::max(limits.ptMaxTrackSize.y, limits.ptMinTrackSize.y);
    }
    return result;
}
