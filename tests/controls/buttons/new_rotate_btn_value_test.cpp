// The position of a new rotate button as a value.
#include "containers/string_arr.h"
#include "controls/buttons/new_rotate_btn.h"
#include "support/pixels.h"
#include "support/pump.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(NewRotateBtnValue, IsThePositionOfAPictureAndIsShownAtOnce)
{
    const SmallPictureCL red(0xFF0000, 30, 30);
    const SmallPictureCL blue(0x0000FF, 30, 30);
    VrStringArr names;
    slAddText(names, red.path());
    slAddText(names, blue.path());
    DuNewRotateBtnCL button(AliveTag);
    EXPECT_EQ(button.ReadValueM().PartsM(), 0U); // Nothing is shown yet.
    const int steps[2] = { 1, -1 };
    const int size[2] = { 30, 30 };
    button.SetSizeM(size);
    button.InitialM(steps, 0, names);
    PlainWindowCL parent;
    ASSERT_EQ(button.Create(&parent), 1);
    PumpPending();
    EXPECT_EQ(button.ReadValueM().number, 0);
    EXPECT_EQ(Pixels(button.m_hWnd).AtM(10, 10), RGB(255, 0, 0));
    ControlValueCL value;
    value.number = 1;
    EXPECT_TRUE(button.WriteValueM(value));
    PumpPending();
    EXPECT_EQ(button.GetCurIndxM(), 1);
    EXPECT_EQ(Pixels(button.m_hWnd).AtM(10, 10), RGB(0, 0, 255));
    for (const int none : { -1, 2 }) {
        value.number = none;
        EXPECT_FALSE(button.WriteValueM(value));
    }
    value.number.reset();
    value.text = "1";
    EXPECT_FALSE(button.WriteValueM(value));
    EXPECT_EQ(button.GetCurIndxM(), 1);
}
