// Painting of the rotate button.
#include "controls/buttons/rotate_btn.h"
#include <algorithm>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr int FarthestPixel = 1 << 20; // No device reaches so far, and no coordinate overflows.

// The corner (width by height) of a bitmap as pixels; white where the bitmap has none.
std::vector<std::uint32_t> pixelsOf(DVrBitmapCL& picture, HDC dc, int width, int height)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height, White);
    const int pictureWidth = picture.GetWidthM();
    const int rows = std::min(height, picture.GetHeightM());
    if (rows <= 0) {
        return pixels;
    }
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = pictureWidth;
    info.bmiHeader.biHeight = -picture.GetHeightM();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    std::vector<std::uint32_t> all(static_cast<std::size_t>(pictureWidth) * picture.GetHeightM());
    const auto bitmap = static_cast<HBITMAP>(picture.GetBitmapM()->GetSafeHandle());
    if (::GetDIBits(dc, bitmap, 0, static_cast<UINT>(picture.GetHeightM()), all.data(), &info, DIB_RGB_COLORS)
        == 0) {
        return pixels;
    }
    for (int y = 0; y < rows; ++y) {
        std::copy_n(all.begin() + static_cast<std::ptrdiff_t>(y) * pictureWidth,
            std::min(width, pictureWidth), pixels.begin() + static_cast<std::ptrdiff_t>(y) * width);
    }
    return pixels;
}

// Copies the bitmap's part from (x, y) on; where it has none, nothing.
void copyPart(DVrBitmapCL& picture, CDC* to, int width, int height, int x, int y)
{
    CDC memory;
    if (!picture.HoldsBitmapM() || !memory.CreateCompatibleDC(to)) {
        return;
    }
    const HGDIOBJ previous = ::SelectObject(memory.m_hDC, picture.GetBitmapM()->GetSafeHandle());
    const auto left = std::max<std::int64_t>(x, 0);
    const auto top = std::max<std::int64_t>(y, 0);
    const auto right = std::min<std::int64_t>(std::int64_t { x } + width, picture.GetWidthM());
    const auto bottom = std::min<std::int64_t>(std::int64_t { y } + height, picture.GetHeightM());
    if (left < right && top < bottom) {
        to->BitBlt(static_cast<int>(left - x), static_cast<int>(top - y), static_cast<int>(right - left),
            static_cast<int>(bottom - top), &memory, static_cast<int>(left), static_cast<int>(top), SRCCOPY);
    }
    ::SelectObject(memory.m_hDC, previous);
}

} // namespace

void DuRotateBtnCL::drawBkM(CDC* dc)
{
    if (dc == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    copyPart(background_, dc, client.Width(), client.Height(), 0, 0);
}

void DuRotateBtnCL::drawRotM(CDC* dc, float angle)
{
    if (dc == nullptr) {
        return;
    }
    if (redrawNeeded_) {
        redrawNeeded_ = false;
        composeM(dc, angle);
    }
    const auto reachable = [](int place) { return place > -FarthestPixel && place < FarthestPixel; };
    if (cache_.GetDcM()->m_hDC != nullptr && reachable(position_[0]) && reachable(position_[1])) {
        dc->BitBlt(position_[0], position_[1], width_, height_, cache_.GetDcM(), 0, 0, SRCCOPY);
    }
}

void DuRotateBtnCL::composeM(CDC* dc, float angle)
{
    // A copy of a knob has the pixels, but its cache starts empty.
    if ((base_.empty() || cache_.GetDcM()->m_hDC == nullptr) && !prepareM(dc)) {
        return;
    }
    const PixelBlockCL onto = cache_.PixelsM();
    std::copy(base_.begin(), base_.end(), onto.pixels);
    slDrawRotated({ picture_.data(), width_, height_ }, onto, position_, centre_, angle);
}

// Asking the system for the pixels takes longer than turning them: once for all angles.
bool DuRotateBtnCL::prepareM(CDC* dc)
{
    forgetPixelsM();
    if (!cache_.CreateM(dc, width_, height_)) {
        return false;
    }
    drawBehindM(cache_.GetDcM(), CSize(width_, height_)); // Where the background has no pixels.
    copyPart(background_, cache_.GetDcM(), width_, height_, position_[0], position_[1]);
    const PixelBlockCL drawn = cache_.PixelsM();
    base_.assign(drawn.pixels, drawn.pixels + static_cast<std::ptrdiff_t>(width_) * height_);
    picture_ = pixelsOf(rotating_, dc->m_hDC, width_, height_);
    return true;
}

void DuRotateBtnCL::forgetPixelsM()
{
    base_.clear();
    picture_.clear();
}
