#include "controls/buttons/new_rotate_btn_record.h"
#include "support/description.h"
#include "support/printed.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {

// What the array makes of a file; the file's folder is cut off the names.
std::string newRotate(const std::string& utf8, int wanted = 1)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrNewRotateBtnArr records;
    EXPECT_EQ(records.FmReadInterfaceM(&io), wanted);
    char folder[PathSize];
    io.GetFilePathM(folder);
    std::string all;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        FieldTextCL common;
        records[i].EachCommonFieldM(common, 1);
        all += common.text + " " + printedFields(records[i]) + "\n";
    }
    const std::string prefix = slGbkToUtf8(folder);
    for (size_t at = all.find(prefix); !prefix.empty() && at != std::string::npos;
         at = all.find(prefix, at)) {
        all.erase(at, prefix.size());
    }
    return all;
}

const char* const NoPictures = "[新旋转按钮对应的图片]\n0 1\n";
const char* const Head = "[窗口中新旋转按钮数据]\n";

} // namespace

TEST(NewRotateBtnRecord, PositiveCountsReadNeitherDescriptionNorShowCondition)
{
    EXPECT_EQ(newRotate(Head + std::string("2 2\n说明\n1 7 11 2 3 40 50 1 -1 4\n2 8 12 2 3 40 50 2 -2 5\n")
                  + NoPictures),
        "window_index=1 item_index=7 function_id=11 position=2,3 size=40,50 steps=1,-1 initial_index=4 "
        "show_condition=-1 description= pictures=\n"
        "window_index=2 item_index=8 function_id=12 position=2,3 size=40,50 steps=2,-2 initial_index=5 "
        "show_condition=-1 description= pictures=\n");
}

TEST(NewRotateBtnRecord, NegativeSecondNumberSwitchesTheShowConditionOn)
{
    EXPECT_EQ(newRotate(Head + std::string("1 -1\n1 7 11 2 3 40 50 1 -1 4 9\n") + NoPictures),
        "window_index=1 item_index=7 function_id=11 position=2,3 size=40,50 steps=1,-1 initial_index=4 "
        "show_condition=9 description= pictures=\n");
}

TEST(NewRotateBtnRecord, NegativeCountSwitchesTheDescriptionOnOfWhichOnlyCapitalNullIsEmpty)
{
    const auto described = [](const std::string& text) {
        const std::string all
            = newRotate(Head + std::string("-1 1\n1 7 11 2 3 40 50 1 -1 4 ") + text + "\n" + NoPictures);
        const size_t from = all.find("description=") + 12;
        return all.substr(from, all.find(" pictures=") - from);
    };
    EXPECT_EQ(described("调节 速度"), "调节 速度");
    EXPECT_EQ(described("NULL"), "");
    EXPECT_EQ(described("null"), "null");
    EXPECT_EQ(described(std::string(123, 'x') + "中"), std::string(123, 'x'));
    EXPECT_EQ(described(std::string(200, 'y')), std::string(124, 'y'));
}

TEST(NewRotateBtnRecord, EveryReaderOfItsFieldsTakesCapitalNullAloneForNoDescription)
{
    const auto described = [](const std::string& text) {
        const DescriptionFileCL file("1 -1 4 9 " + text);
        VrIOCL io;
        io.OpenM(file.path(), "r");
        FieldReaderCL reader(&io);
        DVrNewRotateBtnCL record(AliveTag);
        record.EachFieldM(reader);
        return printedFields(record);
    };
    const std::string before = "steps=1,-1 initial_index=4 show_condition=9 description=";
    EXPECT_EQ(described("NULL"), before + " pictures=");
    EXPECT_EQ(described("null"), before + "null pictures=");
}

TEST(NewRotateBtnRecord, BothNegativeReadTheShowConditionBeforeTheDescription)
{
    EXPECT_EQ(newRotate(Head + std::string("-1 -2\n说明\n1 7 11 2 3 40 50 1 -1 4 5 音量\n") + NoPictures),
        "window_index=1 item_index=7 function_id=11 position=2,3 size=40,50 steps=1,-1 initial_index=4 "
        "show_condition=5 description=音量 pictures=\n");
}

namespace {

std::string pictures(const std::string& section, int wanted = 1)
{
    const std::string all = newRotate(
        Head + std::string("2 1\n1 0 11 0 0 9 9 1 1 0\n1 0 12 0 0 9 9 1 1 0\n") + section, wanted);
    std::string found;
    for (size_t at = all.find("pictures="); at != std::string::npos; at = all.find("pictures=", at + 1)) {
        found += all.substr(at + 9, all.find('\n', at) - at - 9) + ";";
    }
    return found;
}

} // namespace

TEST(NewRotateBtnRecord, PicturesGoByPositionAndSlotAndShortExtensionsGetBmp)
{
    EXPECT_EQ(
        pictures("[新旋转按钮对应的图片]\n9 2\n说明\n0 0 2 knob3\n0 1 0 b.c\n0 0 0 旋钮.BMP\n5 1 1 NULL\n"
                 "0 2 0 outside\n0 -1 0 outside\n0 0 -1 outside\n0 1 99999 outside\n0 1 0 again.x.y\n"),
        "[旋钮.BMP][][knob3.bmp];[again.x.y.bmp][NULL.bmp];");
}

TEST(NewRotateBtnRecord, PictureLinesSkippedTakeTheNumberAsItIs)
{
    // A negative number skips nothing: the rest of the count line is the first row.
    EXPECT_EQ(pictures("[新旋转按钮对应的图片]\n1 -1 0 1 0 a.bmp\n"), ";[a.bmp];");
}

TEST(NewRotateBtnRecord, SlotMayBeAsLargeAsTheFileButNotLarger)
{
    const std::string head
        = Head + std::string("1 1\n1 0 11 0 0 9 9 1 1 0\n[新旋转按钮对应的图片]\n1 1\n0 0 ");
    const std::string tail = " a.bmp\n";
    const size_t size = slUtf8ToGbk(head).size() + 2 + tail.size();
    const auto count = [&](size_t slot) {
        const std::string all = newRotate(head + std::to_string(slot) + tail);
        return static_cast<size_t>(std::count(all.begin(), all.end(), '['));
    };
    ASSERT_GT(size, 9U);
    ASSERT_LT(size, 98U);
    EXPECT_EQ(count(size), size + 1);
    EXPECT_EQ(count(size + 1), 0U);
}

TEST(NewRotateBtnRecord, MissingSectionsGiveZeroAndTheRecordsReadStay)
{
    EXPECT_EQ(newRotate("nothing", 0), "");
    EXPECT_EQ(pictures("", 0), ";;");
}

TEST(NewRotateBtnRecord, CountsThatCannotBeMeantBreakTheirSection)
{
    EXPECT_EQ(newRotate(Head + std::string("2147483647 1\n1 0 11 0 0 9 9 1 1 0\n") + NoPictures, 0), "");
    EXPECT_EQ(newRotate(Head + std::string("-2147483648 1\n1 0 11 0 0 9 9 1 1 0\n") + NoPictures, 0), "");
    EXPECT_EQ(pictures("[新旋转按钮对应的图片]\n1000 1\n0 0 0 a.bmp\n", 0), ";;");
    EXPECT_EQ(newRotate(Head + std::string("x\n") + NoPictures), "");
}

TEST(NewRotateBtnRecord, CountMayBeTheNumberOfBytesLeft)
{
    // Three bytes behind the numbers: three records of defaults, not four.
    const auto records = [](int count) {
        const std::string all = newRotate(
            NoPictures + std::string(Head) + std::to_string(count) + " 0\n\n\n", count == 3 ? 1 : 0);
        return std::count(all.begin(), all.end(), '\n');
    };
    EXPECT_EQ(records(3), 3);
    EXPECT_EQ(records(4), 0);
}

TEST(NewRotateBtnRecord, FarSlotsOfManyButtonsTakeNoMemoryOutOfProportion)
{
    // 2000 buttons, each with a slot as far as the file is long: all together they would take gigabytes.
    std::string file = Head + std::string("2000 1\n");
    for (int i = 0; i < 2000; ++i) {
        file += "1 0 1 0 0 9 9 1 1 0\n";
    }
    file += "[新旋转按钮对应的图片]\n2000 1\n";
    for (int i = 0; i < 2000; ++i) {
        file += "0 " + std::to_string(i) + " 60000 a\n";
    }
    const DescriptionFileCL described(file);
    VrIOCL io;
    io.OpenM(described.path(), "r");
    ASSERT_GT(io.SizeM(), 60000U);
    DVrNewRotateBtnArr records;
    EXPECT_EQ(records.FmReadInterfaceM(&io), 1);
    EXPECT_EQ(records[0].SlotCountM(), 60001);
    EXPECT_EQ(records[9].PicturesM().GetBoundM(), 60001);
    EXPECT_EQ(records[1999].SlotCountM(), 0);
}
