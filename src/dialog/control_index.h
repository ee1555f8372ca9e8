#pragma once
#include <unordered_map>
#include <vector>

// Where the controls with each function id stand: in which row of the kind table, in which slot of the row's
// array. It is filled when first asked after a change. Its controls tell it when their ids change; slots of
// deleted controls stay in it, and who looks one up passes over them.
class ControlIndexCL
{
public:
    // Where one control stands.
    struct PlaceCL
    {
        int row;  // Of the kind table, from 0.
        int slot; // Of that kind's array, from 0.
    };
    using PlacesTP = std::vector<PlaceCL>; // All with one id, in the order of search.

    // Whether it holds all controls: nothing has changed since it was filled.
    bool IsFilledM() const { return isFilled_ && changes_ == 0; }
    // Empties it; it is not filled then.
    void ForgetM()
    {
        places_.clear();
        isFilled_ = false;
    }
    // Empties it for what AddM then tells; it counts as filled.
    void BeginM()
    {
        ForgetM();
        isFilled_ = true;
        changes_ = 0;
    }
    void AddM(int id, PlaceCL place) { places_[id].push_back(place); } // In the order of search.
    // Those with an id, none for an unknown one. Valid until the index changes.
    const PlacesTP& PlacesM(int id) const
    {
        static const PlacesTP none;
        const auto found = places_.find(id);
        return found != places_.end() ? found->second : none;
    }
    unsigned* ChangesM() { return &changes_; } // For the controls to count their changes in.

private:
    std::unordered_map<int, PlacesTP> places_;
    unsigned changes_ { 0 };
    bool isFilled_ { false };
};
