#include "speed_curve.h"

#include <cmath>
#include <cwchar>
#include <string>
#include <vector>

namespace {

constexpr COLORREF Paper = RGB(255, 255, 255);
constexpr COLORREF Grid = RGB(228, 233, 240);
constexpr COLORREF Axis = RGB(52, 64, 84);
constexpr COLORREF Area = RGB(222, 234, 248);
constexpr COLORREF Curve = RGB(38, 110, 190);
constexpr COLORREF Dot = RGB(208, 62, 58);
constexpr int Parts = 4; // Of each axis.

void drawLines(CDC& dc, const std::vector<POINT>& points, COLORREF colour, int width)
{
    CPen pen(PS_SOLID, width, colour);
    CPen* const before = dc.SelectObject(&pen);
    dc.Polyline(points.data(), static_cast<int>(points.size()));
    dc.SelectObject(before);
}

std::wstring number(const wchar_t* format, double value)
{
    wchar_t text[60];
    return std::wstring(text, static_cast<size_t>(std::swprintf(text, 60, format, value)));
}

void drawText(CDC& dc, int x, int y, const std::wstring& text, UINT align)
{
    dc.SetTextAlign(align);
    dc.TextOut(x, y, text.c_str(), static_cast<int>(text.size()));
}

} // namespace

void slDrawCurve(CDC& dc, const CSize& size, CFont* font, const MoveCL& move, double scale, double now)
{
    // The field of the curve, which leaves room for the numbers at its axes.
    const int left = 40;
    const int top = 28;
    const int width = static_cast<int>(size.cx) - left - 20;
    const int height = static_cast<int>(size.cy) - top - 26;
    const int bottom = top + height;
    const double duration = move.DurationM();
    const auto yOf
        = [=](double speed) { return bottom - static_cast<int>(std::lround(speed / scale * height)); };

    dc.FillSolidRect(0, 0, size.cx, size.cy, Paper);
    dc.SelectObject(font);
    dc.SetTextColor(Axis);
    dc.SetBkMode(TRANSPARENT);
    for (int part = 0; part <= Parts; ++part) {
        const int x = left + part * width / Parts;
        const int y = bottom - part * height / Parts;
        drawLines(dc, { { x, top }, { x, bottom } }, Grid, 1);
        drawLines(dc, { { left, y }, { left + width, y } }, Grid, 1);
        drawText(dc, left - 6, y - 7, number(L"%.0f", scale * part / Parts), TA_RIGHT);
        drawText(dc, x, bottom + 6, number(L"%.2f", duration * part / Parts), TA_CENTER);
    }
    if (duration > 0) {
        std::vector<POINT> points { { left, bottom } };
        for (int x = 0; x <= width; ++x) {
            const int y = yOf(move.SpeedM(duration * x / width));
            points.push_back({ left + x, y });
            dc.FillSolidRect(left + x, y, 1, bottom - y, Area);
        }
        points.push_back({ left + width, bottom });
        drawLines(dc, points, Curve, 2);
    }
    drawLines(dc, { { left, top }, { left, bottom }, { left + width, bottom } }, Axis, 1);
    drawText(dc, left, 7, L"mm/s", TA_CENTER);
    drawText(dc, left + width, 7,
        number(L"峰值 %.0f mm/s, ", move.PeakM()) + number(L"用时 %.2f s", duration), TA_RIGHT);
    if (now >= 0 && now <= duration && duration > 0) {
        const int x = left + static_cast<int>(std::lround(now / duration * width));
        const int y = yOf(move.SpeedM(now));
        CBrush brush(Dot);
        dc.SelectObject(&brush);
        dc.SelectStockObject(NULL_PEN);
        dc.Ellipse(x - 5, y - 5, x + 7, y + 7);
    }
}
