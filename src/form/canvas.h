#pragma once
#include "form/canvas_c.h"
#include <cstdint>
#include <string>
#include <vector>

namespace panelkit {

// What the program paints on when Form::OnPaint calls it, and only until it returns. Lengths and places are
// pixels, from the left and top of the picture; nothing is drawn outside of it. Colours are 0xRRGGBB. False,
// and nothing is drawn: another colour, a line thinner than 1, a text not 1 to 1000 high, a negative width or
// height.
class Canvas
{
public:
    using Colour = std::uint32_t; // 0xRRGGBB.
    enum Alignment
    {
        Left = PANELKIT_ALIGN_LEFT, // x is where the text begins,
        Centre = PANELKIT_ALIGN_CENTRE,
        Right = PANELKIT_ALIGN_RIGHT // where it ends.
    };
    // A place on the picture.
    struct Point
    {
        int x; // From the left.
        int y; // From the top.
    };

    // For painters of the C interface; the handle must be there as long as this.
    explicit Canvas(panelkit_canvas* handle)
        : handle_(handle)
    {
        panelkit_canvas_size(handle_, &width_, &height_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // Of the picture.
    int Width() const { return width_; }
    int Height() const { return height_; }
    int Frame() const // That the animation shows; -1: none, as for drawings.
    {
        std::int32_t frame = -1;
        panelkit_canvas_frame(handle_, &frame);
        return frame;
    }

    // Fills the whole picture.
    bool Fill(Colour colour) { return isOk(panelkit_canvas_fill(handle_, colour)); }
    // Both ends belong to the line. Wide ones have round ends.
    bool Line(int x1, int y1, int x2, int y2, Colour colour, int width = 1)
    {
        return isOk(panelkit_canvas_line(handle_, x1, y1, x2, y2, colour, width));
    }
    bool Polyline(const std::vector<Point>& points, Colour colour, int width = 1) // One point: a dot.
    {
        std::vector<std::int32_t> pairs;
        pairs.reserve(points.size() * 2 + 1);
        for (const Point& point : points) {
            pairs.push_back(point.x);
            pairs.push_back(point.y);
        }
        return isOk(panelkit_canvas_polyline(handle_, pairs.data(), points.size(), colour, width));
    }
    // Frames, their lines inside the rectangle.
    bool Rectangle(int x, int y, int width, int height, Colour colour, int lineWidth = 1)
    {
        return isOk(panelkit_canvas_rectangle(handle_, x, y, width, height, colour, lineWidth));
    }
    bool Ellipse(int x, int y, int width, int height, Colour colour, int lineWidth = 1)
    {
        return isOk(panelkit_canvas_ellipse(handle_, x, y, width, height, colour, lineWidth));
    }
    // Without outline.
    bool FillRectangle(int x, int y, int width, int height, Colour colour)
    {
        return isOk(panelkit_canvas_fill_rectangle(handle_, x, y, width, height, colour));
    }
    bool FillEllipse(int x, int y, int width, int height, Colour colour)
    {
        return isOk(panelkit_canvas_fill_ellipse(handle_, x, y, width, height, colour));
    }
    // One line of UTF-8. y: the top of the line; height: of the line.
    bool Text(int x, int y, const std::string& text, int height, Colour colour, Alignment alignment = Left)
    {
        return isOk(panelkit_canvas_text(handle_, x, y, text.c_str(), height, colour, alignment));
    }
    // Of the text in pixels; 0 when it could not be drawn either.
    int TextWidth(const std::string& text, int height) const
    {
        std::int32_t width = 0;
        panelkit_canvas_text_width(handle_, text.c_str(), height, &width);
        return width;
    }

    void* Native() const // HDC; null once the painter has returned.
    {
        void* dc = nullptr;
        panelkit_canvas_native(handle_, &dc);
        return dc;
    }
    panelkit_canvas* Handle() const { return handle_; } // For the C interface.

private:
    static bool isOk(panelkit_status status) { return status == PANELKIT_OK; }

    panelkit_canvas* const handle_;
    std::int32_t width_ { 0 };
    std::int32_t height_ { 0 };
};

} // namespace panelkit
