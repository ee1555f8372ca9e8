// A dialog that can be made larger: which windows follow it, and where to.
#include "dialog/basic_dialog.h"
#include "dialog/deferred_places.h"
#include "toolkit/life.h"
#include <algorithm>
#include <unordered_map>

namespace {

EdgesCL describedEdges(const DControlCommonCL& control)
{
    int position[2] {};
    int size[2] {};
    control.GetPosM(position);
    control.GetSizeM(size);
    const int left = slWindowLength(position[0]);
    const int top = slWindowLength(position[1]);
    return { left, top, left + slWindowLength(size[0]), top + slWindowLength(size[1]) };
}

EdgesCL edgesInParent(HWND window)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return { static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
        static_cast<int>(rect.bottom) };
}

// Where the window stands once the edges of its control are there.
EdgesCL placeOfM(const BoundWindowCL& bound, const EdgesCL& control)
{
    const int right = control.right - bound.control.right;
    const int bottom = control.bottom - bound.control.bottom;
    return { bound.window.left + (bound.isArrows ? right : control.left - bound.control.left),
        bound.window.top + control.top - bound.control.top, bound.window.right + right,
        bound.window.bottom + bottom };
}

bool isSame(const EdgesCL& one, const EdgesCL& other)
{
    return one.left == other.left && one.top == other.top && one.right == other.right
        && one.bottom == other.bottom;
}

void setWindowSize(HWND window, const int (&size)[2])
{
    ::SetWindowPos(window, nullptr, 0, 0, size[0], size[1],
        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace

// Whether the file has the section.
bool DuBasicDialogCL::readBindingsM(VrIOCL& io, std::vector<BindingCL>& bindings)
{
    const SectionStatus status = slReadBindings(io, [&](const BindingCL& binding) {
        bindings.push_back(binding);
        return withControlM(binding.control, [](auto, auto&) {}) ? 1 : 0;
    });
    return status == SectionStatus::Read || status == SectionStatus::Empty;
}

void DuBasicDialogCL::bindM(const std::vector<BindingCL>& bindings, const DialogStretchCL& before, int mode)
{
    const HWND window = parentM();
    RECT client {};
    if (mode == 1 && !::IsIconic(window)) {
        ::GetClientRect(window, &client);
    } else { // The file's size is that of its own window, which this one need not be.
        RECT frame {};
        ::AdjustWindowRectEx(&frame, header_.StyleM(), FALSE, 0);
        client = { 0, 0, slWindowLength(header_.size[0]) - (frame.right - frame.left),
            slWindowLength(header_.size[1]) - (frame.bottom - frame.top) };
    }
    if (client.right <= 0 || client.bottom <= 0) {
        return;
    }
    bound_.fileSize[0] = client.right;
    bound_.fileSize[1] = client.bottom;
    bound_.isBound = true;
    findBoundM(bindings);
    if (mode == 1 && window == m_hWnd) {
        bound_.isOwn = true;
        makeSizableM();
        stretchAgainM(before);
    }
}

void DuBasicDialogCL::findBoundM(const std::vector<BindingCL>& bindings)
{
    std::unordered_map<int, const BindingCL*> byId; // The first of each id.
    for (const BindingCL& binding : bindings) {
        byId.emplace(binding.control, &binding);
    }
    int number = 0;
    eachControlsM([&](auto row, auto& controls) {
        using RowTP = decltype(row);
        for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
            const auto& control = controls.ControlAtM(i);
            const auto found = byId.find(control.GetFunctionIDM());
            if (found == byId.end() || control.m_hWnd == nullptr) {
                continue;
            }
            const EdgesCL described = describedEdges(control);
            BoundWindowCL bound { number, i, false, RowTP::CanM(Opaque) && slIsJust(control), *found->second,
                { RowTP::CanM(KeepsSize), RowTP::CanM(KeepsSize) || RowTP::CanM(KeepsHeight) }, described,
                described, described };
            if constexpr (RowTP::CanM(KeepsHeight)) {
                bound.control.bottom = edgesInParent(control.m_hWnd).bottom;
            }
            if constexpr (RowTP::CanM(HasArrows)) {
                bound.window = bound.now = edgesInParent(control.m_hWnd); // The arrows have taken some of it.
            }
            bound_.windows.push_back(bound);
            if constexpr (RowTP::CanM(HasArrows)) {
                const HWND arrows = controls.ControlAtM(i).SpinButtonM().m_hWnd;
                if (arrows != nullptr) {
                    bound.isArrows = true;
                    bound.window = bound.now = edgesInParent(arrows);
                    bound_.windows.push_back(bound);
                }
            }
            byId.erase(found); // Of equal ids the first control is meant.
        }
        ++number;
    });
}

// Gives the dialog the frame to be resized by, around the client area that it has.
void DuBasicDialogCL::makeSizableM()
{
    const LONG style = ::GetWindowLongW(m_hWnd, GWL_STYLE);
    if ((style & WS_CHILD) != 0 || header_.borderKind == 1 || ::IsIconic(m_hWnd)) {
        return;
    }
    const LONG box = (style & WS_CAPTION) == WS_CAPTION ? WS_MAXIMIZEBOX : 0;
    const LONG sizable = style | WS_THICKFRAME | box;
    ::SetWindowLongW(m_hWnd, GWL_STYLE, sizable);
    RECT rect { 0, 0, bound_.fileSize[0], bound_.fileSize[1] };
    ::AdjustWindowRectEx(&rect, static_cast<DWORD>(sizable), ::GetMenu(m_hWnd) != nullptr,
        static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)));
    bound_.least[0] = rect.right - rect.left;
    bound_.least[1] = rect.bottom - rect.top;
    setWindowSize(m_hWnd, bound_.least);
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
        ::SetWindowLongW(m_hWnd, GWL_STYLE, ::GetWindowLongW(m_hWnd, GWL_STYLE) | WS_MAXIMIZE);
        ::SetWindowPos(m_hWnd, nullptr, before.zoomed.left, before.zoomed.top,
            before.zoomed.right - before.zoomed.left, before.zoomed.bottom - before.zoomed.top,
            SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        return;
    }
    RECT window {};
    RECT client {};
    ::GetWindowRect(m_hWnd, &window);
    ::GetClientRect(m_hWnd, &client);
    const int size[2] = { window.right - window.left - client.right
            + ::MulDiv(bound_.fileSize[0], before.size[0], before.fileSize[0]),
        window.bottom - window.top - client.bottom
            + ::MulDiv(bound_.fileSize[1], before.size[1], before.fileSize[1]) };
    setWindowSize(m_hWnd, size);
}

int DuBasicDialogCL::ResizeM(int width, int height)
{
    if (!bound_.isBound) {
        return 0;
    }
    const GrowthCL growth(bound_.fileSize, width, height);
    for (int i = 0; i < 2; ++i) {
        stretch_.fileSize[i] = growth.size[i];
        stretch_.size[i] = growth.size[i] + growth.more[i];
    }
    DeferredPlacesCL places(parentM(), bound_.windows.size());
    int number = 0;
    auto at = bound_.windows.begin();
    eachControlsM([&](auto row, auto& controls) {
        for (; at != bound_.windows.end() && at->row == number; ++at) {
            if (controls.CheckAvailableM(at->slot) != 1) {
                continue;
            }
            auto& control = controls.ControlAtM(at->slot);
            HWND window = control.m_hWnd;
            if constexpr (decltype(row)::CanM(HasArrows)) {
                window = at->isArrows ? control.SpinButtonM().m_hWnd : window;
            }
            const EdgesCL place = placeOfM(*at, slBoundEdges(at->control, at->binding, growth, at->kept));
            if (!isSame(place, at->now)) {
                at->now = place;
                places.AddM(window, place, at->isOpaque);
            }
        }
        ++number;
    });
    places.EndM();
    return 1;
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
                const EdgesCL edges = edgesInParent(window);
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
