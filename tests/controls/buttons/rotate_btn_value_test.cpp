// The angle and counter of a knob as a value, and what the user then sees.
#include "controls/buttons/rotate_btn.h"
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(RotateBtnValue, TurnsThePictureAtOnce)
{
    std::vector<std::vector<std::uint32_t>> rows(20, std::vector<std::uint32_t>(20, 0xFFFFFF));
    for (size_t x = 10; x < 20; ++x) {
        rows[9][x] = rows[10][x] = Red; // From the middle to the right.
    }
    const SmallPictureCL pointer(rows);
    const SmallPictureCL background(Blue, 40, 40);
    PicturedDialogCL dialog(
        std::string("[旋转按钮]\n1\n0\n1 11 20 30 40 40 10 10 20 20 1 -1 1 -1 30 1 180 -180 0 0\n")
        + background.path() + "\n" + pointer.path() + "\nNULL\n");
    EXPECT_EQ(dialog.PixelM(11, 26, 20), asShown(Red));
    EXPECT_EQ(dialog.PixelM(11, 14, 20), asShown(Blue));
    ControlValueCL value;
    value.real = 180.0F;
    auto* const knob = dialog.ControlM<DuRotateBtnCL>(11);
    EXPECT_TRUE(knob->WriteValueM(value));
    EXPECT_EQ(dialog.PixelM(11, 14, 20), asShown(Red));
    EXPECT_EQ(dialog.PixelM(11, 26, 20), asShown(Blue));
}

// A file may say an angle that no step reaches; what was saved then can still be given back.
TEST(RotateBtnValue, OutOfItsRangeStaysButIsNotGoneTo)
{
    PicturedDialogCL dialog(
        "[旋转按钮]\n1\n0\n1 11 20 30 40 40 10 10 20 20 1 -1 1 -1 30 1 90 0 200 7\nNULL\nNULL\nNULL\n");
    auto* const knob = dialog.ControlM<DuRotateBtnCL>(11);
    const ControlValueCL saved = knob->ReadValueM();
    EXPECT_EQ(saved.SavedM(), "200 7");
    EXPECT_TRUE(knob->WriteValueM(saved));
    ControlValueCL value;
    value.real = 100.0F;
    EXPECT_FALSE(knob->WriteValueM(value));
    value.real = 90.0F;
    EXPECT_TRUE(knob->WriteValueM(value));
    EXPECT_FALSE(knob->WriteValueM(saved));
    EXPECT_EQ(knob->ReadValueM().SavedM(), "90 7");
}
