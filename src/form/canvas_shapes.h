#pragma once
#include "form/canvas_handles.h"
#include <cstdint>

// The shapes of the C interface's canvases: arguments that it lets through.

// While one lives, the object is selected into the context. It goes after this.
class SelectedCL
{
public:
    SelectedCL(CDC& dc, HGDIOBJ object)
        : dc_(dc)
        , before_(::SelectObject(dc.m_hDC, object))
    {
    }
    SelectedCL(const SelectedCL&) = delete;
    SelectedCL& operator=(const SelectedCL&) = delete;
    ~SelectedCL() { ::SelectObject(dc_.m_hDC, before_); }

private:
    CDC& dc_;
    const HGDIOBJ before_;
};

inline COLORREF slShownColour(uint32_t colour) // 0xRRGGBB
{
    return RGB(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF);
}

bool slIsNear(POINT at); // Near enough for the system to calculate with.

// Fills what of the rectangle lies within the canvas.
void slFillPart(
    CanvasUseCL& canvas, int64_t left, int64_t top, int64_t right, int64_t bottom, uint32_t colour);
// The ellipse in that rectangle, its line inside; 0: without line, filled.
void slDrawEllipse(CanvasUseCL& canvas, int x, int y, int width, int height, uint32_t colour, int lineWidth);
// Joined lines from point to point; pairs: x and y of each.
void slDrawLines(CanvasUseCL& canvas, const int32_t* pairs, size_t count, uint32_t colour, int width);
