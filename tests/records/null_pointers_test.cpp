// Null where records want a pointer: refused, nothing read or changed.
#include "records/common_box_record.h"
#include "records/field_reader.h"
#include "support/temp_file.h"
#include <gtest/gtest.h>

TEST(NullPointers, CommonFieldsNeedAReader)
{
    const TempFile file("3 9 10 20 40 20");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrCommonBoxCL record;
    ASSERT_EQ(record.FmReadInterfaceM(&io, 0), 1);
    EXPECT_EQ(record.FmReadInterfaceM(nullptr, 1), 0);
    EXPECT_EQ(record.FmInputInterfaceM(7, nullptr), 0);
    EXPECT_EQ(record.GetWindowIndexM(), 3);
    EXPECT_EQ(record.GetFuncIDM(), 9);
    EXPECT_EQ(slIsNullWord(nullptr), 0);
}

TEST(NullPointers, FieldsReadWithoutAReaderKeepTheirValues)
{
    FieldReaderCL reader(nullptr);
    int value = 5;
    reader.IntM("value", value);
    EXPECT_EQ(value, 5);
}
