#include "kept_values.h"
#include "toolkit/toolkit.h"

std::map<KeptValuesCL::KeyTP, HWND> KeptValuesCL::controlsOf(HWND dialog)
{
    std::map<KeyTP, HWND> controls;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const CWnd* const object = CWnd::FromHandlePermanent(child);
        if (object != nullptr) {
            KeyTP key { ::GetDlgCtrlID(child), typeid(*object), 0 };
            while (controls.count(key) > 0) {
                ++std::get<2>(key);
            }
            controls.emplace(key, child);
        }
    }
    return controls;
}

void KeptValuesCL::NoteBuiltM(HWND dialog)
{
    built_.clear();
    for (const auto& [key, control] : controlsOf(dialog)) {
        built_.emplace(key, stateOf(control));
    }
}

void KeptValuesCL::TakeM(HWND dialog, HWND focus)
{
    changed_.clear();
    places_.clear();
    focus_ = { 0, typeid(void), 0 };
    for (const auto& [key, control] : controlsOf(dialog)) {
        const ControlStateCL& now = places_.emplace(key, stateOf(control)).first->second;
        const auto built = built_.find(key);
        if (built != built_.end() && !now.IsSameValueM(built->second)) {
            changed_.emplace(key, now);
        }
        // A combo box has the focus in its edit field.
        if (focus != nullptr && (control == focus || ::IsChild(control, focus))) {
            focus_ = key;
        }
    }
}

HWND KeptValuesCL::GiveBackM(HWND dialog) const
{
    const std::map<KeyTP, HWND> controls = controlsOf(dialog);
    for (const auto& [key, state] : changed_) {
        const auto successor = controls.find(key);
        if (successor != controls.end()) {
            giveValue(successor->second, state);
        }
    }
    for (const auto& [key, state] : places_) {
        const auto successor = controls.find(key);
        if (successor != controls.end()) {
            givePlace(successor->second, state);
        }
    }
    const auto focus = controls.find(focus_);
    return focus != controls.end() ? focus->second : nullptr;
}
