#include "form/dialog_handles.h"
#include <cstring>
#include <mutex>
#include <new>

namespace {

struct HandleEntryCL
{
    HostedDialogCL* dialog;
    DWORD thread;
};

// Handles are numbers, never given twice, so that an old one is known for what it is.
struct HandleTableCL
{
    std::mutex mutex;
    std::map<const panelkit_dialog*, HandleEntryCL> entries;
    std::uintptr_t last { 0 };
};

HandleTableCL& handleTable()
{
    static HandleTableCL table;
    return table;
}

} // namespace

panelkit_dialog* slNewHandle()
{
    HandleTableCL& table = handleTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    return reinterpret_cast<panelkit_dialog*>(++table.last);
}

void slKeepHandle(HostedDialogCL* dialog)
{
    HandleTableCL& table = handleTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    table.entries[dialog->HandleM()] = { dialog, ::GetCurrentThreadId() };
}

void slDropHandle(const panelkit_dialog* handle)
{
    HandleTableCL& table = handleTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    table.entries.erase(handle);
}

panelkit_status slFindDialog(const panelkit_dialog* handle, HostedDialogCL** dialog)
{
    if (handle == nullptr) {
        return PANELKIT_ERROR_ARGUMENT;
    }
    HandleTableCL& table = handleTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    const auto found = table.entries.find(handle);
    if (found == table.entries.end()) {
        return PANELKIT_ERROR_HANDLE;
    }
    if (found->second.thread != ::GetCurrentThreadId()) {
        return PANELKIT_ERROR_THREAD;
    }
    *dialog = found->second.dialog;
    return PANELKIT_OK;
}

bool slIsAnyDialogOpen()
{
    HandleTableCL& table = handleTable();
    const std::lock_guard<std::mutex> lock(table.mutex);
    for (const auto& [handle, entry] : table.entries) {
        if (entry.thread == ::GetCurrentThreadId() && entry.dialog->IsOpenM()) {
            return true;
        }
    }
    return false;
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

panelkit_status slGuarded(std::string* error, const std::function<panelkit_status()>& call)
{
    try {
        std::string& text = error != nullptr ? *error : slThreadError();
        text.clear();
        panelkit_status status = PANELKIT_ERROR_INTERNAL;
        try {
            status = call();
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
