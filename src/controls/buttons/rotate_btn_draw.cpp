// Painting of the rotate button.
#include "controls/buttons/rotate_btn.h"
#include <algorithm>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr int FarthestPixel = 1 << 20; // No device reaches so far, and no coordinate overflows.

constexpr std::int64_t MostAtOnce = 1 << 20; // Pixels of a picture that is kept and turned whole.

bool isLarge(int width, int height)
{
    return std::int64_t { width } * height > MostAtOnce;
}

// Copies the bitmap's part from (x, y) on; where it has none, nothing.
void copyPart(const DVrBitmapCL& picture, CDC* to, int width, int height, int x, int y)
{
    CDC memory;
    if (!picture.HoldsBitmapM() || !memory.CreateCompatibleDC(to)) {
        return;
    }
    const HGDIOBJ previous = ::SelectObject(memory.m_hDC, picture.ShownBitmapM());
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

// The same into the pixels of a memory context. The system takes several times as long.
void copyPart(const DVrBitmapCL& picture, ImageCacheCL* to, int x, int y)
{
    const PixelBlockCL block = to->PixelsM();
    if (!picture.ReadPartM({ block.pixels, x, y, block.width, block.height })) {
        copyPart(picture, to->GetDcM(), block.width, block.height, x, y);
        ::GdiFlush();
    }
}

// A part of a bitmap as pixels; white where the bitmap has none.
std::vector<std::uint32_t> pixelsOf(const DVrBitmapCL& picture, CDC* dc, PixelPartCL part)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(part.width) * part.height, White);
    part.pixels = pixels.data();
    ImageCacheCL drawn;
    if (!picture.ReadPartM(part) && drawn.CreateM(dc, part.width, part.height)) {
        const PixelBlockCL block = drawn.PixelsM();
        std::copy(pixels.begin(), pixels.end(), block.pixels);
        copyPart(picture, drawn.GetDcM(), part.width, part.height, part.left, part.top);
        ::GdiFlush();
        std::copy_n(block.pixels, pixels.size(), pixels.begin());
    }
    return pixels;
}

bool isWithin(const CRect& inner, const CRect& outer)
{
    return inner.IsRectEmpty()
        || (inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right
            && inner.bottom <= outer.bottom);
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
        composedAngle_ = angle;
        composeM(dc);
    } else if (cache_.GetDcM()->m_hDC != nullptr && !isWithin(neededPartM(dc), part_)) {
        composeM(dc);
    }
    const auto reachable = [](int place) { return place > -FarthestPixel && place < FarthestPixel; };
    if (cache_.GetDcM()->m_hDC != nullptr && reachable(position_[0]) && reachable(position_[1])) {
        dc->BitBlt(position_[0] + part_.left, position_[1] + part_.top, part_.Width(), part_.Height(),
            cache_.GetDcM(), 0, 0, SRCCOPY);
    }
}

// All of the picture, or of a large one what the window and the context show.
CRect DuRotateBtnCL::neededPartM(CDC* dc) const
{
    const CRect all(0, 0, width_, height_);
    if (!isLarge(width_, height_)) {
        return all;
    }
    CRect client;
    CRect shown;
    GetClientRect(&client);
    dc->GetClipBox(&shown);
    shown.UnionRect(&shown, &client);
    const auto within = [](LONG place, int position, int length) {
        return static_cast<int>(std::clamp<std::int64_t>(std::int64_t { place } - position, 0, length));
    };
    return { within(shown.left, position_[0], width_), within(shown.top, position_[1], height_),
        within(shown.right, position_[0], width_), within(shown.bottom, position_[1], height_) };
}

void DuRotateBtnCL::composeM(CDC* dc)
{
    // A copy of a knob has the pixels, but its cache starts empty.
    const bool isPrepared
        = !base_.empty() && cache_.GetDcM()->m_hDC != nullptr && isWithin(neededPartM(dc), part_);
    if (!isPrepared && !prepareM(dc)) {
        return;
    }
    const PixelBlockCL block = cache_.PixelsM();
    if (isPrepared) { // Else they have just been drawn.
        std::copy(base_.begin(), base_.end(), block.pixels);
    }
    const PixelPartCL onto { block.pixels, part_.left, part_.top, block.width, block.height };
    PixelPartCL from { picture_.data(), 0, 0, width_, height_ };
    std::vector<std::uint32_t> pixels;
    if (isLarge(width_, height_)) {
        from = slPartToRotate(onto, width_, height_, position_, centre_, composedAngle_);
        pixels = pixelsOf(rotating_, dc, from);
        from.pixels = pixels.data();
    }
    slDrawRotatedPart(from, onto, width_, height_, position_, centre_, composedAngle_);
}

// Asking the system for the pixels takes longer than turning them: once for all angles.
bool DuRotateBtnCL::prepareM(CDC* dc)
{
    forgetPixelsM();
    part_ = neededPartM(dc);
    if (!cache_.CreateM(dc, part_.Width(), part_.Height())) {
        return false;
    }
    drawBehindM(cache_.GetDcM(), part_); // Where the background has no pixels.
    copyPart(background_, &cache_, position_[0] + part_.left, position_[1] + part_.top);
    const PixelBlockCL drawn = cache_.PixelsM();
    base_.assign(drawn.pixels, drawn.pixels + static_cast<std::ptrdiff_t>(drawn.width) * drawn.height);
    if (!isLarge(width_, height_)) {
        picture_ = pixelsOf(rotating_, dc, { nullptr, 0, 0, width_, height_ });
    }
    return true;
}

void DuRotateBtnCL::forgetPixelsM()
{
    base_.clear();
    picture_.clear();
}
