#include "pictures/picture_edges.h"
#include "baselib/helpers.h"
#include "pictures/bmp_reader.h"
#include "pictures/bmp_rows.h"
#include <algorithm>
#include <cstddef>

namespace {

struct View
{
    int w;
    int h;
    const unsigned char* pixels;
    const unsigned char* key;

    const unsigned char* rowAt(int y) const
    {
        return pixels + static_cast<std::size_t>(h - 1 - y) * static_cast<std::size_t>(w) * 3;
    }
    bool isEmpty() const { return w < 1 || h < 1 || pixels == nullptr || key == nullptr; }
    bool isTransparent(int x, int y) const
    {
        // As slIsTransparency says, without a call for each pixel.
        const unsigned char* const pixel = rowAt(y) + static_cast<std::size_t>(x) * 3;
        return pixel[0] >= key[0] && pixel[1] >= key[1] && pixel[2] >= key[2];
    }
};

// Stores the ends of a line of pixels that begins at `at` and continues in steps, in a view that stands below
// so many rows. Returns whether it has any.
bool storeEnds(const View& view, const int (&at)[2], const int (&step)[2], int length, int index,
    Int2DArr* first, Int2DArr* last, int rowsAbove = 0)
{
    const auto isTransparent
        = [&](int i) { return view.isTransparent(at[0] + i * step[0], at[1] + i * step[1]); };
    const auto store = [&](int i, Int2DArr* to) {
        const int place[2] = { at[0] + i * step[0], at[1] + i * step[1] + rowsAbove };
        to->SetItemM(place, index);
    };
    int begin = 0;
    while (begin < length && isTransparent(begin)) {
        ++begin;
    }
    if (begin == length) {
        return false;
    }
    int end = length - 1;
    while (isTransparent(end)) {
        --end;
    }
    store(begin, first);
    store(end, last);
    return true;
}

} // namespace

int slFindHorizonEdgeM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, Int2DArr* left, Int2DArr* right)
{
    if (key == nullptr || left == nullptr || right == nullptr) {
        return 0;
    }
    const View view { w, h, pixels, key };
    int count = 0;
    for (int y = 0; y < h && !view.isEmpty(); ++y) {
        count += storeEnds(view, { 0, y }, { 1, 0 }, w, count, left, right) ? 1 : 0;
    }
    return 1;
}

int slFindHorizonEdgeM(const char* file, const unsigned char* key, Int2DArr* left, Int2DArr* right)
{
    if (key == nullptr || left == nullptr || right == nullptr) {
        return 0;
    }
    std::size_t size = 0;
    const std::unique_ptr<char[]> bytes = slReadBmpFile(file, &size);
    const BmpRowsCL rows({ reinterpret_cast<const unsigned char*>(bytes.get()), size });
    if (!rows.IsGoodM()) {
        return 1;
    }
    std::vector<unsigned char> row(static_cast<std::size_t>(rows.WidthM()) * 3);
    const View view { rows.WidthM(), 1, row.data(), key };
    int count = 0;
    for (int y = 0; y < rows.HeightM(); ++y) {
        rows.ReadRowM(rows.HeightM() - 1 - y, row.data());
        count += storeEnds(view, { 0, 0 }, { 1, 0 }, rows.WidthM(), count, left, right, y) ? 1 : 0;
    }
    return 1;
}

int slFindVerticalEdgeM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, Int2DArr* first, Int2DArr* last)
{
    if (key == nullptr || first == nullptr || last == nullptr) {
        return 0;
    }
    const View view { w, h, pixels, key };
    int count = 0;
    for (int x = 0; x < w && !view.isEmpty(); ++x) {
        count += storeEnds(view, { x, 0 }, { 0, 1 }, h, count, first, last) ? 1 : 0;
    }
    return 1;
}

int slFindVerticalEdgeM(const char* file, const unsigned char* key, Int2DArr* first, Int2DArr* last)
{
    int w = 0;
    int h = 0;
    unsigned char* loaded = nullptr;
    slLoadBmpPicture3D(file, &w, &h, &loaded);
    const std::unique_ptr<unsigned char, void (*)(void*)> pixels(loaded, &slFree);
    return slFindVerticalEdgeM(w, h, pixels.get(), key, first, last);
}

// What is cut out of a column are its transparent pixels and every pixel right below one. So each row needs
// the row above it alone.
std::vector<PictureRect> slFindOpaqueRects(
    int w, int h, const unsigned char* pixels, const unsigned char* key)
{
    std::vector<PictureRect> rects;
    const View view { w, h, pixels, key };
    if (view.isEmpty()) {
        return rects;
    }
    std::vector<char> cutBelow(static_cast<std::size_t>(w), 0);
    std::size_t band = 0; // Where the rectangles of the last band begin.
    std::vector<PictureRect> row;
    for (int y = 0; y < h; ++y) {
        row.clear();
        bool open = false;
        for (int x = 0; x < w; ++x) {
            const bool transparent = view.isTransparent(x, y);
            char& above = cutBelow[static_cast<std::size_t>(x)];
            const bool kept = !transparent && above == 0;
            above = transparent ? 1 : 0;
            if (kept && !open) {
                row.push_back(PictureRect { x, y, x, y + 1 });
            }
            if (kept) {
                row.back().right = x + 1;
            }
            open = kept;
        }
        const auto sameColumns = [](const PictureRect& a, const PictureRect& b) {
            return a.left == b.left && a.right == b.right;
        };
        const auto last = rects.begin() + static_cast<std::ptrdiff_t>(band);
        const bool continues = !row.empty() && last != rects.end() && last->bottom == y
            && std::equal(last, rects.end(), row.begin(), row.end(), sameColumns);
        if (continues) {
            std::for_each(last, rects.end(), [](PictureRect& rect) { ++rect.bottom; });
        } else if (!row.empty()) {
            band = rects.size();
            rects.insert(rects.end(), row.begin(), row.end());
        }
    }
    return rects;
}
