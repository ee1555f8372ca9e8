/* Panelkit for C11: what the description file doesn't say. Part of panelkit_c.h, whose rules hold here too;
   docs/own-behaviour.md shows how. */
#pragma once
#include "form/panelkit_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* For panelkit_set_text_colour: no colour of its own. */
#define PANELKIT_COLOUR_OF_SYSTEM (-1)

/* The colour of a control's text, 0xRRGGBB; PANELKIT_COLOUR_OF_SYSTEM: that of the system again.
   PANELKIT_ERROR_REFUSED: a control without a text or whose text the system paints in its own colour.
   PANELKIT_ERROR_ARGUMENT: no colour. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_text_colour(
    panelkit_dialog* dialog, int32_t id, int32_t colour);
/* What screen readers call a control; null or empty: what the system takes for its name. A bitmap button or
   multi-state button with a name is a push button to them, which they can press: the event is CLICK. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_accessible_name(
    panelkit_dialog* dialog, int32_t id, const char* name);

/* select 1: once the user has been told that a value is refused, its text is selected, so that typing
   replaces it. 0: as to begin with. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_select_refused(
    panelkit_dialog* dialog, int32_t select);
/* over 1: messages about fields stand over the dialog (over a popup of it that is in front) and disable it.
   0: as to begin with, those of single-line edits belong to the thread's active window. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_message_owner(panelkit_dialog* dialog, int32_t over);

/* For panelkit_set_scale. */
#define PANELKIT_SCALE_AUTOMATIC 0
/* The scale of the dialog in percent, 50 to 800, or PANELKIT_SCALE_AUTOMATIC: that of the monitor, also when
   the user takes the dialog to another one. What the user has done in it stays. PANELKIT_ERROR_ARGUMENT:
   neither. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_scale(panelkit_dialog* dialog, int32_t percent);
/* *percent: the scale that the dialog has; 100 to begin with. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_scale(panelkit_dialog* dialog, int32_t* percent);

/* The texts of the library's message boxes, for the whole process. {minimum} and {maximum} stand for the
   limits of the field that a message is about. */
enum
{
    PANELKIT_MESSAGE_BAD_VALUE = 0,        /* No value stands in a field. Without limits. */
    PANELKIT_MESSAGE_NUMBER_TOO_SMALL = 1, /* A single-line edit was left with a number out of its range */
    PANELKIT_MESSAGE_NUMBER_TOO_LARGE = 2,
    PANELKIT_MESSAGE_TEXT_TOO_LONG = 3, /* or with a text of too many bytes of GBK. */
    PANELKIT_MESSAGE_INT_TOO_SMALL = 4, /* The same of panelkit_check's kind and of spin edits. */
    PANELKIT_MESSAGE_INT_TOO_LARGE = 5,
    PANELKIT_MESSAGE_REAL_TOO_SMALL = 6,
    PANELKIT_MESSAGE_REAL_TOO_LARGE = 7,
    PANELKIT_MESSAGE_INT_AT_MINIMUM = 8, /* An arrow of a spin edit would have left the range. */
    PANELKIT_MESSAGE_INT_AT_MAXIMUM = 9,
    PANELKIT_MESSAGE_REAL_AT_MINIMUM = 10,
    PANELKIT_MESSAGE_REAL_AT_MAXIMUM = 11,
    PANELKIT_MESSAGE_SINGLE_EDIT_CAPTION = 12, /* The caption of these; empty: the application's name. */
    PANELKIT_MESSAGE_SPIN_EDIT_CAPTION = 13
};
/* text null: the library's own again. Any thread. PANELKIT_ERROR_ARGUMENT: no message has that number. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_message_text(int32_t message, const char* text);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_message_text(
    int32_t message, char* buffer, size_t size, size_t* needed); /* As it is now, limits not filled in. */

#ifdef __cplusplus
}
#endif
