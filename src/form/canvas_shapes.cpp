#include "form/canvas_shapes.h"
#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

namespace {

constexpr int Reach = 1 << 20; // No picture is so large; beyond it coordinates would overflow.

// Cuts a line to what lies within reach; false when nothing does.
bool cutLine(POINT& from, POINT& to)
{
    if (slIsNear(from) && slIsNear(to)) {
        return true;
    }
    double begin = 0;
    double end = 1;
    const double start[2] = { static_cast<double>(from.x), static_cast<double>(from.y) };
    const double along[2] = { static_cast<double>(to.x) - start[0], static_cast<double>(to.y) - start[1] };
    for (int axis = 0; axis < 2; ++axis) {
        if (along[axis] == 0) {
            if (std::abs(start[axis]) > Reach) {
                return false;
            }
            continue;
        }
        const double one = (-Reach - start[axis]) / along[axis];
        const double other = (Reach - start[axis]) / along[axis];
        begin = std::max(begin, std::min(one, other));
        end = std::min(end, std::max(one, other));
    }
    if (begin > end) {
        return false;
    }
    const auto at = [&start, &along](double part) {
        return POINT { static_cast<LONG>(std::lround(start[0] + part * along[0])),
            static_cast<LONG>(std::lround(start[1] + part * along[1])) };
    };
    to = end < 1 ? at(end) : to;
    from = begin > 0 ? at(begin) : from;
    return true;
}

// Joined lines within reach; their last point, which the system leaves out of thin ones, too.
void drawJoined(CanvasUseCL& canvas, const std::vector<POINT>& points, uint32_t colour, int width)
{
    if (points.empty()) {
        return;
    }
    CDC& dc = canvas.DcM();
    const POINT last = points.back();
    const bool isDot = std::all_of(
        points.begin(), points.end(), [last](POINT point) { return point.x == last.x && point.y == last.y; });
    if (!isDot) {
        dc.Polyline(points.data(), static_cast<int>(points.size()));
    }
    if (width == 1) {
        dc.SetPixelV(last, slShownColour(colour));
    } else if (isDot) {
        slDrawEllipse(canvas, last.x - width / 2, last.y - width / 2, width, width, colour, 0);
    }
}

void fillPart(CanvasUseCL& canvas, int64_t left, int64_t top, int64_t right, int64_t bottom, CBrush& brush)
{
    const auto within
        = [](int64_t place, LONG size) { return static_cast<int>(std::clamp<int64_t>(place, 0, size)); };
    const CSize& size = canvas.SizeM();
    const CRect part(
        within(left, size.cx), within(top, size.cy), within(right, size.cx), within(bottom, size.cy));
    if (part.left < part.right && part.top < part.bottom) {
        canvas.DcM().FillRect(&part, &brush);
    }
}

// Which pixels of a row have their centre in an ellipse; rows and pixels count from its own corner.
struct EllipseRowCL
{
    int64_t begin;
    int64_t end;
};
EllipseRowCL ellipseRow(int64_t row, int64_t width, int64_t height)
{
    const double radius = static_cast<double>(width) / 2;
    const double off = (static_cast<double>(row) + 0.5) * 2 / static_cast<double>(height) - 1;
    if (width <= 0 || height <= 0 || std::abs(off) >= 1) {
        return { 0, 0 };
    }
    const double half = radius * std::sqrt(1 - off * off);
    return { std::llround(std::ceil(radius - half - 0.5)),
        std::llround(std::floor(radius + half - 0.5)) + 1 };
}

} // namespace

bool slIsNear(POINT at)
{
    return std::abs(int64_t { at.x }) <= Reach && std::abs(int64_t { at.y }) <= Reach;
}

void slFillPart(
    CanvasUseCL& canvas, int64_t left, int64_t top, int64_t right, int64_t bottom, uint32_t colour)
{
    CBrush brush(slShownColour(colour));
    fillPart(canvas, left, top, right, bottom, brush);
}

void slDrawEllipse(CanvasUseCL& canvas, int x, int y, int width, int height, uint32_t colour, int lineWidth)
{
    const int hole = lineWidth == 0 ? INT_MAX : lineWidth;
    const int64_t first = std::clamp<int64_t>(y, 0, canvas.SizeM().cy);
    const int64_t end = std::clamp<int64_t>(int64_t { y } + height, 0, canvas.SizeM().cy);
    CBrush brush(slShownColour(colour));
    for (int64_t row = first; row < end; ++row) {
        const EllipseRowCL all = ellipseRow(row - y, width, height);
        EllipseRowCL inner = ellipseRow(row - y - hole, int64_t { width } - 2 * int64_t { hole },
            int64_t { height } - 2 * int64_t { hole });
        inner = inner.begin < inner.end ? EllipseRowCL { inner.begin + hole, inner.end + hole }
                                        : EllipseRowCL { all.end, all.end };
        fillPart(canvas, x + all.begin, row, x + inner.begin, row + 1, brush);
        fillPart(canvas, x + inner.end, row, x + all.end, row + 1, brush);
    }
}

void slDrawLines(CanvasUseCL& canvas, const int32_t* pairs, size_t count, uint32_t colour, int width)
{
    CPen pen(PS_SOLID, width, slShownColour(colour));
    const SelectedCL line(canvas.DcM(), pen);
    std::vector<POINT> joined;
    for (size_t i = 0; i < count; ++i) {
        POINT to { pairs[2 * i], pairs[2 * i + 1] };
        POINT from = i == 0 ? to : POINT { pairs[2 * i - 2], pairs[2 * i - 1] };
        if (!cutLine(from, to)) {
            continue;
        }
        if (joined.empty() || joined.back().x != from.x || joined.back().y != from.y) {
            drawJoined(canvas, joined, colour, width);
            joined.assign(1, from);
        }
        joined.push_back(to);
    }
    drawJoined(canvas, joined, colour, width);
}
