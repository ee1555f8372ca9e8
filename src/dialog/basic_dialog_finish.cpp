// The passes over all controls once they exist: stacking order and font.
#include "containers/int2d_arr.h"
#include "dialog/basic_dialog.h"
#include "dialog/dialog_font.h"
#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

// For each control id the topmost child with it: what a look-up by id finds. One pass over the children,
// where a look-up for each would be a pass each.
std::unordered_map<int, HWND> topmostById(const CWnd* parent)
{
    std::unordered_map<int, HWND> found;
    for (HWND child = ::GetWindow(parent->m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        found.emplace(::GetDlgCtrlID(child), child);
    }
    return found;
}

} // namespace

// (window index, function id) of the controls that the passes take, in order of collection.
Int2DArr DuBasicDialogCL::stackedM()
{
    Int2DArr pairs;
    slEachKind([this, &pairs](auto row) {
        using RowTP = decltype(row);
        if constexpr (RowTP::CanM(Stacked)) {
            auto& controls = std::get<KindMembersCL<RowTP>>(kinds_).controls;
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                const int pair[2]
                    = { controls.ControlAtM(i).GetWinIdxM(), controls.ControlAtM(i).GetFunctionIDM() };
                pairs.AddItemM(pair);
            }
        }
    });
    return pairs;
}

// Stacks the controls by ascending window index, equal ones as collected. Each step looks up its id and moves
// what it finds just behind the step before; as moved windows are above all others, an id always finds the
// window that was topmost at first, and the last step with that id decides where it stays.
void DuBasicDialogCL::initCtrlZOrderM(CWnd* parent)
{
    struct StepCL
    {
        int windowIndex;
        HWND window;
    };
    const auto windows = topmostById(parent);
    const Int2DArr pairs = stackedM();
    std::vector<StepCL> steps;
    for (int i = 0; i < pairs.GetBoundM(); ++i) {
        const int* pair = pairs.GetItemPM(i);
        const auto found = windows.find(pair[1]);
        if (found != windows.end()) {
            steps.push_back({ pair[0], found->second });
        }
    }
    std::stable_sort(steps.begin(), steps.end(),
        [](const StepCL& a, const StepCL& b) { return a.windowIndex < b.windowIndex; });
    // Windows of the steps in final order, from the last to the first.
    std::unordered_map<HWND, bool> placed;
    std::vector<HWND> order;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        if (placed.emplace(step->window, true).second) {
            order.push_back(step->window);
        }
    }
    HWND anchor = HWND_TOP;
    for (auto window = order.rbegin(); window != order.rend(); ++window) {
        ::SetWindowPos(*window, anchor, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
        anchor = *window;
    }
}

void DuBasicDialogCL::setItemFontM(CWnd* parent, int fontOption)
{
    const LOGFONTA font = slDialogFont(fontOption);
    font_.DeleteObject();
    font_.CreateFontIndirect(&font);
    const auto windows = topmostById(parent);
    const Int2DArr pairs = stackedM();
    for (int i = 0; i < pairs.GetBoundM(); ++i) {
        const auto found = windows.find(pairs.GetItemPM(i)[1]);
        if (found != windows.end()) {
            ::SendMessageW(found->second, WM_SETFONT, reinterpret_cast<WPARAM>(font_.GetSafeHandle()), TRUE);
        }
    }
}

void DuBasicDialogCL::setTxtLstBoxItemHeightM()
{
    eachControlsM([](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(HasLineHeight)) {
            controls.SetItemHeightM();
        }
    });
}
