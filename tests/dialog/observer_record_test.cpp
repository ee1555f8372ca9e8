// What the observer of a reader is told.
#include "controls/labels/label_record.h"
#include "controls/lists/text_list_box_record.h"
#include "controls/text/single_edit_record.h"
#include "dialog/dialog_header.h"
#include "support/description.h"
#include "support/seen_file.h"
#include <gtest/gtest.h>

namespace {

const char* nameOf(Fate fate)
{
    static const char* const Names[]
        = { "read", "saturated", "cut", "null word", "not a number", "missing", "not looked at" };
    return Names[static_cast<int>(fate)];
}

// A file (UTF-8) and what its reading by read(io) tells.
struct ToldCL
{
    template <class ReadTP>
    ToldCL(const std::string& utf8, ReadTP&& read)
        : file(std::make_shared<const FileTextCL>(slUtf8ToGbk(utf8)))
    {
        VrIOCL io;
        io.OpenM(file);
        io.SetObserverM(&seen);
        read(io);
    }
    std::string textM(SpanCL span) const
    {
        const std::string bytes(file->CutM(span));
        return slGbkToUtf8(bytes.c_str());
    }
    // "line:column fate 'text'" of one value.
    std::string valueM(const std::string& section, int record, const std::string& field, int part = 0) const
    {
        const auto values = seen.values.find({ section, record });
        if (values != seen.values.end()) {
            for (const ValueSeenCL& value : values->second) {
                if (value.field == field && value.part == part) {
                    const PlaceCL place = file->PlaceM(value.span.begin);
                    return std::to_string(place.line) + ":" + std::to_string(place.column) + " "
                        + nameOf(value.fate) + " '" + textM(value.span) + "'";
                }
            }
        }
        return "untold";
    }
    std::shared_ptr<const FileTextCL> file;
    SeenFileCL seen;
};

template <class RecordArrTP> ToldCL toldOf(const std::string& utf8)
{
    return ToldCL(utf8, [](VrIOCL& io) {
        RecordArrTP records;
        int count = 0;
        slReadSection(io, records, &count);
    });
}

} // namespace

TEST(ReadObserver, EachValueIsToldWithItsPlaceAndFate)
{
    const ToldCL told
        = toldOf<DVrLabelArr>("[标题]\n2\n1\n注释\n1 11 20 99999999999 80 y 3\n文本  \n1 255 128 0\n"
                              "2 12 5\nnull\n");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "window_index"), "5:1 read '1'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "position", 0), "5:6 read '20'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "position", 1), "5:9 saturated '99999999999'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "size", 1), "5:24 not a number 'y'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "alignment"), "5:24 not a number 'y'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "text"), "5:24 read 'y 3'");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "edge"), "6:1 not a number '文本'");
    EXPECT_EQ(told.valueM(LabelHeader, 1, "text"), "6:1 read '文本'");
    EXPECT_EQ(told.valueM(LabelHeader, 1, "background", 2), "7:11 read '0'");
}

TEST(ReadObserver, NullWordsLongTextsAndTheEndOfTheFileAreToldApart)
{
    const std::string text(300, 'x');
    const ToldCL told
        = toldOf<DVrLabelArr>("[标题]\n2\n0\n1 2 3 4 5 6 1\nnull\n0 0 0 0\n1 2 3 4 5 6 1\n" + text + "\n1");
    EXPECT_EQ(told.valueM(LabelHeader, 0, "text"), "5:1 null word 'null'");
    EXPECT_EQ(told.valueM(LabelHeader, 1, "text"), "8:1 cut '" + text + "'");
    EXPECT_EQ(told.valueM(LabelHeader, 1, "edge"), "9:1 read '1'");
    EXPECT_EQ(told.valueM(LabelHeader, 1, "background"), "9:2 missing ''");
}

TEST(ReadObserver, ValuesBehindAnUnknownDataTypeAreNotLookedAt)
{
    const ToldCL told = toldOf<DVrSingleEditArr>("[单行文本]\n1\n0\n1 2 3 4 5 6 4 7 8\n");
    EXPECT_EQ(told.valueM(SingleEditHeader, 0, "data_type"), "4:13 read '4'");
    EXPECT_EQ(told.valueM(SingleEditHeader, 0, "range", 1), "4:15 not looked at ''");
    EXPECT_EQ(told.valueM(SingleEditHeader, 0, "colour", 2), "4:15 not looked at ''");
}

TEST(ReadObserver, EntriesThatNoRecordTakesAreToldWithTheReason)
{
    const ToldCL told = toldOf<DVrTextListBoxArr>("[文本列表框]\n1\n0\n1 12 0 0 9 9 16 1 1 2 2 2 0\n"
                                                  "[文本列表框初始值]\n4\n0\n12 一\n13 二\n12 NULL\n x 三\n");
    ASSERT_EQ(told.seen.dropped.size(), 3U);
    const EntryDroppedCL* const dropped = told.seen.dropped.data();
    EXPECT_STREQ(dropped[0].section, TextListBoxItemHeader);
    EXPECT_EQ(dropped[0].entry, 1);
    EXPECT_EQ(dropped[0].fault, EntryFault::UnknownId);
    EXPECT_EQ(told.textM(dropped[0].span), "13 二");
    EXPECT_EQ(dropped[1].fault, EntryFault::NullWord);
    EXPECT_EQ(told.textM(dropped[1].span), "12 NULL");
    EXPECT_EQ(told.textM(dropped[2].span), "x 三");
    EXPECT_EQ(told.valueM(TextListBoxItemHeader, 0, "text"), "8:4 read '一'");
    EXPECT_EQ(told.valueM(TextListBoxItemHeader, 2, "text"), "10:4 null word 'NULL'");
}

TEST(ReadObserver, SectionIsToldWithItsHeadItsEndAndWhatFollows)
{
    const ToldCL told = toldOf<DVrLabelArr>(
        "前 [标题]\r\n 1 个\r\n2 行\r\n甲\r\n乙\r\n1 2 3 4 5 6 1\r\nt\r\n0 -1 0 0 \r\n\r\n"
        "余下 的\r\n[x]\r\n");
    ASSERT_EQ(told.seen.sections.size(), 1U);
    const SectionSeenCL& section = told.seen.sections[0];
    EXPECT_EQ(section.status, SectionStatus::Read);
    EXPECT_EQ(section.count, 1);
    EXPECT_EQ(told.textM(section.headerSpan), "[标题]");
    EXPECT_EQ(told.file->PlaceM(section.headerSpan.begin).column, 3U);
    EXPECT_EQ(told.textM(section.countSpan), "1");
    EXPECT_EQ(told.textM(section.countLine), " 1 个");
    EXPECT_EQ(told.textM(section.commentCount), "2");
    EXPECT_EQ(told.textM(section.comments), "甲\r\n乙\r\n");
    EXPECT_EQ(told.file->PlaceM(section.end).line, 8U);
    EXPECT_EQ(told.textM(section.follows), "余下 的");
}

TEST(ReadObserver, SectionsThatCannotBeReadAreToldToo)
{
    const auto statusOf = [](const std::string& utf8) {
        const ToldCL told = toldOf<DVrLabelArr>(utf8);
        EXPECT_EQ(told.seen.sections.size(), 1U);
        EXPECT_TRUE(told.seen.values.empty());
        return told.seen.sections.front().status;
    };
    EXPECT_EQ(statusOf(""), SectionStatus::Missing);
    EXPECT_EQ(statusOf("[标题]\nx\n"), SectionStatus::Empty);
    EXPECT_EQ(statusOf("[标题]\n99\n0\n"), SectionStatus::Broken);
}

TEST(ReadObserver, DialogHeaderIsToldAsTwoSections)
{
    const ToldCL told("[版本号]\n1.0\n[对话框]\n1\n注释\n1 2\n3 4\n1\n标题 一\n12 2 4\nNULL", [](VrIOCL& io) {
        DialogHeaderCL header;
        slReadDialogHeader(io, header);
    });
    ASSERT_EQ(told.seen.sections.size(), 2U);
    EXPECT_EQ(told.textM(told.seen.sections[0].follows), "1.0");
    EXPECT_EQ(told.textM(told.seen.sections[1].comments), "注释\n");
    EXPECT_EQ(told.valueM(DialogHeader, 0, "size", 1), "7:3 read '4'");
    EXPECT_EQ(told.valueM(DialogHeader, 0, "title"), "9:1 read '标题 一'");
    EXPECT_EQ(told.valueM(DialogHeader, 0, "background"), "11:1 null word 'NULL'");
}

TEST(ReadObserver, WhatIsReadIsTheSameWithAndWithoutOne)
{
    const std::string text = "[标题]\n2\n0\n1 11 20 x\n2 12 5 99999999999\nnull\n1";
    const auto read = [&text](ReadObserverCL* observer) {
        VrIOCL io;
        io.OpenM(std::make_shared<const FileTextCL>(slUtf8ToGbk(text)));
        io.SetObserverM(observer);
        DVrLabelArr records;
        int count = 0;
        slReadSection(io, records, &count);
        return std::to_string(records[0].GetFuncIDM()) + " " + std::to_string(records[1].GetPositionM()[0])
            + " " + std::to_string(io.PositionM());
    };
    SeenFileCL seen;
    EXPECT_EQ(read(nullptr), read(&seen));
}

TEST(ReadObserver, LongWordIsToldShortForEachOfTheManyValuesLookedForThere)
{
    const ToldCL told = toldOf<DVrLabelArr>("[标题]\n1\n0\n" + std::string(3000000, 'w'));
    const ValueSeenCL& last = told.seen.values.at({ LabelHeader, 0 }).back();
    EXPECT_EQ(last.fate, Fate::Missing); // Behind the text, which took all.
    const ValueSeenCL& first = told.seen.values.at({ LabelHeader, 0 }).front();
    EXPECT_EQ(first.fate, Fate::NotANumber);
    EXPECT_EQ(first.span.end - first.span.begin, 259U);
}
