#pragma once
#include "support/pictured_dialog.h"
#include <string>

// Three frames of one colour each, larger than the controls of these tests.
struct FramesCL
{
    SmallPictureCL red { Red, 60, 50 };
    SmallPictureCL green { Green, 60, 50 };
    SmallPictureCL blue { Blue, 60, 50 };
    std::string RowsM() const
    {
        return std::string("[普通动画控件位图]\n3\n0\n11 ") + red.path() + "\n11 " + green.path() + "\n11 "
            + blue.path() + "\n";
    }
};
