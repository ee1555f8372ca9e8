// The room that an observer of reading gives, and the flag of a record whose values were all read whole.
#include "baselib/gbk_texts.h"
#include "controls/labels/label_record.h"
#include "controls/lists/tree_record.h"
#include "records/field_reader.h"
#include "records/section.h"
#include "support/description.h"
#include "support/seen_file.h"
#include <functional>
#include <gtest/gtest.h>

namespace {

constexpr std::size_t ValueCount = 10;
const std::string Plain = "1 2.5 3 4\ntext\n5 6 7 8.5 9";
const std::string Tail = "\nmore of the file, so that its end is far\n";

// Has room for the values of one record after the other.
class RoomyCL : public ReadObserverCL
{
public:
    explicit RoomyCL(std::size_t most = ValueCount)
        : values(most + ValueCount) // Those behind it must stay untouched.
        , most_(most)
    {
    }
    SeenRoomCL* BeginRecordM(const char* section, int record) override
    {
        calls += std::string(section) + std::to_string(record) + " ";
        room = { values.data(), values.data() + most_, true };
        return &room;
    }
    void ValueM(const ValueSeenCL& value) override
    {
        calls += std::string(value.field) + std::to_string(value.part) + " ";
        otherwise.push_back(value);
    }
    std::size_t CountM() const { return static_cast<std::size_t>(room.next - values.data()); }

    SeenRoomCL room;
    std::vector<SeenValueCL> values;
    std::vector<ValueSeenCL> otherwise;
    std::string calls;

private:
    std::size_t most_;
};

// Reads a record with all kinds of values, which begins in the second line, and gives it up behind so many of
// its fields.
void readRecord(const std::string& text, ReadObserverCL& observer, int fields = 7)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>("\n" + text));
    io.SetObserverM(&observer);
    FieldReaderCL reader(&io, "[one]");
    reader.BeginRecordM(7);
    int number = 0;
    float real = 0;
    int numbers[2] {};
    ColourTP colour = 0;
    CharArr words;
    const std::function<void()> reads[] {
        [&] { reader.IntM("number", number); },
        [&] { reader.RealM("real", real); },
        [&] { reader.IntsM("numbers", numbers, 2); },
        [&] { reader.TextM("words", words, NullWord::Empty); },
        [&] { reader.ColourM("colour", colour, nullptr); },
        [&] { reader.RealM("last_real", real); },
        [&] { reader.IntM("last_number", number); },
    };
    for (const auto& read : reads) {
        if (fields-- == 0) {
            reader.StopReadingM();
        }
        read();
    }
}

bool isPlain(const std::string& text)
{
    RoomyCL roomy;
    readRecord(text, roomy);
    EXPECT_EQ(roomy.CountM(), ValueCount) << text;
    return roomy.room.isPlain;
}

// What keeps a record from being plain, and the record.
struct SpoiltCL
{
    const char* why;
    std::string text;
};

const std::vector<SpoiltCL>& spoiltRecords()
{
    static const std::vector<SpoiltCL> Records {
        { "no number", "x 2.5 3 4\ntext\n5 6 7 8.5 9" },
        { "no real", "1 x 3 4\ntext\n5 6 7 8.5 9" },
        { "no number in a group", "1 2.5 3 x\ntext\n5 6 7 8.5 9" },
        { "no number in a colour", "1 2.5 3 4\ntext\n5 x 7 8.5 9" },
        { "no number at the end", "1 2.5 3 4\ntext\n5 6 7 8.5 x" },
        { "number beyond its limit", "99999999999 2.5 3 4\ntext\n5 6 7 8.5 9" },
        { "number below its limit", "-99999999999 2.5 3 4\ntext\n5 6 7 8.5 9" },
        { "real beyond its limit", "1 1e99 3 4\ntext\n5 6 7 8.5 9" },
        { "last number beyond its limit", "1 2.5 3 4\ntext\n5 6 7 8.5 99999999999" },
        { "comma", "1,2.5 3 4\ntext\n5 6 7 8.5 9" },
        { "semicolon in a group", "1 2.5 3;4\ntext\n5 6 7 8.5 9" },
        { "comment behind a number", "1 // one\n2.5 3 4\ntext\n5 6 7 8.5 9" },
        { "comment at its end", "1 2.5 3 4\ntext\n5 6 7 8.5 // nine\n9" },
        { "real joins a number", "1.5 3 4\ntext\n5 6 7 8.5 9 9" },
        { "number joins a real", "1 2.5-3 4\ntext\n5 6 7 8.5 9" },
        { "number joins a number", "1 2.5 3-4\ntext\n5 6 7 8.5 9" },
        { "text joins a number", "1 2.5 3 4text\n5 6 7 8.5 9" },
        { "number joins the last real", "1 2.5 3 4\ntext\n5 6 7 8.5+9" },
        { "word for no text", "1 2.5 3 4\nNULL\n5 6 7 8.5 9" },
        { "text that is cut", "1 2.5 3 4\n" + std::string(300, 't') + "\n5 6 7 8.5 9" },
        { "text with a NUL", "1 2.5 3 4\nte" + std::string(1, '\0') + "xt\n5 6 7 8.5 9" },
    };
    return Records;
}

} // namespace

TEST(ReadObserverRoom, RecordIsPlainWhateverBlanksStandBetweenItsValues)
{
    EXPECT_TRUE(isPlain(Plain + Tail));
    EXPECT_TRUE(isPlain("-1 -2.5 +3 12345678\r\ntext \r\n0005 -6 7 .5e1 9" + Tail));
    for (const char blank : { ' ', '\t', '\r', '\n', '\v', '\f', '\0' }) {
        std::string text = Plain + Tail;
        std::replace(text.begin(), text.begin() + 9, ' ', blank);
        EXPECT_TRUE(isPlain(text)) << static_cast<int>(blank);
        EXPECT_TRUE(isPlain(std::string(3, blank) + text)) << static_cast<int>(blank);
    }
}

TEST(ReadObserverRoom, RecordIsNoLongerPlainOnceAValueWasNotReadWholeOrJoinsAnother)
{
    for (const SpoiltCL& spoilt : spoiltRecords()) {
        EXPECT_FALSE(isPlain(spoilt.text + Tail)) << spoilt.why;
        EXPECT_FALSE(isPlain(spoilt.text)) << spoilt.why << ", at the end of the file";
    }
}

TEST(ReadObserverRoom, RecordThatIsGivenUpIsNotPlain)
{
    for (int fields = 0; fields < 7; ++fields) {
        RoomyCL roomy;
        readRecord(Plain + Tail, roomy, fields);
        EXPECT_FALSE(roomy.room.isPlain) << fields;
        ASSERT_EQ(roomy.CountM(), ValueCount);
        EXPECT_EQ(roomy.values[ValueCount - 1].fate, Fate::NotLookedAt) << fields;
        EXPECT_EQ(roomy.values[5].fate, fields < 5 ? Fate::NotLookedAt : Fate::Read) << fields;
        EXPECT_EQ(roomy.values[4].fate, fields < 4 ? Fate::NotLookedAt : Fate::Read) << fields;
    }
}

TEST(ReadObserverRoom, TextThatJoinsANumberAtTheEndOfTheFileIsNotPlain)
{
    RoomyCL roomy;
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>("one\n 5text"));
    io.SetObserverM(&roomy);
    io.SkipLineM();
    FieldReaderCL reader(&io);
    reader.BeginRecordM(0);
    int number = 0;
    CharArr text;
    reader.IntM("number", number);
    reader.TextM("words", text, NullWord::Kept);
    EXPECT_EQ(number, 5);
    EXPECT_STREQ(text.TextM(), "text");
    EXPECT_FALSE(roomy.room.isPlain);
}

TEST(ReadObserverRoom, RecordIsNotPlainWhereTheFileEndsBeforeIt)
{
    EXPECT_EQ(Plain.back(), '9');
    for (std::size_t size = 0; size < Plain.size(); ++size) {
        EXPECT_FALSE(isPlain(Plain.substr(0, size))) << Plain.substr(0, size);
        EXPECT_FALSE(isPlain(Plain.substr(0, size) + std::string(20, ' '))) << Plain.substr(0, size);
    }
}

TEST(ReadObserverRoom, HoldsTheVeryValuesThatAnObserverWithoutRoomIsTold)
{
    std::vector<SpoiltCL> records = spoiltRecords();
    records.push_back({ "plain", Plain });
    records.push_back({ "short", Plain.substr(0, 7) });
    for (const SpoiltCL& record : records) {
        for (const std::string& text : { record.text, record.text + Tail }) {
            SeenFileCL told;
            readRecord(text, told);
            RoomyCL roomy;
            readRecord(text, roomy);
            const std::vector<ValueSeenCL>& values = told.values[{ "[one]", 7 }];
            ASSERT_EQ(values.size(), ValueCount) << record.why;
            EXPECT_EQ(roomy.calls, "[one]7 ");
            ASSERT_EQ(roomy.CountM(), ValueCount) << record.why;
            for (std::size_t i = 0; i < ValueCount; ++i) {
                const SeenValueCL& seen = roomy.values[i];
                EXPECT_STREQ(seen.field, values[i].field) << record.why;
                EXPECT_EQ(seen.part, values[i].part) << record.why;
                EXPECT_EQ(seen.SpanM().begin, values[i].span.begin) << record.why << i;
                EXPECT_EQ(seen.SpanM().end, values[i].span.end) << record.why << i;
                EXPECT_EQ(seen.fate, values[i].fate) << record.why << i;
                EXPECT_EQ(seen.IsAbsentM(),
                    seen.fate == Fate::NotANumber || seen.fate == Fate::Missing
                        || seen.fate == Fate::NotLookedAt);
            }
        }
    }
}

TEST(ReadObserverRoom, ValuesBeyondItAreToldOneByOne)
{
    for (const std::string& text : { Plain, Plain + Tail }) {
        for (std::size_t most = 0; most <= ValueCount; ++most) {
            RoomyCL roomy(most);
            readRecord(text, roomy);
            EXPECT_EQ(roomy.CountM(), most);
            ASSERT_EQ(roomy.otherwise.size(), ValueCount - most);
            if (most < ValueCount) {
                EXPECT_STREQ(roomy.otherwise.back().field, "last_number");
                EXPECT_EQ(roomy.otherwise.back().section, std::string("[one]"));
                EXPECT_EQ(roomy.otherwise.back().record, 7);
                EXPECT_EQ(text.substr(roomy.otherwise.back().span.begin - 1, 1), "9");
            }
        }
    }
}

TEST(ReadObserverRoom, IsAskedForOnceBeforeTheValuesOfEachRecordAndEntry)
{
    const std::string tree = slGbkToUtf8(TreeHeader);
    const std::string items = slGbkToUtf8(TreeDataHeader);
    const std::string text = tree + "\n2\n0\n1 11 1 1 9 9\n2 12 1 1 9 9\n" + items
        + "\n3\n0\n11 0 7 1 one\na\nb\n99 0 8 1 lost\na\nb\n12 0 9 1 two\na\nb\n";
    RoomyCL roomy(0);
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(slUtf8ToGbk(text)));
    io.SetObserverM(&roomy);
    DVrTreeArr trees;
    int count = 0;
    ASSERT_EQ(slReadSection(io, trees, &count), SectionStatus::Read);
    std::string begun;
    std::string values; // What stands between two of them.
    for (std::size_t at = 0, end = 0; (end = roomy.calls.find(' ', at)) != std::string::npos; at = end + 1) {
        const std::string call = roomy.calls.substr(at, end - at);
        if (call[0] == '[') {
            EXPECT_EQ(begun.empty(), values.empty()) << "values of " << begun;
            begun += slGbkToUtf8(call.c_str()) + " ";
            values.clear();
        } else {
            EXPECT_EQ(values.find(" " + call + " "), std::string::npos) << call << " twice";
            values += " " + call + " ";
        }
    }
    EXPECT_EQ(begun, tree + "0 " + tree + "1 " + items + "0 " + items + "1 " + items + "2 ");
    EXPECT_FALSE(values.empty());
}

TEST(ReadObserverRoom, RecordBehindOneThatIsNotPlainIsPlainAgain)
{
    class FlagsCL : public ReadObserverCL
    {
    public:
        SeenRoomCL* BeginRecordM(const char*, int record) override
        {
            const auto place = static_cast<std::size_t>(record);
            rooms[place] = { values[place], values[place] + 20, true };
            return &rooms[place];
        }
        SeenRoomCL rooms[3];
        SeenValueCL values[3][20];
    };
    FlagsCL flags;
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(
        slUtf8ToGbk("[标题]\n3\n0\n1 11 2 3 4 5 1\ntext\n0 1 2 3\n2 12 99999999999 3 4 5 1\ntext\n0 1 2 3\n"
                    "3 13 2 3 4 5 1\ntext\n0 1 2 3\n")
        + Tail));
    io.SetObserverM(&flags);
    DVrLabelArr labels;
    int count = 0;
    ASSERT_EQ(slReadSection(io, labels, &count), SectionStatus::Read);
    EXPECT_TRUE(flags.rooms[0].isPlain);
    EXPECT_FALSE(flags.rooms[1].isPlain);
    EXPECT_TRUE(flags.rooms[2].isPlain);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(flags.rooms[i].next - flags.values[i], 12) << i;
    }
}
