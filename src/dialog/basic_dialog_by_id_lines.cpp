// Lines by function id, and what all controls have.
#include "dialog/basic_dialog.h"

// Gives see(control) for the control with that id, if it has lines and a window; its result, else false.
template <class FunctionTP> bool DialogValuesCL::withLinesM(int id, FunctionTP&& see) const
{
    bool result = false;
    dialog_.withControlM(id, [&result, &see](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(ListsLines)) {
            result = control.m_hWnd != nullptr && see(control);
        }
    });
    return result;
}

std::optional<int> DialogValuesCL::LineCountM(int id) const
{
    std::optional<int> count;
    withLinesM(id, [&count](auto& control) {
        count = control.LineCountM();
        return true;
    });
    return count;
}

std::optional<ValueTextCL> DialogValuesCL::LineM(int id, int line) const
{
    std::optional<ValueTextCL> text;
    withLinesM(id, [&text, line](auto& control) {
        text = control.LineTextM(line);
        return true;
    });
    return text;
}

bool DialogValuesCL::AddLineM(int id, const ValueTextCL& text, int data)
{
    const auto count = LineCountM(id);
    return count && InsertLineM(id, *count, text, data);
}

bool DialogValuesCL::InsertLineM(int id, int line, const ValueTextCL& text, int data)
{
    int lost = 0;
    const std::string gbk = text.GbkM(&lost);
    if (text.IsNoneM() || lost > 0) {
        return false;
    }
    return withLinesM(id, [&gbk, line, data](auto& control) {
        return line >= 0 && line <= control.LineCountM() && control.InsertLineM(line, data, gbk.c_str());
    });
}

bool DialogValuesCL::DeleteLineM(int id, int line)
{
    return withLinesM(id, [line](auto& control) {
        return line >= 0 && line < control.LineCountM() && control.DeleteLineM(line);
    });
}

bool DialogValuesCL::ClearLinesM(int id)
{
    return withLinesM(id, [](auto& control) {
        control.ClearLinesM();
        return true;
    });
}

bool DialogValuesCL::EnableM(int id, bool enable)
{
    bool isDone = false;
    dialog_.withControlM(id, [&isDone, enable](auto, auto& control) {
        isDone = control.m_hWnd != nullptr && control.SetItemCmdM(enable ? 1 : 2) == 1;
    });
    return isDone;
}

bool DialogValuesCL::ShowM(int id, bool show)
{
    bool isDone = false;
    dialog_.withControlM(id, [&isDone, show](auto, auto& control) {
        isDone = control.m_hWnd != nullptr && control.SetItemCmdM(show ? 3 : 4) == 1;
    });
    return isDone;
}

std::optional<bool> DialogValuesCL::IsEnabledM(int id) const
{
    std::optional<bool> isEnabled;
    dialog_.withControlM(id, [&isEnabled](auto, auto& control) {
        if (control.m_hWnd != nullptr) {
            isEnabled = control.IsWindowEnabled() != FALSE;
        }
    });
    return isEnabled;
}

std::optional<bool> DialogValuesCL::IsShownM(int id) const
{
    std::optional<bool> isShown;
    dialog_.withControlM(id, [&isShown](auto, auto& control) {
        if (control.m_hWnd != nullptr) {
            isShown = (control.GetStyle() & WS_VISIBLE) != 0;
        }
    });
    return isShown;
}

bool DialogValuesCL::FocusM(int id)
{
    HWND window = nullptr;
    dialog_.withControlM(id, [&window](auto, auto& control) { window = control.m_hWnd; });
    if (window == nullptr || !::IsWindowVisible(window) || !::IsWindowEnabled(window)) {
        return false;
    }
    ::SetFocus(window);
    return ::GetFocus() == window;
}

std::optional<ValueTextCL> DialogValuesCL::CaptionM(int id) const
{
    std::optional<ValueTextCL> caption;
    dialog_.withControlM(id, [&caption](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HasCaption)) {
            if (control.m_hWnd != nullptr) {
                caption = control.CaptionM();
            }
        }
    });
    return caption;
}

bool DialogValuesCL::SetCaptionM(int id, const ValueTextCL& caption)
{
    bool isSet = false;
    dialog_.withControlM(id, [&isSet, &caption](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HasCaption)) {
            isSet = control.SetCaptionM(caption);
        }
    });
    return isSet;
}
