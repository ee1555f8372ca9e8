#pragma once
#include "dialog/binding.h"
#include "toolkit/platform.h"
#include <vector>

// Where a child window stands in its parent, in client coordinates.
EdgesCL slEdgesInParent(HWND child);

// Moves and sizes many children of one window in one pass.
class DeferredPlacesCL
{
public:
    // parent: of all children. most: how many there may be.
    DeferredPlacesCL(HWND parent, std::size_t most);

    // The child is to stand there, in the parent's client coordinates. isOpaque: it paints every pixel; else
    // the parent is painted beneath it, where it is and where it was. What is no child is passed over.
    void AddM(HWND child, const EdgesCL& edges, bool isOpaque);
    // Places all of them. What they tell the application may have destroyed any window.
    void EndM();

private:
    struct PlaceCL
    {
        HWND child;
        RECT rect;
        bool isOpaque;
    };
    void placeM(const PlaceCL& place) const;

    HWND parent_;
    std::vector<PlaceCL> places_;
};
