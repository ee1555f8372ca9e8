#pragma once
#include "form/canvas.h"
#include "form/form_looks.h"
#include "form/form_state.h"
#include "form/form_values.h"
#include <optional>
#include <string>
#include <utility>
#include <vector>

// A dialog in few lines, for any C++17 compiler: all of it is in this header, over the C interface.
// docs/form.md shows how.
namespace panelkit {

// How a form is made.
struct FormOptions
{
    void* owner = nullptr; // The window (HWND) that it stands before and disables while it runs.
    std::function<void(const panelkit_diagnostic&)> diagnostics; // Told what the file lacks or says wrongly.
    // Of its texts, as "en" or "pt_BR": FILE.en.mo beside FILE.dlg has them, else those of the file are
    // shown. Empty: the system's; nullopt: those of the file. What names no language: the form has no dialog.
    std::optional<std::string> language = std::nullopt;
};

// The dialog of a description file. Texts are UTF-8. Getters give nullopt and setters false for an unknown
// id, a control without such a value and a form without a dialog; Error() tells which. Of the events none
// comes from what the program does by its functions. A form belongs to the thread that made it. A handler may
// do everything, destroy its form too; what it throws closes the form and comes out of Run or RunLoop.
class Form : public FormValuesCL<Form>, public FormLooksCL<Form>
{
public:
    using Handler = std::function<void()>; // Of an event with nothing more to tell.

    Form() = default; // No dialog; so is a form that was moved from.
    // Builds the dialog, not yet shown: its values can be read and set. It never throws for a bad file: then
    // the form has no dialog, and Error() tells why.
    explicit Form(const std::string& file, FormOptions options = {})
        : state_(std::make_shared<FormStateCL>())
    {
        state_->diagnostics = std::move(options.diagnostics);
        panelkit_options told {};
        told.size = sizeof told;
        told.owner = options.owner;
        told.callback = &FormStateCL::TellM;
        told.user = state_.get();
        if (state_->diagnostics) {
            told.diagnostics = &FormStateCL::TellDiagnosticM;
            told.diagnostics_user = state_.get();
        }
        told.language = options.language ? options.language->c_str() : nullptr;
        if (panelkit_open(file.c_str(), &told, &state_->dialog) != PANELKIT_OK) {
            state_->error = panelkit_last_error(nullptr);
        }
    }
    Form(Form&& other) noexcept = default;
    Form& operator=(Form&& other) noexcept
    {
        if (this != &other) {
            destroy();
            state_ = std::move(other.state_);
        }
        return *this;
    }
    ~Form() { destroy(); }

    explicit operator bool() const { return Handle() != nullptr; } // Whether it has a dialog.
    // Of the last call that failed; empty after one that didn't.
    std::string Error() const
    {
        if (state_ == nullptr) {
            return "the form has no dialog";
        }
        return state_->dialog != nullptr ? panelkit_last_error(state_->dialog) : state_->error;
    }

    // Shows the dialog, its owner disabled, until it closes: the result of Close, 1 for Enter and button 1, 2
    // for Esc, button 2 and the close button, -1 without a dialog or when the program quits.
    int Run()
    {
        int result = -1;
        panelkit_run(Handle(), &result); // The handlers may destroy this.
        FormStateCL::RethrowM();
        return result;
    }
    bool Show()
    {
        return isOk(panelkit_show(Handle()));
    } // Shows it and returns at once; false: it is shown already.
    // Hides it; its values stay, and it can be shown again. Nothing is checked.
    bool Close(int result = 0) { return isOk(panelkit_close(Handle(), result)); }
    // Whether it is shown now.
    bool IsOpen() const { return flag(panelkit_is_open).value_or(false); }
    int Result() const
    {
        return get<std::int32_t>(panelkit_result).value_or(-1);
    } // That of the last time; -1 without a dialog.
    // For programs without a message loop: until no dialog of this thread is open, or the program quits.
    static void RunLoop()
    {
        panelkit_run_loop();
        FormStateCL::RethrowM();
    }

    // What happens to a control; a handler takes the place of the one before, an empty one none. The page of
    // the form tells which controls have which.
    Form& OnClick(int id, Handler handler) { return on(PANELKIT_EVENT_CLICK, id, std::move(handler)); }
    // With the place of a click on a drawing, special animation or label: pixels of the control.
    Form& OnClickAt(int id, std::function<void(int x, int y)> handler)
    {
        return on(PANELKIT_EVENT_CLICK, id, FormStateCL::PlacedM(std::move(handler)));
    }
    // What happens to a control; the page of the form tells which controls have which.
    Form& OnDoubleClick(int id, Handler handler)
    {
        return on(PANELKIT_EVENT_DOUBLE_CLICK, id, std::move(handler));
    }
    Form& OnPress(int id, Handler handler) { return on(PANELKIT_EVENT_PRESS, id, std::move(handler)); }
    Form& OnChange(int id, Handler handler) { return on(PANELKIT_EVENT_CHANGE, id, std::move(handler)); }
    Form& OnSelect(int id, Handler handler) { return on(PANELKIT_EVENT_SELECT, id, std::move(handler)); }
    Form& OnFocus(int id, Handler handler) { return on(PANELKIT_EVENT_FOCUS, id, std::move(handler)); }
    // A field was left, with a good value or one of which the library tells the user.
    Form& OnLeave(int id, std::function<void(bool good)> handler)
    {
        return on(PANELKIT_EVENT_LEAVE, id, FormStateCL::GivenM(std::move(handler), &panelkit_event::good));
    }
    // The user wants to close it, by Enter or button 1 (1), by Esc, the close button or button 2
    // (2); false keeps it open.
    Form& OnClosing(std::function<bool(int result)> handler)
    {
        return on(PANELKIT_EVENT_CLOSING, 0, std::move(handler));
    }
    // It has closed, with that result.
    Form& OnClosed(std::function<void(int result)> handler)
    {
        return on(PANELKIT_EVENT_CLOSED, 0, FormStateCL::GivenM(std::move(handler), &panelkit_event::number));
    }
    // Everything, before the handlers above.
    Form& OnEvent(std::function<void(const panelkit_event&)> handler) { return on(0, 0, std::move(handler)); }
    // Calls the handler every so many milliseconds, also while the form is hidden. timer: a number of the
    // program's own; one that runs begins anew. false: the time is negative.
    bool OnTimer(int timer, int milliseconds, Handler handler)
    {
        on(PANELKIT_EVENT_TIMER, timer, std::move(handler));
        return isOk(panelkit_start_timer(Handle(), timer, milliseconds));
    }
    // false: it does not run.
    bool StopTimer(int timer) { return isOk(panelkit_stop_timer(Handle(), timer)); }

    // Paints a drawing or a special animation: whenever a new picture is needed, and after Repaint. An empty
    // handler ends it.
    bool OnPaint(int id, std::function<void(Canvas&)> handler)
    {
        if (state_ == nullptr) {
            return false;
        }
        const bool paints = static_cast<bool>(handler);
        auto painter = std::make_unique<PainterCL>(PainterCL { state_.get(), std::move(handler) });
        const bool isSet = isOk(
            panelkit_set_painter(Handle(), id, paints ? &FormStateCL::PaintM : nullptr, painter.get()));
        if (isSet) {
            state_->KeepPainterM(id, std::move(painter));
        }
        return isSet;
    }
    // Has its painter paint it anew. false: it has none.
    bool Repaint(int id) { return isOk(panelkit_repaint(Handle(), id)); }
    // Of a normal animation that doesn't play by itself, or below what is painted on a special one.
    bool ShowFrame(int id, int frame) { return isOk(panelkit_show_frame(Handle(), id, frame)); }

    // Any control: enables or disables it.
    bool EnableControl(int id, bool enable) { return isOk(panelkit_enable_control(Handle(), id, enable)); }
    // Whether pictures that take clicks are reached by Tab and used by Space, Enter and arrows. At first not.
    bool UsePictureKeyboard(bool use) { return isOk(panelkit_use_picture_keyboard(Handle(), use ? 1 : 0)); }
    // Any control: shows or hides it.
    bool ShowControl(int id, bool show) { return isOk(panelkit_show_control(Handle(), id, show)); }
    // What a label, group box, check box, radio button or standard button says.
    std::optional<std::string> Caption(int id) const { return text(panelkit_get_caption, id); }
    bool SetCaption(int id, const std::string& caption)
    {
        return isOk(panelkit_set_caption(Handle(), id, caption.c_str()));
    }
    // Gives it the focus as a key of the user's would. false: it can't have it, or the field that has the
    // focus keeps it.
    bool Focus(int id) { return isOk(panelkit_focus_control(Handle(), id)); }
    // Its own state, as if the form were enabled and shown.
    std::optional<bool> IsControlEnabled(int id) const { return flag(panelkit_is_control_enabled, id); }
    std::optional<bool> IsControlShown(int id) const { return flag(panelkit_is_control_shown, id); }
    // All of them, in the order of the Tab key. Of several with one id the first in the order of the kinds.
    std::vector<panelkit_control> Controls() const
    {
        std::vector<panelkit_control> list(get<size_t>(panelkit_control_count).value_or(0));
        for (size_t i = 0; i < list.size(); ++i) {
            list[i].size = sizeof list[i];
            panelkit_control_at(Handle(), i, &list[i]);
        }
        return list;
    }

    // The control whose focus has no field asked again for its value: that is what Cancel wants. A field that
    // is left for it by the mouse or Tab is checked all the same.
    bool SetCancelId(int id) { return isOk(panelkit_set_cancel_id(Handle(), id)); }
    // Has the field with the focus checked as if it were left; a bad value is told. Whether it is good.
    bool Check() { return flag(panelkit_check).value_or(false); }
    // The text of the caption bar; empty without a dialog.
    std::string Title() const { return text(panelkit_get_title).value_or(""); }
    bool SetTitle(const std::string& title) { return isOk(panelkit_set_title(Handle(), title.c_str())); }
    void* Native() const
    {
        return get<void*>(panelkit_native_window).value_or(nullptr);
    } // The window (HWND); null: none.
    panelkit_dialog* Handle() const
    {
        return state_ != nullptr ? state_->dialog : nullptr;
    } // Its dialog for the C interface; the form keeps it. Null: none.

private:
    template <class FunctionTP> Form& on(int kind, int id, FunctionTP handler)
    {
        if (state_ != nullptr) {
            state_->OnM(kind, id, std::move(handler));
        }
        return *this;
    }

    void destroy()
    {
        if (state_ != nullptr && state_->dialog != nullptr) {
            panelkit_destroy(std::exchange(state_->dialog, nullptr));
        }
        state_.reset();
    }

    std::shared_ptr<FormStateCL> state_;
};

} // namespace panelkit
