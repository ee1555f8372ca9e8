// Null where the common base wants a pointer: refused, nothing moves or changes.
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/leaving.h"
#include "records/common_box_record.h"
#include <gtest/gtest.h>

TEST(NullPointers, CommonBaseKeepsItsPlaceAndMovesNoOtherControl)
{
    DControlCommonCL control;
    const int place[2] = { 3, 4 };
    control.SetPositionM(place);
    control.SetSizeM(place);
    control.SetPositionM(nullptr);
    control.SetSizeM(nullptr);
    EXPECT_EQ(control.GetPosM(nullptr), 0);
    EXPECT_EQ(control.GetSizeM(nullptr), 0);
    int kept[2] = {};
    EXPECT_EQ(control.GetPosM(kept), 1);
    EXPECT_EQ(kept[1], 4);
    control.AlignLeftM(nullptr);
    control.AlignCenterHorizonM(nullptr);
    control.AlignCenterVerticalM(nullptr);
    control.OnMouseMove(nullptr, 0, CPoint(1, 1));
}

TEST(NullPointers, CommonRecordFillsNoControlAndNoRegion)
{
    const DVrCommonBoxCL record;
    EXPECT_EQ(record.InitCommonCtrlM(nullptr), 0);
    record.GetButtonRgnM(nullptr);
    record.GetDrawRgnM(nullptr);
    record.GetRotateButtonRgnM(nullptr);
}

TEST(NullPointers, ColourRequestWithoutAContextHasNoAnswer)
{
    BackgroundCL background(0x123456);
    EXPECT_EQ(background.AnswerM(nullptr), nullptr);
}

TEST(NullPointers, NobodyIsToldAboutNoField)
{
    bool told = false;
    EXPECT_FALSE(slTellAboutField(nullptr, [&told] { told = true; }));
    EXPECT_FALSE(told);
}
