#pragma once
#include "dialog/valued_dialog.h"
#include "form/panelkit_c.h"
#include "support/all.h"
#include <functional>

inline const char* eventName(int kind)
{
    static const char* const names[] = { "?", "click", "double click", "press", "change", "select", "focus",
        "leave", "timer", "closing", "closed" };
    return kind > 0 && kind < static_cast<int>(std::size(names)) ? names[kind] : names[0];
}

// A dialog of the C interface with one of every kind that has a value (dialog/valued_dialog.h), or of another
// description (UTF-8). Its events are noted: "click 43 13 0" (id, kind of control, number; " good" or " bad"
// behind a leave), then given to `handler`.
class OpenedDialogCL
{
public:
    explicit OpenedDialogCL(const std::string& sections = "", void* owner = nullptr)
        : picture_(0x0000FF, 20, 20)
        , file_(sections.empty() ? valuedSections(picture_.path()) : sections)
    {
        panelkit_options options {};
        options.size = sizeof options;
        options.owner = owner;
        options.callback = &note;
        options.user = this;
        EXPECT_EQ(panelkit_open(file_.path(), &options, &dialog), PANELKIT_OK)
            << panelkit_last_error(nullptr);
    }
    OpenedDialogCL(const OpenedDialogCL&) = delete;
    OpenedDialogCL& operator=(const OpenedDialogCL&) = delete;
    ~OpenedDialogCL()
    {
        testing_support::pumpFilter = nullptr;
        if (!isGone) {
            EXPECT_EQ(panelkit_destroy(dialog), PANELKIT_OK);
        }
        testing_support::PumpPending();
    }

    const char* PathM() const { return file_.path(); }
    HWND WindowM() const
    {
        void* window = nullptr;
        EXPECT_EQ(panelkit_native_window(dialog, &window), PANELKIT_OK);
        return static_cast<HWND>(window);
    }
    HWND ItemM(int id) const { return ::GetDlgItem(WindowM(), id); }
    // As the user has it: shown, in the foreground, its keys handled as a dialog's.
    void ShowM()
    {
        EXPECT_EQ(panelkit_show(dialog), PANELKIT_OK);
        EXPECT_TRUE(testing_support::ActivateM(WindowM()));
        testing_support::pumpFilter = &translate;
        StoryM();
    }
    // What has happened since the last call.
    std::string StoryM()
    {
        testing_support::PumpPending();
        return std::exchange(story_, "");
    }
    std::string TextM(int id) const
    {
        char text[300] = "";
        return panelkit_get_text(dialog, id, text, sizeof text, nullptr) == PANELKIT_OK ? text : "none";
    }

    panelkit_dialog* dialog { nullptr };
    bool isGone { false }; // A handler has destroyed it.
    std::function<int(const panelkit_event&)> handler;

private:
    static bool translate(MSG* message)
    {
        int32_t handled = 0;
        EXPECT_EQ(panelkit_translate_message(message, &handled), PANELKIT_OK);
        return handled != 0;
    }
    static int32_t PANELKIT_CALL note(const panelkit_event* event, void* user)
    {
        auto* self = static_cast<OpenedDialogCL*>(user);
        EXPECT_EQ(event->size, sizeof *event);
        EXPECT_EQ(event->dialog, self->dialog);
        self->story_ += (self->story_.empty() ? "" : "; ") + std::string(eventName(event->kind)) + " "
            + std::to_string(event->id) + " " + std::to_string(event->control_kind) + " "
            + std::to_string(event->number);
        if (event->kind == PANELKIT_EVENT_LEAVE) {
            self->story_ += event->good != 0 ? " good" : " bad";
        }
        return self->handler ? self->handler(*event) : 0;
    }

    SmallPictureCL picture_;
    DescriptionFileCL file_;
    std::string story_;
};
