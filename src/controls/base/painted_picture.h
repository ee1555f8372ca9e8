#pragma once
#include "pictures/image_cache.h"
#include <exception>
#include <functional>
#include <memory>

// Paints a picture of that many pixels. It holds what the control shows by itself; what is selected into dc,
// and how else it is set, is as before again once the function returns.
using PainterTP = std::function<void(CDC& dc, const CSize& size)>;

// The picture that the application paints for a control. The painter is called when another picture is
// needed, else the one there is is shown again. A copy has neither painter nor picture.
class PANELKIT_API PaintedPictureCL
{
public:
    PaintedPictureCL() = default;
    PaintedPictureCL(const PaintedPictureCL& /*other*/) { }
    PaintedPictureCL& operator=(const PaintedPictureCL& /*other*/)
    {
        SetPainterM(nullptr);
        return *this;
    }
    ~PaintedPictureCL() = default;

    // An empty painter: none. One that is at work may be replaced.
    void SetPainterM(PainterTP painter);
    // Whether there is one.
    bool HasPainterM() const { return painter_ != nullptr; }
    void ForgetM() { isCurrent_ = false; } // Another picture is needed.
    void DropM();                          // The same, and frees this one.

    // Handles WM_PAINT of the control; drawUnder: what it shows by itself. What a painter throws comes out
    // once all is shown that it has painted. The painter may have destroyed this object.
    void PaintM(CWnd* control, const PainterTP& drawUnder);

private:
    std::exception_ptr composeM(CWnd* control, CSize size, const PainterTP& drawUnder);

    std::shared_ptr<const PainterTP> painter_;
    std::shared_ptr<ImageCacheCL> picture_;
    CSize size_;
    bool isCurrent_ { false };
    bool isPainting_ { false };
};
