#include "baselib/helpers.h"
#include "baselib/io.h"
#include "containers/int_arr.h"
#include "pictures/bmp_record.h"
#include "support/bmp_file.h"
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>

namespace {

void writeFile(const std::string& path, const std::string& bytes)
{
    std::FILE* out = std::fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, out);
    ASSERT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), out));
    std::fclose(out);
}

std::string nameOf(const DVrBmpArr& list, int index)
{
    char name[PathSize];
    list.GetBmpNameM(index, name);
    return name;
}

// The list of names in a file of that text, and the number that follows the list.
struct ListRead
{
    explicit ListRead(const std::string& text, DVrBmpArr* list)
    {
        const std::string path = testing::TempDir() + "bmp_record_test.txt";
        writeFile(path, text);
        VrIOCL io;
        io.OpenM(path.c_str(), "r");
        char buffer[PathSize];
        io.GetFilePathM(buffer);
        directory = buffer;
        result = list->FmInputScpFileM(&io, &map);
        io.InputDM(&following);
        io.CloseM();
        std::remove(path.c_str());
    }

    int result { -1 };
    int following { -1 };
    IntArr map;
    std::string directory;
};

} // namespace

TEST(BmpRecord, KeepsNameAndCutsALongOneBetweenCharacters)
{
    DVrBmpCL record;
    EXPECT_FALSE(record.IsAliveM());
    EXPECT_TRUE(DVrBmpCL(AliveTag).IsAliveM());
    EXPECT_EQ(1, record.SetBmpNameM("a.bmp"));
    char name[PathSize];
    EXPECT_EQ(1, record.GetBmpNameM(name));
    EXPECT_STREQ("a.bmp", name);
    std::string text(258, 'x');
    record.SetBmpNameM((text
        + "\xB0\xA1"
          "y")
                           .c_str()); // 啊
    record.GetBmpNameM(name);
    EXPECT_EQ(text, name);
    record.SetBmpNameM(nullptr);
    record.GetBmpNameM(name);
    EXPECT_STREQ("", name);
}

TEST(BmpRecordList, NamesReadStandInTheDirectoryOfTheirFile)
{
    DVrBmpArr list;
    list.AddItemM(DVrBmpCL(AliveTag));
    const ListRead read("2\n7 first.bmp\n5 sub/second one.bmp \nend of list\n42\n", &list);
    EXPECT_EQ(42, read.following);
    EXPECT_EQ(1, read.result);
    EXPECT_FALSE(read.directory.empty());
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(3, list.GetAvailableNumM());
    EXPECT_EQ(read.directory + "first.bmp", nameOf(list, 1));
    EXPECT_EQ(read.directory + "sub/second one.bmp", nameOf(list, 2));
    EXPECT_EQ(1, list.CheckAvailableM(2));
    ASSERT_EQ(2, read.map.GetBoundM());
    EXPECT_EQ(1, read.map[0]);
    EXPECT_EQ(2, read.map[1]);
}

TEST(BmpRecordList, EndLineIsPassedOver)
{
    DVrBmpArr list;
    // Behind the rest of the line of the last value, which is the count where no name is.
    EXPECT_EQ(42, ListRead("1\n0 a.bmp\nend 7\n42\n", &list).following);
    EXPECT_EQ(42, ListRead("1\r\n0 a.bmp\r\n\r\n42\r\n", &list).following);
    EXPECT_EQ(42, ListRead("0 nothing follows\nend\n42\n", &list).following);
    EXPECT_EQ(42, ListRead("-5\nend\n42\n", &list).following);
    EXPECT_EQ(2, list.GetBoundM());
}

TEST(BmpRecordList, AllSlotsCountAsAvailableAfterReading)
{
    DVrBmpArr list;
    list.AddItemM(DVrBmpCL(AliveTag));
    list.AddItemM(DVrBmpCL(AliveTag));
    list.DelItemM(0);
    ASSERT_EQ(1, list.GetAvailableNumM());
    const ListRead read("1\n0 a.bmp\n", &list);
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(3, list.GetAvailableNumM());
    EXPECT_EQ(0, list.CheckAvailableM(0));
}

TEST(BmpRecordList, StoreGrowsByTheCountAlone)
{
    DVrBmpArr list;
    const ListRead read("3\n0 a\n0 b\n0 c\n", &list);
    EXPECT_EQ(7, list.GetLengthM());
}

TEST(BmpRecordList, ShortListHasAsManyAsItsCountAndAnImpossibleCountNone)
{
    DVrBmpArr list;
    const ListRead read("3 \n0 a.bmp\n", &list);
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(read.directory + "a.bmp", nameOf(list, 0));
    EXPECT_EQ(read.directory, nameOf(list, 2));
    DVrBmpArr none;
    const ListRead broken("2000000000 a\nend\n42\n", &none);
    EXPECT_EQ(1, broken.result);
    EXPECT_EQ(0, none.GetBoundM());
    EXPECT_EQ(0, broken.map.GetBoundM());
    EXPECT_EQ(42, broken.following);
}

TEST(BmpRecordList, ContentIsThePictureOfTheSlot)
{
    BmpFile file;
    file.width = 2;
    file.addRow({ 0x112233, 0x445566 });
    const std::vector<unsigned char> bytes = file.bytes();
    const std::string path = testing::TempDir() + "bmp_record_test.bmp";
    writeFile(path, std::string(bytes.begin(), bytes.end()));
    DVrBmpArr list;
    DVrBmpCL record(AliveTag);
    record.SetBmpNameM(path.c_str());
    list.AddItemM(record);
    int w = 0;
    int h = 0;
    unsigned char* pixels = list.GetBmpContentM(0, &w, &h);
    EXPECT_EQ(2, w);
    EXPECT_EQ(1, h);
    ASSERT_NE(nullptr, pixels);
    EXPECT_EQ(0x44, pixels[3]);
    slFree(pixels);
    std::remove(path.c_str());
    EXPECT_EQ(nullptr, list.GetBmpContentM(0, &w, &h));
    EXPECT_EQ(0, w + h);
    EXPECT_EQ(nullptr, list.GetBmpContentM(1, &w, &h));
    char name[PathSize] = "stale";
    EXPECT_EQ(0, list.GetBmpNameM(-1, name));
    EXPECT_STREQ("", name);
}
