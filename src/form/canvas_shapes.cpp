#include "form/canvas_shapes.h"
#include <algorithm>
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

} // namespace

bool slIsNear(POINT at)
{
    return std::abs(int64_t { at.x }) <= Reach && std::abs(int64_t { at.y }) <= Reach;
}

void slFillPart(
    CanvasUseCL& canvas, int64_t left, int64_t top, int64_t right, int64_t bottom, uint32_t colour)
{
    const CRect part(static_cast<int>(std::max<int64_t>(left, 0)),
        static_cast<int>(std::max<int64_t>(top, 0)),
        static_cast<int>(std::min<int64_t>(right, canvas.SizeM().cx)),
        static_cast<int>(std::min<int64_t>(bottom, canvas.SizeM().cy)));
    if (part.left < part.right && part.top < part.bottom) {
        CBrush brush(slShownColour(colour));
        canvas.DcM().FillRect(&part, &brush);
    }
}

void slDrawEllipse(CanvasUseCL& canvas, int x, int y, int width, int height, uint32_t colour, int lineWidth)
{
    if (width == 0 || height == 0 || x >= canvas.SizeM().cx || y >= canvas.SizeM().cy
        || int64_t { x } + width <= 0 || int64_t { y } + height <= 0) {
        return;
    }
    const bool isFilled = lineWidth == 0 || lineWidth >= (std::min(width, height) + 1) / 2;
    CDC& dc = canvas.DcM();
    CPen pen(PS_INSIDEFRAME, isFilled ? 1 : lineWidth, slShownColour(colour));
    CBrush brush(slShownColour(colour));
    const SelectedCL line(dc, pen);
    const SelectedCL inside(dc, isFilled ? brush.m_hObject : ::GetStockObject(NULL_BRUSH));
    dc.Ellipse(x, y, x + width, y + height);
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
