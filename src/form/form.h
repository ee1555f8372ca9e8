#pragma once
#include "form/form_looks.h"
#include "form/form_state.h"
#include <optional>
#include <string>
#include <utility>
#include <vector>

// A dialog in few lines, for any C++17 compiler: all of it is in this header, over the C interface.
// docs/form.md shows how.
namespace panelkit {

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
    using Handler = std::function<void()>;

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
    bool Show() { return isOk(panelkit_show(Handle())); } // And returns at once.
    // Hides it; its values stay, and it can be shown again. Nothing is checked.
    bool Close(int result = 0) { return isOk(panelkit_close(Handle(), result)); }
    bool IsOpen() const { return flag(panelkit_is_open).value_or(false); }
    int Result() const { return get<std::int32_t>(panelkit_result).value_or(-1); } // That of the last time.
    // For programs without a message loop: until no dialog of this thread is open, or the program quits.
    static void RunLoop()
    {
        panelkit_run_loop();
        FormStateCL::RethrowM();
    }

    // What happens to a control; a handler takes the place of the one before, an empty one none. The page of
    // the form tells which controls have which.
    Form& OnClick(int id, Handler handler) { return on(PANELKIT_EVENT_CLICK, id, std::move(handler)); }
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
    Form& OnClosed(std::function<void(int result)> handler)
    {
        return on(PANELKIT_EVENT_CLOSED, 0, FormStateCL::GivenM(std::move(handler), &panelkit_event::number));
    }
    // Everything, before the handlers above.
    Form& OnEvent(std::function<void(const panelkit_event&)> handler) { return on(0, 0, std::move(handler)); }
    // Calls the handler again and again. timer: a number of the program's own.
    bool OnTimer(int timer, int milliseconds, Handler handler)
    {
        on(PANELKIT_EVENT_TIMER, timer, std::move(handler));
        return isOk(panelkit_start_timer(Handle(), timer, milliseconds));
    }
    bool StopTimer(int timer) { return isOk(panelkit_stop_timer(Handle(), timer)); }

    // Values, as the user sees them.
    std::optional<int> Int(int id) const { return get<std::int32_t>(panelkit_get_int, id); }
    std::optional<double> Real(int id) const { return get<double>(panelkit_get_real, id); }
    std::optional<std::string> Text(int id) const { return text(panelkit_get_text, id); }
    std::optional<bool> Checked(int id) const { return flag(panelkit_get_checked, id); }
    std::optional<int> Group(int id) const { return get<std::int32_t>(panelkit_get_group, id); } // 0: none.
    std::optional<int> Index(int id) const { return get<std::int32_t>(panelkit_get_index, id); } // -1: none.
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
    std::optional<std::string> Path(int id) const { return text(panelkit_get_path, id); }

    // A field with a real takes an integer too.
    bool Set(int id, int value)
    {
        const panelkit_status status = panelkit_set_int(Handle(), id, value);
        return isOk(status == PANELKIT_ERROR_NO_VALUE ? panelkit_set_real(Handle(), id, value) : status);
    }
    bool Set(int id, double value) { return isOk(panelkit_set_real(Handle(), id, value)); }
    bool Set(int id, bool checked) { return isOk(panelkit_set_checked(Handle(), id, checked ? 1 : 0)); }
    bool Set(int id, const char* value) { return isOk(panelkit_set_text(Handle(), id, value)); }
    bool Set(int id, const std::string& value) { return Set(id, value.c_str()); }
    bool SetIndex(int id, int index) { return isOk(panelkit_set_index(Handle(), id, index)); }
    bool SetSelection(int id, const std::vector<int>& lines)
    {
        const std::vector<std::int32_t> given(lines.begin(), lines.end());
        return isOk(panelkit_set_selection(Handle(), id, given.data(), given.size()));
    }
    bool SetPath(int id, const std::string& path)
    {
        return isOk(panelkit_set_path(Handle(), id, path.c_str()));
    }

    // A value as a text to keep between runs, whatever its kind; all of them as one text. RestoreAll sets
    // what it can; false: some value was refused, or its control is gone.
    std::optional<std::string> Save(int id) const { return text(panelkit_save, id); }
    bool Restore(int id, const std::string& saved)
    {
        return isOk(panelkit_restore(Handle(), id, saved.c_str()));
    }
    std::optional<std::string> SaveAll() const { return text(panelkit_save_all); }
    bool RestoreAll(const std::string& saved)
    {
        return isOk(panelkit_restore_all(Handle(), saved.c_str(), nullptr));
    }

    // Lines of list boxes and combo boxes, rows of tables, from 0. data: the program's number of the line.
    std::optional<int> LineCount(int id) const { return get<std::int32_t>(panelkit_line_count, id); }
    std::optional<std::string> Line(int id, int line) const { return text(panelkit_get_line, id, line); }
    bool AddLine(int id, const std::string& line, int data = 0)
    {
        return isOk(panelkit_add_line(Handle(), id, line.c_str(), data));
    }
    bool InsertLine(int id, int at, const std::string& line, int data = 0)
    {
        return isOk(panelkit_insert_line(Handle(), id, at, line.c_str(), data));
    }
    bool DeleteLine(int id, int line) { return isOk(panelkit_delete_line(Handle(), id, line)); }
    bool ClearLines(int id) { return isOk(panelkit_clear_lines(Handle(), id)); }

    bool EnableControl(int id, bool enable) { return isOk(panelkit_enable_control(Handle(), id, enable)); }
    bool ShowControl(int id, bool show) { return isOk(panelkit_show_control(Handle(), id, show)); }
    std::optional<bool> IsControlEnabled(int id) const { return flag(panelkit_is_control_enabled, id); }
    std::optional<bool> IsControlShown(int id) const { return flag(panelkit_is_control_shown, id); }
    // In the order of the Tab key.
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
    std::string Title() const { return text(panelkit_get_title).value_or(""); }
    bool SetTitle(const std::string& title) { return isOk(panelkit_set_title(Handle(), title.c_str())); }
    void* Native() const { return get<void*>(panelkit_native_window).value_or(nullptr); } // HWND; null: none.
    panelkit_dialog* Handle() const
    {
        return state_ != nullptr ? state_->dialog : nullptr;
    } // The form keeps it.

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
