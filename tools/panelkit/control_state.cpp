#include "control_state.h"
#include "controls/buttons/multi_state_button.h"
#include "controls/buttons/new_rotate_btn.h"
#include "toolkit/toolkit.h"
#include "tree_state.h"

namespace {

int numberFrom(HWND window, UINT message, int wParam = 0, LPARAM lParam = 0)
{
    return static_cast<int>(::SendMessageW(window, message, static_cast<WPARAM>(wParam), lParam));
}

std::wstring windowTextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// List boxes and combo boxes say the same by other numbers.
struct ListWordsCL
{
    UINT count, textLength, text, data;
};
constexpr ListWordsCL ListBoxWords { LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT, LB_GETITEMDATA };
constexpr ListWordsCL ComboBoxWords { CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_GETITEMDATA };

// A line of pictures is told by the number that it has of the application.
std::wstring lineText(HWND list, const ListWordsCL& words, int line)
{
    const auto style = static_cast<DWORD>(::GetWindowLongW(list, GWL_STYLE));
    const bool hasPictures = words.count == LB_GETCOUNT
        && (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0 && (style & LBS_HASSTRINGS) == 0;
    if (hasPictures) {
        return std::to_wstring(numberFrom(list, words.data, line));
    }
    const int length = numberFrom(list, words.textLength, line);
    std::wstring text(static_cast<std::size_t>(length > 0 ? length : 0) + 1, L'\0');
    numberFrom(list, words.text, line, reinterpret_cast<LPARAM>(text.data()));
    text.resize(text.size() - 1);
    return text;
}

std::wstring rowText(HWND table, int row)
{
    wchar_t text[600] = L"";
    LVITEMW item {};
    item.pszText = text;
    item.cchTextMax = 600;
    numberFrom(table, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
    return text;
}

// The line that a kept one is now; -1 when it is gone.
template <class TextTP> int lineNow(const StateLineCL& kept, int linesThen, int lines, TextTP&& textOf)
{
    if (kept.index < lines && textOf(kept.index) == kept.text) {
        return kept.index;
    }
    for (int i = 0; i < lines; ++i) {
        if (textOf(i) == kept.text) {
            return i;
        }
    }
    return lines == linesThen ? kept.index : -1;
}

bool selectsMany(HWND list)
{
    return (::GetWindowLongW(list, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

void noteEdit(HWND edit, ControlStateCL* state)
{
    state->text = windowTextOf(edit);
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&state->selectionStart),
        reinterpret_cast<LPARAM>(&state->selectionEnd));
    state->firstLine = numberFrom(edit, EM_GETFIRSTVISIBLELINE);
}

void noteListBox(HWND list, ControlStateCL* state)
{
    state->lines = numberFrom(list, LB_GETCOUNT);
    state->firstLine = numberFrom(list, LB_GETTOPINDEX);
    for (int i = 0; i < state->lines; ++i) {
        if (numberFrom(list, LB_GETSEL, i) > 0) {
            state->selected.push_back({ i, lineText(list, ListBoxWords, i) });
        }
    }
}

void noteComboBox(HWND combo, ControlStateCL* state)
{
    state->lines = numberFrom(combo, CB_GETCOUNT);
    const int line = numberFrom(combo, CB_GETCURSEL);
    if (line >= 0) {
        state->selected.push_back({ line, lineText(combo, ComboBoxWords, line) });
    }
    state->text = windowTextOf(combo);
    ::SendMessageW(combo, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&state->selectionStart),
        reinterpret_cast<LPARAM>(&state->selectionEnd));
}

void noteTable(HWND table, ControlStateCL* state)
{
    state->lines = numberFrom(table, LVM_GETITEMCOUNT);
    for (int row = numberFrom(table, LVM_GETNEXTITEM, -1, LVNI_SELECTED); row >= 0;
         row = numberFrom(table, LVM_GETNEXTITEM, row, LVNI_SELECTED)) {
        state->selected.push_back({ row, rowText(table, row) });
    }
}

void giveListBox(HWND list, const ControlStateCL& state)
{
    const int lines = numberFrom(list, LB_GETCOUNT);
    const bool many = selectsMany(list);
    if (many) {
        numberFrom(list, LB_SETSEL, FALSE, -1);
    } else if (state.selected.empty()) {
        numberFrom(list, LB_SETCURSEL, -1);
    }
    for (const StateLineCL& kept : state.selected) {
        const int line
            = lineNow(kept, state.lines, lines, [list](int i) { return lineText(list, ListBoxWords, i); });
        if (line >= 0) {
            many ? numberFrom(list, LB_SETSEL, TRUE, line) : numberFrom(list, LB_SETCURSEL, line);
        }
    }
}

void giveComboBox(HWND combo, const ControlStateCL& state)
{
    if (state.selected.empty()) {
        numberFrom(combo, CB_SETCURSEL, -1);
        ::SetWindowTextW(combo, state.text.c_str());
        return;
    }
    const int line = lineNow(state.selected[0], state.lines, numberFrom(combo, CB_GETCOUNT),
        [combo](int i) { return lineText(combo, ComboBoxWords, i); });
    if (line >= 0) {
        numberFrom(combo, CB_SETCURSEL, line);
    }
}

void giveTable(HWND table, const ControlStateCL& state)
{
    LVITEMW item {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    numberFrom(table, LVM_SETITEMSTATE, -1, reinterpret_cast<LPARAM>(&item)); // All rows.
    item.state = item.stateMask;
    for (const StateLineCL& kept : state.selected) {
        const int row = lineNow(kept, state.lines, numberFrom(table, LVM_GETITEMCOUNT),
            [table](int i) { return rowText(table, i); });
        if (row >= 0) {
            numberFrom(table, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
            numberFrom(table, LVM_ENSUREVISIBLE, row);
        }
    }
}

void giveCheck(HWND button, int check)
{
    numberFrom(button, BM_SETCHECK, check);
    const int type = ::GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK;
    if (check != BST_CHECKED || type != BS_AUTORADIOBUTTON) {
        return;
    }
    // As when it is clicked: no other of its group stays checked.
    const HWND dialog = ::GetParent(button);
    for (HWND other = ::GetNextDlgGroupItem(dialog, button, FALSE); other != nullptr && other != button;
         other = ::GetNextDlgGroupItem(dialog, other, FALSE)) {
        if ((::GetWindowLongW(other, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON) {
            numberFrom(other, BM_SETCHECK, BST_UNCHECKED);
        }
    }
}

} // namespace

ControlStateCL stateOf(HWND control)
{
    ControlStateCL state;
    CWnd* const object = CWnd::FromHandlePermanent(control);
    if (dynamic_cast<CEdit*>(object) != nullptr) {
        noteEdit(control, &state);
    } else if (dynamic_cast<CButton*>(object) != nullptr) {
        state.status = numberFrom(control, BM_GETCHECK);
    } else if (dynamic_cast<CListBox*>(object) != nullptr) {
        noteListBox(control, &state);
    } else if (dynamic_cast<CComboBox*>(object) != nullptr) {
        noteComboBox(control, &state);
    } else if (dynamic_cast<CListCtrl*>(object) != nullptr) {
        noteTable(control, &state);
    } else if (dynamic_cast<CTreeCtrl*>(object) != nullptr) {
        noteTree(control, &state);
    } else if (const auto* const multi = dynamic_cast<DuMultiStateButtonCL*>(object)) {
        multi->GetCurStatusM(&state.status);
    } else if (const auto* const knob = dynamic_cast<DuNewRotateBtnCL*>(object)) {
        state.status = knob->GetCurIndxM();
    }
    return state;
}

void giveValue(HWND control, const ControlStateCL& state)
{
    CWnd* const object = CWnd::FromHandlePermanent(control);
    if (dynamic_cast<CEdit*>(object) != nullptr) {
        ::SetWindowTextW(control, state.text.c_str());
    } else if (dynamic_cast<CButton*>(object) != nullptr) {
        giveCheck(control, state.status);
    } else if (dynamic_cast<CListBox*>(object) != nullptr) {
        giveListBox(control, state);
    } else if (dynamic_cast<CComboBox*>(object) != nullptr) {
        giveComboBox(control, state);
    } else if (dynamic_cast<CListCtrl*>(object) != nullptr) {
        giveTable(control, state);
    } else if (dynamic_cast<CTreeCtrl*>(object) != nullptr) {
        giveTree(control, state);
    } else if (auto* const multi = dynamic_cast<DuMultiStateButtonCL*>(object)) {
        multi->SetCurStatusM(state.status);
    } else if (auto* const knob = dynamic_cast<DuNewRotateBtnCL*>(object)) {
        knob->SetCurIndxM(state.status);
    }
}

void givePlace(HWND control, const ControlStateCL& state)
{
    CWnd* const object = CWnd::FromHandlePermanent(control);
    if (dynamic_cast<CEdit*>(object) != nullptr) {
        ::SendMessageW(control, EM_SETSEL, state.selectionStart, static_cast<LPARAM>(state.selectionEnd));
        numberFrom(control, EM_LINESCROLL, 0, state.firstLine - numberFrom(control, EM_GETFIRSTVISIBLELINE));
    } else if (dynamic_cast<CListBox*>(object) != nullptr) {
        numberFrom(control, LB_SETTOPINDEX, state.firstLine);
    } else if (dynamic_cast<CComboBox*>(object) != nullptr) {
        numberFrom(control, CB_SETEDITSEL, 0,
            MAKELPARAM(static_cast<WORD>(state.selectionStart), static_cast<WORD>(state.selectionEnd)));
    }
}
