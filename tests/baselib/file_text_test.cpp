#include "baselib/file_text.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include <gtest/gtest.h>
#include <random>

namespace {

// "line:column" of a byte.
std::string at(const FileTextCL& file, std::size_t offset)
{
    const PlaceCL place = file.PlaceM(offset);
    return std::to_string(place.line) + ":" + std::to_string(place.column);
}

// The same, walking there from the beginning of the file.
std::string walkedTo(const std::string& bytes, std::size_t offset)
{
    std::size_t line = 1;
    std::size_t column = 1;
    const char* const end = bytes.data() + bytes.size();
    const char* const wanted = bytes.data() + std::min(offset, bytes.size());
    for (const char* byte = bytes.data(); byte < wanted;) {
        const bool isLineEnd = *byte == '\r' && byte + 1 < end && byte[1] == '\n';
        const int length = isLineEnd ? 2 : slGbkCharLength(byte, end);
        if (byte + length > wanted) {
            break;
        }
        const bool isNext = isLineEnd || *byte == '\n';
        line += isNext ? 1 : 0;
        column = isNext ? 1 : column + 1;
        byte += length;
    }
    return std::to_string(line) + ":" + std::to_string(column);
}

} // namespace

TEST(FileText, PlacesCountLinesAndCharactersFromOne)
{
    const FileTextCL file("ab\n\nc");
    EXPECT_EQ(at(file, 0), "1:1");
    EXPECT_EQ(at(file, 1), "1:2");
    EXPECT_EQ(at(file, 2), "1:3"); // The line feed itself.
    EXPECT_EQ(at(file, 3), "2:1");
    EXPECT_EQ(at(file, 4), "3:1");
    EXPECT_EQ(at(file, 5), "3:2"); // The end.
    EXPECT_EQ(at(file, 99), "3:2");
}

TEST(FileText, DoubleByteCharactersAreOneColumnAndBothBytesAreTheirs)
{
    const FileTextCL file("\xB1\xEA\xCC\xE2x\n\xB1");
    EXPECT_EQ(at(file, 0), "1:1");
    EXPECT_EQ(at(file, 1), "1:1");
    EXPECT_EQ(at(file, 2), "1:2");
    EXPECT_EQ(at(file, 4), "1:3");
    EXPECT_EQ(at(file, 6), "2:1");
    EXPECT_EQ(at(file, 7), "2:2");
}

TEST(FileText, CarriageReturnIsPartOfTheLineEndOnlyBeforeALineFeed)
{
    const FileTextCL file("a\r\nb\rc\r");
    EXPECT_EQ(at(file, 1), "1:2");
    EXPECT_EQ(at(file, 2), "1:2");
    EXPECT_EQ(at(file, 3), "2:1");
    EXPECT_EQ(at(file, 5), "2:3");
    EXPECT_EQ(at(file, 7), "2:5");
}

TEST(FileText, PlacesAskedInAnyOrderAreThoseOfAWalk)
{
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::string bytes;
        for (unsigned length = random() % 60; length > 0; --length) {
            bytes += "\xB1\xEA\x81 ab\n\n\r\n"[random() % 10];
        }
        const FileTextCL file(bytes);
        for (int ask = 0; ask < 40; ++ask) {
            const std::size_t offset = random() % (bytes.size() + 1);
            ASSERT_EQ(at(file, offset), walkedTo(bytes, offset)) << bytes << offset;
        }
    }
}

TEST(FileText, LongLineIsWalkedOnceForPlacesInRisingOrder)
{
    const FileTextCL file(std::string(3000000, 'x')); // A walk for each place would take many minutes.
    for (std::size_t offset = 0; offset < file.SizeM(); offset += 3) {
        ASSERT_EQ(file.PlaceM(offset).column, offset + 1);
    }
}

TEST(FileText, CutLeavesOffWhatIsOutsideTheFile)
{
    const FileTextCL file("abc");
    EXPECT_EQ(file.CutM({ 1, 2 }), "b");
    EXPECT_EQ(file.CutM({ 1, 9 }), "bc");
    EXPECT_EQ(file.CutM({ 5, 9 }), "");
    EXPECT_EQ(FileTextCL("").PlaceM(0).line, 1U);
}

TEST(FileText, ReaderTakesATextWithoutAFile)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>("[a] 5 x"));
    EXPECT_TRUE(io.IsOpenM());
    EXPECT_EQ(io.SearchStrM("[a]"), 1);
    int value = 0;
    EXPECT_TRUE(io.InputOneM(&value));
    EXPECT_EQ(value, 5);
    EXPECT_FALSE(io.InputOneM(&value));
    EXPECT_EQ(io.PositionM(), 6U);
    std::string_view item;
    EXPECT_TRUE(io.InputItemM(&item));
    EXPECT_EQ(item, "x");
    EXPECT_FALSE(io.InputItemM(&item));
    io.OpenM(nullptr);
    EXPECT_FALSE(io.IsOpenM());
}
