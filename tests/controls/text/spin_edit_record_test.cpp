#include "controls/text/spin_edit_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

std::string spinEdit(const std::string& own)
{
    return printed<DVrSpinEditCL>("1 11 2 3 4 5 " + own);
}

int resultOf(const std::string& own)
{
    const DescriptionFileCL file("1 11 2 3 4 5 " + own);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    return DVrSpinEditCL().FmReadInterfaceM(&io);
}

} // namespace

TEST(SpinEditRecord, IntegerFieldsStandInFileOrder)
{
    EXPECT_EQ(spinEdit("1 -5 10\n2 3 4 7\n8 12 16"),
        "data_type=1 range=-5,10 decimals=2 step=3 alignment=4 initial=7 edit_window_index=8 "
        "spin_function_id=12 spin_width=16");
    EXPECT_EQ(resultOf("1 -5 10\n2 3 4 7\n8 12 16"), 1);
}

TEST(SpinEditRecord, FloatFieldsAreReals)
{
    EXPECT_EQ(spinEdit("2 -0.5 1.5\n1 0.1 3 0.7\n8 12 16"),
        "data_type=2 range=-0.5,1.5 decimals=1 step=0.1 alignment=3 initial=0.7 edit_window_index=8 "
        "spin_function_id=12 spin_width=16");
    EXPECT_EQ(resultOf("2 -0.5 1.5\n1 0.1 3 0.7\n8 12 16"), 1);
}

TEST(SpinEditRecord, NothingIsReadBehindAnUnknownTypeAndTextsAreOne)
{
    for (const std::string type : { "0", "3", "4", "-1" }) {
        EXPECT_EQ(spinEdit(type + " 1 9\n2 3 4 7\n8 12 16"),
            "data_type=" + type
                + " range=0,0 decimals=0 step=0 alignment=2 initial=0 edit_window_index=0 spin_function_id=0 "
                  "spin_width=0");
        EXPECT_EQ(resultOf(type + " 1 9\n2 3 4 7\n8 12 16"), 0);
    }
}

TEST(SpinEditRecord, DefaultsWhereNothingCanBeRead)
{
    EXPECT_EQ(spinEdit(""),
        "data_type=1 range=0,0 decimals=0 step=0 alignment=2 initial=0 edit_window_index=0 "
        "spin_function_id=0 spin_width=0");
    EXPECT_EQ(resultOf(""), 1);
}
