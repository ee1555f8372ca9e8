/* The C interface as C sees it: compiled as C11, with nothing but its header. */
#include <panelkit/form/panelkit_c.h>

#include <stdio.h>
#include <string.h>

static int failures = 0;

#define EXPECT(condition)                                                                                    \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            printf("line %d: %s\n", __LINE__, #condition);                                                   \
            ++failures;                                                                                      \
        }                                                                                                    \
    } while (0)

struct seen
{
    int timers;
    int closed;
    int32_t result;
};

static int32_t PANELKIT_CALL on_event(const panelkit_event* event, void* user)
{
    struct seen* seen = user;
    EXPECT(event->size == sizeof *event);
    if (event->kind == PANELKIT_EVENT_TIMER && event->id == 4) {
        ++seen->timers;
        EXPECT(panelkit_stop_timer(event->dialog, 4) == PANELKIT_OK);
        EXPECT(panelkit_close(event->dialog, 12) == PANELKIT_OK);
    } else if (event->kind == PANELKIT_EVENT_CLOSED) {
        ++seen->closed;
        seen->result = event->number;
    }
    return 0;
}

static void values(panelkit_dialog* dialog)
{
    int32_t number = 0;
    double real = 0;
    char text[40] = "";
    size_t needed = 0;
    int32_t lines[2] = { 3, 3 };
    size_t count = 0;
    EXPECT(panelkit_set_int(dialog, 1055, 40) == PANELKIT_OK);
    EXPECT(panelkit_get_int(dialog, 1055, &number) == PANELKIT_OK && number == 40);
    EXPECT(panelkit_set_int(dialog, 1055, 81) == PANELKIT_ERROR_REFUSED);
    EXPECT(panelkit_set_real(dialog, 1056, 20.5) == PANELKIT_OK);
    EXPECT(panelkit_get_real(dialog, 1056, &real) == PANELKIT_OK && real == 20.5);
    EXPECT(panelkit_set_text(dialog, 1050, u8"\u7B14") == PANELKIT_OK);
    EXPECT(panelkit_get_text(dialog, 1050, text, sizeof text, &needed) == PANELKIT_OK);
    EXPECT(needed == 4 && strcmp(text, u8"\u7B14") == 0);
    EXPECT(panelkit_set_checked(dialog, 3002, 1) == PANELKIT_OK);
    EXPECT(panelkit_get_group(dialog, 3001, &number) == PANELKIT_OK && number == 3002);
    EXPECT(panelkit_set_index(dialog, 3020, 1) == PANELKIT_OK);
    EXPECT(
        panelkit_get_selection(dialog, 3020, lines, 2, &count) == PANELKIT_OK && count == 1 && lines[0] == 1);
    EXPECT(panelkit_get_line(dialog, 3020, 3, text, sizeof text, NULL) == PANELKIT_OK);
    EXPECT(strstr(text, "0.70 mm") != NULL);
    EXPECT(panelkit_set_text_colour(dialog, 1050, 0x800000) == PANELKIT_OK);
    EXPECT(panelkit_set_text_colour(dialog, 1050, PANELKIT_COLOUR_OF_SYSTEM) == PANELKIT_OK);
    EXPECT(panelkit_set_accessible_name(dialog, 1050, "name") == PANELKIT_OK);
    EXPECT(panelkit_set_message_text(PANELKIT_MESSAGE_BAD_VALUE, "bad") == PANELKIT_OK);
    EXPECT(panelkit_get_message_text(PANELKIT_MESSAGE_BAD_VALUE, text, sizeof text, NULL) == PANELKIT_OK);
    EXPECT(strcmp(text, "bad") == 0);
}

int main(int count, char** arguments)
{
    struct seen seen = { 0, 0, 0 };
    panelkit_options options = { .size = sizeof options, .callback = on_event, .user = &seen };
    panelkit_dialog* dialog = NULL;
    int32_t result = 0;
    void* window = NULL;
    if (count < 2 || panelkit_open(arguments[1], &options, &dialog) != PANELKIT_OK) {
        printf("%s\n", panelkit_last_error(NULL));
        return 1;
    }
    values(dialog);
    EXPECT(panelkit_native_window(dialog, &window) == PANELKIT_OK && window != NULL);
    EXPECT(panelkit_start_timer(dialog, 4, 10) == PANELKIT_OK);
    EXPECT(panelkit_run(dialog, &result) == PANELKIT_OK && result == 12);
    EXPECT(seen.timers == 1 && seen.closed == 1 && seen.result == 12);
    EXPECT(panelkit_show(dialog) == PANELKIT_OK);
    EXPECT(panelkit_start_timer(dialog, 4, 10) == PANELKIT_OK);
    EXPECT(panelkit_run_loop() == PANELKIT_OK);
    EXPECT(seen.timers == 2 && seen.closed == 2);
    EXPECT(panelkit_destroy(dialog) == PANELKIT_OK);
    EXPECT(panelkit_destroy(dialog) == PANELKIT_ERROR_HANDLE);
    EXPECT(panelkit_destroy(NULL) == PANELKIT_ERROR_ARGUMENT);
    printf("panelkit %s: %d failures\n", panelkit_version(), failures);
    return failures == 0 ? 0 : 1;
}
