#include "baselib/helpers.h"
#include "containers/arr_elements.h"
#include "containers/string_arr.h"
#include "support/temp_file.h"
#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>

// The list form, text and binary.

namespace {

struct Modes
{
    const char* read;
    const char* write;
};
constexpr Modes TextModes { "r", "w" };
constexpr Modes BinaryModes { "rb", "wb" };

class ArrStream : public testing::TestWithParam<Modes>
{
protected:
    void openToWrite(VrIOCL& io) { io.OpenM(file_.path(), GetParam().write); }
    void openToRead(VrIOCL& io) { io.OpenM(file_.path(), GetParam().read); }

    TempFile file_;
};
INSTANTIATE_TEST_SUITE_P(Modes, ArrStream, testing::Values(TextModes, BinaryModes),
    [](const auto& tested) { return std::string(tested.param.read) == "r" ? "Text" : "Binary"; });

void fillTexts(VrStringArr* arr, std::initializer_list<const char*> texts)
{
    for (const char* text : texts) {
        VrStringCL string(AliveTag);
        string.AddStringM(text);
        arr->AddItemM(string);
    }
}

std::string texts(const VrStringArr& arr)
{
    std::string shownTexts;
    for (int i = 0; i < arr.GetBoundM(); ++i) {
        shownTexts += arr.CheckAvailableM(i) != 0 ? "" : "x";
        shownTexts += std::string("<") + arr.GetItemPM(i)->TextM() + ">";
    }
    return shownTexts;
}

// Ends what it writes with its line, as the texts of a VrStringCL do; a CountedCL leaves its line open.
class LineCL : public CountedCL
{
public:
    using CountedCL::CountedCL;
    void FmInputEvrFileM(VrIOCL* io) override
    {
        CountedCL::FmInputEvrFileM(io);
        io->SkipLineM();
    }
    void FmOutputEvrFileM(VrIOCL* io) const override
    {
        char text[40];
        std::snprintf(text, sizeof text, "%d %d", GetDeleteTagM(), number);
        io->OutputSM(text, -1, 1);
    }
};

template <class T> std::string readFrom(const std::string& bytes, const char* mode, Arr<T>* arr)
{
    TempFile file(bytes);
    VrIOCL io;
    io.OpenM(file.path(), mode);
    arr->FmInputEvrLstM(&io);
    char rest[100] = "";
    if (!io.IsBinaryM()) {
        io.InputGetsM(rest, sizeof rest);
    }
    return rest;
}

std::string littleEndian(unsigned value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(value >> shift & 0xFF);
    }
    return bytes;
}

} // namespace

TEST_P(ArrStream, TwoListsInOneFileReadBackEqualAfterDeletions)
{
    Arr<CountedCL> numbers;
    fill(&numbers, { 1, 2, 3, 4, 5, 6 });
    numbers.DelItemM(0);
    numbers.DelItemM(3);
    VrStringArr strings;
    fillTexts(&strings, { "one", "", "two words", "1, 2", "line\nend", "\xD6\xD0\xCE\xC4", "  padded  " });
    strings.DelItemM(2);
    Arr<CountedCL> last;
    fill(&last, { 9 });
    {
        VrIOCL io;
        openToWrite(io);
        numbers.FmOutputEvrLstM(&io, "1 numbers");
        strings.FmOutputEvrLstM(&io, "strings, 2");
        last.FmOutputEvrLstM(&io, nullptr);
    }
    VrIOCL io;
    openToRead(io);
    Arr<CountedCL> numbersRead;
    fill(&numbersRead, { 7, 7, 7 });
    numbersRead.FmInputEvrLstM(&io);
    VrStringArr stringsRead;
    stringsRead.FmInputEvrLstM(&io);
    Arr<CountedCL> lastRead;
    lastRead.FmInputEvrLstM(&io);
    EXPECT_EQ(shown(numbersRead), ".23.56");
    EXPECT_EQ(numbersRead[0].number, 1); // Deleted slots are written too.
    EXPECT_EQ(numbersRead.GetAvailableNumM(), 4);
    EXPECT_EQ(texts(stringsRead), texts(strings));
    EXPECT_EQ(stringsRead.GetAvailableNumM(), 6);
    EXPECT_EQ(shown(lastRead), "9");
    EXPECT_EQ(io.BytesLeftM(), 0U);
}

TEST_P(ArrStream, EmptyListLeavesTheItemsAndTheNextListReadable)
{
    Arr<CountedCL> second;
    fill(&second, { 4, 5 });
    {
        VrIOCL io;
        openToWrite(io);
        Arr<CountedCL>().FmOutputEvrLstM(&io, "empty");
        second.FmOutputEvrLstM(&io, "second");
    }
    VrIOCL io;
    openToRead(io);
    Arr<CountedCL> arr;
    fill(&arr, { 1 });
    arr.FmInputEvrLstM(&io);
    EXPECT_EQ(shown(arr), "1");
    arr.FmInputEvrLstM(&io);
    EXPECT_EQ(shown(arr), "45");
}

TEST_P(ArrStream, ReadingGrowsToTheCountExactlyAndKeepsALargerStore)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2, 3, 4, 5, 6, 7 });
    {
        VrIOCL io;
        openToWrite(io);
        arr.FmOutputEvrLstM(&io, "list");
    }
    for (const int length : { 4, 20 }) {
        Arr<CountedCL> read(length);
        VrIOCL io;
        openToRead(io);
        read.FmInputEvrLstM(&io);
        EXPECT_EQ(read.GetLengthM(), std::max(length, 7));
        EXPECT_EQ(shown(read), "1234567");
    }
}

TEST_P(ArrStream, ReadingWithoutAnOpenFileLeavesTheItems)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2 });
    VrIOCL io;
    arr.FmInputEvrLstM(&io);
    arr.FmOutputEvrLstM(&io, "list");
    EXPECT_EQ(shown(arr), "12");
}

TEST(ArrTextStream, IsLinesOfCountIndicesAndEnd)
{
    char begin[260];
    char index[260];
    char end[260];
    slGetArrBeginStr(begin, "list");
    slGetArrIndexStr(index, "list");
    slGetArrEndStr(end, "list");
    TempFile file;
    Arr<LineCL> arr;
    fill(&arr, { 8, 9 });
    arr.DelItemM(0);
    {
        VrIOCL io;
        io.OpenM(file.path(), "w");
        arr.FmOutputEvrLstM(&io, "list");
    }
    EXPECT_EQ(file.bytes(),
        std::string("2, ") + begin + "\n0, " + index + "\n32 8\n1, " + index + "\n31 9\n" + end + "\n");
}

TEST(ArrTextStream, LongestNameIsCutAndReadsBack)
{
    TempFile file;
    Arr<LineCL> arr;
    fill(&arr, { 8, 9 });
    {
        VrIOCL io;
        io.OpenM(file.path(), "w");
        arr.FmOutputEvrLstM(&io, std::string(5000, 'n').c_str());
    }
    EXPECT_LT(file.bytes().size(), 1200U);
    Arr<LineCL> read;
    EXPECT_EQ(readFrom(file.bytes(), "r", &read), "");
    EXPECT_EQ(shown(read), "89");
}

TEST(ArrTextStream, SlotsMayComeInAnyOrder)
{
    Arr<LineCL> arr;
    EXPECT_EQ(
        readFrom("3, b\r\n2, i\r\n31 7\r\n0, i\r\n31 5\r\n1, i\r\n32 6\r\nend\r\nnext", "r", &arr), "next");
    EXPECT_EQ(shown(arr), "5.7");
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
}

TEST(ArrTextStream, LastElementMayLeaveItsLineEndUnread)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(readFrom("1, b\n0, i\n31 5\nend\nnext", "r", &arr), "next");
    EXPECT_EQ(shown(arr), "5");
}

TEST(ArrTextStream, WhatStandsBehindTheLastValueGoesWithItsLine)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(readFrom("1, b\n0, i\n31 5 remark\nend\nnext", "r", &arr), "next");
    EXPECT_EQ(shown(arr), "5");
    Arr<LineCL> lines;
    EXPECT_EQ(readFrom("1, b\n0, i\n31 5 remark\nend\nnext", "r", &lines), "next");
    EXPECT_EQ(readFrom("0, b\nend\nnext", "r", &lines), "next");
}

TEST(ArrTextStream, EndLineMayBeEmptyOrIndented)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(readFrom("1, b\n0, i\n31 5\n\nnext", "r", &arr), "next");
    EXPECT_EQ(readFrom("1, b\n0, i\n31 5\n  end\nnext", "r", &arr), "next");
    EXPECT_EQ(readFrom("2, b\n0, i\n31 5\n  end\nnext", "r", &arr), "next"); // Short of an element.
}

TEST(ArrTextStream, LabelsStandOnLinesOfTheirOwnBehindElementsThatLeaveTheirsOpen)
{
    TempFile file;
    Arr<CountedCL> arr;
    fill(&arr, { 8, 9 });
    {
        VrIOCL io;
        io.OpenM(file.path(), "w");
        io.OutputDM(7);
        arr.FmOutputEvrLstM(&io, "list");
    }
    EXPECT_EQ(file.bytes(), "7 \n2, Begin list\n0, Item list\n31 8 \n1, Item list\n31 9 \nEnd list\n");
}

TEST(ArrTextStream, ElementOutsideTheListIsReadAndDropped)
{
    Arr<LineCL> arr;
    const std::string bytes = "4, b\n4, i\n31 1\n-1, i\n31 2\n2000000000, i\n31 3\n1, i\n31 6\nend\nnext";
    EXPECT_EQ(readFrom(bytes, "r", &arr), "next");
    EXPECT_EQ(shown(arr), ".6..");
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
    EXPECT_EQ(arr.GetLengthM(), 4);
}

TEST(ArrTextStream, IndexThatIsNoNumberEndsTheList)
{
    Arr<LineCL> arr;
    EXPECT_EQ(readFrom("3, b\n0, i\n31 1\nend\nnext", "r", &arr), "next");
    EXPECT_EQ(shown(arr), "1..");
    EXPECT_EQ(arr.GetBoundM(), 3);
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
}

TEST(ArrTextStream, SlotThatTheFileDoesNotFillIsDeleted)
{
    Arr<LineCL> arr;
    fill(&arr, { 1, 2, 3 });
    arr.DelItemM(0);
    arr.PurgeDeletedItemM(); // Leaves an alive slot behind the bound.
    readFrom("3, b\n0, i\n31 5\nend\n", "r", &arr);
    EXPECT_EQ(shown(arr), "5..");
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
}

TEST(ArrTextStream, CountThatCannotBeMeantLeavesTheItems)
{
    for (const char* count :
        { "2000000000", "2147483647", "99999999999999", "-1", "-2000000000", "26", "x", "" }) {
        Arr<LineCL> arr;
        fill(&arr, { 1 });
        readFrom(std::string(count) + ", b\n0, i\n31 5\nend\n12345\n", "r", &arr);
        EXPECT_EQ(shown(arr), "1") << count;
        EXPECT_EQ(arr.GetLengthM(), 4) << count;
    }
}

TEST(ArrBinaryStream, CountThatCannotBeMeantLeavesTheItems)
{
    for (const unsigned count : { 2'000'000'000U, 0x7FFFFFFFU, 0xFFFFFFFFU, 0x80000000U, 17U }) {
        Arr<CountedCL> arr;
        fill(&arr, { 1 });
        readFrom(littleEndian(count) + std::string(16, '\x1F'), "rb", &arr);
        EXPECT_EQ(shown(arr), "1") << count;
        EXPECT_EQ(arr.GetLengthM(), 4) << count;
    }
}

TEST(ArrBinaryStream, IsTheCountAndTheElements)
{
    TempFile file;
    Arr<CountedCL> arr;
    fill(&arr, { 8, 9 });
    arr.DelItemM(0);
    {
        VrIOCL io;
        io.OpenM(file.path(), "wb");
        arr.FmOutputEvrLstM(&io, "list");
    }
    EXPECT_EQ(file.bytes(),
        littleEndian(2) + littleEndian(32) + littleEndian(8) + littleEndian(31) + littleEndian(9));
}

TEST(ArrBinaryStream, ListCutShortHasItsSlotsButNoItemsBehindTheCut)
{
    Arr<CountedCL> arr;
    readFrom(littleEndian(3) + littleEndian(31) + littleEndian(8) + littleEndian(31), "rb", &arr);
    EXPECT_EQ(arr.GetBoundM(), 3);
    EXPECT_EQ(arr.GetItemPM(0)->number, 8);
    EXPECT_EQ(arr.CheckAvailableM(2), 0);
}

TEST(ArrStreams, CutAnywhereNeitherFormLeavesItsBounds)
{
    VrStringArr strings;
    fillTexts(&strings, { "one", "two", "three", "four", "five" });
    for (const Modes& modes : { TextModes, BinaryModes }) {
        TempFile file;
        {
            VrIOCL io;
            io.OpenM(file.path(), modes.write);
            strings.FmOutputEvrLstM(&io, "strings");
        }
        const std::string whole = file.bytes();
        for (std::size_t cut = 0; cut < whole.size(); ++cut) {
            VrStringArr read;
            readFrom(whole.substr(0, cut), modes.read, &read);
            EXPECT_LE(read.GetBoundM(), 5);
            EXPECT_LE(read.GetAvailableNumM(), read.GetBoundM());
            for (int i = read.GetFirstIdxM(); i >= 0; i = read.GetNextIdxM(i)) {
                EXPECT_STREQ(read.GetItemPM(i)->TextM(), strings.GetItemPM(i)->TextM());
            }
        }
    }
}

TEST(StringArr, MergingTakesTheTexts)
{
    VrStringArr strings;
    VrStringArr other;
    fillTexts(&strings, { "a", "b", "c" });
    fillTexts(&other, { "d", "e", "f" });
    other.DelItemM(1);
    strings.MergeM(other);
    EXPECT_EQ(texts(strings), "<a><b><c><d><f>");
    EXPECT_EQ(strings.GetAvailableNumM(), 5);
    EXPECT_EQ(strings.GetLengthM(), 5);
}

TEST(StringArr, CopiesAreIndependent)
{
    VrStringArr strings;
    fillTexts(&strings, { "a", "b", "c", "d", "e" });
    VrStringArr copy;
    copy = strings;
    copy.ElementAtPM(0)->AddStringM("changed");
    EXPECT_EQ(texts(strings), "<a><b><c><d><e>");
    EXPECT_EQ(texts(copy), "<changed><b><c><d><e>");
}
