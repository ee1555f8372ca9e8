#include "controls/base/painted_picture.h"
#include "controls/base/saved_context.h"
#include "toolkit/life.h"
#include <utility>

namespace {

void drawSaved(CDC& dc, CSize size, const PainterTP& draw)
{
    const SavedContextCL saved(dc);
    draw(dc, size);
}

CSize clientSize(const CWnd* control)
{
    CRect client;
    control->GetClientRect(&client);
    return client.Size();
}

} // namespace

void PaintedPictureCL::SetPainterM(PainterTP painter)
{
    painter_ = painter ? std::make_shared<const PainterTP>(std::move(painter)) : nullptr;
    DropM();
}

void PaintedPictureCL::DropM()
{
    picture_.reset(); // A painter at work keeps its own.
    isCurrent_ = false;
}

void PaintedPictureCL::PaintM(CWnd* control, const PainterTP& drawUnder)
{
    if (isPainting_) { // The painter waits for something, or wants to see what it paints.
        control->ValidateRect(nullptr);
        return;
    }
    std::exception_ptr thrown;
    const CSize size = clientSize(control);
    if (!isCurrent_ || size != size_) {
        const LifeCL life(control);
        thrown = composeM(control, size, drawUnder);
        if (!life.IsAliveM() || control->m_hWnd == nullptr) {
            if (thrown != nullptr) {
                std::rethrow_exception(thrown);
            }
            return;
        }
    }
    {
        CPaintDC dc(control);
        if (picture_ != nullptr) {
            dc.BitBlt(0, 0, size_.cx, size_.cy, picture_->GetDcM(), 0, 0, SRCCOPY);
        } else {
            drawUnder(dc, size);
        }
    }
    // Asked for meanwhile, or the painter has been taken off.
    if (!isCurrent_ || clientSize(control) != size_) {
        control->Invalidate(painter_ != nullptr ? FALSE : TRUE);
    }
    if (thrown != nullptr) {
        std::rethrow_exception(thrown);
    }
}

// What the painter has thrown.
std::exception_ptr PaintedPictureCL::composeM(CWnd* control, CSize size, const PainterTP& drawUnder)
{
    size_ = size;
    isCurrent_ = true; // From now on every wish for another picture counts.
    const auto picture = std::make_shared<ImageCacheCL>();
    {
        CClientDC like(control);
        if (!picture->CreateM(&like, size.cx, size.cy)) {
            picture_ = nullptr;
            return nullptr;
        }
    }
    picture_ = picture;
    drawSaved(*picture->GetDcM(), size, drawUnder);
    const auto painter = painter_;
    const LifeCL life(control);
    std::exception_ptr thrown;
    isPainting_ = true;
    try {
        drawSaved(*picture->GetDcM(), size, *painter);
    } catch (...) {
        thrown = std::current_exception();
    }
    if (life.IsAliveM()) {
        isPainting_ = false;
        if (control->m_hWnd != nullptr) {
            control->Invalidate(FALSE); // All of it is new, and was perhaps painted meanwhile.
        }
    }
    return thrown;
}
