#include "toolkit/wnd_map.h"
#include <cstdint>
#include <utility>

// The lower 16 bits of a handle are those that differ; the lowest is always the same.
std::size_t WndMapCL::wantedM(HWND window) const
{
    return (reinterpret_cast<std::uintptr_t>(window) >> 1) & (places_.size() - 1);
}

std::size_t WndMapCL::placeM(HWND window) const
{
    std::size_t at = wantedM(window);
    while (places_[at].window != nullptr && places_[at].window != window) {
        at = (at + 1) & (places_.size() - 1);
    }
    return at;
}

CWnd* WndMapCL::FindM(HWND window) const
{
    return places_.empty() || window == nullptr ? nullptr : places_[placeM(window)].object;
}

void WndMapCL::growM()
{
    std::vector<PlaceCL> larger(places_.empty() ? 16 : places_.size() * 2);
    const std::vector<PlaceCL> before = std::exchange(places_, std::move(larger));
    for (const PlaceCL& place : before) {
        if (place.window != nullptr) {
            places_[placeM(place.window)] = place;
        }
    }
}

void WndMapCL::PutM(HWND window, CWnd* object)
{
    if ((count_ + 1) * 4 > places_.size() * 3) {
        growM();
    }
    PlaceCL& place = places_[placeM(window)];
    count_ += place.window == nullptr ? 1 : 0;
    place = { window, object };
}

void WndMapCL::RemoveM(HWND window, const CWnd* object)
{
    if (object == nullptr || FindM(window) != object) {
        return;
    }
    std::size_t gap = placeM(window);
    places_[gap] = {};
    --count_;
    // Those behind that would have gone here move up, so that each is found without passing an empty place.
    const std::size_t mask = places_.size() - 1;
    for (std::size_t at = (gap + 1) & mask; places_[at].window != nullptr; at = (at + 1) & mask) {
        if (((at - wantedM(places_[at].window)) & mask) >= ((at - gap) & mask)) {
            places_[gap] = std::exchange(places_[at], {});
            gap = at;
        }
    }
}
