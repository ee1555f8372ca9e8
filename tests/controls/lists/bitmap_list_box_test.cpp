#include "click_with.h"
#include "controls/lists/bitmap_list_box.h"
#include "controls/lists/bitmap_list_box_record.h"
#include "support/all.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);
constexpr COLORREF White = RGB(255, 255, 255);

// A list box of its own in a shown window, with the client area of that size.
struct BoxCL
{
    BoxCL(int rows, int columns, int scrollMode, int selMode, int width = 200, int height = 300)
    {
        const int position[2] = { 10, 10 };
        const int size[2] = { width + 2, height + 2 }; // Its border is one pixel wide.
        const int rowsColumns[2] = { rows, columns };
        box.SetFunctionIDM(15);
        box.SetPositionM(position);
        box.SetSizeM(size);
        EXPECT_EQ(box.SetRowColNumM(rowsColumns), 1);
        EXPECT_EQ(box.SetScrollModeM(scrollMode), 1);
        EXPECT_EQ(box.SetSelModeM(selMode), 1);
        EXPECT_EQ(box.Create(&parent), 1);
    }
    void AddM(int count)
    {
        const char* const files[3] = { red.path(), green.path(), red.path() };
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(box.AddItemM(i, files[i % 3]), i);
        }
    }
    std::string RectM(int line) const
    {
        RECT rect {};
        box.GetItemRect(line, &rect);
        return std::to_string(rect.left) + " " + std::to_string(rect.top) + " "
            + std::to_string(rect.right - rect.left) + " " + std::to_string(rect.bottom - rect.top);
    }
    std::string SelectedM()
    {
        std::string all;
        int index = -1;
        int data = -1;
        for (int found = box.GetFirstItemM(&index, &data); found == 1;
             found = box.GetNextItemM(index, &index, &data)) {
            all += std::to_string(index) + "=" + std::to_string(data) + " ";
        }
        return all;
    }
    void ClickLineM(int line, WORD modifier = 0)
    {
        RECT rect {};
        box.GetItemRect(line, &rect);
        clickWith(modifier, box.m_hWnd, (rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
    Pixels SeenM() const
    {
        ::RedrawWindow(box.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return Pixels(box.m_hWnd);
    }

    SmallPictureCL red { 0xFF0000, 12, 10 };
    SmallPictureCL green { 0x00FF00, 12, 10 };
    PlainWindowCL parent { 500, 500 };
    DuBmpListBoxCL box;
};

std::string path(const TempFile& file)
{
    return file.path();
}

} // namespace

TEST(BitmapListBox, StyleFollowsColumnsScrollAndSelection)
{
    const auto style = [](int columns, int scroll, int select) {
        return styleOf(BoxCL(1, columns, scroll, select).box.m_hWnd);
    };
    EXPECT_EQ(style(1, 0, 1), 0x50811111U);
    EXPECT_EQ(style(2, 0, 1), 0x50811311U);
    EXPECT_EQ(style(1, 1, 1), 0x50911111U);
    EXPECT_EQ(style(1, 2, 1), 0x50A11111U);
    EXPECT_EQ(style(1, 4, 1), 0x50B11111U);
    EXPECT_EQ(style(1, 3, 1), 0x50811111U);
    EXPECT_EQ(style(1, 0, 2), 0x50811119U);
    EXPECT_EQ(style(1, 0, 3), 0x50811911U);
    EXPECT_EQ(style(1, 0, 4), 0x50815111U);
}

TEST(BitmapListBox, ThreeRowsAndTwoColumnsDivideTheClientArea)
{
    BoxCL own(3, 2, 0, 1);
    own.AddM(4);
    EXPECT_EQ(own.RectM(0), "0 0 100 100");
    EXPECT_EQ(own.RectM(2), "0 200 100 100");
    EXPECT_EQ(own.RectM(3), "100 0 100 100");
}

TEST(BitmapListBox, GridRoundsDownWhereItDoesNotDivideEvenly)
{
    BoxCL own(3, 3, 0, 1, 101, 98);
    own.AddM(4);
    EXPECT_EQ(own.RectM(0), "0 0 33 32");
    EXPECT_EQ(own.RectM(3), "33 0 33 32");
    const Pixels seen = own.SeenM();
    EXPECT_EQ(seen.AtM(5, 5), Red);
    EXPECT_EQ(seen.AtM(38, 5), Red);
    EXPECT_EQ(seen.AtM(5, 37), Green);
}

TEST(BitmapListBox, NoRowsNoColumnsOrMoreThanPixelsNeverDivideByZero)
{
    for (const int count : { 0, -1, 1000000 }) {
        BoxCL own(count, count, 2, 1, 60, 40);
        own.AddM(3);
        EXPECT_EQ(own.box.GetCount(), 3) << count;
        EXPECT_GE(own.box.GetItemHeight(0), 1) << count;
        own.SeenM();
    }
    BoxCL empty(2, 2, 2, 1, 0, 0);
    empty.AddM(1);
    EXPECT_EQ(empty.box.GetCount(), 1);
}

TEST(BitmapListBox, PictureStandsAtItsPlaceWithAFrameThatTellsTheSelection)
{
    BoxCL own(3, 2, 0, 1);
    own.AddM(4);
    EXPECT_EQ(own.box.SetSelM(1, 1), 1);
    const Pixels seen = own.SeenM();
    // Unscaled at the top left of each line: lines 0 and 2 red, 1 green, 3 red.
    EXPECT_EQ(seen.AtM(5, 5), Red);
    EXPECT_EQ(seen.AtM(11, 9), Red);
    EXPECT_NE(seen.AtM(12, 9), Red);
    EXPECT_NE(seen.AtM(11, 10), Red);
    EXPECT_EQ(seen.AtM(5, 105), Green);
    EXPECT_EQ(seen.AtM(5, 205), Red);
    EXPECT_EQ(seen.AtM(105, 5), Red);
    // The frame: two pixels, begun one pixel inside at the top left.
    for (const int y : { 1, 50 }) {
        EXPECT_EQ(seen.AtM(1, y), White) << y;
        EXPECT_EQ(seen.AtM(1, 100 + y), Blue) << y;
    }
    EXPECT_EQ(seen.AtM(50, 101), Blue); // Top.
    EXPECT_EQ(seen.AtM(50, 199), Blue); // Bottom.
    EXPECT_EQ(seen.AtM(99, 150), Blue); // Right.
    EXPECT_EQ(seen.AtM(50, 1), White);
    EXPECT_EQ(seen.AtM(99, 50), White);
    EXPECT_EQ(own.box.SetSelM(0, 1), 1);
    const Pixels after = own.SeenM();
    EXPECT_EQ(after.AtM(1, 50), Blue);
    EXPECT_EQ(after.AtM(1, 150), White);
}

TEST(BitmapListBox, EmptyNameAddsNothingAndMissingPictureLeavesNoLine)
{
    BoxCL own(3, 2, 0, 1);
    EXPECT_EQ(own.box.AddItemM(1, ""), 0);
    EXPECT_EQ(own.box.AddItemM(1, nullptr), 0);
    EXPECT_EQ(own.box.AddItemM(1, "missing.bmp"), -1);
    EXPECT_EQ(own.box.InsertItemM(0, 1, ""), 0);
    EXPECT_EQ(own.box.GetCount(), 0);
    EXPECT_EQ(own.box.AddItemM(1, own.red.path()), 0);
}

TEST(BitmapListBox, DeletingALineDeletesThePictureOfThatLine)
{
    BoxCL own(3, 1, 0, 1);
    const SmallPictureCL third(0x808000, 12, 10);
    own.AddM(2);
    own.box.AddItemM(2, third.path());
    EXPECT_EQ(own.box.DelItemM(1), 1);
    EXPECT_EQ(own.box.DelItemM(5), 0);
    Pixels seen = own.SeenM();
    EXPECT_EQ(seen.AtM(5, 5), Red);
    EXPECT_EQ(seen.AtM(5, 105), RGB(128, 128, 0));
    // The gap stays in the list of pictures: the next one is counted past it.
    EXPECT_EQ(own.box.DelItemM(0), 1);
    seen = own.SeenM();
    EXPECT_EQ(seen.AtM(5, 5), RGB(128, 128, 0));
    EXPECT_EQ(own.box.GetItemData(0), 2U);
}

TEST(BitmapListBox, InsertedLineShowsItsPictureAndCompletesItsName)
{
    BoxCL own(3, 1, 0, 1);
    own.AddM(1);
    const std::string name = path(own.green);
    EXPECT_EQ(own.box.InsertItemM(0, 9, name.substr(0, name.size() - 4).c_str()), 1);
    EXPECT_EQ(own.box.GetItemData(0), 9U);
    const Pixels seen = own.SeenM();
    EXPECT_EQ(seen.AtM(5, 5), Green);
    EXPECT_EQ(seen.AtM(5, 105), Red);
    EXPECT_EQ(own.box.InsertItemM(7, 9, own.red.path()), 0);
    EXPECT_EQ(own.box.InsertItemM(2, 8, "missing.bmp"), 1); // The line stays.
    EXPECT_EQ(own.box.GetCount(), 3);
}

TEST(BitmapListBox, LineInsertedAfterADeletionShowsItsOwnPicture)
{
    BoxCL own(4, 1, 0, 1, 200, 80);
    const SmallPictureCL blue(0x0000FF, 12, 10);
    own.box.AddItemM(0, own.red.path());
    own.box.AddItemM(1, own.red.path());
    own.box.AddItemM(2, own.green.path());
    own.box.DelItemM(0);
    EXPECT_EQ(own.box.InsertItemM(1, 9, blue.path()), 1);
    EXPECT_EQ(own.box.InsertItemM(-1, 9, blue.path()), 1); // At the end.
    const Pixels seen = own.SeenM();
    EXPECT_EQ(seen.AtM(5, 5), Red);
    EXPECT_EQ(seen.AtM(5, 25), Blue);
    EXPECT_EQ(seen.AtM(5, 45), Green);
    EXPECT_EQ(seen.AtM(5, 65), Blue);
}

TEST(BitmapListBox, DeletingAllLeavesEverySecondLine)
{
    BoxCL own(3, 2, 0, 1);
    own.AddM(5);
    EXPECT_EQ(own.box.DelAllItemM(), 1);
    ASSERT_EQ(own.box.GetCount(), 2);
    EXPECT_EQ(own.box.GetItemData(0), 1U);
    EXPECT_EQ(own.box.GetItemData(1), 3U);
}

TEST(BitmapListBox, SelectionFollowsTheMode)
{
    int count = 9;
    BoxCL single(3, 2, 0, 1);
    single.AddM(4);
    EXPECT_EQ(single.box.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(single.SelectedM(), "");
    EXPECT_EQ(single.box.SetSelM(2, 0), 1); // There is nothing to take back.
    EXPECT_EQ(single.SelectedM(), "2=2 ");
    EXPECT_EQ(single.box.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(single.box.SetSelM(9, 1), 0);
    BoxCL multiple(3, 2, 0, 2);
    multiple.AddM(4);
    EXPECT_EQ(multiple.box.SetSelM(0, 1), 1);
    EXPECT_EQ(multiple.box.SetSelM(3, 1), 1);
    EXPECT_EQ(multiple.SelectedM(), "0=0 3=3 ");
    EXPECT_EQ(multiple.box.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(multiple.box.SetSelM(0, 0), 1);
    EXPECT_EQ(multiple.SelectedM(), "3=3 ");
    int index = 5;
    int data = 5;
    EXPECT_EQ(multiple.box.GetNextItemM(3, &index, &data), 0);
    EXPECT_EQ(multiple.box.GetNextItemM(2147483647, &index, &data), 0);
    EXPECT_EQ(index, 5);
}

TEST(BitmapListBox, ExtendedSelectionTakesCtrlAndShift)
{
    BoxCL own(3, 2, 0, 3);
    own.AddM(6);
    ASSERT_TRUE(ActivateM(own.parent.m_hWnd));
    SettleM();
    const MessageRecorder messages(own.parent.m_hWnd, { 1625 });
    own.ClickLineM(1);
    EXPECT_EQ(own.SelectedM(), "1=1 ");
    own.ClickLineM(4, VK_CONTROL);
    EXPECT_EQ(own.SelectedM(), "1=1 4=4 ");
    own.ClickLineM(0);
    own.ClickLineM(3, VK_SHIFT);
    EXPECT_EQ(own.SelectedM(), "0=0 1=1 2=2 3=3 ");
    PumpPending();
    EXPECT_EQ(messages.ListM(), std::vector<std::string> { "posted 1625 w=15 l=0" });
}

TEST(BitmapListBox, NothingCanBeSelectedInModeFour)
{
    BoxCL own(3, 2, 0, 4);
    own.AddM(2);
    ASSERT_TRUE(ActivateM(own.parent.m_hWnd));
    own.ClickLineM(1);
    EXPECT_EQ(own.SelectedM(), "");
}

TEST(BitmapListBox, SelectingFailsInEveryModeThatSelectsNoSeveral)
{
    for (const int mode : { 0, 4, 5, -1 }) {
        BoxCL own(3, 2, 0, mode);
        own.AddM(2);
        EXPECT_EQ(own.box.SetSelM(0, 1), 0) << mode;
        EXPECT_EQ(own.SelectedM(), "") << mode;
    }
}

TEST(BitmapListBox, LinesThatAreGoneByAnyWayTakeTheirPicturesAlong)
{
    BoxCL own(3, 1, 0, 1);
    const int before = LiveGdiObjectsM();
    const auto firstColour = [&own] { return own.SeenM().AtM(5, 5); };
    const auto expectEmpty = [&own, before, &firstColour](const char* what) {
        EXPECT_EQ(LiveGdiObjectsM(), before) << what;
        EXPECT_GE(own.box.AddItemM(0, own.green.path()), 0);
        EXPECT_EQ(firstColour(), Green) << what;
        own.box.DeleteString(0);
        EXPECT_EQ(LiveGdiObjectsM(), before) << what;
    };
    own.AddM(2);
    own.box.ResetContent();
    expectEmpty("emptied");
    own.AddM(2);
    own.box.SendMessage(LB_RESETCONTENT);
    expectEmpty("emptied by message");
    own.AddM(2);
    own.box.DestroyWindow();
    EXPECT_EQ(LiveGdiObjectsM(), before);
    ASSERT_EQ(own.box.Create(&own.parent), 1);
    expectEmpty("destroyed and created anew");
    own.AddM(2);
    ASSERT_EQ(own.box.Create(&own.parent), 1);
    expectEmpty("created anew");
    own.AddM(2);
    EXPECT_EQ(own.box.SendMessage(LB_DELETESTRING, 0), 1);
    EXPECT_EQ(own.box.SendMessage(LB_DELETESTRING, 7), LB_ERR);
    EXPECT_EQ(firstColour(), Green);
}

TEST(BitmapListBox, NumbersCountTheNamesOfTheRecord)
{
    const SmallPictureCL red(0xFF0000, 12, 10);
    const TestDialogCL dialog(HeaderSections + std::string("[图片列表框]\n1\n0\n1 15 20 30 200 100 1 1 2 1\n")
        + "[图片列表框位图]\n4\n0\n15 " + path(red) + "\n15 null\n15 missing.bmp\n15 " + path(red) + "\n");
    auto& box = *dynamic_cast<DuBmpListBoxCL*>(CWnd::FromHandlePermanent(dialog.ItemM(15)));
    ASSERT_EQ(box.GetCount(), 2);
    EXPECT_EQ(box.GetItemData(0), 0U);
    EXPECT_EQ(box.GetItemData(1), 2U);
}

TEST(BitmapListBox, CopyStartsWithoutPicturesAndDestroyReleasesThem)
{
    BoxCL own(3, 2, 0, 1);
    const int before = LiveGdiObjectsM();
    own.AddM(5);
    EXPECT_GE(LiveGdiObjectsM(), before + 5);
    {
        const DuBmpListBoxCL copy(own.box);
        DuBmpListBoxCL assigned;
        assigned = own.box;
    }
    EXPECT_EQ(own.SeenM().AtM(5, 5), Red);
    own.box.destroyM();
    EXPECT_EQ(LiveGdiObjectsM(), before);
}
