#pragma once
#include <unordered_map>
#include <vector>

// Where the controls with each function id stand: in which row of the kind table, in which slot of the row's
// array. It is filled when first asked after a change. Its controls tell it when their ids change; slots of
// deleted controls stay in it, and who looks one up passes over them.
class ControlIndexCL
{
public:
    struct PlaceCL
    {
        int row;
        int slot;
    };
    using PlacesTP = std::vector<PlaceCL>;

    bool IsFilledM() const { return isFilled_ && changes_ == 0; }
    void ForgetM()
    {
        places_.clear();
        isFilled_ = false;
    }
    void BeginM()
    {
        ForgetM();
        isFilled_ = true;
        changes_ = 0;
    }
    void AddM(int id, PlaceCL place) { places_[id].push_back(place); } // In the order of search.
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
