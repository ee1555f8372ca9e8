#pragma once
#include "toolkit/control_message.h"
#include <vector>

// The text of a list's line in GBK; messages differ between list and combo box. False: no such line.
inline bool LineText(const CWnd& list, UINT lengthMessage, UINT textMessage, int index, std::string* to)
{
    const WPARAM line = AfxWordOf(index);
    LRESULT length = list.m_hWnd == nullptr ? -1 : list.SendMessage(lengthMessage, line);
    if (length < 0) {
        return false;
    }
    std::vector<wchar_t> text(static_cast<size_t>(length) + 1);
    length = list.SendMessage(textMessage, line, reinterpret_cast<LPARAM>(text.data()));
    *to = WideToGbk(text.data(), static_cast<int>(length));
    return length >= 0;
}
