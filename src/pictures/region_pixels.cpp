#include "baselib/helpers.h"
#include "pictures/bmp_reader.h"
#include "pictures/region_functions.h"
#include "pictures/region_union.h"
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

namespace {

// The platform unites one rectangle at a time with what it has, in time that grows with the square of their
// number; so it gets few at once, and the pieces are united in pairs.
constexpr std::size_t PieceSize = 16;

HRGN makePiece(const PictureRect* rects, std::size_t count)
{
    struct
    {
        RGNDATAHEADER header;
        RECT rects[PieceSize];
    } data {};
    data.header.dwSize = sizeof(data.header);
    data.header.iType = RDH_RECTANGLES;
    data.header.nCount = static_cast<DWORD>(count);
    data.header.nRgnSize = static_cast<DWORD>(count * sizeof(RECT));
    RECT box { rects[0].left, rects[0].top, rects[0].right, rects[0].bottom };
    for (std::size_t i = 0; i < count; ++i) {
        data.rects[i] = RECT { rects[i].left, rects[i].top, rects[i].right, rects[i].bottom };
        box.left = std::min(box.left, data.rects[i].left);
        box.right = std::max(box.right, data.rects[i].right);
        box.bottom = std::max(box.bottom, data.rects[i].bottom);
    }
    data.header.rcBound = box;
    return ::ExtCreateRegion(nullptr, static_cast<DWORD>(sizeof(data.header) + count * sizeof(RECT)),
        reinterpret_cast<const RGNDATA*>(&data));
}

} // namespace

int slCreatRgnByPixel(int w, int h, const unsigned char* pixels, const unsigned char* key, CRgn* rgn)
{
    if (key == nullptr || rgn == nullptr) {
        return 0;
    }
    rgn->DeleteObject();
    const std::vector<PictureRect> rects = slFindOpaqueRects(w, h, pixels, key);
    RegionUnionCL tree;
    for (std::size_t i = 0; i < rects.size(); i += PieceSize) {
        tree.AddM(makePiece(&rects[i], std::min(PieceSize, rects.size() - i)));
    }
    rgn->Attach(tree.TakeM());
    return 1;
}

int slCreatRgnByPixel(const char* file, const unsigned char* key, CRgn* rgn)
{
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    slLoadBmpPicture3D(file, &w, &h, &pixels);
    const int result = slCreatRgnByPixel(w, h, pixels, key, rgn);
    slFree(pixels);
    return result;
}
