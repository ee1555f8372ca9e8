// The C interface: opening, showing and closing.
#include "baselib/file.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "form/dialog_handles.h"
#include "form/form_host.h"
#include "form/panelkit_c.h"
#include "toolkit/thread_state.h"
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>

static_assert(static_cast<int>(PANELKIT_KIND_NORMAL_ANIMATION) == NormalAnimateCode
        && static_cast<int>(PANELKIT_KIND_TREE) == TreeCode
        && static_cast<int>(PANELKIT_KIND_DRAWING) == Draw2DCode
        && static_cast<int>(PANELKIT_KIND_DRAWING) == KindCount,
    "the kinds are numbered as the host does");

namespace {

constexpr const char* StatusTexts[] = { "no error", "an argument is null or out of range",
    "there is no such dialog, or it is destroyed", "the dialog belongs to another thread",
    "the description file is missing or describes no dialog", "the dialog is not in the state for that",
    "there is no such control, timer or line", "the control has no such value, or no legal one stands in it",
    "the control refuses the value", "the buffer is too small", "the window system refused",
    "there is no memory left", "an error inside the library" };

// Of an older program it has fewer members, of a newer one more: those that both know.
bool readOptions(const panelkit_options* given, panelkit_options& options)
{
    if (given != nullptr) {
        if (given->size < offsetof(panelkit_options, diagnostics)) {
            return false;
        }
        std::memcpy(&options, given, std::min<size_t>(given->size, sizeof options));
    }
    return options.owner == nullptr || ::IsWindow(static_cast<HWND>(options.owner));
}

panelkit_status checkFile(const std::string& path, const char* file)
{
    VrIOCL io;
    io.OpenM(path.c_str(), "r");
    DialogHeaderCL header;
    if (!io.IsOpenM() && slIsTooLargeToRead(path.c_str())) {
        return PANELKIT_ERROR_MEMORY;
    }
    if (!io.IsOpenM()) {
        slThreadError() = std::string("can't read ") + file;
    } else if (slReadDialogHeader(io, header) == 0) {
        slThreadError() = std::string("no dialog is described in ") + file;
    } else {
        return PANELKIT_OK;
    }
    return PANELKIT_ERROR_FILE;
}

panelkit_status open(const char* file, const panelkit_options* given, panelkit_dialog** handle)
{
    panelkit_options options {};
    if (file == nullptr || *file == '\0' || handle == nullptr || !readOptions(given, options)) {
        return PANELKIT_ERROR_ARGUMENT;
    }
    int lost = 0;
    const std::string path = slUtf8ToGbk(file, &lost);
    if (lost > 0 || path.size() >= static_cast<size_t>(TextSize)) {
        slThreadError() = std::string("the path is too long, or has characters that GBK has not: ") + file;
        return PANELKIT_ERROR_FILE;
    }
    const panelkit_status readable = checkFile(path, file);
    if (readable != PANELKIT_OK) {
        return readable;
    }
    auto dialog = std::make_unique<HostedDialogCL>(slNewHandle(), options);
    if (options.language != nullptr && dialog->SetLanguageM(options.language) == 0) {
        return PANELKIT_ERROR_ARGUMENT;
    }
    if (!dialog->BuildM(path, static_cast<HWND>(options.owner))) {
        return PANELKIT_ERROR_WINDOW;
    }
    if (ThreadStateCL::ThisM().hasLackedMemory) {
        return PANELKIT_ERROR_MEMORY; // Not all of it is there.
    }
    slKeepHandle(dialog.get());
    *handle = dialog.release()->HandleM();
    return PANELKIT_OK;
}

} // namespace

const char* panelkit_version(void)
{
    return PANELKIT_VERSION;
}

const char* panelkit_status_text(panelkit_status status)
{
    return status >= 0 && status < static_cast<int>(std::size(StatusTexts)) ? StatusTexts[status]
                                                                            : "an unknown status";
}

const char* panelkit_last_error(const panelkit_dialog* dialog)
{
    try {
        HostedDialogCL* found = nullptr;
        return slFindDialog(dialog, &found) == PANELKIT_OK ? found->ErrorM().c_str()
                                                           : slThreadError().c_str();
    } catch (...) {
        return panelkit_status_text(PANELKIT_ERROR_MEMORY);
    }
}

panelkit_status panelkit_open(const char* file, const panelkit_options* options, panelkit_dialog** dialog)
{
    if (dialog != nullptr) {
        *dialog = nullptr;
    }
    return slGuarded(nullptr, [=] { return open(file, options, dialog); });
}

panelkit_status panelkit_destroy(panelkit_dialog* dialog)
{
    return slWithDialog(dialog, [](HostedDialogCL& hosted) -> panelkit_status {
        slDropHandle(hosted.HandleM());
        hosted.DoomM();
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_run(panelkit_dialog* dialog, int32_t* result)
{
    return slWithWindow(dialog, [result](HostedDialogCL& hosted) -> panelkit_status {
        if (hosted.IsOpenM()) {
            return slFail(hosted, PANELKIT_ERROR_STATE, "the dialog is shown already");
        }
        const int ended = hosted.RunM();
        hosted.ErrorM().clear(); // Of the calls meanwhile.
        if (result != nullptr) {
            *result = ended;
        }
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_show(panelkit_dialog* dialog)
{
    return slWithWindow(dialog, [](HostedDialogCL& hosted) -> panelkit_status {
        if (hosted.IsOpenM()) {
            return slFail(hosted, PANELKIT_ERROR_STATE, "the dialog is shown already");
        }
        hosted.OpenM();
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_close(panelkit_dialog* dialog, int32_t result)
{
    return slWithDialog(dialog, [result](HostedDialogCL& hosted) -> panelkit_status {
        hosted.CloseM(result);
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_is_open(panelkit_dialog* dialog, int32_t* open)
{
    return slWithDialog(dialog, [open](HostedDialogCL& hosted) -> panelkit_status {
        return slGive(hosted, std::optional(hosted.IsOpenM()), open);
    });
}

panelkit_status panelkit_result(panelkit_dialog* dialog, int32_t* result)
{
    return slWithDialog(dialog, [result](HostedDialogCL& hosted) -> panelkit_status {
        return slGive(hosted, std::optional(hosted.ResultM()), result);
    });
}

panelkit_status panelkit_run_loop(void)
{
    return slGuarded(nullptr, [] {
        while (slIsAnyDialogOpen() && slHandleMessage(true) != 0) { }
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_process_pending(int32_t* quit)
{
    return slGuarded(nullptr, [quit] {
        int handled = 1;
        while (handled > 0) {
            handled = slHandleMessage(false);
        }
        if (quit != nullptr) {
            *quit = handled == 0 ? 1 : 0;
        }
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_translate_message(void* message, int32_t* handled)
{
    return slGuarded(nullptr, [=]() -> panelkit_status {
        if (message == nullptr || handled == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        *handled = AfxPreTranslateMessage(static_cast<MSG*>(message)) ? 1 : 0;
        return PANELKIT_OK;
    });
}

DuBasicDialogCL* slHostOf(panelkit_dialog* dialog)
{
    HostedDialogCL* found = nullptr;
    return slFindDialog(dialog, &found) == PANELKIT_OK ? found : nullptr;
}
