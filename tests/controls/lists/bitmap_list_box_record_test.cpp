#include "controls/lists/bitmap_list_box_record.h"
#include "read_records.h"

TEST(BitmapListBoxRecord, FieldsDefaultsAndPictures)
{
    EXPECT_EQ(printed<DVrBmpListBoxCL>("1 15 2 3 4 5 2 3 4 3"),
        "rows=2 columns=3 scroll_mode=4 selection_mode=3 bitmaps=");
    EXPECT_EQ(
        printed<DVrBmpListBoxCL>("1 15 2 3 4 5"), "rows=0 columns=0 scroll_mode=2 selection_mode=1 bitmaps=");
    EXPECT_EQ(read<DVrBmpListBoxArr>("[图片列表框]\n1\n0\n1 15 2 3 4 5 2 3 2 1\n"
                                     "[图片列表框位图]\n3\n0\n15 a.bmp\n15 null\n15 b\n"),
        "15: rows=2 columns=3 scroll_mode=2 selection_mode=1 bitmaps=[a.bmp][b]\n");
}
