// How much faster a knob of 128 by 128 pixels is drawn after each step, and for the first time, than by calls
// of the window system for each pixel.
#include "controls/buttons/rotate_btn.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include "timing.h"
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int Size = 128;
constexpr int Rounds = 15;
constexpr int Position[2] = { 0, 0 };
constexpr int Centre[2] = { Size / 2, Size / 2 };
using PictureRows = std::vector<std::vector<std::uint32_t>>;

// Noise in a disc; white, which is transparent, around it.
PictureRows noisyDisc(std::mt19937* random)
{
    PictureRows rows(Size, std::vector<std::uint32_t>(Size, 0xFFFFFF));
    for (int y = 0; y < Size; ++y) {
        for (int x = 0; x < Size; ++x) {
            const int dx = x - Size / 2;
            const int dy = y - Size / 2;
            if (dx * dx + dy * dy < Size * Size / 4) {
                rows[static_cast<size_t>(y)][static_cast<size_t>(x)] = (*random)() & 0xFFFFFF;
            }
        }
    }
    return rows;
}

// Noise everywhere.
PictureRows noisyGround(std::mt19937* random)
{
    PictureRows rows(Size, std::vector<std::uint32_t>(Size));
    for (auto& row : rows) {
        std::generate(row.begin(), row.end(), [&] { return (*random)() & 0xFFFFFF; });
    }
    return rows;
}

// A memory context with a bitmap as the screen has them: one of a file, or an empty one of the knob's size.
class CanvasCL
{
public:
    explicit CanvasCL(HDC screen, const char* path = nullptr)
        : dc_(::CreateCompatibleDC(screen))
        , bitmap_(path == nullptr
                  ? ::CreateCompatibleBitmap(screen, Size, Size)
                  : static_cast<HBITMAP>(::LoadImageA(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE)))
        , previous_(::SelectObject(dc_, bitmap_))
    {
    }
    CanvasCL(const CanvasCL&) = delete;
    CanvasCL& operator=(const CanvasCL&) = delete;
    ~CanvasCL()
    {
        ::SelectObject(dc_, previous_);
        ::DeleteObject(bitmap_);
        ::DeleteDC(dc_);
    }

    HDC DcM() const { return dc_; }
    std::vector<COLORREF> PixelsM() const
    {
        std::vector<COLORREF> pixels;
        for (int y = 0; y < Size; ++y) {
            for (int x = 0; x < Size; ++x) {
                pixels.push_back(::GetPixel(dc_, x, y));
            }
        }
        return pixels;
    }

private:
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
};

int placeOf(float value)
{
    const int whole = static_cast<int>(value);
    return value - static_cast<float>(whole) > 0.4F ? whole + 1 : whole;
}

// The same steps, each pixel read and written by the window system.
void drawPixelByPixel(HDC to, const CanvasCL& background, const CanvasCL& from, float angle)
{
    const CanvasCL composed(to);
    for (int y = 0; y < Size; ++y) {
        for (int x = 0; x < Size; ++x) {
            ::SetPixel(composed.DcM(), x, y, ::GetPixel(background.DcM(), Position[0] + x, Position[1] + y));
        }
    }
    const float radians = angle * 3.1415925F / 180.0F;
    const auto sine = static_cast<float>(std::sin(static_cast<double>(radians)));
    const auto cosine = static_cast<float>(std::cos(static_cast<double>(radians)));
    const auto dx = static_cast<float>(Centre[0] - Position[0]);
    const auto dy = static_cast<float>(Centre[1] - Position[1]);
    for (int j = 0; j < Size; ++j) {
        for (int i = 0; i < Size; ++i) {
            const COLORREF pixel = ::GetPixel(from.DcM(), i, j);
            if (pixel == RGB(255, 255, 255)) {
                continue;
            }
            const float x = static_cast<float>(i) - dx;
            const float y = dy - static_cast<float>(j);
            const int column = placeOf(cosine * x - sine * y + dx);
            const int row = Size - placeOf(sine * x + cosine * y + dy);
            ::SetPixel(composed.DcM(), column, row, pixel);
            ::SetPixel(composed.DcM(), column + 1, row, pixel);
        }
    }
    ::BitBlt(to, Position[0], Position[1], Size, Size, composed.DcM(), 0, 0, SRCCOPY);
}

// A knob with its window, not yet drawn.
class KnobCL : public DuRotateBtnCL
{
public:
    KnobCL(CWnd* parent, const char* background, const char* picture, float angle)
    {
        constexpr int size[2] = { Size, Size };
        constexpr float range[2] = { 1000, -1000 };
        constexpr int signs[2] = { 1, -1 };
        SetSizeM(size);
        SetRotPosM(Position, Centre);
        SetAngleM(range, 23, angle);
        SetSignM(signs, signs);
        SetBmpM(background, picture);
        Create(parent);
    }
};

template <typename Work> double measure(const Work& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return secondsSince(begin);
}

void print(const char* name, double plainTime, double fastTime)
{
    std::fprintf(
        stderr, "%s: pixel by pixel %.2f ms, in memory %.3f ms\n", name, plainTime * 1000, fastTime * 1000);
    std::printf("{\"name\":\"%s\",\"value\":%.1f,\"unit\":\"x\",\"better\":\"higher\"}\n", name,
        plainTime / fastTime);
}

} // namespace

int main()
{
    std::mt19937 random(5);
    const SmallPictureCL ground(noisyGround(&random));
    const SmallPictureCL disc(noisyDisc(&random));
    PlainWindowCL parent;
    CClientDC screen(&parent);
    const CanvasCL background(screen.m_hDC, ground.path());
    const CanvasCL from(screen.m_hDC, disc.path());
    KnobCL knob(&parent, ground.path(), disc.path(), 7.5F);
    const CanvasCL fast(screen.m_hDC);
    const CanvasCL plain(screen.m_hDC);
    CDC to;
    to.Attach(fast.DcM());
    std::vector<double> fastTimes;
    std::vector<double> firstTimes;
    std::vector<double> plainTimes;
    // In turns, so that whatever else the machine does meets both.
    for (int i = 0; i < Rounds; ++i) {
        const float angle = knob.GetAngleM();
        plainTimes.push_back(measure([&] { drawPixelByPixel(plain.DcM(), background, from, angle); }));
        KnobCL fresh(&parent, ground.path(), disc.path(), angle);
        firstTimes.push_back(measure([&] { fresh.drawRotM(&to, angle); }));
        const bool firstIsSame = fast.PixelsM() == plain.PixelsM();
        to.FillSolidRect(0, 0, Size, Size, 0);
        fastTimes.push_back(measure([&] { knob.drawRotM(&to, angle); }));
        if (!firstIsSame || fast.PixelsM() != plain.PixelsM()) {
            std::fprintf(stderr, "the knobs differ\n");
            return 1;
        }
        // A step by a click: without one the next drawing would only copy.
        knob.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(Size / 2, Size / 2));
        knob.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(Size / 2, Size / 2));
        if (knob.GetAngleM() == angle) {
            std::fprintf(stderr, "the knob does not turn\n");
            return 1;
        }
    }
    to.Detach();
    print("rotate_draw_speedup", median(plainTimes), median(fastTimes));
    print("rotate_first_draw_speedup", median(plainTimes), median(firstTimes));
    return 0;
}
