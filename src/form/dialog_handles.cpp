#include "form/dialog_handles.h"
#include "form/handle_table.h"
#include "toolkit/thread_state.h"
#include <cstring>
#include <new>
#include <utility>

namespace {

using DialogTableTP = HandleTableCL<panelkit_dialog, HostedDialogCL>;

DialogTableTP& dialogTable()
{
    static DialogTableTP table;
    return table;
}

} // namespace

panelkit_dialog* slNewHandle()
{
    return dialogTable().NewM();
}

void slKeepHandle(HostedDialogCL* dialog)
{
    dialogTable().KeepM(dialog->HandleM(), dialog);
}

void slDropHandle(const panelkit_dialog* handle)
{
    dialogTable().DropM(handle);
}

panelkit_status slFindDialog(const panelkit_dialog* handle, HostedDialogCL** dialog)
{
    return dialogTable().FindM(handle, dialog);
}

bool slIsAnyDialogOpen()
{
    return dialogTable().HasM([](const HostedDialogCL& dialog) { return dialog.IsOpenM(); });
}

std::string& slThreadError()
{
    static thread_local std::string error;
    return error;
}

panelkit_status slFail(HostedDialogCL& dialog, panelkit_status status, const std::string& text)
{
    dialog.ErrorM() = text;
    return status;
}

panelkit_status slGuarded(std::string* error, CallRefCL<panelkit_status()> call)
{
    try {
        std::string& text = error != nullptr ? *error : slThreadError();
        text.clear();
        panelkit_status status = PANELKIT_ERROR_INTERNAL;
        try {
            ThreadStateCL& thread = ThreadStateCL::ThisM();
            thread.hasLackedMemory = false;
            status = call();
            // A message between us and what failed has kept the exception.
            if (status != PANELKIT_OK && std::exchange(thread.hasLackedMemory, false)) {
                status = PANELKIT_ERROR_MEMORY;
            }
        } catch (const std::bad_alloc&) {
            status = PANELKIT_ERROR_MEMORY;
        } catch (const std::exception& thrown) {
            text = thrown.what();
        } catch (...) {
            text = "an exception of an unknown type";
        }
        if (status != PANELKIT_OK && text.empty()) {
            text = panelkit_status_text(status);
        }
        return status;
    } catch (...) {
        return PANELKIT_ERROR_MEMORY; // Not even for the text.
    }
}

panelkit_status slWithDialog(const panelkit_dialog* handle, DialogCallTP call)
{
    return slGuarded(nullptr, [handle, &call]() -> panelkit_status {
        HostedDialogCL* dialog = nullptr;
        const panelkit_status found = slFindDialog(handle, &dialog);
        if (found != PANELKIT_OK) {
            return found;
        }
        const HostedDialogCL::UseCL use(*dialog, HostedDialogCL::UseCL::ByCall);
        const panelkit_status status
            = slGuarded(&dialog->ErrorM(), [dialog, &call] { return call(*dialog); });
        slThreadError() = dialog->ErrorM();
        return status;
    });
}

panelkit_status slWithWindow(const panelkit_dialog* handle, DialogCallTP call)
{
    return slWithDialog(handle, [&call](HostedDialogCL& dialog) -> panelkit_status {
        if (!dialog.HasWindowM()) {
            return slFail(dialog, PANELKIT_ERROR_STATE, "the dialog's window is gone");
        }
        return call(dialog);
    });
}

panelkit_status slWithControl(const panelkit_dialog* handle, int id, ControlCallTP call)
{
    return slWithWindow(handle, [id, &call](HostedDialogCL& dialog) -> panelkit_status {
        if (!dialog.ValuesM().IsEnabledM(id)) {
            return slFail(dialog, PANELKIT_ERROR_ID, "there is no control " + std::to_string(id));
        }
        const HostedDialogCL::QuietCL quiet(dialog);
        return call(dialog, dialog.ValuesM());
    });
}

panelkit_status slGiveText(const std::string& text, char* buffer, size_t size, size_t* needed)
{
    if (buffer == nullptr && size > 0) {
        return PANELKIT_ERROR_ARGUMENT;
    }
    if (needed != nullptr) {
        *needed = text.size() + 1;
    }
    if (size == 0) {
        return buffer == nullptr ? PANELKIT_OK : PANELKIT_ERROR_BUFFER;
    }
    size_t length = text.size();
    if (length >= size) {
        length = size - 1;
        while (length > 0 && (text[length] & 0xC0) == 0x80) {
            --length;
        }
    }
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return length == text.size() ? PANELKIT_OK : PANELKIT_ERROR_BUFFER;
}
