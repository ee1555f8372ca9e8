#include "controls/lists/tree_pictures.h"
#include "pictures/bitmap_record.h"
#include <algorithm>

namespace {

constexpr int Side = 20; // Pixels of an image.

} // namespace

TreePicturesCL::TreePicturesCL(CImageList& images)
    : images_(images)
    , before_(images.GetImageCount())
{
    CreateListM(distinct_);
}

TreePicturesCL::~TreePicturesCL()
{
    constexpr size_t StripLength = 1600; // As wide as any bitmap may be.
    for (size_t from = 0; from < added_.size(); from += StripLength) {
        addStripM(from, std::min(added_.size(), from + StripLength));
    }
}

BOOL TreePicturesCL::CreateListM(CImageList& images)
{
    constexpr int Grow = 30;
    return images.Create(Side, Side, ILC_COLOR24, 0, Grow);
}

int TreePicturesCL::AddFileM(CImageList& images, const char* file)
{
    constexpr COLORREF Black = 0;
    DVrBitmapCL bitmap;
    bitmap.LoadBitmapM(file);
    CBitmap* const loaded = bitmap.GetBitmapM();
    return loaded != nullptr ? images.Add(loaded, Black) : -1;
}

int TreePicturesCL::AddM(const char* file)
{
    if (images_.GetSafeHandle() == nullptr) {
        return -1;
    }
    const auto [entry, isNew] = known_.try_emplace(file);
    PictureCL& picture = entry->second;
    if (isNew) {
        const int count = distinct_.GetImageCount();
        picture.first = AddFileM(distinct_, file);
        picture.count = distinct_.GetImageCount() - count;
    }
    if (picture.first == -1) {
        return -1;
    }
    const int index = before_ + static_cast<int>(added_.size());
    for (int i = 0; i < picture.count; ++i) {
        added_.push_back(picture.first + i);
    }
    return index;
}

// A bitmap of many images side by side comes in at once.
void TreePicturesCL::addStripM(size_t from, size_t to)
{
    const int count = static_cast<int>(to - from);
    BITMAPINFO info {};
    info.bmiHeader
        = BITMAPINFOHEADER { sizeof(BITMAPINFOHEADER), count * Side, -Side, 1, 24, BI_RGB, 0, 0, 0, 0, 0 };
    void* bits = nullptr;
    CBitmap strip;
    strip.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc.m_hDC, strip.m_hObject);
    for (int i = 0; i < count; ++i) {
        distinct_.Draw(&dc, added_[from + static_cast<size_t>(i)], POINT { i * Side, 0 }, ILD_NORMAL);
    }
    ::SelectObject(dc.m_hDC, previous);
    images_.Add(&strip, COLORREF { 0 });
}
