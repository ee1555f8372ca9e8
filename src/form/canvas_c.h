/* Painting for C and whatever can call it; docs/painting.md shows how. The rules are those of panelkit_c.h;
   what went wrong with a canvas is told by panelkit_last_error(NULL). */
#pragma once
#include "form/panelkit_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The picture of one control while its painter runs. Opaque; no canvas any more once the painter returns. */
typedef struct panelkit_canvas panelkit_canvas;

/* user: as it was given. It must not throw. */
typedef void(PANELKIT_CALL* panelkit_painter)(panelkit_canvas* canvas, void* user);

/* Lets the program paint a drawing or a special animation. The library keeps the picture, shows it as often
   as the window system asks, and calls the painter only for a new one: before it is shown first, in another
   size, after panelkit_repaint. Then the picture holds the drawing's background or the animation's frame.
   A painter takes the place of the one before; null: none, and nothing is painted from then on.
   PANELKIT_ERROR_NO_VALUE: the control is none that can be painted. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_painter(
    panelkit_dialog* dialog, int32_t id, panelkit_painter painter, void* user);
/* Has the painter called for a new picture, soon and once for all calls until then. PANELKIT_ERROR_NO_VALUE:
   the control has no painter. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_repaint(panelkit_dialog* dialog, int32_t id);
/* Shows a frame, from 0, of a normal animation, or below what the painter of a special one paints.
   PANELKIT_ERROR_NO_VALUE: the control is no animation; PANELKIT_ERROR_REFUSED: it has no such frame, or
   plays by itself. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_show_frame(
    panelkit_dialog* dialog, int32_t id, int32_t frame);

/* Lengths and places are pixels, from the left and top of the picture; nothing is drawn outside of it.
   Colours are 0xRRGGBB. Refused with PANELKIT_ERROR_ARGUMENT: other colours, lines thinner than 1 or wider
   than 32767, negative widths and heights. */
enum
{
    PANELKIT_ALIGN_LEFT = 0, /* x is where the text begins, */
    PANELKIT_ALIGN_CENTRE = 1,
    PANELKIT_ALIGN_RIGHT = 2 /* where it ends. */
};
/* The picture's. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_size(
    panelkit_canvas* canvas, int32_t* width, int32_t* height);
/* The frame that the animation shows; -1: none, as for drawings. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_frame(panelkit_canvas* canvas, int32_t* frame);
/* HDC, for what these functions lack. What is selected into it is taken out of it when the painter returns.
 */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_native(panelkit_canvas* canvas, void** dc);

/* Fills the whole picture. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_fill(panelkit_canvas* canvas, uint32_t colour);
/* Both ends belong to the line. Wide ones have round ends. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_line(
    panelkit_canvas* canvas, int32_t x1, int32_t y1, int32_t x2, int32_t y2, uint32_t colour, int32_t width);
/* points: x and y of each of `count` points; one is a dot, none nothing. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_polyline(
    panelkit_canvas* canvas, const int32_t* points, size_t count, uint32_t colour, int32_t width);
/* A frame, its lines inside the rectangle. Without width or height: nothing, here and below. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_rectangle(panelkit_canvas* canvas, int32_t x,
    int32_t y, int32_t width, int32_t height, uint32_t colour, int32_t line_width);
/* Without outline. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_fill_rectangle(
    panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width, int32_t height, uint32_t colour);
/* In that rectangle, its line inside. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_ellipse(panelkit_canvas* canvas, int32_t x,
    int32_t y, int32_t width, int32_t height, uint32_t colour, int32_t line_width);
/* Without outline. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_fill_ellipse(
    panelkit_canvas* canvas, int32_t x, int32_t y, int32_t width, int32_t height, uint32_t colour);
/* One line of text in the dialogs' font. y: the top of the line; height: of the line, 1 to 1000; alignment:
   PANELKIT_ALIGN_... */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_text(panelkit_canvas* canvas, int32_t x, int32_t y,
    const char* text, int32_t height, uint32_t colour, int32_t alignment);
/* How wide that text is. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_canvas_text_width(
    panelkit_canvas* canvas, const char* text, int32_t height, int32_t* width);

#ifdef __cplusplus
}
#endif
