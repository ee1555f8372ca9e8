// Counts that a section can't fill: where the line is drawn, for every kind and further section.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/kinds.h"
#include "support/description.h"
#include <gtest/gtest.h>
#include <map>

namespace {

// Above this a count is judged by what it takes.
constexpr int FreeCount = 1000;

// A file whose last section says `count`, followed by `left` bytes: no comment lines, then blank lines.
std::string sectionOf(const std::string& header, int count, std::size_t left)
{
    return header + "\n" + std::to_string(count) + "\n0" + std::string(left - 2, '\n');
}

template <class RecordArrTP> SectionStatus statusOf(const std::string& gbk, RecordArrTP& records)
{
    const TempFile file(gbk);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    int count = 0;
    const SectionStatus status = slReadSection(io, records, &count);
    EXPECT_EQ(count > 0, status == SectionStatus::Read || status == SectionStatus::Incomplete);
    return status;
}

// How many bytes a value takes at least: itself and what parts it from the next.
constexpr std::size_t ValueSize = 2;

std::size_t bytesOf(int count, int values)
{
    return static_cast<std::size_t>(count) * static_cast<std::size_t>(values) * ValueSize;
}

// The values of a kind's shortest record, the six common ones among them. Edits end at an unknown data type.
const std::map<std::string, int> ValuesOfKind { { "normal_animation", 10 }, { "special_animation", 8 },
    { "label", 12 }, { "single_edit", 7 }, { "multi_edit", 14 }, { "spin_edit", 7 }, { "text_list_box", 13 },
    { "bitmap_list_box", 10 }, { "combo_box", 7 }, { "list_control", 8 }, { "standard_button", 8 },
    { "radio_button", 9 }, { "check_box", 8 }, { "bitmap_button", 11 }, { "multi_state_button", 8 },
    { "group_box", 7 }, { "rotate_button", 23 }, { "tree", 6 }, { "drawing", 9 } };

// The values of an entry of each further section.
const std::map<std::string, int> ValuesOfSection { { NormalAnimateBitmapHeader, 2 },
    { SpecAnimateBitmapHeader, 2 }, { MultiStateButtonDataHeader, 3 }, { BmpListBoxBitmapHeader, 2 },
    { ComboBoxItemHeader, 2 }, { ListCtrlTitleHeader, 4 }, { ListCtrlItemHeader, 4 },
    { TextListBoxItemHeader, 2 }, { TreeDataHeader, 7 } };

} // namespace

TEST(Counts, MainSectionOfEachKindTakesWhatItsBytesCanHold)
{
    slEachKind([](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        SCOPED_TRACE(RecordsTP::KindName);
        const int values = ValuesOfKind.at(RecordsTP::KindName);
        for (const int count : { FreeCount + 1, 4321 }) {
            const std::size_t enough = bytesOf(count, values);
            RecordsTP records;
            EXPECT_NE(statusOf(sectionOf(RecordsTP::Header, count, enough), records), SectionStatus::Broken);
            EXPECT_EQ(records.GetAvailableNumM(), count);
            RecordsTP none;
            EXPECT_EQ(statusOf(sectionOf(RecordsTP::Header, count, enough - 1), none), SectionStatus::Broken);
            EXPECT_EQ(none.GetBoundM(), 0);
        }
    });
}

TEST(Counts, SmallOnesNeedNoMoreBytesThanRecords)
{
    slEachKind([](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        SCOPED_TRACE(RecordsTP::KindName);
        RecordsTP records;
        EXPECT_NE(
            statusOf(sectionOf(RecordsTP::Header, FreeCount, FreeCount), records), SectionStatus::Broken);
        EXPECT_EQ(records.GetAvailableNumM(), FreeCount);
        RecordsTP none;
        EXPECT_EQ(
            statusOf(sectionOf(RecordsTP::Header, FreeCount, FreeCount - 1), none), SectionStatus::Broken);
    });
}

TEST(Counts, FurtherSectionsTakeWhatTheirBytesCanHold)
{
    slEachKind([](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        for (const auto& section : RecordsTP::Secondaries) {
            SCOPED_TRACE(section.header);
            std::string before = std::string(RecordsTP::Header) + "\n1\n0\n1 7 0 0 9 9\n";
            for (const auto& other : RecordsTP::Secondaries) {
                before += &other != &section ? std::string(other.header) + "\n0\n" : "";
            }
            const int count = FreeCount + 1;
            const std::size_t enough = bytesOf(count, ValuesOfSection.at(section.header));
            RecordsTP records;
            EXPECT_EQ(
                statusOf(before + sectionOf(section.header, count, enough), records), SectionStatus::Read);
            RecordsTP others;
            EXPECT_EQ(statusOf(before + sectionOf(section.header, count, enough - 1), others),
                SectionStatus::Incomplete);
            EXPECT_EQ(others.GetAvailableNumM(), 1);
        }
    });
}

namespace {

// Both sections of the new rotate buttons, the buttons' last, so that its bytes are those left. numbers are
// those below the header.
int newRotateButtons(const std::string& numbers, std::size_t left, int* found)
{
    const TempFile file(std::string(NewRotateBtnBitmapHeader) + "\n0 1\n" + NewRotateBtnHeader + "\n"
        + numbers + std::string(left, '\n'));
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrNewRotateBtnArr records;
    const int result = records.FmReadInterfaceM(&io);
    *found = records.GetAvailableNumM();
    return result;
}

} // namespace

TEST(Counts, NewRotateButtonsTakeWhatTheirBytesCanHoldByTheColumnsTheyHave)
{
    struct
    {
        std::string numbers;
        int values;
    } const forms[] = { { "1001 0", 10 }, { "1001 -1", 11 }, { "-1001 0", 11 }, { "-1001 -1", 12 } };
    for (const auto& form : forms) {
        SCOPED_TRACE(form.numbers);
        const std::size_t enough = bytesOf(1001, form.values);
        int found = 0;
        EXPECT_EQ(newRotateButtons(form.numbers, enough, &found), 1);
        EXPECT_EQ(found, 1001);
        EXPECT_EQ(newRotateButtons(form.numbers, enough - 1, &found), 0);
        EXPECT_EQ(found, 0);
    }
    int found = 0;
    EXPECT_EQ(newRotateButtons("-1000 -1", 1000, &found), 1);
    EXPECT_EQ(found, 1000);
}

TEST(Counts, PicturesOfNewRotateButtonsTakeWhatTheirBytesCanHold)
{
    const auto read = [](int count, std::size_t left) {
        const TempFile file(std::string(NewRotateBtnHeader) + "\n1 1\n1 0 11 0 0 9 9 1 1 0\n"
            + NewRotateBtnBitmapHeader + "\n" + std::to_string(count) + " 1" + std::string(left, '\n'));
        VrIOCL io;
        io.OpenM(file.path(), "r");
        DVrNewRotateBtnArr records;
        const int result = records.FmReadInterfaceM(&io);
        EXPECT_EQ(records.GetAvailableNumM(), 1);
        return result;
    };
    EXPECT_EQ(read(1001, bytesOf(1001, 4)), 1);
    EXPECT_EQ(read(1001, bytesOf(1001, 4) - 1), 0);
    EXPECT_EQ(read(1000, 1000), 1);
    EXPECT_EQ(read(1000, 999), 0);
}
