// Pictures of knobs far larger than their windows.
#include "controls/buttons/rotate_btn.h"
#include "support/pictured_dialog.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace testing_support;

namespace {

constexpr std::uint32_t White = 0xFFFFFF;

// Memory of this process that only it has, in bytes.
std::size_t privateBytes()
{
    std::size_t all = 0;
    MEMORY_BASIC_INFORMATION region {};
    for (const char* at = nullptr; ::VirtualQuery(at, &region, sizeof region) != 0; at += region.RegionSize) {
        all += region.State == MEM_COMMIT && region.Type == MEM_PRIVATE ? region.RegionSize : 0;
    }
    return all;
}

std::string knobText(const std::string& numbers, const char* background, const char* picture)
{
    return std::string("[旋转按钮]\n1\n0\n1 11 20 30 40 40 ") + numbers + "\n" + background + "\n" + picture
        + "\nNULL\n";
}

} // namespace

TEST(RotateBtnLarge, ShowsWhatTurningTheWholePictureGives)
{
    constexpr int Width = 1200;
    constexpr int Height = 1000;
    const int position[2] = { -590, -410 };
    const int centre[2] = { 20, 70 };
    std::mt19937 random(5);
    std::vector<std::uint32_t> picture(std::size_t { Width } * Height);
    std::generate(picture.begin(), picture.end(),
        [&] { return random() % 3 == 0 ? White : static_cast<std::uint32_t>(random() & White); });
    std::vector<std::vector<std::uint32_t>> rows;
    for (int y = 0; y < Height; ++y) {
        rows.emplace_back(picture.begin() + y * Width, picture.begin() + (y + 1) * Width);
    }
    const SmallPictureCL background(Blue, 40, 40);
    const SmallPictureCL file(rows);
    PicturedDialogCL dialog(
        knobText("-590 -410 20 70 1 -1 1 -1 37 1 360 0 37 0", background.path(), file.path()));
    auto* const knob = dialog.ControlM<DuRotateBtnCL>(11);
    for (const float angle : { 37.0F, 74.0F }) {
        ControlValueCL value;
        value.real = angle;
        ASSERT_TRUE(knob->WriteValueM(value));
        PumpPending();
        std::vector<std::uint32_t> wanted(picture.size(), Blue);
        slDrawRotated(
            { picture.data(), Width, Height }, { wanted.data(), Width, Height }, position, centre, angle);
        const Pixels shown(dialog.ItemM(11));
        int different = 0;
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                different += shown.AtM(x, y) != asShown(wanted[(y - position[1]) * Width + x - position[0]]);
            }
        }
        EXPECT_EQ(different, 0) << angle;
    }
}

TEST(RotateBtnLarge, TakesMemoryForWhatIsShownAlone)
{
    constexpr int Side = 8000;
    BmpFile file;
    file.width = Side;
    file.height = Side;
    file.bits = 1;
    file.palette = { 0, White };
    file.pixels.assign(std::size_t { Side / 8 } * Side, 0);
    const std::vector<unsigned char> bytes = file.bytes();
    const TempFile picture(std::string(bytes.begin(), bytes.end()), ".bmp");
    const std::size_t before = privateBytes();
    const PicturedDialogCL dialog(knobText("0 0 4000 4000 1 -1 1 -1 30 1 90 0 0 0", "NULL", picture.path()));
    EXPECT_EQ(dialog.PixelM(11, 20, 20), asShown(0));
    // All of its pixels, of four bytes each, would be 256 MB.
    EXPECT_LT(privateBytes() - before, std::size_t { 64 } << 20);
}
