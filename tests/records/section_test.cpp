#include "baselib/gbk_texts.h"
#include "controls/labels/label_record.h"
#include "controls/lists/tree_record.h"
#include "editing/seen_sections.h"
#include "records/section.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

// Reads the label section of a description.
struct LabelsCL
{
    explicit LabelsCL(const std::string& utf8)
    {
        const DescriptionFileCL file(utf8);
        VrIOCL io;
        io.OpenM(file.path(), "r");
        status = slReadSection(io, records, &count);
    }
    DVrLabelArr records;
    int count { -1 };
    SectionStatus status;
};

} // namespace

TEST(Section, MissingHeaderLeavesTheKindAbsent)
{
    const LabelsCL labels("[版本号]\n1\n");
    EXPECT_EQ(labels.status, SectionStatus::Missing);
    EXPECT_EQ(labels.records.GetBoundM(), 0);
}

TEST(Section, UnopenedReaderFindsNothing)
{
    VrIOCL io;
    io.OpenM("no such file", "r");
    DVrLabelArr records;
    int count = -1;
    EXPECT_EQ(slReadSection(io, records, &count), SectionStatus::Missing);
    EXPECT_EQ(count, 0);
}

TEST(Section, CountOfZeroEndsTheSectionWhateverFollows)
{
    EXPECT_EQ(LabelsCL("[标题]\n0\n任何文字 [ ] 5\n1 1 1 1\n").status, SectionStatus::Empty);
    EXPECT_EQ(LabelsCL("[标题]\n-1\n").status, SectionStatus::Empty);
}

TEST(Section, UnreadableCountIsZero)
{
    EXPECT_EQ(LabelsCL("[标题]\nabc\n").status, SectionStatus::Empty);
}

TEST(Section, CountBeyondTheFilesBytesIsBroken)
{
    EXPECT_EQ(
        LabelsCL("[标题]\n2000000000\n0\n1 2 3 4 5 6 1\ntext\n0 -1 0 0\n").status, SectionStatus::Broken);
    EXPECT_EQ(LabelsCL("[标题]\n4\n\n\n").status, SectionStatus::Broken); // Three bytes are left behind it.
    EXPECT_EQ(LabelsCL("[标题]\n3\n\n\n").status, SectionStatus::Read);
}

TEST(Section, ShortSectionStillYieldsAsManyRecordsAsItsCountSays)
{
    LabelsCL labels("[标题]\n3\n0\n1 11 2 3 4 5 3\n文字\n1 255 0 0\n2 12 7\n");
    ASSERT_EQ(labels.status, SectionStatus::Read);
    ASSERT_EQ(labels.records.GetAvailableNumM(), 3);
    EXPECT_EQ(labels.records[0].GetFuncIDM(), 11);
    EXPECT_EQ(labels.records[1].GetFuncIDM(), 12);
    EXPECT_EQ(labels.records[1].GetPositionM()[0], 7);
    EXPECT_EQ(labels.records[1].GetPositionM()[1], 0); // Not that of the record before it.
    EXPECT_EQ(labels.records[2].GetFuncIDM(), 0);
}

TEST(Section, CommentLinesAreSkippedUnread)
{
    LabelsCL labels("[标题]\n1 注释\n2\n7 7 7\n[标题] 99\n1 11 2 3 4 5 1\ntext\n0 -1 0 0\n");
    ASSERT_EQ(labels.records.GetAvailableNumM(), 1);
    EXPECT_EQ(labels.records[0].GetFuncIDM(), 11);
}

TEST(Section, HugeOrNegativeCommentCountsNeitherOverflowNorHang)
{
    EXPECT_EQ(LabelsCL("[标题]\n1\n2147483647\n1 11 2 3 4 5 1\n").records[0].GetFuncIDM(), 0);
    EXPECT_EQ(LabelsCL("[标题]\n1\n-5 1 11 2 3 4 5 1\n").records[0].GetFuncIDM(), 11);
}

TEST(Section, SectionBeforeTheDialogHeaderIsFound)
{
    LabelsCL labels("[标题]\n1\n0\n1 11 2 3 4 5 1\ntext\n0 -1 0 0\n[版本号]\n1\n[对话框]\n0\n");
    EXPECT_EQ(labels.records.GetAvailableNumM(), 1);
}

namespace {

// Two plain records, and text behind them that belongs to nobody.
const std::string Labels = "[标题]\n2\n0\n1 11 2 3 4 5 1\nfirst\n0 1 2 3\n2 12 6 -7 8 9 3\nNULL\n1 -1 0 0\n";
const std::string StrayText = "stray 5 6\n7 text\n";

// What is read of the section and of a tree behind the stray text, as an application has it.
std::string fieldsRead(const std::string& utf8, ReadObserverCL* observer)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    io.SetObserverM(observer);
    std::string all;
    const auto add = [&](auto&& records) {
        int count = 0;
        all += std::to_string(static_cast<int>(slReadSection(io, records, &count))) + "\n";
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            all += printedFields(records.ElementAtM(i)) + "\n";
        }
    };
    add(DVrLabelArr());
    add(DVrTreeArr());
    return all;
}

} // namespace

TEST(Section, PlainOneBeforeStrayTextReadsTheSameWithAnObserverAndWithout)
{
    const std::string tree = std::string(slGbkToUtf8(TreeHeader)) + "\n1\n0\n3 13 1 1 9 9\n"
        + slGbkToUtf8(TreeDataHeader)
        + "\n2\n0\n13 0 7 1234567 item\na.bmp\nb.bmp\n13 7 8 12345678 other\nc\nd\n";
    for (const std::string& text : { Labels + StrayText + tree, Labels + "5" + StrayText + tree }) {
        const std::string alone = fieldsRead(text, nullptr);
        EXPECT_NE(alone.find("12345678"), std::string::npos);
        ReadObserverCL nobody;
        EXPECT_EQ(fieldsRead(text, &nobody), alone);
        SeenSectionsCL seen;
        EXPECT_EQ(fieldsRead(text, &seen), alone);
        const SeenSectionCL& labels = seen.AtM(slGrammarOf(LabelHeader));
        EXPECT_EQ(labels.RecordsM(), 2);
        EXPECT_EQ(labels.values.size(), 24U);
        const std::string bytes = slUtf8ToGbk(text);
        EXPECT_EQ(bytes.substr(labels.head.follows.begin, 5),
            text == Labels + StrayText + tree ? "stray" : "5stra");
    }
}

TEST(Section, PlainOneBeforeStrayTextIsKnownAsPlainByItsLastRecordAlone)
{
    const std::string bytes = slUtf8ToGbk(Labels + StrayText);
    const int grammar = slGrammarOf(LabelHeader);
    SeenSectionsCL all;
    SeenSectionsCL last;
    last.KeepLastM(grammar);
    for (SeenSectionsCL* const seen : { &all, &last }) {
        VrIOCL io;
        io.OpenM(std::make_shared<FileTextCL>(bytes));
        io.SetObserverM(seen);
        int number = 0;
        slEachRecordRead<DVrLabelArr>(io, [&number](int i, DVrLabelCL& label) {
            EXPECT_EQ(i, number++);
            EXPECT_EQ(label.GetFuncIDM(), 11 + i);
        });
        EXPECT_EQ(number, 2);
        seen->AtM(grammar).regionEnd = bytes.size();
    }
    const SeenSectionCL& section = last.AtM(grammar);
    EXPECT_TRUE(section.IsPlainM());
    EXPECT_EQ(section.head.end, all.AtM(grammar).head.end);
    const SeenValueCL* whole = all.AtM(grammar).FirstM(1);
    ASSERT_EQ(section.values.size(), 12U);
    for (const SeenValueCL& value : section.values) {
        EXPECT_STREQ(value.field, whole->field);
        EXPECT_EQ(value.part, whole->part);
        EXPECT_EQ(value.begin, whole->begin);
        EXPECT_EQ(value.end, whole->end);
        EXPECT_EQ(value.fate, whole++->fate);
    }
    // Without its last number the stray text is taken for it: no longer plain.
    SeenSectionsCL lacking;
    lacking.KeepLastM(grammar);
    VrIOCL io;
    io.OpenM(std::make_shared<FileTextCL>(slUtf8ToGbk(Labels.substr(0, Labels.size() - 2) + StrayText)));
    io.SetObserverM(&lacking);
    slEachRecordRead<DVrLabelArr>(io, [](int, DVrLabelCL&) {});
    lacking.AtM(grammar).regionEnd = bytes.size();
    EXPECT_FALSE(lacking.AtM(grammar).IsPlainM());
}

namespace {

// A kind with a secondary section, for the walk alone.
class NoteCL : public RecordCL<NoteCL>
{
public:
    using RecordCL::RecordCL;
    void EachFieldM(FieldVisitorCL&) { }
    CharArr notes;
};

void noteRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.IntM("number", row.numbers[0]);
    visitor.CaptionM("text", *row.texts[0], NullWord::SkipsEntry);
}

void attachNote(NoteCL& record, const RowCL& row)
{
    const std::string all
        = record.notes.TextM() + std::to_string(row.numbers[0]) + row.texts[0]->TextM() + ";";
    record.notes.SetM(all.c_str());
}

class NoteArr : public RecordArr<NoteCL>
{
public:
    static constexpr const char* Header = "[notes]";
    static constexpr std::array<SecondarySectionCL<NoteCL>, 1> Secondaries {
        { { "[more]", noteRow, attachNote } }
    };
};

SectionStatus readNotes(const std::string& bytes, NoteArr& notes)
{
    const TempFile file(bytes);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    int count = 0;
    return slReadSection(io, notes, &count);
}

const std::string TwoNotes = "[notes]\n2\n0\n1 7 0 0 1 1\n2 8 0 0 1 1\n";

} // namespace

TEST(SecondarySection, MissingOneLeavesTheRecordsButIsIncomplete)
{
    NoteArr notes;
    EXPECT_EQ(readNotes(TwoNotes, notes), SectionStatus::Incomplete);
    EXPECT_EQ(notes.GetAvailableNumM(), 2);
}

TEST(SecondarySection, BrokenOneCountsAsMissing)
{
    NoteArr notes;
    EXPECT_EQ(readNotes(TwoNotes + "[more]\n1000\n0\n7 1 a\n", notes), SectionStatus::Incomplete);
    EXPECT_STREQ(notes[0].notes.TextM(), "");
}

TEST(SecondarySection, EmptyOneIsComplete)
{
    NoteArr notes;
    EXPECT_EQ(readNotes(TwoNotes + "[more]\n0\n", notes), SectionStatus::Read);
}

TEST(SecondarySection, EntriesGoToTheFirstRecordWithTheirIdInFileOrder)
{
    NoteArr notes;
    EXPECT_EQ(readNotes("[notes]\n3\n0\n1 7 0 0 1 1\n2 8 0 0 1 1\n3 7 0 0 1 1\n"
                        "[more]\n4\n1\ncomment\n8 5 e\n7 1 a\n9 1 nobody\n7 1 a\n",
                  notes),
        SectionStatus::Read);
    EXPECT_STREQ(notes[0].notes.TextM(), "1a;1a;");
    EXPECT_STREQ(notes[1].notes.TextM(), "5e;");
    EXPECT_STREQ(notes[2].notes.TextM(), "");
}

TEST(SecondarySection, NullWordsSkipTheEntryAndOtherSpellingsDoNot)
{
    NoteArr notes;
    readNotes(TwoNotes + "[more]\n4\n0\n7 1 NULL\n7 2 null\n7 3 Null\n7 4 NULLx\n", notes);
    EXPECT_STREQ(notes[0].notes.TextM(), "3Null;4NULLx;");
}

TEST(SecondarySection, EntryThatEndsEarlyHasZeroAndEmptyTextNotThePreviousOnes)
{
    NoteArr notes;
    readNotes("[notes]\n2\n0\n1 0 0 0 1 1\n2 8 0 0 1 1\n[more]\n2\n0\n8 5 e\n", notes);
    EXPECT_STREQ(notes[0].notes.TextM(), "0;");
    EXPECT_STREQ(notes[1].notes.TextM(), "5e;");
}
