#pragma once
#include "controls/base/painted_picture.h"
#include "controls/base/picture_static.h"
#include <utility>

// A control on which the application may paint. With a painter it shows the picture that the painter makes,
// always the whole of it at once; without one it does what it else does.
template <class BaseTP> class PaintedCL : public BaseTP
{
public:
    using BaseTP::BaseTP;

    // The painter is called, while a message to paint is handled, for the first picture, one of another size
    // and after RepaintM. It may do everything, destroy the control too; what it throws goes where exceptions
    // of message handlers go. Empty: none. Not copied with the control. 1.
    int SetPainterM(PainterTP painter)
    {
        painted_.SetPainterM(std::move(painter));
        this->invalidateM(true);
        return 1;
    }
    // Has another picture painted, soon and once for all calls until then. 0 without a painter. A painter
    // that calls it is called again and again, as fast as pictures can be shown.
    int RepaintM()
    {
        painted_.ForgetM();
        if (painted_.HasPainterM()) {
            this->invalidateM(false);
        }
        return painted_.HasPainterM() ? 1 : 0;
    }

    void DelItemM()
    {
        BaseTP::DelItemM();
        painted_.SetPainterM(nullptr);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY) {
            painted_.DropM();
        }
        if (!painted_.HasPainterM()) {
            return BaseTP::WindowProc(message, wParam, lParam);
        }
        if (message == WM_PAINT) {
            painted_.PaintM(this, [this](CDC& dc, const CSize& size) { drawUnderM(dc, size); });
            return 0;
        }
        if (message == WM_ERASEBKGND) {
            return 1;
        }
        if (message == WM_SIZE) {
            this->invalidateM(false); // Also where it was shown before.
        }
        return BaseTP::WindowProc(message, wParam, lParam);
    }

    virtual void drawUnderM(CDC& dc, const CSize& size) = 0; // What it shows by itself.

private:
    PaintedPictureCL painted_;
};
