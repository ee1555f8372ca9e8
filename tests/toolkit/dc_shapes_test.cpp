#include "toolkit/toolkit.h"
#include <gtest/gtest.h>

namespace {

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);

// A white picture of 60 x 40 to draw on.
class DcShapes : public testing::Test
{
protected:
    void SetUp() override
    {
        makePicture(dc_, picture_, 60, 40);
        dc_.SelectStockObject(BLACK_PEN);
        dc_.SelectStockObject(NULL_BRUSH);
    }
    void TearDown() override { dc_.DeleteDC(); }
    static void makePicture(CDC& dc, CBitmap& picture, int width, int height)
    {
        ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
        CClientDC screen(nullptr);
        ASSERT_TRUE(picture.CreateCompatibleBitmap(&screen, width, height));
        dc.SelectObject(&picture);
        dc.FillSolidRect(0, 0, width, height, White);
    }

    CBitmap picture_;
    CDC dc_;
};

} // namespace

TEST_F(DcShapes, LinesAndOutlines)
{
    const POINT line[] = { { 1, 1 }, { 10, 1 }, { 10, 10 } };
    EXPECT_TRUE(dc_.Polyline(line, 3));
    EXPECT_EQ(dc_.GetPixel(5, 1), Black);
    EXPECT_EQ(dc_.GetPixel(1, 5), White);
    dc_.MoveTo(20, 1);
    const POINT on[] = { { 20, 10 }, { 30, 10 } };
    EXPECT_TRUE(dc_.PolylineTo(on, 2));
    EXPECT_EQ(dc_.GetPixel(20, 5), Black);
    EXPECT_EQ(dc_.GetCurrentPosition(), CPoint(30, 10));
    const POINT flat[] = { { 40, 5 }, { 44, 5 }, { 48, 5 }, { 52, 5 } };
    EXPECT_TRUE(dc_.PolyBezier(flat, 4));
    EXPECT_EQ(dc_.GetPixel(46, 5), Black);
    EXPECT_TRUE(dc_.PolyBezierTo(flat, 3));
    EXPECT_EQ(dc_.GetCurrentPosition(), CPoint(48, 5));
    const DWORD counts[] = { 2, 2 };
    const POINT two[] = { { 1, 20 }, { 9, 20 }, { 1, 22 }, { 9, 22 } };
    EXPECT_TRUE(dc_.PolyPolyline(two, counts, 2));
    EXPECT_EQ(dc_.GetPixel(5, 20), Black);
    EXPECT_EQ(dc_.GetPixel(5, 21), White);
    EXPECT_EQ(dc_.GetPixel(5, 22), Black);
    EXPECT_TRUE(dc_.RoundRect(20, 20, 40, 30, 4, 4));
    EXPECT_EQ(dc_.GetPixel(30, 20), Black);
    EXPECT_TRUE(dc_.RoundRect(CRect(20, 32, 40, 38), CPoint(2, 2)));
    EXPECT_EQ(dc_.GetPixel(30, 32), Black);
}

TEST_F(DcShapes, PartsOfEllipses)
{
    const CRect room(0, 0, 40, 40);
    // From the right to the left, against the clock: the upper half.
    EXPECT_TRUE(dc_.Arc(room, CPoint(40, 20), CPoint(0, 20)));
    EXPECT_EQ(dc_.GetPixel(20, 0), Black);
    EXPECT_EQ(dc_.GetPixel(20, 39), White);
    EXPECT_TRUE(dc_.Arc(0, 0, 40, 40, 0, 20, 40, 20));
    EXPECT_EQ(dc_.GetPixel(20, 39), Black);
    CBrush red(Red);
    dc_.SelectObject(&red);
    EXPECT_TRUE(dc_.Pie(room, CPoint(40, 20), CPoint(20, 0)));
    EXPECT_EQ(dc_.GetPixel(26, 14), Red);
    EXPECT_EQ(dc_.GetPixel(14, 14), White);
    EXPECT_TRUE(dc_.Pie(0, 0, 40, 40, 0, 20, 20, 40));
    EXPECT_EQ(dc_.GetPixel(14, 26), Red);
    CBrush blue(Blue);
    dc_.SelectObject(&blue);
    EXPECT_TRUE(dc_.Chord(room, CPoint(40, 20), CPoint(0, 20)));
    EXPECT_EQ(dc_.GetPixel(20, 5), Blue);
    EXPECT_TRUE(dc_.Chord(0, 0, 40, 40, 0, 20, 40, 20));
    EXPECT_EQ(dc_.GetPixel(20, 35), Blue);
    EXPECT_TRUE(dc_.ArcTo(room, CPoint(40, 20), CPoint(20, 0)));
    EXPECT_NEAR(dc_.GetCurrentPosition().x, 20, 1);
    EXPECT_TRUE(dc_.AngleArc(20, 20, 5, 0, 90));
    EXPECT_EQ(dc_.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc_.GetArcDirection(), AD_CLOCKWISE);
}

TEST_F(DcShapes, Fills)
{
    CBrush red(Red);
    dc_.FrameRect(CRect(0, 0, 10, 10), &red);
    EXPECT_EQ(dc_.GetPixel(0, 5), Red);
    EXPECT_EQ(dc_.GetPixel(5, 5), White);
    dc_.SelectObject(&red);
    EXPECT_TRUE(dc_.ExtFloodFill(5, 5, White, FLOODFILLSURFACE));
    EXPECT_EQ(dc_.GetPixel(5, 5), Red);
    dc_.InvertRect(CRect(0, 0, 2, 2));
    EXPECT_EQ(dc_.GetPixel(1, 1), RGB(0, 255, 255));
    dc_.Draw3dRect(20, 0, 10, 10, Green, Blue);
    EXPECT_EQ(dc_.GetPixel(25, 0), Green);
    EXPECT_EQ(dc_.GetPixel(20, 5), Green);
    EXPECT_EQ(dc_.GetPixel(29, 5), Blue);
    EXPECT_EQ(dc_.GetPixel(25, 9), Blue);
    TRIVERTEX corners[2] = { { 30, 0, 0, 0, 0, 0 }, { 60, 10, 0xFF00, 0, 0, 0 } };
    GRADIENT_RECT whole = { 0, 1 };
    EXPECT_TRUE(dc_.GradientFill(corners, 2, &whole, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(dc_.GetPixel(33, 5)), GetRValue(dc_.GetPixel(56, 5)));
    CRgn region;
    region.CreateRectRgn(0, 20, 10, 30);
    CBrush green(Green);
    EXPECT_TRUE(dc_.FrameRgn(&region, &green, 1, 1));
    EXPECT_EQ(dc_.GetPixel(0, 25), Green);
    EXPECT_EQ(dc_.GetPixel(5, 25), White);
    EXPECT_TRUE(dc_.InvertRgn(&region));
    EXPECT_EQ(dc_.GetPixel(5, 25), Black);
    dc_.SelectStockObject(DC_BRUSH);
    dc_.SelectStockObject(NULL_PEN);
    dc_.SetDCBrushColor(Blue);
    EXPECT_EQ(dc_.GetDCBrushColor(), Blue);
    const POINT triangles[] = { { 20, 20 }, { 30, 20 }, { 20, 30 }, { 40, 20 }, { 50, 20 }, { 40, 30 } };
    const INT counts[] = { 3, 3 };
    EXPECT_TRUE(dc_.PolyPolygon(triangles, counts, 2));
    EXPECT_EQ(dc_.GetPixel(22, 22), Blue);
    EXPECT_EQ(dc_.GetPixel(42, 22), Blue);
    dc_.SetPixelV(CPoint(59, 39), Red);
    EXPECT_EQ(dc_.GetPixel(CPoint(59, 39)), Red);
}

TEST_F(DcShapes, NullObjectsDrawNothing)
{
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    CBrush red(Red);
    dc_.FrameRect(CRect(0, 0, 10, 10), nullptr);
    EXPECT_FALSE(dc_.FillRgn(&region, nullptr));
    EXPECT_FALSE(dc_.FillRgn(nullptr, &red));
    EXPECT_FALSE(dc_.FrameRgn(nullptr, &red, 1, 1));
    EXPECT_FALSE(dc_.InvertRgn(nullptr));
    EXPECT_FALSE(dc_.PaintRgn(nullptr));
    EXPECT_FALSE(dc_.BitBlt(0, 0, 10, 10, nullptr, 0, 0, SRCCOPY));
    EXPECT_FALSE(dc_.AlphaBlend(0, 0, 10, 10, nullptr, 0, 0, 10, 10, BLENDFUNCTION()));
    EXPECT_EQ(dc_.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    for (int at = 0; at < 10; ++at) {
        EXPECT_EQ(dc_.GetPixel(at, at), White);
        EXPECT_EQ(dc_.GetPixel(at, 0), White);
    }
}

TEST_F(DcShapes, Pictures)
{
    CBitmap source;
    CDC from;
    makePicture(from, source, 10, 10);
    from.FillSolidRect(0, 0, 5, 10, Red);
    EXPECT_TRUE(dc_.TransparentBlt(0, 0, 10, 10, &from, 0, 0, 10, 10, White));
    dc_.FillSolidRect(20, 0, 10, 10, Blue);
    EXPECT_TRUE(dc_.TransparentBlt(20, 0, 10, 10, &from, 0, 0, 10, 10, White));
    EXPECT_EQ(dc_.GetPixel(22, 5), Red);
    EXPECT_EQ(dc_.GetPixel(27, 5), Blue);
    const BLENDFUNCTION half = { AC_SRC_OVER, 0, 128, 0 };
    EXPECT_TRUE(dc_.AlphaBlend(40, 0, 10, 10, &from, 0, 0, 10, 10, half));
    EXPECT_NEAR(GetGValue(dc_.GetPixel(42, 5)), 127, 2);
    CBitmap mask;
    BYTE bits[20] = {};
    bits[0] = 0xFF;
    ASSERT_TRUE(mask.CreateBitmap(8, 1, 1, 1, bits));
    EXPECT_TRUE(dc_.MaskBlt(0, 20, 4, 1, &from, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ(dc_.GetPixel(2, 20), Red);
    POINT corners[] = { { 20, 20 }, { 30, 20 }, { 20, 30 } };
    EXPECT_TRUE(dc_.PatBlt(20, 20, 10, 10, WHITENESS));
    EXPECT_NE(::PlgBlt(dc_, corners, from, 0, 0, 10, 10, nullptr, 0, 0), FALSE);
    EXPECT_TRUE(dc_.StretchBlt(0, 30, 20, 10, &from, 0, 0, 10, 10, SRCCOPY));
    EXPECT_EQ(dc_.GetPixel(8, 35), Red);
    EXPECT_EQ(dc_.GetPixel(12, 35), White);
    CRect uncovered;
    EXPECT_TRUE(dc_.ScrollDC(20, 0, CRect(0, 30, 40, 40), nullptr, nullptr, &uncovered));
    EXPECT_EQ(dc_.GetPixel(28, 35), Red);
    from.DeleteDC();
    EXPECT_TRUE(dc_.DrawState(CPoint(40, 20), CSize(10, 10), &source, DSS_NORMAL));
    EXPECT_EQ(dc_.GetPixel(42, 25), Red);
    EXPECT_TRUE(dc_.DrawIcon(CPoint(0, 0), ::LoadIconW(nullptr, IDI_ERROR)));
    EXPECT_TRUE(dc_.DrawState(CPoint(0, 0), CSize(0, 0), ::LoadIconW(nullptr, IDI_ERROR), DSS_NORMAL));
}

TEST_F(DcShapes, Paths)
{
    EXPECT_TRUE(dc_.BeginPath());
    dc_.MoveTo(2, 2);
    dc_.LineTo(20, 2);
    dc_.LineTo(20, 20);
    EXPECT_TRUE(dc_.CloseFigure());
    EXPECT_TRUE(dc_.EndPath());
    POINT points[8] = {};
    BYTE kinds[8] = {};
    EXPECT_EQ(dc_.GetPath(points, kinds, 8), 3);
    EXPECT_EQ(CPoint(points[1]), CPoint(20, 2));
    CRgn region;
    EXPECT_TRUE(region.CreateFromPath(&dc_));
    EXPECT_TRUE(region.PtInRegion(18, 5));
    EXPECT_FALSE(region.PtInRegion(5, 18));
    EXPECT_TRUE(dc_.BeginPath());
    dc_.Rectangle(30, 2, 50, 20);
    EXPECT_TRUE(dc_.EndPath());
    EXPECT_TRUE(dc_.StrokePath());
    EXPECT_EQ(dc_.GetPixel(30, 10), Black);
    EXPECT_TRUE(dc_.BeginPath());
    EXPECT_TRUE(dc_.AbortPath());
    EXPECT_TRUE(dc_.SetMiterLimit(5));
    EXPECT_EQ(dc_.GetMiterLimit(), 5);
}
