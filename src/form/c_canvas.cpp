// The C interface: drawing on a canvas.
#include "baselib/gbk.h"
#include "controls/base/saved_context.h"
#include "dialog/dialog_font.h"
#include "form/canvas_shapes.h"
#include "form/dialog_handles.h"
#include <algorithm>
#include <optional>

namespace {

constexpr int MostLineWidth = 32767;
constexpr int MostTextHeight = 1000;

bool isColour(uint32_t colour)
{
    return colour <= 0xFFFFFF;
}
bool isLine(uint32_t colour, int width)
{
    return isColour(colour) && width >= 1 && width <= MostLineWidth;
}
bool isSize(int width, int height)
{
    return width >= 0 && height >= 0;
}

// Gives call(canvas), in which the context can be changed at will, if the arguments are good.
panelkit_status withCanvas(const panelkit_canvas* handle, bool areGood, CallRefCL<void(CanvasUseCL&)> call)
{
    return slGuarded(nullptr, [handle, areGood, &call]() -> panelkit_status {
        CanvasUseCL* canvas = nullptr;
        const panelkit_status found = slFindCanvas(handle, &canvas);
        if (found != PANELKIT_OK || !areGood) {
            return found != PANELKIT_OK ? found : PANELKIT_ERROR_ARGUMENT;
        }
        const SavedContextCL saved(canvas->DcM());
        call(*canvas);
        return PANELKIT_OK;
    });
}

template <class ValueTP>
panelkit_status giveOfCanvas(
    const panelkit_canvas* handle, ValueTP* out, CallRefCL<ValueTP(CanvasUseCL&)> value)
{
    return withCanvas(handle, out != nullptr, [out, &value](CanvasUseCL& canvas) { *out = value(canvas); });
}

struct CanvasTextCL
{
    CanvasTextCL(CDC& dc, const char* utf8, int height)
        : text(slUtf8ToUtf16(utf8))
    {
        LOGFONTA described = slDialogFont(0);
        described.lfHeight = height;
        font.CreateFontIndirect(&described);
        selected.emplace(dc, font);
    }
    const wchar_t* WideM() const { return reinterpret_cast<const wchar_t*>(text.c_str()); }
    int LengthM() const { return static_cast<int>(text.size()); }

    std::u16string text;
    CFont font;
    std::optional<SelectedCL> selected;
};

bool isText(const char* text, int height)
{
    return text != nullptr && height >= 1 && height <= MostTextHeight;
}

} // namespace

panelkit_status panelkit_canvas_size(panelkit_canvas* canvas, int32_t* width, int32_t* height)
{
    return withCanvas(canvas, width != nullptr && height != nullptr, [=](const CanvasUseCL& found) {
        *width = found.SizeM().cx;
        *height = found.SizeM().cy;
    });
}

panelkit_status panelkit_canvas_frame(panelkit_canvas* canvas, int32_t* frame)
{
    return giveOfCanvas<int32_t>(canvas, frame, [](CanvasUseCL& found) { return found.FrameM(); });
}

panelkit_status panelkit_canvas_native(panelkit_canvas* canvas, void** dc)
{
    return giveOfCanvas<void*>(canvas, dc, [](CanvasUseCL& found) { return found.DcM().m_hDC; });
}

panelkit_status panelkit_canvas_fill(panelkit_canvas* canvas, uint32_t colour)
{
    return withCanvas(canvas, isColour(colour),
        [=](CanvasUseCL& found) { slFillPart(found, 0, 0, found.SizeM().cx, found.SizeM().cy, colour); });
}

panelkit_status panelkit_canvas_line(
    panelkit_canvas* canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour, int32_t width)
{
    return withCanvas(canvas, isLine(colour, width), [=](CanvasUseCL& found) {
        const int32_t pairs[] = { x1, y1, x2, y2 };
        slDrawLines(found, pairs, 2, colour, width);
    });
}

panelkit_status panelkit_canvas_polyline(
    panelkit_canvas* canvas, const int32_t* points, size_t count, uint32_t colour, int32_t width)
{
    return withCanvas(canvas, isLine(colour, width) && (points != nullptr || count == 0),
        [=](CanvasUseCL& found) { slDrawLines(found, points, count, colour, width); });
}

panelkit_status panelkit_canvas_rectangle(panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width,
    int32_t height, uint32_t colour, int32_t line_width)
{
    return withCanvas(canvas, isLine(colour, line_width) && isSize(width, height), [=](CanvasUseCL& found) {
        const int64_t right = int64_t { x } + width;
        const int64_t bottom = int64_t { y } + height;
        const int64_t line = std::min({ int64_t { line_width }, right - x, bottom - y });
        slFillPart(found, x, y, right, y + line, colour);
        slFillPart(found, x, bottom - line, right, bottom, colour);
        slFillPart(found, x, y, x + line, bottom, colour);
        slFillPart(found, right - line, y, right, bottom, colour);
    });
}

panelkit_status panelkit_canvas_fill_rectangle(
    panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width, int32_t height, uint32_t colour)
{
    return withCanvas(canvas, isColour(colour) && isSize(width, height), [=](CanvasUseCL& found) {
        slFillPart(found, x, y, int64_t { x } + width, int64_t { y } + height, colour);
    });
}

panelkit_status panelkit_canvas_ellipse(panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width,
    int32_t height, uint32_t colour, int32_t line_width)
{
    return withCanvas(canvas, isLine(colour, line_width) && isSize(width, height),
        [=](CanvasUseCL& found) { slDrawEllipse(found, x, y, width, height, colour, line_width); });
}

panelkit_status panelkit_canvas_fill_ellipse(
    panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width, int32_t height, uint32_t colour)
{
    return withCanvas(canvas, isColour(colour) && isSize(width, height),
        [=](CanvasUseCL& found) { slDrawEllipse(found, x, y, width, height, colour, 0); });
}

panelkit_status panelkit_canvas_text(panelkit_canvas* canvas, int32_t x, int32_t y, const char* text,
    int32_t height, uint32_t colour, int32_t alignment)
{
    const bool isAligned = alignment >= PANELKIT_ALIGN_LEFT && alignment <= PANELKIT_ALIGN_RIGHT;
    return withCanvas(canvas, isText(text, height) && isColour(colour) && isAligned, [=](CanvasUseCL& found) {
        constexpr UINT Sides[] = { TA_LEFT, TA_CENTER, TA_RIGHT };
        if (!slIsNear({ x, y })) {
            return;
        }
        CDC& dc = found.DcM();
        const SavedContextCL saved(dc); // Lets go of the font before that goes.
        const CanvasTextCL shown(dc, text, height);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(slShownColour(colour));
        dc.SetTextAlign(TA_TOP | Sides[alignment]);
        ::TextOutW(dc.m_hDC, x, y, shown.WideM(), shown.LengthM());
    });
}

panelkit_status panelkit_canvas_text_width(
    panelkit_canvas* canvas, const char* text, int32_t height, int32_t* width)
{
    return withCanvas(canvas, isText(text, height) && width != nullptr, [=](CanvasUseCL& found) {
        const CanvasTextCL measured(found.DcM(), text, height);
        SIZE size {};
        ::GetTextExtentPoint32W(found.DcM().m_hDC, measured.WideM(), measured.LengthM(), &size);
        *width = size.cx;
    });
}
