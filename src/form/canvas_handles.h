#pragma once
#include "form/canvas_c.h"
#include "toolkit/toolkit.h"

// A canvas of the C interface, as long as this lives.
class CanvasUseCL
{
public:
    CanvasUseCL(CDC& dc, const CSize& size, int frame);
    CanvasUseCL(const CanvasUseCL&) = delete;
    CanvasUseCL& operator=(const CanvasUseCL&) = delete;
    ~CanvasUseCL();

    panelkit_canvas* HandleM() const { return handle_; }
    CDC& DcM() { return dc_; }
    const CSize& SizeM() const { return size_; }
    int FrameM() const { return frame_; }

private:
    CDC& dc_;
    const CSize size_;
    const int frame_;
    panelkit_canvas* const handle_;
};

panelkit_status slFindCanvas(const panelkit_canvas* handle, CanvasUseCL** canvas);
