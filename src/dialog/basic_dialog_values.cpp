// Typed values by function id, and the check of what the user typed.
#include "dialog/basic_dialog.h"
#include "dialog/monitor_scale.h"
#include "toolkit/life.h"

// Gives see(edit) for the control with that id, if it is a single-line edit; otherwise 0.
template <class FunctionTP> int DuBasicDialogCL::withSingleEditM(int id, FunctionTP&& see)
{
    int result = 0;
    withControlM(id, [&result, &see](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HoldsTypedValue)) {
            result = see(control);
        }
    });
    return result;
}

int DuBasicDialogCL::SetSingleEditValM(int id, int value)
{
    return withSingleEditM(id, [value](DuSingleEditCL& edit) { return edit.SetValueM(value); });
}

int DuBasicDialogCL::SetSingleEditValM(int id, float value)
{
    return withSingleEditM(id, [value](DuSingleEditCL& edit) { return edit.SetValueM(value); });
}

int DuBasicDialogCL::SetSingleEditValM(int id, const char* text)
{
    return withSingleEditM(id, [text](DuSingleEditCL& edit) { return edit.SetValueM(text); });
}

int DuBasicDialogCL::SetSingleEditValM(int id, simpleValD value)
{
    return withSingleEditM(id, [&value](DuSingleEditCL& edit) { return edit.SetCurValM(value); });
}

int DuBasicDialogCL::GetSingleEditValM(int id, int* value)
{
    return withSingleEditM(id, [value](DuSingleEditCL& edit) { return edit.GetValueM(value); });
}

int DuBasicDialogCL::GetSingleEditValM(int id, float* value)
{
    return withSingleEditM(id, [value](DuSingleEditCL& edit) { return edit.GetValueM(value); });
}

int DuBasicDialogCL::GetSingleEditValM(int id, char* text)
{
    return withSingleEditM(id, [text](DuSingleEditCL& edit) { return edit.GetValueM(text); });
}

int DuBasicDialogCL::GetSingleEditValM(int id, simpleValD* value)
{
    return withSingleEditM(id, [value](DuSingleEditCL& edit) { return edit.GetCurValM(value); });
}

int DuBasicDialogCL::EnableSingleEditM(int id, int enable)
{
    eachControlsM([id, enable](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(HoldsTypedValue)) {
            controls.SetItemCmdM(id, enable == 1 ? 1 : 2);
        }
    });
    return 1;
}

int DuBasicDialogCL::CheckValueLegalM()
{
    valueStatus_ = 0;
    const HWND window = m_hWnd != nullptr ? m_hWnd : parentM();
    if (window == nullptr) {
        return valueStatus_;
    }
    const ValidationRequestCL asking;
    if (ValidationPauseCL::CoversM(window)) {
        // Asked while a message is open or a bad value is being reported: the user has been told.
        const HWND field = ::GetFocus();
        eachControlsM([this, field](auto row, auto& controls) {
            if constexpr (decltype(row)::Code == SingleEditCode) {
                for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                    DuSingleEditCL& edit = controls.ControlAtM(i);
                    if (edit.m_hWnd != nullptr && edit.m_hWnd == field
                        && edit.GetCurValM(nullptr) != ValidValue) {
                        valueStatus_ = -1;
                    }
                }
            }
        });
        return valueStatus_;
    }
    const LifeCL life(this);
    ::SetFocus(window);
    return life.IsAliveM() && ::IsWindow(window) ? valueStatus_ : 0; // The application may have deleted it.
}

LRESULT DuBasicDialogCL::onCtrlLostFocusM(WPARAM wParam, LPARAM lParam)
{
    lastLeftId_ = static_cast<int>(wParam);
    valueStatus_ = static_cast<int>(lParam);
    return 0;
}

LRESULT DuBasicDialogCL::onCtrlSetFocusM(WPARAM wParam, LPARAM)
{
    if (static_cast<int>(wParam) != cancelId_ && lastLeftId_ != 0) {
        const HWND left = ::GetDlgItem(parentM(), lastLeftId_);
        if (left != nullptr) {
            ::SendMessageW(left, CheckValueMsg, 0, 0);
        }
    }
    return 0;
}

LRESULT DuBasicDialogCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // What the application does about closing, such as asking the user, must not check any value first.
    const bool isCancel = message == WM_COMMAND && wParam == IDCANCEL;
    if (message == WM_CLOSE || isCancel) {
        const ValidationPauseCL closing(m_hWnd, ValidationPauseCL::AllowRequests);
        return CDialog::WindowProc(message, wParam, lParam);
    }
    LRESULT result = 0;
    if (tellsItself_ && message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY) {
        OnWndMsg(message, wParam, lParam, &result);
        return result;
    }
    if ((message == DpiChangedMsg || message == GetDpiScaledSizeMsg)
        && answerDpiM(message, wParam, lParam, &result)) {
        return result;
    }
    return bound_.isOwn ? whileBoundM(message, wParam, lParam) : CDialog::WindowProc(message, wParam, lParam);
}
