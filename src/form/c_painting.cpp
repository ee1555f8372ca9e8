// The C interface: painters, frames and keys of pictures.
#include "form/canvas_handles.h"
#include "form/dialog_handles.h"
#include "form/handle_table.h"

namespace {

using CanvasTableTP = HandleTableCL<panelkit_canvas, CanvasUseCL>;

CanvasTableTP& canvasTable()
{
    static CanvasTableTP table;
    return table;
}

} // namespace

CanvasUseCL::CanvasUseCL(CDC& dc, const CSize& size, int frame)
    : dc_(dc)
    , size_(size)
    , frame_(frame)
    , handle_(canvasTable().NewM())
{
    canvasTable().KeepM(handle_, this);
}

CanvasUseCL::~CanvasUseCL()
{
    canvasTable().DropM(handle_);
}

panelkit_status slFindCanvas(const panelkit_canvas* handle, CanvasUseCL** canvas)
{
    return canvasTable().FindM(handle, canvas);
}

bool HostedDialogCL::SetPainterM(int id, panelkit_painter painter, void* user)
{
    if (painter == nullptr) {
        return DuBasicDialogCL::SetPainterM(id, nullptr);
    }
    return DuBasicDialogCL::SetPainterM(id, [this, id, painter, user](CDC& dc, const CSize& size) {
        if (isDoomed_) {
            return;
        }
        const UseCL use(*this, UseCL::ByMessage);
        const CanvasUseCL canvas(dc, size, frameM(id));
        try {
            painter(canvas.HandleM(), user);
        } catch (...) {
            ::OutputDebugStringW(L"panelkit: a painter threw an exception\n");
        }
    });
}

int HostedDialogCL::frameM(int id)
{
    int kind = PANELKIT_KIND_NONE;
    const CWnd* const control = GetContrlPtrM(id, &kind);
    return kind == PANELKIT_KIND_SPECIAL_ANIMATION
        ? static_cast<const DuSpecAnimateCL*>(control)->GetCurIdxM()
        : -1;
}

panelkit_status panelkit_set_painter(
    panelkit_dialog* dialog, int32_t id, panelkit_painter painter, void* user)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, DialogValuesCL&) -> panelkit_status {
        return hosted.SetPainterM(id, painter, user) ? PANELKIT_OK : PANELKIT_ERROR_NO_VALUE;
    });
}

panelkit_status panelkit_repaint(panelkit_dialog* dialog, int32_t id)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, DialogValuesCL&) -> panelkit_status {
        return hosted.RepaintM(id) ? PANELKIT_OK : PANELKIT_ERROR_NO_VALUE;
    });
}

panelkit_status panelkit_show_frame(panelkit_dialog* dialog, int32_t id, int32_t frame)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, DialogValuesCL&) -> panelkit_status {
        int kind = PANELKIT_KIND_NONE;
        hosted.GetContrlPtrM(id, &kind);
        if (kind != PANELKIT_KIND_NORMAL_ANIMATION && kind != PANELKIT_KIND_SPECIAL_ANIMATION) {
            return PANELKIT_ERROR_NO_VALUE;
        }
        return hosted.ShowFrameM(id, frame) ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
    });
}

panelkit_status panelkit_use_picture_keyboard(panelkit_dialog* dialog, int32_t use)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) -> panelkit_status {
        const HostedDialogCL::QuietCL quiet(hosted);
        hosted.SetPictureKeyboardM(use != 0);
        return PANELKIT_OK;
    });
}
