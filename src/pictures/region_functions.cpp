#include "pictures/region_functions.h"
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "pictures/bmp_reader.h"
#include "pictures/picture_loader.h"
#include "pictures/region_union.h"
#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

void addPoint(const Int2DArr& from, int index, std::vector<POINT>* to)
{
    const int* const point = from.GetItemPM(index);
    to->push_back(POINT { point[0], point[1] });
}

void attachPolygon(const std::vector<POINT>& points, CRgn* rgn)
{
    if (!points.empty()) {
        rgn->Attach(::CreatePolygonRgn(points.data(), static_cast<int>(points.size()), ALTERNATE));
    }
}

// The region that the polygon down the left ends and up the right ends of rows encloses. The platform takes
// time that grows with the square of a polygon's points, so it gets bands of few rows: what is inside in a
// row, the ends of that row and the next alone decide.
void attachRows(const Int2DArr& left, const Int2DArr& right, CRgn* rgn)
{
    constexpr int BandRows = 64;
    const int last = left.GetBoundM() - 1;
    if (last < 1) {
        slCreateRgnM(left, right, rgn);
        return;
    }
    RegionUnionCL bands;
    for (int from = 0; from < last; from += BandRows) {
        const int to = std::min(from + BandRows, last);
        std::vector<POINT> points;
        for (int i = from; i <= to; ++i) {
            addPoint(left, i, &points);
        }
        for (int i = to; i >= from; --i) {
            addPoint(right, i, &points);
        }
        const HRGN band = ::CreatePolygonRgn(points.data(), static_cast<int>(points.size()), ALTERNATE);
        if (band != nullptr) {
            bands.AddM(band);
        }
    }
    rgn->Attach(bands.TakeM());
}

} // namespace

int slLoadPicture(CBitmap* bitmap, const char* file)
{
    if (bitmap == nullptr) {
        return 0;
    }
    bitmap->DeleteObject();
    bitmap->Attach(slMakeBitmap(file));
    return 1;
}

int slCreateRgnM(const Int2DArr& a, const Int2DArr& b, CRgn* rgn)
{
    if (rgn == nullptr) {
        return 0;
    }
    std::vector<POINT> points;
    for (int i = 0; i < a.GetBoundM(); ++i) {
        addPoint(a, i, &points);
    }
    for (int i = b.GetBoundM() - 1; i >= 0; --i) {
        addPoint(b, i, &points);
    }
    attachPolygon(points, rgn);
    return 1;
}

int slCreateRgn(const Int2DArr& pts, CRgn* rgn)
{
    if (rgn == nullptr) {
        return 0;
    }
    std::vector<POINT> points;
    for (int i = 0; i < pts.GetBoundM() - 1; ++i) {
        addPoint(pts, i, &points);
    }
    attachPolygon(points, rgn);
    return 1;
}

int slCreateRgnAny(int w, int h, const unsigned char* pixels, const unsigned char* key, CRgn* rgn)
{
    if (rgn == nullptr) {
        return 0;
    }
    static constexpr unsigned char Black[3] = { 0, 0, 0 };
    rgn->DeleteObject();
    Int2DArr points;
    slGenBitMapBoundary(key, Black, w, h, pixels, &points);
    return slCreateRgn(points, rgn);
}

int slCreateRgnAny(const char* file, const unsigned char* key, CRgn* rgn)
{
    if (rgn == nullptr) {
        return 0;
    }
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    slLoadBmpPicture3D(file, &w, &h, &pixels);
    slCreateRgnAny(w, h, pixels, key, rgn);
    slFree(pixels);
    return 1;
}

int slGenerateRgnFromBitmapM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, int mode, CRgn* rgn)
{
    if (mode != RgnByRows && mode != RgnByColumns) {
        return slCreateRgnAny(w, h, pixels, key, rgn);
    }
    if (key == nullptr || rgn == nullptr) {
        return 0;
    }
    Int2DArr a;
    Int2DArr b;
    rgn->DeleteObject();
    if (mode == RgnByRows) {
        slFindHorizonEdgeM(w, h, pixels, key, &a, &b);
        attachRows(a, b, rgn);
        return 1;
    }
    slFindVerticalEdgeM(w, h, pixels, key, &a, &b);
    return slCreateRgnM(a, b, rgn);
}

int slGenerateRgnFromBitmapM(const char* file, const unsigned char* key, int mode, CRgn* rgn)
{
    if (mode != RgnByRows && mode != RgnByColumns && mode != RgnByBoundary) {
        return slCreatRgnByPixel(file, key, rgn);
    }
    if (mode == RgnByRows && key != nullptr && rgn != nullptr) {
        Int2DArr left;
        Int2DArr right;
        slFindHorizonEdgeM(file, key, &left, &right);
        rgn->DeleteObject();
        attachRows(left, right, rgn);
        return 1;
    }
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    slLoadBmpPicture3D(file, &w, &h, &pixels);
    const int result = slGenerateRgnFromBitmapM(w, h, pixels, key, mode, rgn);
    slFree(pixels);
    return result;
}

int slReadRgn(const char* file, Int2DArr* pts)
{
    if (pts == nullptr) {
        return 0;
    }
    VrIOCL io;
    io.OpenM(file, "r");
    int count = 0;
    io.InputDM(&count);
    if (count < 1 || static_cast<std::size_t>(count) > io.BytesLeftM()) {
        return 1;
    }
    for (int i = 0; i < count; ++i) {
        int point[2] = { 0, 0 };
        io.InputInt2DM(point);
        pts->SetItemM(point, i);
    }
    return 1;
}

int slCombineRgnFromFile(const char* file, CRgn* rgn, int mode)
{
    if (rgn == nullptr) {
        return 0;
    }
    Int2DArr points;
    slReadRgn(file, &points);
    CRgn polygon;
    slCreateRgn(points, &polygon);
    if (polygon.GetSafeHandle() != nullptr) {
        rgn->CombineRgn(rgn, &polygon, mode);
    }
    return 1;
}
