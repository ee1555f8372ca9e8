// The passes over all controls once they exist: stacking order and font.
#include "dialog/basic_dialog.h"
#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

struct ChildCL
{
    HWND window;
    int place;
    bool isOfKind; // It belongs to a control of the library's own class.
};

// For each control id the topmost child with it: what a look-up by id finds. One pass over the children, from
// the top down, where a look-up for each would be a pass each.
std::unordered_map<int, ChildCL> topmostById(const CWnd* parent, std::vector<HWND>* children)
{
    std::unordered_map<int, ChildCL> found;
    for (HWND child = ::GetWindow(parent->m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        found.emplace(::GetDlgCtrlID(child), ChildCL { child, static_cast<int>(children->size()), false });
        children->push_back(child);
    }
    return found;
}

// The most of these windows, in this order from the top down, that may stay where they are while the others
// are moved: their places rise, and lie above the limit.
std::vector<bool> stayingM(const std::vector<ChildCL>& order, int limit)
{
    // The longest rising row of places: ends[k] is the lowest last one of those with k + 1 windows.
    std::vector<int> ends;
    std::vector<int> lengths(order.size(), 0);
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (order[i].place < limit) {
            const auto at = std::lower_bound(ends.begin(), ends.end(), order[i].place);
            lengths[i] = static_cast<int>(at - ends.begin()) + 1;
            at == ends.end() ? ends.push_back(order[i].place) : static_cast<void>(*at = order[i].place);
        }
    }
    std::vector<bool> staying(order.size(), false);
    int wanted = static_cast<int>(ends.size());
    int below = limit;
    for (std::size_t i = order.size(); i-- > 0 && wanted > 0;) {
        if (lengths[i] == wanted && order[i].place < below) {
            staying[i] = true;
            below = order[i].place;
            --wanted;
        }
    }
    return staying;
}

// The children that are not in this order, from the top down.
std::vector<ChildCL> othersM(const std::vector<ChildCL>& order, const std::vector<HWND>& children)
{
    std::vector<bool> isListed(children.size(), false);
    for (const ChildCL& child : order) {
        isListed[static_cast<std::size_t>(child.place)] = true;
    }
    std::vector<ChildCL> others;
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (!isListed[i]) {
            others.push_back({ children[i], static_cast<int>(i), false });
        }
    }
    return others;
}

bool isArrows(const ChildCL& child)
{
    return dynamic_cast<DuSpinButtonCL*>(CWnd::FromHandlePermanent(child.window)) != nullptr;
}

// Stacks windows above all their siblings, in this order from the top down. What isn't in it stays where it
// is, but for the arrows of spin edits: a few of them go down where many controls would have to go up.
void stackM(const std::vector<ChildCL>& order, const std::vector<HWND>& children, UINT flags)
{
    flags |= SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;
    const std::vector<ChildCL> others = othersM(order, children);
    std::vector<bool> staying
        = stayingM(order, others.empty() ? static_cast<int>(children.size()) : others[0].place);
    if (!others.empty() && std::all_of(others.begin(), others.end(), isArrows)) {
        std::vector<bool> stayingBeside = stayingM(order, static_cast<int>(children.size()));
        const auto count
            = [](const std::vector<bool>& list) { return std::count(list.begin(), list.end(), true); };
        if (count(stayingBeside) - count(staying) > static_cast<std::ptrdiff_t>(others.size())) {
            staying.swap(stayingBeside);
            for (const ChildCL& arrows : others) {
                ::SetWindowPos(arrows.window, HWND_BOTTOM, 0, 0, 0, 0, flags | SWP_NOSENDCHANGING);
            }
        }
    }
    HWND above = HWND_TOP;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (!staying[i]) {
            // The library's own classes don't change what is asked for.
            ::SetWindowPos(
                order[i].window, above, 0, 0, 0, 0, flags | (order[i].isOfKind ? SWP_NOSENDCHANGING : 0));
        }
        above = order[i].window;
    }
}

} // namespace

// In order of collection.
std::vector<DuBasicDialogCL::StepCL> DuBasicDialogCL::stepsM(CWnd* parent, std::vector<HWND>* siblings)
{
    std::vector<StepCL> steps;
    const auto windows = topmostById(parent, siblings);
    eachControlsM([&steps, &windows](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(Stacked)) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                const auto& control = controls.ControlAtM(i);
                const auto found = windows.find(control.GetFunctionIDM());
                if (found != windows.end()) {
                    const ChildCL& child = found->second;
                    steps.push_back({ control.GetWinIdxM(), child.window, child.place,
                        child.window == control.m_hWnd && slIsJust(control) });
                }
            }
        }
    });
    return steps;
}

// Mode 1 stacks the controls by ascending window index, equal ones as collected. Each step looks up its id
// and would move what it finds just behind the step before; as moved windows are above all others, an id
// always finds the window that was topmost at first, and the last step with that id decides where it stays.
void DuBasicDialogCL::finishM(CWnd* parent, const TurnCL& turn)
{
    std::vector<HWND> siblings;
    const std::vector<StepCL> steps = stepsM(parent, &siblings);
    const bool isShown = ::IsWindowVisible(parent->m_hWnd) != FALSE;
    if (mode_ == 1) {
        std::vector<StepCL> sorted = steps;
        std::stable_sort(sorted.begin(), sorted.end(),
            [](const StepCL& a, const StepCL& b) { return a.windowIndex < b.windowIndex; });
        std::vector<bool> isPlaced(siblings.size(), false);
        std::vector<ChildCL> order; // From the last to the first.
        for (auto step = sorted.rbegin(); step != sorted.rend(); ++step) {
            if (!isPlaced[static_cast<std::size_t>(step->place)]) {
                isPlaced[static_cast<std::size_t>(step->place)] = true;
                order.push_back({ step->window, step->place, step->isOfKind });
            }
        }
        std::reverse(order.begin(), order.end());
        // Of a hidden dialog nothing is to be drawn.
        stackM(order, siblings, isShown ? 0 : SWP_NOREDRAW | SWP_DEFERERASE);
    }
    if (!turn.IsOverM()) {
        setItemFontM(steps, isShown, turn);
    }
}

void DuBasicDialogCL::setItemFontM(const std::vector<StepCL>& steps, bool isShown, const TurnCL& turn)
{
    makeFontM();
    giveTreeFontsM(turn);
    for (const StepCL& step : steps) {
        if (turn.IsOverM()) {
            return;
        }
        ::SendMessageW(step.window, WM_SETFONT, reinterpret_cast<WPARAM>(font_.GetSafeHandle()),
            isShown || !step.isOfKind ? TRUE : FALSE);
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

void DuBasicDialogCL::setItemFontM(CWnd* parent, bool isShown, const TurnCL& turn)
{
    std::vector<HWND> siblings;
    setItemFontM(stepsM(parent, &siblings), isShown, turn);
}
