#pragma once
#include "baselib/api.h"
#include <algorithm>
#include <utility>
#include <vector>

// How often a control of this process has got another id: who keeps controls by id begins anew when it has
// changed.
class PANELKIT_API IdChangesCL
{
public:
    static void AddM();       // One has.
    static unsigned CountM(); // So often until now; any thread may ask.
};

// Where the controls with each function id stand, for a look-up that is not a walk. It is filled with all
// places of a number of controls, alive or not, and holds as long as that number and no id changes; who looks
// one up passes over places whose controls are not alive.
template <class PlaceTP> class IdIndexCL
{
public:
    using EntryTP = std::pair<int, PlaceTP>; // An id and a place.
    // The entries of one id, to be walked over.
    struct PlacesCL
    {
        const EntryTP* first; // The first one.
        const EntryTP* last;  // Behind the last one.
        // For loops over them.
        const EntryTP* begin() const { return first; }
        const EntryTP* end() const { return last; }
    };

    // Whether it holds the places of so many controls as they are now.
    bool IsFilledM(int size) const { return isFilled_ && IsKnownM(size); }
    // Whether it was asked the same before and nothing has changed since: then filling it is worth while.
    bool IsKnownM(int size) const { return size_ == size && changes_ == IdChangesCL::CountM(); }
    // Empties it.
    void ForgetM() { *this = IdIndexCL(); }
    // Empties it for the places of so many controls as they are now.
    void RememberM(int size)
    {
        ForgetM();
        size_ = size;
        changes_ = IdChangesCL::CountM();
    }

    // Filling: RememberM, then the places in the order of search, then EndM.
    void AddM(int id, PlaceTP place) { entries_.emplace_back(id, place); }
    // It is filled.
    void EndM()
    {
        std::stable_sort(entries_.begin(), entries_.end(), isBefore);
        isFilled_ = true;
    }

    // Those of an id, in the order of search; none for an unknown one. Valid until it changes.
    PlacesCL PlacesM(int id) const
    {
        const auto found
            = std::equal_range(entries_.begin(), entries_.end(), EntryTP(id, PlaceTP()), isBefore);
        const EntryTP* const entries = entries_.data();
        return { entries + (found.first - entries_.begin()), entries + (found.second - entries_.begin()) };
    }

private:
    static bool isBefore(const EntryTP& a, const EntryTP& b) { return a.first < b.first; }

    std::vector<EntryTP> entries_;
    int size_ { -1 };
    unsigned changes_ { 0 };
    bool isFilled_ { false };
};
