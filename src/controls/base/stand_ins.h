#pragma once
#include "toolkit/toolkit.h"
#include <memory>
#include <vector>

// The objects that stand in place of elements of an array of controls, as windows: by slot, null where the
// element itself does. Slots below 0 have none.
class PANELKIT_API StandInListCL
{
public:
    StandInListCL();
    StandInListCL(const StandInListCL&) = delete;
    StandInListCL& operator=(const StandInListCL&) = delete;
    ~StandInListCL();

    int CountM() const { return static_cast<int>(windows_.size()); } // One past the highest slot with one.
    // That of slot i, which stays here; null: none.
    CWnd* AtM(int i) const { return i >= 0 && i < CountM() ? windows_[static_cast<size_t>(i)] : nullptr; }
    void PutM(int i, CWnd* window); // Owns it; what stood there goes.
    void DropM(int i);              // Destroys it.

private:
    std::vector<CWnd*> windows_;
};

// The same as controls of a kind. They are of classes that the array knows nothing of, and would not fit into
// it. They go with their windows: a copy starts without.
template <class ControlTP> class StandInsCL
{
public:
    StandInsCL() = default;
    StandInsCL(const StandInsCL&)
        : StandInsCL()
    {
    }
    StandInsCL& operator=(const StandInsCL& other)
    {
        if (this != &other) {
            ClearM();
        }
        return *this;
    }
    ~StandInsCL() = default;

    // Takes over the one for slot i, in place of the one before.
    void PutM(int i, std::unique_ptr<ControlTP> control) { list_.PutM(i, control.release()); }
    // That of slot i, which stays here; null: none.
    ControlTP* AtM(int i) const { return static_cast<ControlTP*>(list_.AtM(i)); }
    // Deletes that of slot i with its window; nothing where there is none.
    void DelM(int i)
    {
        if (ControlTP* const control = AtM(i)) {
            control->DelItemM(); // Also what the kind has beside its window.
            list_.DropM(i);
        }
    }
    void EndAllM() // Takes the windows of all; they stay.
    {
        for (int i = 0; i < list_.CountM(); ++i) {
            if (ControlTP* const control = AtM(i)) {
                control->DelItemM();
            }
        }
    }
    void ClearM() // Deletes all with their windows.
    {
        for (int i = 0; i < list_.CountM(); ++i) {
            DelM(i);
        }
    }

private:
    StandInListCL list_;
};
