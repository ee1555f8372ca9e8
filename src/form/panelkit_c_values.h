/* Panelkit for C11: what the controls hold. Part of panelkit_c.h, whose rules hold here too. */
#pragma once
#include "form/panelkit_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Values are those that the user sees; docs/values.md tells which kinds have which. For each getter and
   setter PANELKIT_ERROR_ID means that no control has the id, PANELKIT_ERROR_NO_VALUE that it has no such
   value or, of getters, that no legal one stands in it, PANELKIT_ERROR_REFUSED that it keeps the one that it
   has. */

/* The integer of an edit, the status of a multi-state button, the counter of a rotate button. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_int(
    panelkit_dialog* dialog, int32_t id, int32_t* value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_int(
    panelkit_dialog* dialog, int32_t id, int32_t value);
/* The real of an edit; the angle of a rotate button in degrees. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_real(
    panelkit_dialog* dialog, int32_t id, double* value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_real(
    panelkit_dialog* dialog, int32_t id, double value);
/* The text of an edit or a combo box, into a buffer of `size` bytes with its terminator; *needed (may be
   null) is the size that all of it needs, also for PANELKIT_ERROR_BUFFER: then the text is cut between
   characters. A null buffer with size 0 asks for that alone, and is PANELKIT_OK. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_text(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
/* Sets that text. Refused is one that is too long, that GBK can't say or that a combo box without a field has
   not among its lines. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_text(
    panelkit_dialog* dialog, int32_t id, const char* text);
/* Whether a check box or radio button is checked: 1 or 0. Checking a radio button unchecks the others of its
   group. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_checked(
    panelkit_dialog* dialog, int32_t id, int32_t* checked);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_checked(
    panelkit_dialog* dialog, int32_t id, int32_t checked);
/* The id of the checked radio button in the group of this one; 0: none is. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_group(
    panelkit_dialog* dialog, int32_t id, int32_t* checked_id);
/* The selected line of a list box or combo box, the selected row of a table, from 0; -1: none. Of several
   that are selected there is no value. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_index(
    panelkit_dialog* dialog, int32_t id, int32_t* index);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_index(
    panelkit_dialog* dialog, int32_t id, int32_t index);
/* All selected lines or rows, ascending. lines: room for `capacity` of them, null with a capacity of 0 asks
   for the count alone. *count (may be null): how many there are, also for PANELKIT_ERROR_BUFFER, when as many
   as there is room for have been written. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_selection(
    panelkit_dialog* dialog, int32_t id, int32_t* lines, size_t capacity, size_t* count);
/* Selects those `count` lines and no other; null with a count of 0: none. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_selection(
    panelkit_dialog* dialog, int32_t id, const int32_t* lines, size_t count);
/* The selected item of a tree: the texts from the root down with '/' between them; empty: none. The buffer is
   as for panelkit_get_text. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_path(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
/* Selects that item; refused is a path of no item. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_path(
    panelkit_dialog* dialog, int32_t id, const char* path);

/* A value as a text to keep between runs, whatever its kind. The buffer is as for panelkit_get_text. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_save(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
/* And back. Refused is a text that is none of such a value, and a value that the control refuses. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_restore(
    panelkit_dialog* dialog, int32_t id, const char* saved);
/* All values as one text of several lines, but those that are not legal now. The buffer is as for
   panelkit_get_text. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_save_all(
    panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed);
/* And back: sets what it can. *refused (may be null): how many values it could not, also for
   PANELKIT_ERROR_REFUSED, which says that there are some. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_restore_all(
    panelkit_dialog* dialog, const char* saved, size_t* refused);

/* *count: how many lines a list box or combo box has, or rows a table. They count from 0. For each function
   about lines PANELKIT_ERROR_NO_VALUE means that the control has none, PANELKIT_ERROR_ID that there is no
   control or no line with that number. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_line_count(
    panelkit_dialog* dialog, int32_t id, int32_t* count);
/* The text of a line, of a row that of its first column; lines that are pictures have none. The buffer is as
   for panelkit_get_text. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, char* buffer, size_t size, size_t* needed);
/* Adds a line at the end; text: of a box of pictures the name of a .bmp file. data: the program's number of
   it. Refused is a text that GBK can't say. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_add_line(
    panelkit_dialog* dialog, int32_t id, const char* text, int32_t data);
/* The same before a line; line: 0 up to their number. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_insert_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, const char* text, int32_t data);
/* Takes one line away. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_delete_line(
    panelkit_dialog* dialog, int32_t id, int32_t line);
/* Takes all lines away. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_clear_lines(panelkit_dialog* dialog, int32_t id);

#ifdef __cplusplus
}
#endif
