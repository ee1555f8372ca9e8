#include "toolkit/toolkit.h"
#include <gtest/gtest.h>

// Printed by googletest where two differ.
void PrintTo(const CRect& r, std::ostream* out)
{
    *out << r.left << ' ' << r.top << ' ' << r.right << ' ' << r.bottom;
}

TEST(Geometry, SizesCount)
{
    CSize size(3, 4);
    size += CSize(1, 1);
    EXPECT_EQ(size, CSize(4, 5));
    size -= CSize(2, 2);
    EXPECT_EQ(size, CSize(2, 3));
    EXPECT_EQ(size + CSize(1, 2), CSize(3, 5));
    EXPECT_EQ(size - CSize(1, 2), CSize(1, 1));
    EXPECT_EQ(-size, CSize(-2, -3));
    EXPECT_EQ(CSize(CPoint(5, 6)), CSize(5, 6));
    EXPECT_EQ(CSize(static_cast<DWORD>(MAKELONG(-1, 2))), CSize(-1, 2));
    size.SetSize(7, 8);
    EXPECT_EQ(size + CPoint(1, 1), CPoint(8, 9));
    EXPECT_EQ(size - CPoint(1, 1), CPoint(6, 7));
    const CRect rect(10, 20, 30, 40);
    EXPECT_EQ(size + rect, CRect(17, 28, 37, 48));
    EXPECT_EQ(size - rect, CRect(3, 12, 23, 32));
    EXPECT_TRUE(size != CSize());
}

TEST(Geometry, PointsCount)
{
    CPoint point(3, 4);
    point += CPoint(1, 1);
    point += CSize(1, 1);
    EXPECT_EQ(point, CPoint(5, 6));
    point -= CPoint(2, 2);
    point -= CSize(1, 1);
    EXPECT_EQ(point, CPoint(2, 3));
    EXPECT_EQ(point + CPoint(1, 2), CPoint(3, 5));
    EXPECT_EQ(point + CSize(1, 2), CPoint(3, 5));
    EXPECT_EQ(point - CSize(1, 2), CPoint(1, 1));
    const CSize distance = point - CPoint(1, 2);
    EXPECT_EQ(distance, CSize(1, 1));
    EXPECT_EQ(-point, CPoint(-2, -3));
    point.Offset(CPoint(1, 0));
    point.Offset(CSize(0, 1));
    point.Offset(1, 1);
    EXPECT_EQ(point, CPoint(4, 5));
    EXPECT_EQ(CPoint(CSize(5, 6)), CPoint(5, 6));
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELONG(-1, 2))), CPoint(-1, 2));
    const CRect rect(10, 20, 30, 40);
    EXPECT_EQ(point + rect, CRect(14, 25, 34, 45));
    EXPECT_EQ(point - rect, CRect(6, 15, 26, 35));
}

TEST(Geometry, RectanglesMoveByPointsAndSizesAndGrowByRectangles)
{
    const CRect rect(10, 20, 30, 40);
    const CRect margins(1, 2, 3, 4);
    EXPECT_EQ(rect + CPoint(1, 2), CRect(11, 22, 31, 42));
    EXPECT_EQ(rect + CSize(1, 2), CRect(11, 22, 31, 42));
    EXPECT_EQ(rect - CPoint(1, 2), CRect(9, 18, 29, 38));
    EXPECT_EQ(rect - CSize(1, 2), CRect(9, 18, 29, 38));
    EXPECT_EQ(rect + margins, CRect(9, 18, 33, 44));
    EXPECT_EQ(rect - margins, CRect(11, 22, 27, 36));
    EXPECT_EQ(rect + &margins, CRect(9, 18, 33, 44));
    CRect changed(rect);
    changed += CSize(1, 1);
    changed += CPoint(1, 1);
    changed += margins;
    changed -= &margins;
    changed -= CSize(2, 2);
    EXPECT_EQ(changed, rect);
    changed -= CPoint(10, 20);
    EXPECT_EQ(changed, CRect(0, 0, 20, 20));
    changed &= CRect(5, 5, 100, 100);
    EXPECT_EQ(changed, CRect(5, 5, 20, 20));
    changed |= CRect(0, 6, 7, 30);
    EXPECT_EQ(changed, CRect(0, 5, 20, 30));
    EXPECT_EQ(rect & CRect(0, 0, 15, 100), CRect(10, 20, 15, 40));
    EXPECT_EQ(rect | CRect(0, 0, 15, 100), CRect(0, 0, 30, 100));
}

TEST(Geometry, RectanglesGrowShrinkAndMove)
{
    CRect rect(10, 20, 30, 40);
    rect.InflateRect(1, 2);
    rect.InflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(8, 16, 32, 44));
    rect.DeflateRect(1, 2);
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(CRect(1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(9, 18, 33, 44));
    rect.DeflateRect(CRect(1, 2, 3, 4));
    rect.InflateRect(1, 2, 3, 4);
    rect.DeflateRect(1, 2, 3, 4);
    rect.OffsetRect(CSize(1, 1));
    rect.OffsetRect(CPoint(-1, -1));
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
    rect.MoveToX(0);
    rect.MoveToY(5);
    EXPECT_EQ(rect, CRect(0, 5, 20, 25));
    rect.MoveToXY(CPoint(7, 8));
    EXPECT_EQ(rect, CRect(7, 8, 27, 28));
    rect.SetRect(CPoint(1, 2), CPoint(3, 4));
    EXPECT_EQ(rect.MulDiv(3, 2), CRect(2, 3, 5, 6));
    EXPECT_EQ(CRect::CenterPoint(CRect(0, 0, 10, 20)), CPoint(5, 10));
    rect.SwapLeftRight();
    EXPECT_EQ(rect, CRect(3, 2, 1, 4));
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_TRUE(rect.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 10, 4)));
    EXPECT_EQ(rect, CRect(0, 4, 10, 10));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectEmpty() && rect.IsRectNull());
}

TEST(Geometry, CornersAreTheRectanglesOwn)
{
    CRect rect(1, 2, 3, 4);
    rect.TopLeft() += CSize(10, 10);
    rect.BottomRight().Offset(20, 20);
    EXPECT_EQ(rect, CRect(11, 12, 23, 24));
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, "Static", "", WS_POPUP, CRect(100, 50, 150, 90), nullptr, 0));
    window.ClientToScreen(&rect.TopLeft());
    EXPECT_EQ(rect.TopLeft(), CPoint(111, 62));
    const CRect fixed(1, 2, 3, 4);
    EXPECT_EQ(fixed.TopLeft() + fixed.Size(), fixed.BottomRight());
}
