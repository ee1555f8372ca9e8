#include "controls/labels/label_record.h"
#include "support/description.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

std::string label(const std::string& own)
{
    return printed<DVrLabelCL>("1 11 2 3 4 5 " + own);
}

} // namespace

TEST(LabelRecord, FieldsStandInFileOrder)
{
    EXPECT_EQ(label("3\n最大转速\n1 255 128 0\n"), "alignment=3 text=最大转速 edge=1 background=255,128,0");
}

TEST(LabelRecord, DefaultsWhereNothingCanBeRead)
{
    EXPECT_EQ(label(""), "alignment=1 text= edge=0 background=off");
}

TEST(LabelRecord, NullWordsAreTheEmptyTextAndOtherSpellingsStay)
{
    EXPECT_EQ(label("1\nNULL\n0 -1 0 0"), "alignment=1 text= edge=0 background=off");
    EXPECT_EQ(label("1\nnull\n0 -1 0 0"), "alignment=1 text= edge=0 background=off");
    EXPECT_EQ(label("1\nNull\n0 -1 0 0"), "alignment=1 text=Null edge=0 background=off");
}

TEST(LabelRecord, NegativeRedLeavesTheBackgroundOff)
{
    EXPECT_EQ(label("1\nx\n0 -1 5 5"), "alignment=1 text=x edge=0 background=off");
}

TEST(LabelRecord, ColourTakesTheLowByteOfEachComponentAndKeepsUnreadOnes)
{
    EXPECT_EQ(label("1\nx\n0 300 -1 2"), "alignment=1 text=x edge=0 background=44,255,2");
    EXPECT_EQ(label("1\nx\n0 1 x"), "alignment=1 text=x edge=0 background=1,191,191");
}

TEST(LabelRecord, TextIsCutAtACharacterBoundary)
{
    std::string text = "x";
    for (int i = 0; i < 130; ++i) {
        text += "中";
    }
    // 1 + 129 * 2 = 259 bytes fit; the last character does not.
    EXPECT_EQ(label("1\n" + text + "\n1 -1 0 0"),
        "alignment=1 text=" + text.substr(0, text.size() - 3) + " edge=1 background=off");
}
