#pragma once
#include "toolkit/platform.h"

class CPoint;
class CRect;

// A width and a height; 0 at first. Two of them are added and compared part by part.
class CSize : public tagSIZE
{
public:
    CSize()
        : CSize(0, 0)
    {
    }
    CSize(int width, int height)
    {
        cx = width;
        cy = height;
    }
    CSize(SIZE size)
        : CSize(size.cx, size.cy)
    {
    }
    CSize(POINT point)
        : CSize(point.x, point.y)
    {
    }
    explicit CSize(DWORD packed) // two signed halves
        : CSize(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)))
    {
    }
    // Both at once.
    void SetSize(int width, int height) { *this = CSize(width, height); }
    // Part by part.
    bool operator==(SIZE other) const { return cx == other.cx && cy == other.cy; }
    bool operator!=(SIZE other) const { return !(*this == other); }
    void operator+=(SIZE other) { SetSize(cx + other.cx, cy + other.cy); }
    void operator-=(SIZE other) { SetSize(cx - other.cx, cy - other.cy); }
    CSize operator+(SIZE other) const { return CSize(cx + other.cx, cy + other.cy); }
    CSize operator-(SIZE other) const { return CSize(cx - other.cx, cy - other.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    // The point or rectangle moved by this size.
    inline CPoint operator+(POINT point) const;
    inline CPoint operator-(POINT point) const; // the point moved back by this size
    // The rectangle moved by it.
    inline CRect operator+(const RECT* rect) const;
    inline CRect operator-(const RECT* rect) const; // the rectangle moved back by this size
};

// A rectangle gives its corners as references to points: the compiler must know that these lie in other
// things.
#ifdef __GNUC__
// Tells it.
#define AFX_MAY_ALIAS __attribute__((may_alias))
#else
#define AFX_MAY_ALIAS
#endif

// A place; (0, 0) at first. A size or a point moves it; from one point to another it is a size.
class AFX_MAY_ALIAS CPoint : public tagPOINT
{
public:
    CPoint()
        : CPoint(0, 0)
    {
    }
    CPoint(int left, int top)
    {
        x = left;
        y = top;
    }
    CPoint(POINT point)
        : CPoint(point.x, point.y)
    {
    }
    CPoint(SIZE size)
        : CPoint(size.cx, size.cy)
    {
    }
    // A mouse position as lParam carries it: two signed halves.
    explicit CPoint(LPARAM packed)
        : CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)))
    {
    }
    // Moves it.
    void Offset(int dx, int dy)
    {
        x += dx;
        y += dy;
    }
    void Offset(SIZE by) { Offset(by.cx, by.cy); }
    void Offset(POINT by) { Offset(by.x, by.y); }
    // Both at once.
    void SetPoint(int left, int top) { *this = CPoint(left, top); }
    // As the class says.
    bool operator==(POINT other) const { return x == other.x && y == other.y; }
    bool operator!=(POINT other) const { return !(*this == other); }
    CPoint operator+(SIZE by) const { return CPoint(x + by.cx, y + by.cy); }
    CPoint operator-(SIZE by) const { return CPoint(x - by.cx, y - by.cy); }
    CPoint operator+(POINT by) const { return CPoint(x + by.x, y + by.y); }
    CSize operator-(POINT from) const { return CSize(x - from.x, y - from.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    void operator+=(SIZE by) { Offset(by); }
    void operator-=(SIZE by) { Offset(-by.cx, -by.cy); }
    void operator+=(POINT by) { Offset(by); }
    void operator-=(POINT by) { Offset(-by.x, -by.y); }
    // The rectangle moved by this point.
    inline CRect operator+(const RECT* rect) const;
    inline CRect operator-(const RECT* rect) const; // the rectangle moved back by this point
};

// A rectangle: right and bottom are the first column and row outside. Empty at (0, 0) at first.
class CRect : public tagRECT
{
public:
    CRect()
        : CRect(0, 0, 0, 0)
    {
    }
    CRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
    CRect(const RECT& rect)
        : CRect(rect.left, rect.top, rect.right, rect.bottom)
    {
    }
    CRect(LPCRECT rect)
        : CRect(*rect)
    {
    }
    CRect(POINT at, SIZE size)
        : CRect(at.x, at.y, at.x + size.cx, at.y + size.cy)
    {
    }
    CRect(POINT topLeft, POINT bottomRight)
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {
    }

    // How far right is from left, bottom from top; both. Negative where they are exchanged.
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    // References: rect.TopLeft().Offset(1, 1) moves that corner.
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const { return *(reinterpret_cast<const CPoint*>(this) + 1); }

    // The middle, rounded toward zero.
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    static CPoint CenterPoint(LPCRECT rect) { return CRect(rect).CenterPoint(); }
    // Exchanges left and right.
    static void SwapLeftRight(LPRECT rect) { std::swap(rect->left, rect->right); }
    void SwapLeftRight() { SwapLeftRight(this); }
    // Itself, for functions of the window system.
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    // Whether all four are 0.
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void SetRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
    // From its corners.
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT from) { ::CopyRect(this, from); }
    BOOL EqualRect(LPCRECT other) const { return ::EqualRect(this, other); }
    void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
    void InflateRect(SIZE by) { ::InflateRect(this, by.cx, by.cy); }
    // Moves each side outward by so much.
    void InflateRect(int l, int t, int r, int b) { SetRect(left - l, top - t, right + r, bottom + b); }
    void InflateRect(LPCRECT by) { InflateRect(by->left, by->top, by->right, by->bottom); }
    // The same inward.
    void DeflateRect(LPCRECT by) { DeflateRect(by->left, by->top, by->right, by->bottom); }
    void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
    void DeflateRect(SIZE by) { ::InflateRect(this, -by.cx, -by.cy); }
    void DeflateRect(int l, int t, int r, int b) { SetRect(left + l, top + t, right - r, bottom - b); }
    void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
    void OffsetRect(POINT by) { ::OffsetRect(this, by.x, by.y); }
    void OffsetRect(SIZE by) { ::OffsetRect(this, by.cx, by.cy); }
    // Moves it to a left and top, or one of them; width and height stay.
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT to) { MoveToXY(to.x, to.y); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToY(int y) { OffsetRect(0, y - top); }

    // All four times `by` through `divisor`, rounded.
    CRect MulDiv(int by, int divisor) const
    {
        return CRect(::MulDiv(left, by, divisor), ::MulDiv(top, by, divisor), ::MulDiv(right, by, divisor),
            ::MulDiv(bottom, by, divisor));
    }
    // Swaps what is the wrong way round, so that width and height are not negative.
    void NormalizeRect()
    {
        *this = CRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
            top < bottom ? bottom : top);
    }
    BOOL IntersectRect(LPCRECT one, LPCRECT two) { return ::IntersectRect(this, one, two); }
    BOOL UnionRect(LPCRECT one, LPCRECT two) { return ::UnionRect(this, one, two); }
    BOOL SubtractRect(LPCRECT from, LPCRECT what) { return ::SubtractRect(this, from, what); }

    // Whether all four are equal.
    bool operator==(const RECT& other) const { return ::EqualRect(this, &other) != FALSE; }
    bool operator!=(const RECT& other) const { return !(*this == other); }
    // A point or a size moves; a rectangle grows or, subtracted, shrinks by its four numbers.
    void operator+=(POINT by) { OffsetRect(by); }
    void operator+=(SIZE by) { OffsetRect(by); }
    void operator+=(LPCRECT by) { InflateRect(by); }
    void operator-=(POINT by) { OffsetRect(-by.x, -by.y); }
    void operator-=(SIZE by) { OffsetRect(-by.cx, -by.cy); }
    void operator-=(LPCRECT by) { DeflateRect(by); }
    template <class ByTP> CRect operator+(const ByTP& by) const
    {
        CRect result(*this);
        result += by;
        return result;
    }
    template <class ByTP> CRect operator-(const ByTP& by) const
    {
        CRect result(*this);
        result -= by;
        return result;
    }

    // What both have in common; the smallest one that has both in it.
    void operator&=(const RECT& other) { ::IntersectRect(this, this, &other); }
    void operator|=(const RECT& other) { ::UnionRect(this, this, &other); }
    // The same as a new rectangle.
    CRect operator&(const RECT& other) const
    {
        CRect result;
        result.IntersectRect(this, &other);
        return result;
    }
    CRect operator|(const RECT& other) const
    {
        CRect result;
        result.UnionRect(this, &other);
        return result;
    }
};

inline CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CSize::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
inline CRect CPoint::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CPoint::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
