/* Panelkit for C11 and for whatever can call it; docs/c-interface.md shows how.
   - Texts are UTF-8 and end with a zero byte. Those given to the library are copied; those it gives hold as
   long as the function says, in callbacks until the callback returns.
   - A dialog belongs to the thread that opened it. Calls from another thread are refused with
     PANELKIT_ERROR_THREAD, and change nothing.
   - Null where a pointer is wanted, and handles of destroyed dialogs, are refused. What a pointer points to
   is changed only for PANELKIT_OK, unless it is said otherwise.
   - Callbacks may call everything, close and destroy their dialog too. They must not throw.
   - `size` comes first in every structure and is what sizeof says; later versions append members. */
#pragma once
#include "baselib/api.h"
#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define PANELKIT_CALL __cdecl
#else
#define PANELKIT_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef struct panelkit_dialog panelkit_dialog; /* Opaque; never the same again once destroyed. */

typedef int32_t panelkit_status;
enum
{
    PANELKIT_OK = 0,
    PANELKIT_ERROR_ARGUMENT = 1, /* Null, a size too small, a negative number where none can be. */
    PANELKIT_ERROR_HANDLE = 2,   /* No dialog, or one that is destroyed. */
    PANELKIT_ERROR_THREAD = 3,   /* Another thread opened the dialog. */
    PANELKIT_ERROR_FILE = 4,     /* The description file is missing or describes no dialog. */
    PANELKIT_ERROR_STATE = 5,    /* Not now: the dialog is shown already, or its window is gone. */
    PANELKIT_ERROR_ID = 6,       /* No control, timer or line with that number. */
    PANELKIT_ERROR_NO_VALUE = 7, /* The control has no such value, or none that is legal stands in it. */
    PANELKIT_ERROR_REFUSED = 8,  /* The control refuses the value; it keeps the one that it has. */
    PANELKIT_ERROR_BUFFER = 9,   /* The buffer is too small; a text has been cut between characters. */
    PANELKIT_ERROR_WINDOW = 10,  /* The window system made no window or timer. */
    PANELKIT_ERROR_MEMORY = 11,
    PANELKIT_ERROR_INTERNAL = 12
};

/* Kinds of controls. */
enum
{
    PANELKIT_KIND_NONE = 0, /* The dialog itself, or the arrows of a spin edit. */
    PANELKIT_KIND_NORMAL_ANIMATION = 1,
    PANELKIT_KIND_SPECIAL_ANIMATION = 2,
    PANELKIT_KIND_LABEL = 3,
    PANELKIT_KIND_SINGLE_EDIT = 4,
    PANELKIT_KIND_MULTI_EDIT = 5,
    PANELKIT_KIND_SPIN_EDIT = 6,
    PANELKIT_KIND_TEXT_LIST_BOX = 7,
    PANELKIT_KIND_BITMAP_LIST_BOX = 8,
    PANELKIT_KIND_COMBO_BOX = 9,
    PANELKIT_KIND_LIST_CONTROL = 10,
    PANELKIT_KIND_RADIO_BUTTON = 11,
    PANELKIT_KIND_CHECK_BOX = 12,
    PANELKIT_KIND_STANDARD_BUTTON = 13,
    PANELKIT_KIND_BITMAP_BUTTON = 14,
    PANELKIT_KIND_MULTI_STATE_BUTTON = 15,
    PANELKIT_KIND_ROTATE_BUTTON = 16,
    PANELKIT_KIND_GROUP_BOX = 17,
    PANELKIT_KIND_TREE = 18,
    PANELKIT_KIND_DRAWING = 19
};

/* What callbacks are told: what the user does, never what the program does by these functions. */
enum
{
    /* A control was clicked. number: of a multi-state button the place of its picture, of a rotate button its
       counter. */
    PANELKIT_EVENT_CLICK = 1,
    PANELKIT_EVENT_DOUBLE_CLICK = 2, /* A list, table, tree, label or picture was. */
    PANELKIT_EVENT_PRESS = 3,        /* The mouse button went down on a bitmap button. */
    PANELKIT_EVENT_CHANGE = 4,       /* The text of a field changed, perhaps to one that is not legal yet. */
    /* Another line, row or item is selected. number: the line or row, -1: none or several; 0 for a tree. */
    PANELKIT_EVENT_SELECT = 5,
    PANELKIT_EVENT_FOCUS = 6, /* The control got the focus; not all kinds tell. */
    /* A field was left. good: 0 when its value is bad, of which the library tells the user. */
    PANELKIT_EVENT_LEAVE = 7,
    PANELKIT_EVENT_TIMER = 8, /* id is the timer's. */
    /* The user wants to close. number: 1 by Enter or the standard button 1; 2 by Esc, the close button or the
       standard button 2. Return 1 to keep the dialog open. */
    PANELKIT_EVENT_CLOSING = 9,
    PANELKIT_EVENT_CLOSED = 10 /* The dialog has closed. number: its result. */
};

typedef struct panelkit_event
{
    uint32_t size;
    int32_t kind; /* PANELKIT_EVENT_... */
    panelkit_dialog* dialog;
    int32_t id;           /* Of the control or timer; 0 for the dialog itself. */
    int32_t control_kind; /* PANELKIT_KIND_... */
    int32_t number;       /* As the kind of event says, else 0. */
    int32_t good;
} panelkit_event;

/* Something in the description file that can't be meant, told while it is read. */
typedef struct panelkit_diagnostic
{
    uint32_t size;
    int32_t line; /* Line and column, in characters, count from 1; 0: the file as a whole. */
    int32_t column;
    const char* code; /* Of those that `panelkit check` prints. */
    const char* file;
    const char* message; /* English. */
} panelkit_diagnostic;

/* user: as it was given. The result is 0 but where the kind of event says otherwise. */
typedef int32_t(PANELKIT_CALL* panelkit_callback)(const panelkit_event* event, void* user);
typedef void(PANELKIT_CALL* panelkit_diagnostic_callback)(const panelkit_diagnostic* diagnostic, void* user);

typedef struct panelkit_options
{
    uint32_t size;
    void* owner;                /* HWND; null: no owner. Not kept alive. */
    panelkit_callback callback; /* Null: no events. */
    void* user;
    panelkit_diagnostic_callback diagnostics; /* Null: nobody is told. Called by panelkit_open alone. */
    void* diagnostics_user;
} panelkit_options;

typedef struct panelkit_control
{
    uint32_t size;
    int32_t id;
    int32_t kind;      /* PANELKIT_KIND_... */
    int32_t has_value; /* 1: it can be saved. */
} panelkit_control;

/* Any thread may call these. The texts hold for ever. */
PANELKIT_API const char* PANELKIT_CALL panelkit_version(void);
PANELKIT_API const char* PANELKIT_CALL panelkit_status_text(panelkit_status status);
/* What went wrong in the last call with this dialog, empty when nothing did. Null, or no dialog of this
   thread: in this thread's last call. Holds until the next such call. Never null. */
PANELKIT_API const char* PANELKIT_CALL panelkit_last_error(const panelkit_dialog* dialog);

/* Builds the dialog of a description file, not yet shown; its values can be read and set from now on. options
   may be null. *dialog is null for every other status than PANELKIT_OK; the caller destroys it. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_open(
    const char* file, const panelkit_options* options, panelkit_dialog** dialog);
/* Frees the dialog. A callback hears no more of it, not even that it closes. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_destroy(panelkit_dialog* dialog);

/* Shows the dialog, its owner disabled, until it closes. *result (may be null): that of panelkit_close, 1 or
   2 as the event CLOSING says, -1 when the program quits or the dialog was destroyed. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_run(panelkit_dialog* dialog, int32_t* result);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_show(panelkit_dialog* dialog); /* And returns at once. */
/* Hides the dialog; its values stay, and it can be shown again. Nothing is checked. Nothing if it is not
 * open. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_close(panelkit_dialog* dialog, int32_t result);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_open(panelkit_dialog* dialog, int32_t* open);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_result(
    panelkit_dialog* dialog, int32_t* result); /* The last. */

/* For programs without a message loop. run_loop returns when no dialog of this thread is open or the program
   quits; process_pending at once, *quit (may be null) is 1 when the program quits. translate_message is for
   loops of the program's own, before it dispatches a MSG: *handled is 1 when that has been done. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_run_loop(void);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_process_pending(int32_t* quit);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_translate_message(void* message, int32_t* handled);

/* The window. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_native_window(
    panelkit_dialog* dialog, void** window); /* HWND */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_title(panelkit_dialog* dialog, const char* title);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_title(
    panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed);
/* The control that takes the focus without a check of the field that was left; 0: none. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_cancel_id(panelkit_dialog* dialog, int32_t id);
/* Has the field with the focus checked as if the user left it; a bad value is told. *good: 1 or 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_check(panelkit_dialog* dialog, int32_t* good);

/* Controls, in the order of the Tab key. Where several have an id, the functions mean the first in the order
   of the kinds, and it alone is counted. control->size must be set. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_control_count(panelkit_dialog* dialog, size_t* count);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_control_at(
    panelkit_dialog* dialog, size_t index, panelkit_control* control);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_enable_control(
    panelkit_dialog* dialog, int32_t id, int32_t enable);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_show_control(
    panelkit_dialog* dialog, int32_t id, int32_t show);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_control_enabled(
    panelkit_dialog* dialog, int32_t id, int32_t* enabled);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_control_shown(
    panelkit_dialog* dialog, int32_t id, int32_t* shown);

/* Values, as the user sees them; docs/values.md tells which kinds have which. Texts go into a buffer of
   `size` bytes with their terminator; *needed (may be null) is the size that all of it needs, also for
   PANELKIT_ERROR_BUFFER. A null buffer with size 0 asks for that alone, and is PANELKIT_OK. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_int(
    panelkit_dialog* dialog, int32_t id, int32_t* value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_int(
    panelkit_dialog* dialog, int32_t id, int32_t value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_real(
    panelkit_dialog* dialog, int32_t id, double* value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_real(
    panelkit_dialog* dialog, int32_t id, double value);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_text(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_text(
    panelkit_dialog* dialog, int32_t id, const char* text);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_checked(
    panelkit_dialog* dialog, int32_t id, int32_t* checked);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_checked(
    panelkit_dialog* dialog, int32_t id, int32_t checked);
/* The id of the checked radio button in the group of this one; 0: none is. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_group(
    panelkit_dialog* dialog, int32_t id, int32_t* checked_id);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_index(
    panelkit_dialog* dialog, int32_t id, int32_t* index);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_index(
    panelkit_dialog* dialog, int32_t id, int32_t index);
/* lines: room for `capacity` of them; *count (may be null): how many there are. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_selection(
    panelkit_dialog* dialog, int32_t id, int32_t* lines, size_t capacity, size_t* count);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_selection(
    panelkit_dialog* dialog, int32_t id, const int32_t* lines, size_t count);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_path(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_path(
    panelkit_dialog* dialog, int32_t id, const char* path);

/* A value as a text to keep between runs, whatever its kind, and back; all values as one text of several
   lines. restore_all sets what it can; *refused (may be null): how many values it could not, also for
   PANELKIT_ERROR_REFUSED, which says that there are some. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_save(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_restore(
    panelkit_dialog* dialog, int32_t id, const char* saved);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_save_all(
    panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_restore_all(
    panelkit_dialog* dialog, const char* saved, size_t* refused);

/* Lines of list boxes and combo boxes, rows of tables; they count from 0. data: the program's number of a
 * line. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_line_count(
    panelkit_dialog* dialog, int32_t id, int32_t* count);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, char* buffer, size_t size, size_t* needed);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_add_line(
    panelkit_dialog* dialog, int32_t id, const char* text, int32_t data);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_insert_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, const char* text, int32_t data);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_delete_line(
    panelkit_dialog* dialog, int32_t id, int32_t line);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_clear_lines(panelkit_dialog* dialog, int32_t id);

/* Timers by ids of the program's own; one that runs begins anew. They run while the dialog is hidden too. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_start_timer(
    panelkit_dialog* dialog, int32_t timer, int32_t milliseconds);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_stop_timer(panelkit_dialog* dialog, int32_t timer);

#ifdef __cplusplus
}
#endif

#include "form/panelkit_c_looks.h"
