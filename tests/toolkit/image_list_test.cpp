#include "parent_window.h"
#include <gtest/gtest.h>

namespace {

// A picture of one colour.
class ColouredCL
{
public:
    ColouredCL(CDC* like, COLORREF colour, int width = 16)
    {
        bitmap.Attach(::CreateCompatibleBitmap(*like, width, 16));
        CDC memory;
        memory.CreateCompatibleDC(like);
        const HGDIOBJ before = ::SelectObject(memory, bitmap);
        const CRect all(0, 0, width, 16);
        CBrush brush(colour);
        ::FillRect(memory, &all, brush);
        ::SelectObject(memory, before);
    }
    CBitmap bitmap;
};

class ImageList : public testing::Test
{
protected:
    ImageList()
        : red_(&dc, 0x0000FF)
        , blue_(&dc, 0xFF0000)
    {
    }
    // The colour that a picture of the list gives on a white ground.
    COLORREF drawnM(int index, UINT style = ILD_NORMAL)
    {
        ColouredCL ground(&dc, 0xFFFFFF);
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        const HGDIOBJ before = ::SelectObject(memory, ground.bitmap);
        EXPECT_TRUE(list.Draw(&memory, index, CPoint(0, 0), style));
        const COLORREF colour = ::GetPixel(memory, 8, 8);
        ::SelectObject(memory, before);
        return colour;
    }

    ParentWindowCL parent_;
    CClientDC dc { &parent_ };
    ColouredCL red_;
    ColouredCL blue_;
    CImageList list;
};

} // namespace

TEST_F(ImageList, TakesReplacesAndRemovesPictures)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    EXPECT_EQ(list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr)), 0);
    EXPECT_EQ(list.Add(&blue_.bitmap, RGB(1, 2, 3)), 1);
    EXPECT_EQ(list.GetImageCount(), 2);
    EXPECT_EQ(drawnM(0), 0x0000FFu);
    EXPECT_EQ(drawnM(1), 0xFF0000u);
    CBitmap opaque;
    const BYTE drawnAll[32] = {};
    opaque.CreateBitmap(16, 16, 1, 1, drawnAll);
    EXPECT_TRUE(list.Replace(0, &blue_.bitmap, &opaque));
    EXPECT_EQ(drawnM(0), 0xFF0000u);
    EXPECT_TRUE(list.Replace(0, &red_.bitmap, &opaque));
    EXPECT_TRUE(list.Replace(1, &red_.bitmap, &opaque));
    EXPECT_TRUE(list.Replace(0, &blue_.bitmap, &opaque));
    EXPECT_TRUE(list.Copy(0, 1, ILCF_SWAP));
    EXPECT_EQ(drawnM(0), 0x0000FFu);
    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(list.GetImageCount(), 1);
    EXPECT_TRUE(list.Remove(-1));
    EXPECT_EQ(list.GetImageCount(), 0);
    EXPECT_TRUE(list.SetImageCount(3));
    EXPECT_EQ(list.GetImageCount(), 3);
    IMAGEINFO info = {};
    EXPECT_TRUE(list.GetImageInfo(0, &info));
    EXPECT_EQ(info.rcImage.right - info.rcImage.left, 16);
}

TEST_F(ImageList, MaskColourIsNotDrawn)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, RGB(255, 0, 0));
    EXPECT_EQ(drawnM(0, ILD_TRANSPARENT), 0xFFFFFFu);
    list.SetBkColor(0x00FF00);
    EXPECT_EQ(list.GetBkColor(), 0x00FF00u);
    EXPECT_EQ(drawnM(0), 0x00FF00u);
}

TEST_F(ImageList, IconsComeAndGo)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr));
    const HICON icon = list.ExtractIcon(0);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(list.Add(icon), 1);
    EXPECT_EQ(drawnM(1), 0x0000FFu);
    list.Add(&blue_.bitmap, static_cast<CBitmap*>(nullptr));
    EXPECT_EQ(list.Replace(2, icon), 2);
    EXPECT_EQ(drawnM(2), 0x0000FFu);
    ::DestroyIcon(icon);
}

TEST_F(ImageList, OverlayLiesOnThePicture)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr));
    list.Add(&blue_.bitmap, RGB(1, 2, 3));
    EXPECT_TRUE(list.SetOverlayImage(1, 1));
    EXPECT_EQ(drawnM(0, ILD_NORMAL | INDEXTOOVERLAYMASK(1)), 0xFF0000u);
}

TEST_F(ImageList, DrawsPartsAndAtSizes)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr));
    ColouredCL ground(&dc, 0xFFFFFF);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    const HGDIOBJ before = ::SelectObject(memory, ground.bitmap);
    EXPECT_TRUE(list.DrawEx(&memory, 0, CPoint(0, 0), CSize(4, 4), CLR_NONE, CLR_NONE, ILD_NORMAL));
    EXPECT_EQ(::GetPixel(memory, 2, 2), 0x0000FFu);
    EXPECT_EQ(::GetPixel(memory, 6, 6), 0xFFFFFFu);
    EXPECT_TRUE(list.DrawIndirect(&memory, 0, CPoint(8, 8), CSize(4, 4), CPoint(0, 0)));
    EXPECT_EQ(::GetPixel(memory, 9, 9), 0x0000FFu);
    EXPECT_EQ(::GetPixel(memory, 14, 14), 0xFFFFFFu);
    ::SelectObject(memory, before);
}

TEST_F(ImageList, IsMadeOfOthers)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr));
    CImageList copy;
    EXPECT_TRUE(copy.Create(&list));
    EXPECT_NE(copy.m_hImageList, list.m_hImageList);
    EXPECT_EQ(copy.GetImageCount(), 1);
    CImageList merged;
    EXPECT_TRUE(merged.Create(list, 0, copy, 0, 10, 0));
    IMAGEINFO info = {};
    EXPECT_TRUE(merged.GetImageInfo(0, &info));
    EXPECT_EQ(info.rcImage.right - info.rcImage.left, 26);
    EXPECT_FALSE(merged.Create("no such bitmap", 16, 1, CLR_NONE));
    EXPECT_EQ(merged.m_hImageList, nullptr);
    const HIMAGELIST given = copy.Detach();
    EXPECT_EQ(copy.m_hImageList, nullptr);
    EXPECT_TRUE(copy.Attach(given));
    EXPECT_EQ(copy.GetImageCount(), 1);
    EXPECT_TRUE(copy.DeleteImageList());
    EXPECT_FALSE(copy.DeleteImageList());
}

TEST_F(ImageList, PictureFollowsThePointer)
{
    ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
    list.Add(&red_.bitmap, static_cast<CBitmap*>(nullptr));
    ASSERT_TRUE(list.BeginDrag(0, CPoint(3, 4)));
    EXPECT_TRUE(CImageList::DragEnter(&parent_, CPoint(50, 60)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(55, 65)));
    CPoint at;
    CPoint hotSpot;
    EXPECT_NE(CImageList::GetDragImage(&at, &hotSpot), nullptr);
    EXPECT_EQ(at, CPoint(55, 65));
    EXPECT_EQ(hotSpot, CPoint(3, 4));
    EXPECT_TRUE(CImageList::DragShowNolock(FALSE));
    EXPECT_TRUE(CImageList::DragLeave(&parent_));
    CImageList::EndDrag();
}
