#include "controls/lists/text_list_box_record.h"
#include "support/printed.h"
#include <chrono>
#include <gtest/gtest.h>

namespace {

const char* Section = "[文本列表框]\n2\n1\n注释\n1 12 0 0 100 80 16 1 1 255 255 255 0\n"
                      "2 12 0 0 100 80 16 1 1 255 255 255 0\n";

// Both sections of a file: status, count, and the fields of each record.
std::string readSection(const std::string& utf8)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrTextListBoxArr records;
    int count = 0;
    const SectionStatus status = slReadSection(io, records, &count);
    std::string text = std::to_string(static_cast<int>(status)) + " " + std::to_string(count);
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        const std::string fields = printedFields(records.ElementAtM(i));
        text += " " + fields.substr(fields.find("items="));
    }
    return text;
}

std::string result(SectionStatus status, const std::string& more)
{
    return std::to_string(static_cast<int>(status)) + more;
}

} // namespace

TEST(TextListBoxRecord, FieldsStandInFileOrder)
{
    EXPECT_EQ(printed<DVrTextListBoxCL>("1 11 2 3 4 5 18 3 0 255 128 0 1\n"),
        "item_height=18 selection_mode=3 edge=0 background=255,128,0 scroll=1 items=");
}

TEST(TextListBoxRecord, DefaultsWhereNothingCanBeRead)
{
    EXPECT_EQ(printed<DVrTextListBoxCL>("1 11 2 3 4 5"),
        "item_height=12 selection_mode=1 edge=1 background=255,255,255 scroll=0 items=");
}

TEST(TextListBoxRecord, LinesGoToTheFirstRecordWithTheirIdInFileOrder)
{
    EXPECT_EQ(readSection(std::string(Section) + "[文本列表框初始值]\n3\n0\n12 一\n99 二\n12 三 四\n"),
        result(SectionStatus::Read, " 2 items=[一][三 四] items="));
}

TEST(TextListBoxRecord, NullWordsAddNoLineAndOtherSpellingsDo)
{
    EXPECT_EQ(readSection(std::string(Section) + "[文本列表框初始值]\n3\n0\n12 NULL\n12 null\n12 Null\n"),
        result(SectionStatus::Read, " 2 items=[Null] items="));
}

TEST(TextListBoxRecord, WithoutTheSectionOfLinesTheRecordsStayAndTheKindIsIncomplete)
{
    EXPECT_EQ(readSection(Section), result(SectionStatus::Incomplete, " 2 items= items="));
    EXPECT_EQ(readSection("[文本列表框]\n0\n"), result(SectionStatus::Empty, " 0"));
}

TEST(TextListBoxRecord, CopiesOfARecordHaveLinesOfTheirOwn)
{
    DVrTextListBoxCL record(AliveTag);
    EXPECT_EQ(record.AddStringM("one"), 1);
    EXPECT_EQ(record.AddStringM(nullptr), 0);
    DVrTextListBoxCL copy(record);
    DVrTextListBoxCL assigned(AliveTag);
    assigned.AddStringM("gone");
    assigned = record;
    for (int i = 0; i < 10; ++i) {
        record.AddStringM("more");
    }
    copy.AddStringM("two");
    assigned.destroyM();
    assigned.AddStringM("three");
    EXPECT_NE(printedFields(copy).find("items=[one][two]"), std::string::npos);
    EXPECT_NE(printedFields(assigned).find("items=[three]"), std::string::npos);
    EXPECT_NE(printedFields(record).find("items=[one][more][more]"), std::string::npos);
}

TEST(TextListBoxRecord, ArrayAddsALineToTheRecordAtAnIndex)
{
    DVrTextListBoxArr records;
    records.AddItemM(DVrTextListBoxCL(AliveTag));
    records.AddItemM(DVrTextListBoxCL(AliveTag));
    EXPECT_EQ(records.AddStringM(1, "x"), 1);
    EXPECT_EQ(records.AddStringM(5, "y"), 1);
    EXPECT_EQ(records.GetAvailableNumM(), 2);
    EXPECT_EQ(printedFields(records.ElementAtM(0)).find("[x]"), std::string::npos);
    EXPECT_NE(printedFields(records.ElementAtM(1)).find("items=[x]"), std::string::npos);
}

TEST(TextListBoxRecord, LinesAreAttachedInLinearTime)
{
    // Copying the list for each line would copy 200,000 * 100,000 lines.
    std::string lines;
    for (int i = 0; i < 200000; ++i) {
        lines += "12 x\n";
    }
    const auto begin = std::chrono::steady_clock::now();
    const std::string read = readSection(std::string(Section) + "[文本列表框初始值]\n200000\n0\n" + lines);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
    EXPECT_EQ(read.size(), result(SectionStatus::Read, " 2 items= items=").size() + 200000 * 3);
}
