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
// How all functions and callbacks of this interface are called.
#define PANELKIT_CALL __cdecl
#else
#define PANELKIT_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef struct panelkit_dialog panelkit_dialog; /* Opaque; never the same again once destroyed. */

/* What every call says of itself: one of the PANELKIT_OK and PANELKIT_ERROR_ numbers. */
typedef int32_t panelkit_status;
/* The numbers of panelkit_status; later versions add others. */
enum
{
    PANELKIT_OK = 0,             /* All was done. */
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
    PANELKIT_ERROR_MEMORY = 11,  /* There is no memory left. */
    PANELKIT_ERROR_INTERNAL = 12 /* An error inside the library. */
};

/* Kinds of controls; docs/kinds tells what each is. */
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

/* What a callback is told. */
typedef struct panelkit_event
{
    uint32_t size;           /* In bytes. */
    int32_t kind;            /* PANELKIT_EVENT_... */
    panelkit_dialog* dialog; /* Where it happened. */
    int32_t id;              /* Of the control or timer; 0 for the dialog itself. */
    int32_t control_kind;    /* PANELKIT_KIND_... */
    int32_t number;          /* As the kind of event says, else 0. */
    int32_t good;            /* Of PANELKIT_EVENT_LEAVE: 1, or 0 for a bad value. Else 0. */
    int32_t x; /* Of a click on a drawing, special animation or label: the place in it, in pixels; else 0. */
    int32_t y; /* The same, from its top. */
} panelkit_event;

/* Something in the description file that can't be meant, told while it is read. */
typedef struct panelkit_diagnostic
{
    uint32_t size;       /* In bytes. */
    int32_t line;        /* From 1; 0: the file as a whole. */
    int32_t column;      /* In characters, from 1; 0: the file as a whole. */
    const char* code;    /* Of those that `panelkit check` prints. */
    const char* file;    /* The description file, as panelkit_open got it. */
    const char* message; /* What is wrong, in English. */
} panelkit_diagnostic;

/* Called for each event of a dialog, in its thread. user: as the options gave it. The event holds until the
   callback returns. The result is 0 but where the kind of event says otherwise. */
typedef int32_t(PANELKIT_CALL* panelkit_callback)(const panelkit_event* event, void* user);
/* Called by panelkit_open, once for each thing that is wrong. user: diagnostics_user of the options. */
typedef void(PANELKIT_CALL* panelkit_diagnostic_callback)(const panelkit_diagnostic* diagnostic, void* user);

/* How panelkit_open is to make a dialog. Of each member 0 or null is what it does without options. */
typedef struct panelkit_options
{
    uint32_t size; /* sizeof this structure, set by the caller. */
    void* owner;   /* HWND; null: no owner. Not kept alive. No window: PANELKIT_ERROR_ARGUMENT. */
    panelkit_callback callback;               /* Null: no events. */
    void* user;                               /* For the callback; the library only hands it on. */
    panelkit_diagnostic_callback diagnostics; /* Null: nobody is told. Called by panelkit_open alone. */
    void* diagnostics_user;                   /* For that callback. */
    /* The language of its texts, as "en" or "pt_BR": FILE.en.mo beside FILE.dlg has them, else those of the
       file are shown. Empty: the system's. Null: those of the file. Values and lines by id stay as the file
       has them. The library's own messages follow, for the whole process. What names no language:
       PANELKIT_ERROR_ARGUMENT. */
    const char* language;
} panelkit_options;

/* What panelkit_control_at tells of a control. */
typedef struct panelkit_control
{
    uint32_t size;     /* sizeof this structure, set by the caller. */
    int32_t id;        /* Its function id. */
    int32_t kind;      /* PANELKIT_KIND_... */
    int32_t has_value; /* 1: it can be saved. */
} panelkit_control;

/* The version of the library, as "1.2.3". Any thread may call it; the text holds for ever. */
PANELKIT_API const char* PANELKIT_CALL panelkit_version(void);
/* What a status means, in English; of a number that is none it says so. Any thread may call it; the text
   holds for ever. */
PANELKIT_API const char* PANELKIT_CALL panelkit_status_text(panelkit_status status);
/* What went wrong in the last call with this dialog, empty when nothing did. Null, or no dialog of this
   thread: in this thread's last call. Holds until the next such call. Never null. */
PANELKIT_API const char* PANELKIT_CALL panelkit_last_error(const panelkit_dialog* dialog);

/* Builds the dialog of a description file, not yet shown; its values can be read and set from now on. file:
   a path, at most 259 bytes in GBK. options may be null. *dialog is null for every other status than
   PANELKIT_OK; the caller destroys it. PANELKIT_ERROR_FILE: there is no such file, or it describes no dialog;
   what it says wrongly of single controls is no error. PANELKIT_ERROR_WINDOW: there is no window for it. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_open(
    const char* file, const panelkit_options* options, panelkit_dialog** dialog);
/* Frees the dialog. A callback hears no more of it, not even that it closes. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_destroy(panelkit_dialog* dialog);

/* Shows the dialog, its owner disabled, until it closes. *result (may be null): that of panelkit_close, 1 or
   2 as PANELKIT_EVENT_CLOSING says, -1 when the program quits or the dialog was destroyed.
   PANELKIT_ERROR_STATE: it is shown already, or its window is gone. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_run(panelkit_dialog* dialog, int32_t* result);
/* Shows the dialog and returns at once; its owner stays enabled. PANELKIT_ERROR_STATE as for panelkit_run. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_show(panelkit_dialog* dialog);
/* Hides the dialog; its values stay, and it can be shown again. Nothing is checked. result: what panelkit_run
   and panelkit_result give. Nothing if it is not open. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_close(panelkit_dialog* dialog, int32_t result);
/* *open: 1 while the dialog is shown, else 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_open(panelkit_dialog* dialog, int32_t* open);
/* *result: with what the dialog closed the last time; -1 before the first. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_result(panelkit_dialog* dialog, int32_t* result);

/* Handles this thread's messages until none of its dialogs is open or the program quits. For programs without
   a message loop. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_run_loop(void);
/* Handles the messages that are there and returns. *quit (may be null): 1 when the program quits, else 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_process_pending(int32_t* quit);
/* For loops of the program's own, before they dispatch a message (MSG*): *handled is 1 when that has been
   done, as for the Tab key in a dialog. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_translate_message(void* message, int32_t* handled);

/* *window: the dialog's HWND, which stays the dialog's. PANELKIT_ERROR_STATE: it is gone. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_native_window(panelkit_dialog* dialog, void** window);
/* Puts a text into the caption bar. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_title(panelkit_dialog* dialog, const char* title);
/* The text of the caption bar, into a buffer as panelkit_get_text has it. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_title(
    panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed);
/* The control whose focus has no field asked again for its value: that is what Cancel wants; 0: none. A field
   that is left for it by the mouse or Tab is checked all the same. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_cancel_id(panelkit_dialog* dialog, int32_t id);
/* Has the field with the focus checked as if the user left it; a bad value is told. *good: 1 or 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_check(panelkit_dialog* dialog, int32_t* good);

/* *count: how many controls there are. Where several have an id, all functions mean the first in the order of
   the kinds, and it alone is counted. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_control_count(panelkit_dialog* dialog, size_t* count);
/* One of them, from 0 in the order of the Tab key. control->size must be set; PANELKIT_ERROR_ID: index is not
   below their number. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_control_at(
    panelkit_dialog* dialog, size_t index, panelkit_control* control);
/* Enables a control for 1, disables it for 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_enable_control(
    panelkit_dialog* dialog, int32_t id, int32_t enable);
/* Shows a control for 1, hides it for 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_show_control(
    panelkit_dialog* dialog, int32_t id, int32_t show);
/* A control's own state, as if the dialog itself were enabled and shown: 1 or 0. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_control_enabled(
    panelkit_dialog* dialog, int32_t id, int32_t* enabled);
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_is_control_shown(
    panelkit_dialog* dialog, int32_t id, int32_t* shown);

/* Gives a control the focus as a key of the user's would: the field that has it is left, and checked. Refused
   is a control that is disabled or can't be seen, and where the field keeps the focus. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_focus_control(panelkit_dialog* dialog, int32_t id);
/* What a label, group box, check box, radio button or standard button says. PANELKIT_ERROR_NO_VALUE: another
   control. The buffer is as for panelkit_get_text. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_get_caption(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed);
/* Has it say that, in any language. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_set_caption(
    panelkit_dialog* dialog, int32_t id, const char* caption);

/* From now on, if use is not 0, the pictures that take clicks are reached by Tab and used by Space, Enter and
   arrows; else not. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_use_picture_keyboard(
    panelkit_dialog* dialog, int32_t use);

/* Has PANELKIT_EVENT_TIMER come every so many milliseconds, also while the dialog is hidden. timer: an id of
   the program's own; one that runs begins anew. A negative time is refused with PANELKIT_ERROR_ARGUMENT. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_start_timer(
    panelkit_dialog* dialog, int32_t timer, int32_t milliseconds);
/* Stops it. PANELKIT_ERROR_ID: it does not run. */
PANELKIT_API panelkit_status PANELKIT_CALL panelkit_stop_timer(panelkit_dialog* dialog, int32_t timer);

#ifdef __cplusplus
}
#endif

#include "form/panelkit_c_looks.h"
#include "form/panelkit_c_values.h"
