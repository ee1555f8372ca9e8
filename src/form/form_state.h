#pragma once
#include "form/canvas.h"
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace panelkit {

class FormStateCL;

// What paints a control.
struct PainterCL
{
    FormStateCL* state;                   // Whose it is.
    std::function<void(Canvas&)> handler; // Empty: nothing.
};

// What a form keeps, and what outlives it while one of its handlers runs. It is for Form alone.
class FormStateCL : public std::enable_shared_from_this<FormStateCL>
{
public:
    using EventHandler = std::function<void(const panelkit_event&)>; // Told all of an event.

    panelkit_dialog* dialog = nullptr; // The form's own; null: none, or the form is gone.
    std::string error;                 // Why there is no dialog.
    std::function<void(const panelkit_diagnostic&)> diagnostics; // As FormOptions has it.

    // Puts a handler in the place of the one before; kind and id: 0 for all events.
    void OnM(int kind, int id, EventHandler handler) { handlers_[{ kind, id }] = std::move(handler); }
    void OnM(int kind, int id, std::function<void()> handler)
    {
        handlers_[{ kind, id }] = nullptr;
        if (handler) {
            OnM(kind, id, EventHandler([call = std::move(handler)](const panelkit_event&) { call(); }));
        }
    }
    // The handler that may keep the form open.
    void OnM(int, int, std::function<bool(int)> handler) { closing_ = std::move(handler); }
    // A handler that gets a member of the event.
    template <class FunctionTP>
    static EventHandler GivenM(FunctionTP handler, std::int32_t panelkit_event::*what)
    {
        if (!handler) {
            return nullptr;
        }
        return [call = std::move(handler), what](const panelkit_event& event) { call(event.*what); };
    }

    // A handler that gets the place of a click.
    static EventHandler PlacedM(std::function<void(int, int)> handler)
    {
        if (!handler) {
            return nullptr;
        }
        return [call = std::move(handler)](const panelkit_event& event) { call(event.x, event.y); };
    }
    // In place of the one that the control had.
    void KeepPainterM(int id, std::unique_ptr<PainterCL> painter) { painters_[id] = std::move(painter); }

    // The callback of the dialog: calls the handlers. user: the state. What they throw is kept, and the
    // dialog closes.
    static std::int32_t PANELKIT_CALL TellM(const panelkit_event* event, void* user) noexcept
    {
        const auto state = static_cast<FormStateCL*>(user)->shared_from_this();
        try {
            state->callM({ 0, 0 }, *event);
            if (state->dialog == nullptr) {
                return 0; // The form is gone.
            }
            if (event->kind == PANELKIT_EVENT_CLOSING) {
                const auto closing = state->closing_;
                return closing && !closing(event->number) ? 1 : 0;
            }
            state->callM({ event->kind, event->id }, *event);
        } catch (...) {
            thrownM() = std::current_exception();
            panelkit_close(state->dialog, -1);
        }
        return 0;
    }
    // The painter for the C interface; user: a PainterCL.
    static void PANELKIT_CALL PaintM(panelkit_canvas* handle, void* user) noexcept
    {
        const auto& painter = *static_cast<const PainterCL*>(user);
        const auto state = painter.state->shared_from_this();
        try {
            const auto handler = painter.handler; // It may put another one in its place.
            Canvas canvas(handle);
            handler(canvas);
        } catch (...) {
            thrownM() = std::current_exception();
            panelkit_close(state->dialog, -1);
        }
    }
    // The same for what is wrong with the file.
    static void PANELKIT_CALL TellDiagnosticM(const panelkit_diagnostic* diagnostic, void* user) noexcept
    {
        try {
            static_cast<FormStateCL*>(user)->diagnostics(*diagnostic);
        } catch (...) {
            thrownM() = std::current_exception();
        }
    }
    // Throws what a handler of this thread has thrown, once.
    static void RethrowM()
    {
        if (const std::exception_ptr pointer = std::exchange(thrownM(), nullptr)) {
            std::rethrow_exception(pointer);
        }
    }

private:
    static std::exception_ptr& thrownM()
    {
        static thread_local std::exception_ptr pointer;
        return pointer;
    }
    void callM(std::pair<int, int> what, const panelkit_event& event) const
    {
        const auto found = handlers_.find(what);
        if (found != handlers_.end() && found->second) {
            const EventHandler handler = found->second; // It may put another one in its place.
            handler(event);
        }
    }

    std::function<bool(int)> closing_;
    std::map<std::pair<int, int>, EventHandler> handlers_; // By kind of event and id.
    std::map<int, std::unique_ptr<PainterCL>> painters_;   // By id.
};

} // namespace panelkit
