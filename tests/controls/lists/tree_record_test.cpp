#include "controls/lists/tree_record.h"
#include "read_records.h"

TEST(TreeRecord, LinesWithKeysTextsAndPictures)
{
    EXPECT_EQ(read<DVrTreeArr>("[树形控件]\n1\n0\n1 16 2 3 4 5\n[树形控件数据]\n2\n0\n"
                               "16 0 1 100 根 节点\nn.bmp\ns.bmp\n16 1 2 200 叶\nnull\nNULL\n"),
        "16: items=[parent=0 key=1 data=100 text=根 节点 normal=n.bmp selected=s.bmp]"
        "[parent=1 key=2 data=200 text=叶 normal=null selected=NULL]\n");
}

TEST(TreeRecord, NullTextSkipsTheWholeLine)
{
    EXPECT_EQ(read<DVrTreeArr>("[树形控件]\n1\n0\n1 16 2 3 4 5\n[树形控件数据]\n2\n0\n"
                               "16 0 1 100 null\nn.bmp\ns.bmp\n16 0 2 200 b\nn\ns\n"),
        "16: items=[parent=0 key=2 data=200 text=b normal=n selected=s]\n");
}

TEST(TreeRecord, CopyingCopiesTheLinesAndDestroyEmptiesThem)
{
    DVrTreeArr records;
    records.AddItemM(DVrTreeCL(AliveTag));
    const int triple[3] = { 1, 2, 3 };
    EXPECT_EQ(records.AddStringM(0, triple, "t", "s", "n"), 1);
    EXPECT_EQ(records.AddStringM(5, triple, "t", "s", "n"), 1);
    DVrTreeCL copy(records[0]);
    records[0].destroyM();
    EXPECT_EQ(printedFields(records[0]), "items=");
    EXPECT_EQ(printedFields(copy), "items=[parent=1 key=2 data=3 text=t normal=n selected=s]");
}
