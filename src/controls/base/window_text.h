#pragma once
#include "controls/base/value_text.h"
#include "toolkit/toolkit.h"

// The text of a window as it stands there, also what GBK cannot say. Null: empty.
inline ValueTextCL slTextOfWindow(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    const int length = ::GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}
