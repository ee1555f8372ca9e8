#include "dialog/deferred_places.h"
#include "controls/base/control_common.h"

namespace {

// What a child showed may belong to others, above or beneath it: no bits are worth keeping.
constexpr UINT PlacingFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOCOPYBITS;

// Adds a rectangle to a region.
void addRect(HRGN region, HRGN scratch, const RECT& rect)
{
    ::SetRectRgn(scratch, rect.left, rect.top, rect.right, rect.bottom);
    ::CombineRgn(region, region, scratch, RGN_OR);
}

} // namespace

EdgesCL slEdgesInParent(HWND window)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return { static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
        static_cast<int>(rect.bottom) };
}

DeferredPlacesCL::DeferredPlacesCL(HWND parent, std::size_t most)
    : parent_(parent)
{
    places_.reserve(most);
}

void DeferredPlacesCL::AddM(HWND child, const EdgesCL& edges, bool isOpaque)
{
    if (child != nullptr && ::GetAncestor(child, GA_PARENT) == parent_) {
        const int left = slWindowLength(edges.left);
        const int top = slWindowLength(edges.top);
        places_.push_back({ child,
            { left, top, left + slWindowLength(edges.right - edges.left),
                top + slWindowLength(edges.bottom - edges.top) },
            isOpaque });
    }
}

void DeferredPlacesCL::placeM(const PlaceCL& place) const
{
    ::SetWindowPos(place.child, nullptr, place.rect.left, place.rect.top, place.rect.right - place.rect.left,
        place.rect.bottom - place.rect.top, PlacingFlags);
}

void DeferredPlacesCL::EndM()
{
    const HRGN beneath = ::CreateRectRgn(0, 0, 0, 0);
    const HRGN scratch = ::CreateRectRgn(0, 0, 0, 0);
    bool isPainted = false;
    HDWP pass = ::BeginDeferWindowPos(static_cast<int>(places_.size()));
    for (const PlaceCL& place : places_) {
        if (!place.isOpaque) {
            const EdgesCL before = slEdgesInParent(place.child);
            addRect(beneath, scratch, { before.left, before.top, before.right, before.bottom });
            addRect(beneath, scratch, place.rect);
            isPainted = true;
        }
        pass = pass == nullptr
            ? nullptr
            : ::DeferWindowPos(pass, place.child, nullptr, place.rect.left, place.rect.top,
                place.rect.right - place.rect.left, place.rect.bottom - place.rect.top, PlacingFlags);
    }
    if (pass == nullptr || !::EndDeferWindowPos(pass)) {
        for (const PlaceCL& place : places_) {
            placeM(place);
        }
    }
    if (isPainted) {
        ::RedrawWindow(parent_, nullptr, beneath, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
    ::DeleteObject(scratch);
    ::DeleteObject(beneath);
}
