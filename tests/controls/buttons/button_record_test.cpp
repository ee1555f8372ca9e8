#include "controls/buttons/check_box_record.h"
#include "controls/buttons/radio_box_record.h"
#include "controls/buttons/standard_button_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(ButtonRecords, NullWordsAreCaptionsLikeAnyOther)
{
    EXPECT_EQ(printed<DVrStandardButtonCL>("1 11 2 3 4 5\nNULL\n0\n"), "caption=NULL default_button=0");
    EXPECT_EQ(printed<DVrRadioBoxCL>("1 11 2 3 4 5 0 0\nnull\n"), "group=0 checked=0 caption=null");
    EXPECT_EQ(printed<DVrCheckBoxCL>("1 11 2 3 4 5 0\nNULL\n"), "checked=0 caption=NULL");
}

TEST(ButtonRecords, CaptionIsOneLineCutAtACharacter)
{
    std::string text = "a b";
    for (int i = 0; i < 130; ++i) {
        text += "中";
    }
    // 3 + 128 * 2 = 259 bytes fit.
    const std::string fitting = text.substr(0, 3 + 128 * 3);
    EXPECT_EQ(printed<DVrStandardButtonCL>("1 11 2 3 4 5\n" + text + "\n1\n"),
        "caption=" + fitting + " default_button=1");
    EXPECT_EQ(
        printed<DVrRadioBoxCL>("1 11 2 3 4 5 7 1\n" + text + "\n"), "group=7 checked=1 caption=" + fitting);
    EXPECT_EQ(printed<DVrCheckBoxCL>("1 11 2 3 4 5 1\n" + text + "\n"), "checked=1 caption=" + fitting);
}
