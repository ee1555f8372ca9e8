#pragma once
#include "controls/base/accessors.h"
#include "pictures/brush_record.h"
#include "toolkit/toolkit.h"

// The solid background colour of a control with the brush that paints it. Copying copies the colour only.
class PANELKIT_API BackgroundCL
{
public:
    // With that colour, and no brush until the first request.
    explicit BackgroundCL(COLORREF colour)
        : colour_(colour)
    {
    }
    BackgroundCL(const BackgroundCL& other)
        : colour_(other.colour_)
    {
    }
    BackgroundCL& operator=(const BackgroundCL& other)
    {
        colour_ = other.colour_;
        return *this;
    }

    // For the next request: 1.
    int SetColourM(COLORREF colour) { return slKeep(colour_, colour); }

    // Answers a colour request: sets the text background and replaces the brush, which stays owned here. Null
    // without dc.
    HBRUSH AnswerM(CDC* dc);
    // The next request makes a new one.
    void DeleteBrushM() { brush_.DeleteObject(); }

private:
    COLORREF colour_;
    DVrBrushCL brush_;
};
