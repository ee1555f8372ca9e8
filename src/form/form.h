#pragma once
#include "form/canvas.h"
#include "form/form_looks.h"
#include "form/form_state.h"
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
};

// The dialog of a description file. Texts are UTF-8. Getters give nullopt and setters false for an unknown
// id, a control without such a value and a form without a dialog; Error() tells which. Of the events none
// comes from what the program does by its functions. A form belongs to the thread that made it. A handler may
// do everything, destroy its form too; what it throws closes the form and comes out of Run or RunLoop.
class Form : public FormLooksCL<Form>
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

    // The integer of an edit, the status of a multi-state button, the counter of a rotate button.
    std::optional<int> Int(int id) const { return get<std::int32_t>(panelkit_get_int, id); }
    // The real of an edit; the angle of a rotate button in degrees.
    std::optional<double> Real(int id) const { return get<double>(panelkit_get_real, id); }
    // Of an edit or a combo box.
    std::optional<std::string> Text(int id) const { return text(panelkit_get_text, id); }
    // Of a check box or radio button.
    std::optional<bool> Checked(int id) const { return flag(panelkit_get_checked, id); }
    // The id of the checked radio button in the group of this one; 0: none is.
    std::optional<int> Group(int id) const { return get<std::int32_t>(panelkit_get_group, id); }
    // The selected line of a list box or combo box, the selected row of a table, from 0; -1: none. nullopt
    // also when several are selected.
    std::optional<int> Index(int id) const { return get<std::int32_t>(panelkit_get_index, id); }
    // All selected lines or rows, ascending.
    std::optional<std::vector<int>> Selection(int id) const
    {
        size_t count = 0;
        if (panelkit_get_selection(Handle(), id, nullptr, 0, &count) != PANELKIT_OK) {
            return std::nullopt;
        }
        std::vector<std::int32_t> lines(count + 1);
        if (panelkit_get_selection(Handle(), id, lines.data(), lines.size(), &count) != PANELKIT_OK) {
            return std::nullopt;
        }
        return std::vector<int>(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
    }
    // The selected item of a tree: the texts from the root down with '/' between them; empty: none.
    std::optional<std::string> Path(int id) const { return text(panelkit_get_path, id); }

    // Sets what Int, Real, Checked or Text give; a field with a real takes an integer too. false also for a
    // value that the control refuses: it keeps the one that it has.
    bool Set(int id, int value)
    {
        const panelkit_status status = panelkit_set_int(Handle(), id, value);
        return isOk(status == PANELKIT_ERROR_NO_VALUE ? panelkit_set_real(Handle(), id, value) : status);
    }
    bool Set(int id, double value) { return isOk(panelkit_set_real(Handle(), id, value)); }
    bool Set(int id, bool checked) { return isOk(panelkit_set_checked(Handle(), id, checked ? 1 : 0)); }
    bool Set(int id, const char* value) { return isOk(panelkit_set_text(Handle(), id, value)); }
    bool Set(int id, const std::string& value) { return Set(id, value.c_str()); }
    // Selects that line or row and no other; -1: none.
    bool SetIndex(int id, int index) { return isOk(panelkit_set_index(Handle(), id, index)); }
    // Selects those lines or rows and no other, in any order.
    bool SetSelection(int id, const std::vector<int>& lines)
    {
        const std::vector<std::int32_t> given(lines.begin(), lines.end());
        return isOk(panelkit_set_selection(Handle(), id, given.data(), given.size()));
    }
    // Selects that item of a tree.
    bool SetPath(int id, const std::string& path)
    {
        return isOk(panelkit_set_path(Handle(), id, path.c_str()));
    }

    // A value as a text to keep between runs, whatever its kind, and back.
    std::optional<std::string> Save(int id) const { return text(panelkit_save, id); }
    bool Restore(int id, const std::string& saved)
    {
        return isOk(panelkit_restore(Handle(), id, saved.c_str()));
    }
    // All of them as one text, but those that are not legal now.
    std::optional<std::string> SaveAll() const { return text(panelkit_save_all); }
    // Sets what it can; false: some value was refused, or its control is gone.
    bool RestoreAll(const std::string& saved)
    {
        return isOk(panelkit_restore_all(Handle(), saved.c_str(), nullptr));
    }

    // How many lines a list box or combo box has, or rows a table. They count from 0.
    std::optional<int> LineCount(int id) const { return get<std::int32_t>(panelkit_line_count, id); }
    // The text of one, of a row that of its first column; lines that are pictures have none.
    std::optional<std::string> Line(int id, int line) const { return text(panelkit_get_line, id, line); }
    // Adds one at the end; of a box of pictures the text is the name of a .bmp file. data: the program's
    // number of the line. false also for a text that GBK can't say.
    bool AddLine(int id, const std::string& line, int data = 0)
    {
        return isOk(panelkit_add_line(Handle(), id, line.c_str(), data));
    }
    // The same before a line; at: 0 up to their number.
    bool InsertLine(int id, int at, const std::string& line, int data = 0)
    {
        return isOk(panelkit_insert_line(Handle(), id, at, line.c_str(), data));
    }
    // Takes one away, or all.
    bool DeleteLine(int id, int line) { return isOk(panelkit_delete_line(Handle(), id, line)); }
    bool ClearLines(int id) { return isOk(panelkit_clear_lines(Handle(), id)); }

    // Any control: enables or disables it.
    bool EnableControl(int id, bool enable) { return isOk(panelkit_enable_control(Handle(), id, enable)); }
    // Whether pictures that take clicks are reached by Tab and used by Space, Enter and arrows. At first not.
    bool UsePictureKeyboard(bool use) { return isOk(panelkit_use_picture_keyboard(Handle(), use ? 1 : 0)); }
    // Any control: shows or hides it.
    bool ShowControl(int id, bool show) { return isOk(panelkit_show_control(Handle(), id, show)); }
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

    // The control that takes the focus without a check of the field that was left.
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
    static bool isOk(panelkit_status status) { return status == PANELKIT_OK; }

    template <class ValueTP, class GetterTP, class... ArgumentsTP>
    std::optional<ValueTP> get(GetterTP getter, ArgumentsTP... arguments) const
    {
        ValueTP value {};
        return isOk(getter(Handle(), arguments..., &value)) ? std::optional<ValueTP>(value) : std::nullopt;
    }
    template <class GetterTP, class... ArgumentsTP>
    std::optional<bool> flag(GetterTP getter, ArgumentsTP... arguments) const
    {
        const auto found = get<std::int32_t>(getter, arguments...);
        return found ? std::optional<bool>(*found != 0) : std::nullopt;
    }
    template <class GetterTP, class... ArgumentsTP>
    std::optional<std::string> text(GetterTP getter, ArgumentsTP... arguments) const
    {
        size_t needed = 0;
        if (!isOk(getter(Handle(), arguments..., nullptr, 0, &needed))) {
            return std::nullopt;
        }
        std::string found(needed, '\0');
        if (!isOk(getter(Handle(), arguments..., found.data(), found.size(), &needed))) {
            return std::nullopt;
        }
        found.resize(needed - 1);
        return found;
    }

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
