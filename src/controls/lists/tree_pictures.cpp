#include "controls/lists/tree_pictures.h"
#include "pictures/picture_loader.h"
#include <algorithm>

namespace {

constexpr int Side = 20; // Pixels of an image, as files have it.

// A file may have several images side by side: each gets whole pixels.
HBITMAP loadImages(const char* file, const PictureScaleCL& scale)
{
    BITMAP measures {};
    const HBITMAP drawn
        = scale.PercentM() != 100 ? slMakeBitmap(slNameAtScale(file, scale.PercentM()).c_str()) : nullptr;
    const HBITMAP loaded = drawn != nullptr ? drawn : slMakeBitmap(file);
    if (scale.PercentM() == 100 || drawn != nullptr || loaded == nullptr
        || ::GetObjectW(loaded, sizeof measures, &measures) == 0) {
        return loaded;
    }
    const int width = static_cast<int>(measures.bmWidth);
    return slResizeBitmap(loaded, width / Side * scale.WidthM(Side) + scale.WidthM(width % Side),
        scale.HeightM(static_cast<int>(measures.bmHeight)));
}

} // namespace

TreePicturesCL::TreePicturesCL(CImageList& images, const PictureScaleCL& scale, ImageFilesTP& files)
    : images_(images)
    , scale_(scale)
    , side_(scale.WidthM(Side))
    , files_(files)
    , before_(images.GetImageCount())
{
    CreateListM(distinct_, scale_);
}

void TreePicturesCL::FinishM()
{
    constexpr size_t StripLength = 1600; // As wide as any bitmap may be.
    for (size_t from = 0; from < added_.size(); from += StripLength) {
        addStripM(from, std::min(added_.size(), from + StripLength));
    }
}

BOOL TreePicturesCL::CreateListM(CImageList& images, const PictureScaleCL& scale)
{
    constexpr int Grow = 30;
    const int side = scale.WidthM(Side);
    return images.Create(side, side, ILC_COLOR24, 0, Grow);
}

int TreePicturesCL::AddFileM(CImageList& images, const char* file, const PictureScaleCL& scale)
{
    constexpr COLORREF Black = 0;
    CBitmap loaded;
    loaded.Attach(loadImages(file, scale));
    return loaded.GetSafeHandle() != nullptr ? images.Add(&loaded, Black) : -1;
}

void TreePicturesCL::NoteM(ImageFilesTP& files, const std::shared_ptr<const std::string>& file, int count)
{
    for (int i = 0; i < count; ++i) {
        files.push_back(i == 0 ? file : nullptr);
    }
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
        picture.first = AddFileM(distinct_, file, scale_);
        picture.count = distinct_.GetImageCount() - count;
        picture.file = std::make_shared<const std::string>(file);
    }
    if (picture.first == -1) {
        return -1;
    }
    const int index = before_ + static_cast<int>(added_.size());
    for (int i = 0; i < picture.count; ++i) {
        added_.push_back(picture.first + i);
    }
    NoteM(files_, picture.file, picture.count);
    return index;
}

// A bitmap of many images side by side comes in at once.
void TreePicturesCL::addStripM(size_t from, size_t to)
{
    const int count = static_cast<int>(to - from);
    BITMAPINFO info {};
    info.bmiHeader
        = BITMAPINFOHEADER { sizeof(BITMAPINFOHEADER), count * side_, -side_, 1, 24, BI_RGB, 0, 0, 0, 0, 0 };
    void* bits = nullptr;
    CBitmap strip;
    strip.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(dc.m_hDC, strip.m_hObject);
    for (int i = 0; i < count; ++i) {
        distinct_.Draw(&dc, added_[from + static_cast<size_t>(i)], POINT { i * side_, 0 }, ILD_NORMAL);
    }
    ::SelectObject(dc.m_hDC, previous);
    images_.Add(&strip, COLORREF { 0 });
}
