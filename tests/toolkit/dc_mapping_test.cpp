#include "toolkit/toolkit.h"
#include <gtest/gtest.h>

namespace {

class DcMapping : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dc_.CreateCompatibleDC(nullptr));
        CClientDC screen(nullptr);
        ASSERT_TRUE(picture_.CreateCompatibleBitmap(&screen, 100, 100));
        dc_.SelectObject(&picture_);
    }
    void TearDown() override { dc_.DeleteDC(); }

    CBitmap picture_;
    CDC dc_;
};

} // namespace

TEST_F(DcMapping, OriginsAndExtentsGiveThoseBefore)
{
    EXPECT_EQ(dc_.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    EXPECT_EQ(dc_.GetMapMode(), MM_ANISOTROPIC);
    EXPECT_EQ(dc_.SetWindowExt(100, 200), CSize(1, 1));
    EXPECT_EQ(dc_.SetWindowExt(CSize(100, 100)), CSize(100, 200));
    EXPECT_EQ(dc_.SetViewportExt(300, 200), CSize(1, 1));
    EXPECT_EQ(dc_.SetViewportExt(CSize(200, 100)), CSize(300, 200));
    EXPECT_EQ(dc_.ScaleViewportExt(3, 1, 2, 1), CSize(200, 100));
    EXPECT_EQ(dc_.GetViewportExt(), CSize(600, 200));
    EXPECT_EQ(dc_.ScaleWindowExt(2, 1, 1, 1), CSize(100, 100));
    EXPECT_EQ(dc_.GetWindowExt(), CSize(200, 100));
    EXPECT_EQ(dc_.SetViewportOrg(5, 6), CPoint(0, 0));
    EXPECT_EQ(dc_.SetViewportOrg(CPoint(7, 8)), CPoint(5, 6));
    EXPECT_EQ(dc_.OffsetViewportOrg(1, 1), CPoint(7, 8));
    EXPECT_EQ(dc_.GetViewportOrg(), CPoint(8, 9));
    EXPECT_EQ(dc_.SetWindowOrg(1, 2), CPoint(0, 0));
    EXPECT_EQ(dc_.SetWindowOrg(CPoint(3, 4)), CPoint(1, 2));
    EXPECT_EQ(dc_.OffsetWindowOrg(1, 1), CPoint(3, 4));
    EXPECT_EQ(dc_.GetWindowOrg(), CPoint(4, 5));
    EXPECT_EQ(dc_.SetBrushOrg(1, 2), CPoint(0, 0));
    EXPECT_EQ(dc_.SetBrushOrg(CPoint(0, 0)), CPoint(1, 2));
    EXPECT_EQ(dc_.GetBrushOrg(), CPoint(0, 0));
}

TEST_F(DcMapping, PointsRectanglesAndSizesAreConverted)
{
    dc_.SetMapMode(MM_ANISOTROPIC);
    dc_.SetWindowExt(100, 100);
    dc_.SetViewportExt(200, -300);
    dc_.SetViewportOrg(10, 20);
    CPoint point(5, 5);
    dc_.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(20, 5));
    dc_.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(5, 5));
    CRect rect(1, 1, 2, 2);
    dc_.LPtoDP(&rect);
    EXPECT_EQ(rect, CRect(12, 17, 14, 14));
    dc_.DPtoLP(&rect);
    EXPECT_EQ(rect, CRect(1, 1, 2, 2));
    CSize size(10, 10);
    dc_.LPtoDP(&size);
    EXPECT_EQ(size, CSize(20, 30));
    dc_.DPtoLP(&size);
    EXPECT_EQ(size, CSize(10, 10));
}

TEST_F(DcMapping, SavedStateComesBack)
{
    const int saved = dc_.SaveDC();
    dc_.SetTextColor(RGB(1, 2, 3));
    dc_.SetBkMode(TRANSPARENT);
    dc_.SetROP2(R2_XORPEN);
    EXPECT_EQ(dc_.GetROP2(), R2_XORPEN);
    EXPECT_TRUE(dc_.RestoreDC(saved));
    EXPECT_EQ(dc_.GetTextColor(), RGB(0, 0, 0));
    EXPECT_EQ(dc_.GetBkMode(), OPAQUE);
    EXPECT_EQ(dc_.GetROP2(), R2_COPYPEN);
}

TEST_F(DcMapping, Clipping)
{
    EXPECT_EQ(dc_.IntersectClipRect(10, 10, 50, 50), SIMPLEREGION);
    EXPECT_EQ(dc_.ExcludeClipRect(10, 10, 20, 20), COMPLEXREGION);
    CRect box;
    dc_.GetClipBox(&box);
    EXPECT_EQ(box, CRect(10, 10, 50, 50));
    EXPECT_FALSE(dc_.PtVisible(CPoint(15, 15)));
    EXPECT_TRUE(dc_.PtVisible(30, 30));
    EXPECT_NE(dc_.OffsetClipRgn(CSize(10, 0)), ERROR);
    EXPECT_TRUE(dc_.PtVisible(55, 30));
    EXPECT_TRUE(dc_.RectVisible(CRect(55, 30, 200, 200)));
    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);
    EXPECT_EQ(dc_.SelectClipRgn(&region), SIMPLEREGION);
    EXPECT_FALSE(dc_.PtVisible(30, 30));
    dc_.SelectClipRgn(nullptr);
    EXPECT_TRUE(dc_.PtVisible(30, 30));
}

// What is drawn to and what is asked may differ.
TEST_F(DcMapping, TheContextThatIsAskedMayBeAnother)
{
    CDC other;
    ASSERT_TRUE(other.CreateCompatibleDC(nullptr));
    other.SetTextColor(RGB(1, 2, 3));
    dc_.SetAttribDC(other);
    EXPECT_EQ(dc_.GetTextColor(), RGB(1, 2, 3));
    dc_.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(dc_.GetTextColor(), RGB(1, 2, 3));
    dc_.SetAttribDC(dc_);
    EXPECT_EQ(dc_.GetTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(CDC().CreateIC("DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_TRUE(CDC().CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
}

TEST_F(DcMapping, PalettesAreSelected)
{
    LOGPALETTE look = { 0x300, 1, { { 1, 2, 3, 0 } } };
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&look));
    EXPECT_EQ(palette.GetEntryCount(), 1);
    CPalette* const before = dc_.SelectPalette(&palette, FALSE);
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(dc_.GetCurrentPalette(), &palette);
    PALETTEENTRY entry = {};
    EXPECT_EQ(palette.GetPaletteEntries(0, 1, &entry), 1u);
    EXPECT_EQ(entry.peBlue, 3);
    EXPECT_TRUE(palette.ResizePalette(4));
    EXPECT_EQ(palette.GetEntryCount(), 4);
    EXPECT_EQ(dc_.SelectPalette(before, FALSE), &palette);
}

TEST(WindowDc, ReachesTheFrameThatAClientContextLeavesOut)
{
    CWnd framed;
    ASSERT_TRUE(framed.CreateEx(
        0, "Static", "framed", WS_POPUP | WS_VISIBLE | WS_BORDER, CRect(40, 40, 140, 100), nullptr, 0));
    CRect client;
    framed.GetClientRect(&client);
    const CWindowDC whole(&framed);
    CRect clip;
    whole.GetClipBox(&clip);
    EXPECT_EQ(clip.Size(), CSize(100, 60));
    const CClientDC inside(&framed);
    inside.GetClipBox(&clip);
    EXPECT_EQ(clip.Size(), client.Size());
    EXPECT_LT(client.Width(), 100);
}
