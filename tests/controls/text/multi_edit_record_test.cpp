#include "controls/text/multi_edit_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

std::string multiEdit(const std::string& own)
{
    return printed<DVrMultiEditCL>("1 11 2 3 4 5 " + own);
}

} // namespace

TEST(MultiEditRecord, FieldsStandInFileOrder)
{
    EXPECT_EQ(multiEdit("3 40\n说明 文字\n1 0 255 300 1\n"),
        "alignment=3 max_characters=40 text=说明 文字 read_only=1 edge=0 colour=255,44,1");
}

TEST(MultiEditRecord, DefaultsWhereNothingCanBeRead)
{
    EXPECT_EQ(multiEdit(""), "alignment=1 max_characters=0 text= read_only=0 edge=1 colour=255,255,255");
}

TEST(MultiEditRecord, NullWordsAreTheEmptyTextAndOtherSpellingsStay)
{
    for (const char* word : { "NULL", "null" }) {
        EXPECT_EQ(multiEdit("2 9\n" + std::string(word) + "\n0 1 0 0 0"),
            "alignment=2 max_characters=9 text= read_only=0 edge=1 colour=0,0,0");
    }
    EXPECT_EQ(multiEdit("2 9\nNull\n0 1 0 0 0"),
        "alignment=2 max_characters=9 text=Null read_only=0 edge=1 colour=0,0,0");
}
