#pragma once
#include "toolkit/platform.h"
#include <cstddef>
#include <vector>

class CWnd;

// Which object has a window. Each message asks for it once or more: the windows of a dialog, whose handles
// follow one another, lie together.
class WndMapCL
{
public:
    CWnd* FindM(HWND window) const;       // The object, owned by whoever put it in; null: none, as for null.
    void PutM(HWND window, CWnd* object); // Neither is null; in place of another object of that window.
    void RemoveM(HWND window, const CWnd* object); // Nothing where that object doesn't have it.

private:
    struct PlaceCL
    {
        HWND window;
        CWnd* object;
    };
    std::size_t wantedM(HWND window) const;
    std::size_t placeM(HWND window) const; // Of the window, or the empty one where it would go.
    void growM();

    std::vector<PlaceCL> places_; // Empty, or a power of two of them, a quarter of them empty.
    std::size_t count_ = 0;
};
