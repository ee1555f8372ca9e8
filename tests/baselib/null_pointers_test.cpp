// Null where a pointer is wanted: refused, nothing read, written or moved.
#include "baselib/gbk.h"
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "baselib/number_text.h"
#include "baselib/path.h"
#include "baselib/string.h"
#include "containers/int3d_arr.h"
#include "containers/int_arr.h"
#include "pictures/bmp_reader.h"
#include "support/temp_file.h"
#include <gtest/gtest.h>

TEST(NullPointers, ReaderTakesNothingForThem)
{
    const TempFile file("1 2 3 4\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    EXPECT_EQ(io.InputInt2DM(nullptr), 0);
    EXPECT_EQ(io.InputInt3DM(nullptr), 0);
    EXPECT_EQ(io.InputPoint2DM(nullptr), 0);
    EXPECT_EQ(io.InputTextM(nullptr), 0);
    EXPECT_EQ(io.GetFilePathM(nullptr), 0);
    int first = 0;
    EXPECT_EQ(io.InputDM(&first), 1);
    EXPECT_EQ(first, 1);
}

TEST(NullPointers, StringsNeitherReadNorWriteWithoutAFile)
{
    VrStringCL string(AliveTag);
    string.AddStringM("kept");
    string.FmInputEvrFileM(nullptr);
    string.FmOutputEvrFileM(nullptr);
    EXPECT_TRUE(string.IsAliveM());
    EXPECT_STREQ(string.TextM(), "kept");
    EXPECT_EQ(string.GetStringM(nullptr), 0);
    EXPECT_EQ(string.GetStringM(nullptr, 5), 0);
    CharArr text("kept");
    EXPECT_EQ(text.GetM(nullptr, 5), 0);
    EXPECT_EQ(text.SetM(nullptr, 5), 1); // As every text.
    EXPECT_TRUE(text.EmptyM());
}

TEST(NullPointers, TextsWithoutABufferAreRefused)
{
    EXPECT_EQ(slGetArrBeginStr(nullptr, "list"), 0);
    EXPECT_EQ(slGetArrIndexStr(nullptr, "list"), 0);
    EXPECT_EQ(slGetArrEndStr(nullptr, "list"), 0);
    EXPECT_EQ(slGetFileExtension("a.bmp", nullptr), 0);
    EXPECT_EQ(slCatFileNameWithPath("a", "b", nullptr), 0);
}

TEST(NullPointers, NoTextIsEmptyWhateverItsLength)
{
    EXPECT_EQ(slGbkCutLength(nullptr, 5, 3), 0U);
    EXPECT_TRUE(slGbkToUtf16(nullptr, 5).empty());
    EXPECT_TRUE(slGbkToUtf8(nullptr, 5).empty());
    int lost = -1;
    EXPECT_TRUE(slUtf16ToGbk(nullptr, 5, &lost).empty());
    EXPECT_EQ(lost, 0);
}

TEST(NullPointers, NumbersWithoutAPlaceAreNotRead)
{
    const char text[] = "12";
    EXPECT_EQ(slReadInt(text, text + 2, nullptr), text);
    EXPECT_EQ(slReadReal(text, text + 2, nullptr), text);
    int number = 7;
    float real = 7;
    EXPECT_EQ(slReadInt(nullptr, nullptr, &number), nullptr);
    EXPECT_EQ(slReadReal(nullptr, nullptr, &real), nullptr);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(real, 7.0F);
}

TEST(NullPointers, PicturesNeedAllThreePlaces)
{
    int w = 7;
    int h = 7;
    unsigned char* pixels = nullptr;
    const TempFile file("BM", ".bmp");
    EXPECT_EQ(slLoadBmpTexture(file.path(), nullptr, &h, &pixels), 0);
    EXPECT_EQ(slLoadBmpTexture(file.path(), &w, nullptr, &pixels), 0);
    EXPECT_EQ(slLoadBmpPicture3D(file.path(), &w, &h, nullptr), 0);
    EXPECT_EQ(slDecodeBmp("BM", 2, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(slDecodeBmp(nullptr, 100, &w, &h, &pixels), 0);
    EXPECT_EQ(w + h, 0);
}

TEST(NullPointers, ListsTakeAndGiveNothing)
{
    IntArr ints;
    ints.AddItemM(5);
    EXPECT_EQ(ints.GetItemM(nullptr, 0), 0);
    Int3DArr triples;
    EXPECT_EQ(triples.AddItemM(nullptr), -1);
    EXPECT_EQ(triples.InsertItemM(nullptr, 0), 0);
    EXPECT_EQ(triples.GetBoundM(), 0);
}
