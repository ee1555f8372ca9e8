#include "baselib/io.h"
#include "dialog/dialog_header.h"
#include "support/description.h"
#include <gtest/gtest.h>

namespace {

int read(const std::string& utf8, DialogHeaderCL& header)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    return slReadDialogHeader(io, header);
}

DialogHeaderCL withTitleAndPicture(const std::string& title, const std::string& picture)
{
    DialogHeaderCL header;
    read("[版本号]\n1\n[对话框]\n0\n1 2\n3 4\n1\n" + title + "\n12 2 4\n" + picture + "\n", header);
    return header;
}

unsigned style(int titleFlag, int windowKind, int borderKind)
{
    DialogHeaderCL header;
    header.titleFlag = titleFlag;
    header.windowKind = windowKind;
    header.borderKind = borderKind;
    return header.StyleM();
}

} // namespace

TEST(DialogHeader, ValuesAreReadInOrder)
{
    DialogHeaderCL header;
    ASSERT_EQ(
        read("[版本号]\n1.0\n[对话框]\n2 x\n注释\n9 9\n100 80\n420 260\n1\n参数设置\n14 2 4\nback.bmp\n",
            header),
        1);
    EXPECT_EQ(header.position[0], 100);
    EXPECT_EQ(header.position[1], 80);
    EXPECT_EQ(header.size[0], 420);
    EXPECT_EQ(header.size[1], 260);
    EXPECT_EQ(header.titleFlag, 1);
    EXPECT_EQ(slGbkToUtf8(header.title.TextM()), "参数设置");
    EXPECT_EQ(header.fontOption, 14);
    EXPECT_EQ(header.windowKind, 2);
    EXPECT_EQ(header.borderKind, 4);
    EXPECT_STREQ(header.background.TextM(), "back.bmp");
}

TEST(DialogHeader, MissingEitherSectionChangesNothing)
{
    DialogHeaderCL header;
    header.fontOption = 77;
    EXPECT_EQ(read("[对话框]\n0\n1 2\n3 4\n1\nt\n12 2 4\nb\n", header), 0);
    EXPECT_EQ(read("[版本号]\n1\n", header), 0);
    EXPECT_EQ(read("", header), 0);
    EXPECT_EQ(header.fontOption, 77);
}

TEST(DialogHeader, NothingStaysOfTheOneReadBefore)
{
    DialogHeaderCL header;
    ASSERT_EQ(read("[版本号]\n1\n[对话框]\n0\n1 2\n3 4\n1\nt\n12 2 4\nb\n", header), 1);
    ASSERT_EQ(read("[版本号]\n1\n[对话框]\n0\n5 6\n", header), 1);
    const DialogHeaderCL fresh;
    EXPECT_EQ(header.position[1], 6);
    EXPECT_EQ(header.size[0], fresh.size[0]);
    EXPECT_EQ(header.titleFlag, fresh.titleFlag);
    EXPECT_EQ(header.fontOption, fresh.fontOption);
    EXPECT_EQ(header.borderKind, fresh.borderKind);
    EXPECT_STREQ(header.background.TextM(), "");
}

TEST(DialogHeader, NullWordsMeanEmptyAndOtherSpellingsStay)
{
    EXPECT_STREQ(withTitleAndPicture("NULL", "NULL").title.TextM(), "");
    EXPECT_STREQ(withTitleAndPicture("null", "null").title.TextM(), "");
    EXPECT_STREQ(withTitleAndPicture("null", "null").background.TextM(), "");
    EXPECT_STREQ(withTitleAndPicture("NULL", "NULL").background.TextM(), "");
    EXPECT_STREQ(withTitleAndPicture("Null", "x").title.TextM(), "Null");
    EXPECT_STREQ(withTitleAndPicture("NULLx", "nullx").background.TextM(), "nullx");
}

TEST(DialogHeader, DialogBeforeVersionIsFoundToo)
{
    DialogHeaderCL header;
    EXPECT_EQ(read("[对话框]\n0\n1 2\n3 4\n1\nt\n12 2 4\nb\n[版本号]\n1\n", header), 1);
    EXPECT_EQ(header.fontOption, 12);
}

TEST(DialogHeader, StyleWordFollowsKindTitleAndBorder)
{
    EXPECT_EQ(style(0, 1, 0), 0U);
    EXPECT_EQ(style(0, 2, 0), 0x80000000U);
    EXPECT_EQ(style(0, 3, 0), 0x40000000U);
    EXPECT_EQ(style(0, 9, 0), 0U);
    EXPECT_EQ(style(1, 2, 0), 0x80C80000U);
    EXPECT_EQ(style(2, 2, 0), 0x80000000U); // Only 1 asks for a caption.
    EXPECT_EQ(style(0, 3, 2), 0x40800000U);
    EXPECT_EQ(style(0, 3, 3), 0x40040000U);
    EXPECT_EQ(style(1, 2, 4), 0x80C80000U);
    EXPECT_EQ(style(0, 2, 4), 0x80400000U);
    EXPECT_EQ(style(1, 3, 5), 0x40C80000U);
}

TEST(DialogHeader, BorderKindOneThrowsAwayEveryStyleBit)
{
    EXPECT_EQ(style(1, 3, 1), 0U);
}
