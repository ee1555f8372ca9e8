#pragma once
#include "controls/base/line_originals.h"
#include "controls/base/translator.h"
#include "controls/lists/filling.h"

// Has each line of a list show its translation and notes what it says in the file. insert: the list's message
// for that. Its numbers stay, a selection doesn't.
template <class ListTP>
void slTranslateLines(ListTP& list, UINT insert, LineOriginalsCL& originals, const TranslatorTP& translate)
{
    const FillingCL filling(&list);
    for (int line = 0; line < list.GetCount(); ++line) {
        const auto original = list.LineTextM(line);
        const ValueTextCL shown = original ? translate(*original) : nullptr;
        if (shown.IsNoneM()) {
            continue;
        }
        const std::wstring text = shown.WideM();
        const DWORD_PTR data = list.GetItemData(line);
        if (::SendMessageW(
                list.m_hWnd, insert, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text.c_str()))
            == line) {
            list.SetItemData(line, data);
            list.DeleteString(static_cast<UINT>(line + 1));
            originals.PutM(line, *original);
        }
    }
}
