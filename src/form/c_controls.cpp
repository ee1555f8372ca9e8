// The C interface: the window, its controls and timers.
#include "baselib/gbk.h"
#include "form/dialog_handles.h"
#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

// The controls that ids lead to, from the top of the stacking order down, which is the order of the Tab key.
std::vector<panelkit_control> controlsOf(HostedDialogCL& dialog)
{
    std::vector<panelkit_control> list;
    for (HWND child = ::GetWindow(dialog.m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        panelkit_control control { sizeof control, ::GetDlgCtrlID(child), PANELKIT_KIND_NONE, 0 };
        int kind = 0;
        const CWnd* found = dialog.GetContrlPtrM(control.id, &kind);
        if (found != nullptr && found->m_hWnd == child) {
            control.kind = kind;
            control.has_value = dialog.ValuesM().PartsM(control.id) != NoPart ? 1 : 0;
            list.push_back(control);
        }
    }
    return list;
}

panelkit_status doneOrRefused(bool isDone)
{
    return isDone ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
}

} // namespace

panelkit_status panelkit_native_window(panelkit_dialog* dialog, void** window)
{
    return slWithWindow(dialog,
        [window](HostedDialogCL& hosted) { return slGive(hosted, std::optional(hosted.m_hWnd), window); });
}

panelkit_status panelkit_set_title(panelkit_dialog* dialog, const char* title)
{
    return slWithWindow(dialog, [title](HostedDialogCL& hosted) -> panelkit_status {
        if (title == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const std::u16string text = slUtf8ToUtf16(title);
        return ::SetWindowTextW(hosted.m_hWnd, std::wstring(text.begin(), text.end()).c_str())
            ? PANELKIT_OK
            : PANELKIT_ERROR_WINDOW;
    });
}

panelkit_status panelkit_get_title(panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) {
        std::u16string title(static_cast<size_t>(::GetWindowTextLengthW(hosted.m_hWnd)) + 1, u'\0');
        const int length = ::GetWindowTextW(
            hosted.m_hWnd, reinterpret_cast<wchar_t*>(title.data()), static_cast<int>(title.size()));
        return slGiveText(slUtf16ToUtf8(title.data(), static_cast<size_t>(length)), buffer, size, needed);
    });
}

panelkit_status panelkit_set_cancel_id(panelkit_dialog* dialog, int32_t id)
{
    return slWithDialog(dialog, [id](HostedDialogCL& hosted) {
        hosted.SetCancelIdM(id);
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_check(panelkit_dialog* dialog, int32_t* good)
{
    return slWithWindow(dialog, [good](HostedDialogCL& hosted) -> panelkit_status {
        if (good == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const int id = ::GetDlgCtrlID(::GetFocus());
        bool isGood = hosted.CheckValueLegalM() == 0;
        // The host's answer is about single-line edits; a spin edit has told the user and nobody else.
        if (hosted.HasWindowM() && (hosted.ValuesM().PartsM(id) & (NumberPart | RealPart)) != 0) {
            const ControlValueCL value = hosted.ValuesM().ValueM(id);
            isGood = isGood && (value.IsOfM(NumberPart) || value.IsOfM(RealPart));
        }
        *good = isGood ? 1 : 0;
        hosted.ErrorM().clear(); // Of the calls meanwhile.
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_control_count(panelkit_dialog* dialog, size_t* count)
{
    return slWithWindow(dialog, [count](HostedDialogCL& hosted) {
        return slGive(hosted, std::optional(controlsOf(hosted).size()), count);
    });
}

panelkit_status panelkit_control_at(panelkit_dialog* dialog, size_t index, panelkit_control* control)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) -> panelkit_status {
        if (control == nullptr || control->size < offsetof(panelkit_control, has_value)) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        std::vector<panelkit_control> controls = controlsOf(hosted);
        if (index >= controls.size()) {
            return PANELKIT_ERROR_ID;
        }
        controls[index].size = std::min<uint32_t>(control->size, sizeof *control);
        std::memcpy(control, &controls[index], controls[index].size);
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_enable_control(panelkit_dialog* dialog, int32_t id, int32_t enable)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, DialogValuesCL& values) {
        return doneOrRefused(values.EnableM(id, enable != 0));
    });
}

panelkit_status panelkit_show_control(panelkit_dialog* dialog, int32_t id, int32_t show)
{
    return slWithControl(dialog, id,
        [=](HostedDialogCL&, DialogValuesCL& values) { return doneOrRefused(values.ShowM(id, show != 0)); });
}

panelkit_status panelkit_is_control_enabled(panelkit_dialog* dialog, int32_t id, int32_t* enabled)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, const DialogValuesCL& values) {
        return slGive(hosted, values.IsEnabledM(id), enabled);
    });
}

panelkit_status panelkit_is_control_shown(panelkit_dialog* dialog, int32_t id, int32_t* shown)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, const DialogValuesCL& values) {
        return slGive(hosted, values.IsShownM(id), shown);
    });
}

panelkit_status panelkit_focus_control(panelkit_dialog* dialog, int32_t id)
{
    return slWithWindow(dialog, [id](HostedDialogCL& hosted) -> panelkit_status {
        if (!hosted.ValuesM().IsEnabledM(id)) {
            return slFail(hosted, PANELKIT_ERROR_ID, "there is no control " + std::to_string(id));
        }
        const bool isDone = hosted.ValuesM().FocusM(id); // Leaving a field is the user's: that is told.
        hosted.ErrorM().clear();
        return doneOrRefused(isDone);
    });
}

panelkit_status panelkit_get_caption(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) -> panelkit_status {
        const auto caption = values.CaptionM(id);
        return caption ? slGiveText(caption->Utf8M(), buffer, size, needed) : PANELKIT_ERROR_NO_VALUE;
    });
}

panelkit_status panelkit_set_caption(panelkit_dialog* dialog, int32_t id, const char* caption)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, DialogValuesCL& values) -> panelkit_status {
        if (caption == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        if (!values.CaptionM(id)) {
            return PANELKIT_ERROR_NO_VALUE;
        }
        return doneOrRefused(values.SetCaptionM(id, ValueTextCL::FromUtf8M(caption)));
    });
}

panelkit_status panelkit_start_timer(panelkit_dialog* dialog, int32_t timer, int32_t milliseconds)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) -> panelkit_status {
        if (milliseconds < 0) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        return hosted.StartTimerM(timer, milliseconds) ? PANELKIT_OK : PANELKIT_ERROR_WINDOW;
    });
}

panelkit_status panelkit_stop_timer(panelkit_dialog* dialog, int32_t timer)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) -> panelkit_status {
        return hosted.StopTimerM(timer) ? PANELKIT_OK : PANELKIT_ERROR_ID;
    });
}
