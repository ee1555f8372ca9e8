// A dialog that can be made larger: which windows follow it, and where to.
#include "dialog/basic_dialog.h"
#include "dialog/deferred_places.h"
#include "dialog/monitor_scale.h"
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

} // namespace

// Whether the file has the section.
bool DuBasicDialogCL::readBindingsM(VrIOCL& io)
{
    const SectionStatus status = slReadBindings(io, [this](const BindingCL& binding) {
        bound_.bindings.push_back(binding);
        return withControlM(binding.control, [](auto, auto&) {}) ? 1 : 0;
    });
    return status == SectionStatus::Read || status == SectionStatus::Empty;
}

void DuBasicDialogCL::bindM(const DialogStretchCL& before, const TurnCL& turn)
{
    const HWND window = parentM();
    const bool isInItsSize = mode_ == 1 && !::IsIconic(window);
    CSize frame;
    if (isInItsSize) {
        frame = slFrameOf(window, PlainDpi);
    } else { // The file's size is that of its own window, which this one need not be.
        RECT rect {};
        ::AdjustWindowRectEx(&rect, header_.StyleM(), FALSE, 0);
        frame = CSize(rect.right - rect.left, rect.bottom - rect.top);
    }
    RECT client {};
    ::GetClientRect(window, &client);
    bound_.plainSize[0] = slWindowLength(header_.size[0]) - frame.cx;
    bound_.plainSize[1] = slWindowLength(header_.size[1]) - frame.cy;
    bound_.fileSize[0] = isInItsSize ? client.right : scale_.PlaceM(bound_.plainSize[0]);
    bound_.fileSize[1] = isInItsSize ? client.bottom : scale_.PlaceM(bound_.plainSize[1]);
    if (bound_.fileSize[0] <= 0 || bound_.fileSize[1] <= 0) {
        return;
    }
    bound_.isBound = true;
    findBoundM();
    if (mode_ == 1 && window == m_hWnd) {
        bound_.isOwn = true;
        makeSizableM(turn);
        if (!turn.IsOverM()) {
            stretchAgainM(before);
        }
    }
}

// All controls go back to where the file has them, and stay there. Whether some could follow.
bool DuBasicDialogCL::unbindM(const TurnCL& turn)
{
    const bool wasBound = ResizeM(0, 0) == 1;
    if (turn.IsOverM()) {
        return false;
    }
    bound_.isBound = false;
    bound_.least[0] = bound_.least[1] = 0;
    return wasBound;
}

// The same controls in a dialog of another scale.
void DuBasicDialogCL::bindAgainM(const DialogStretchCL& before)
{
    const HWND window = parentM();
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    const CSize frame = slFrameOf(window, slDpiOf(window));
    for (int i = 0; i < 2; ++i) {
        bound_.fileSize[i] = scale_.PlaceM(bound_.plainSize[i]);
        if (bound_.isOwn && (style & WS_THICKFRAME) != 0) {
            bound_.least[i] = bound_.fileSize[i] + static_cast<int>(i == 0 ? frame.cx : frame.cy);
        }
    }
    bound_.isBound = true;
    bound_.windows.clear();
    findBoundM();
    RECT client { 0, 0, before.size[0], before.size[1] }; // As the application last said.
    if (bound_.isOwn) {
        ::GetClientRect(window, &client);
    }
    ResizeM(client.right, client.bottom);
}

void DuBasicDialogCL::findBoundM()
{
    std::unordered_map<int, const BindingCL*> byId; // The first of each id.
    for (const BindingCL& binding : bound_.bindings) {
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
                bound.control.bottom = slEdgesInParent(control.m_hWnd).bottom;
                bound.window = bound.now = bound.control;
            }
            if constexpr (RowTP::CanM(HasArrows)) {
                bound.window = bound.now
                    = slEdgesInParent(control.m_hWnd); // The arrows have taken some of it.
            }
            bound_.windows.push_back(bound);
            if constexpr (RowTP::CanM(HasArrows)) {
                const HWND arrows = controls.ControlAtM(i).SpinButtonM().m_hWnd;
                if (arrows != nullptr) {
                    bound.isArrows = true;
                    bound.window = bound.now = slEdgesInParent(arrows);
                    bound_.windows.push_back(bound);
                }
            }
            byId.erase(found); // Of equal ids the first control is meant.
        }
        ++number;
    });
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
            EdgesCL place = placeOfM(*at, slBoundEdges(at->control, at->binding, growth, at->kept));
            if constexpr (decltype(row)::CanM(KeepsHeight)) {
                const EdgesCL shown = slEdgesInParent(window); // Its font says how high.
                place.bottom = place.top + shown.bottom - shown.top;
            }
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
