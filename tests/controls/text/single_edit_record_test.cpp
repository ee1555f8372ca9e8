#include "controls/text/single_edit_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

std::string edit(const std::string& own)
{
    return printed<DVrSingleEditCL>("1 11 2 3 4 5 " + own);
}

int result(const std::string& own)
{
    const DescriptionFileCL file("1 11 2 3 4 5 " + own);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrSingleEditCL record(AliveTag);
    return record.FmReadInterfaceM(&io);
}

const char* const Defaults
    = "data_type=1 range=0,0 decimals=0 password=0 alignment=2 initial=0 read_only=0 edge=1 "
      "colour=255,255,255";

} // namespace

TEST(SingleEditRecord, FieldsOfAnIntegerStandInFileOrder)
{
    const std::string own = "1 -5 100 2 1 3 42 1 0 255 128 1";
    EXPECT_EQ(edit(own),
        "data_type=1 range=-5,100 decimals=2 password=1 alignment=3 initial=42 read_only=1 edge=0 "
        "colour=255,128,1");
    EXPECT_EQ(result(own), 1);
}

TEST(SingleEditRecord, ARealHasRealRangeAndInitialValue)
{
    EXPECT_EQ(edit("2 -0.5 9.25 2 0 4 1.75 0 1 1 2 3"),
        "data_type=2 range=-0.5,9.25 decimals=2 password=0 alignment=4 initial=1.75 read_only=0 edge=1 "
        "colour=1,2,3");
}

TEST(SingleEditRecord, ATextHasIntegerRangeAndItsInitialValueEndsTheLine)
{
    EXPECT_EQ(edit("3 2 5 0 0 2\n最大 转速 \n1 0 1 2 3"),
        "data_type=3 range=2,5 decimals=0 password=0 alignment=2 initial=最大 转速 read_only=1 edge=0 "
        "colour=1,2,3");
    EXPECT_EQ(edit("3 2 5 0 0 2\nnull\n"),
        "data_type=3 range=2,5 decimals=0 password=0 alignment=2 initial=null read_only=0 edge=1 "
        "colour=255,255,255");
}

TEST(SingleEditRecord, InitialTextIsCutAtACharacter)
{
    std::string text = "x";
    for (int i = 0; i < 130; ++i) {
        text += "中";
    }
    EXPECT_NE(edit("3 2 5 0 0 2\n" + text + "\n1 1 1 2 3")
                  .find("initial=" + text.substr(0, text.size() - 3) + " read_only=1"),
        std::string::npos);
}

TEST(SingleEditRecord, DefaultsWhereNothingCanBeRead)
{
    EXPECT_EQ(edit(""), Defaults);
    EXPECT_EQ(edit("1 x"), Defaults);
    EXPECT_EQ(result(""), 1);
}

TEST(SingleEditRecord, ReadingStopsBehindAnUnknownType)
{
    const std::string own = "4 1 2 3 1 3 42 1 0 1 2 3";
    EXPECT_EQ(edit(own), "data_type=4" + std::string(Defaults).substr(11));
    EXPECT_EQ(result(own), 0);
    EXPECT_EQ(result("0 1 2"), 0);
    EXPECT_EQ(result("-1 1 2"), 0);

    const DescriptionFileCL file("1 11 2 3 4 5 9 77");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrSingleEditCL record(AliveTag);
    record.FmReadInterfaceM(&io);
    int next = 0;
    io.InputDM(&next);
    EXPECT_EQ(next, 77);
}

TEST(SingleEditRecord, TheRestOfTheSectionIsReadOnFromThere)
{
    const DescriptionFileCL file("[单行文本]\n2\n0\n1 11 2 3 4 5 9\n2 12 6 7 8 9 1 0 5 0 0 2 3 0 1 1 2 3\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrSingleEditArr records;
    int count = 0;
    EXPECT_EQ(slReadSection(io, records, &count), SectionStatus::Read);
    ASSERT_EQ(records.GetAvailableNumM(), 2);
    EXPECT_EQ(records.ElementAtM(0).GetFuncIDM(), 11);
    EXPECT_EQ(records.ElementAtM(1).GetFuncIDM(), 12);
    EXPECT_EQ(printedFields(records.ElementAtM(1)),
        "data_type=1 range=0,5 decimals=0 password=0 alignment=2 initial=3 read_only=0 edge=1 "
        "colour=1,2,3");
}
