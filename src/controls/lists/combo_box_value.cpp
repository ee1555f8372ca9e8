// The value of a combo box by id: line and text.
#include "controls/base/window_text.h"
#include "controls/lists/combo_box.h"

std::optional<ValueTextCL> DuComboBoxCL::LineTextM(int line) const
{
    if (line < 0 || line >= GetCount()) {
        return std::nullopt;
    }
    if (const ValueTextCL* const original = originals_.AtM(line)) {
        return *original;
    }
    CString text;
    GetLBText(line, text);
    return ValueTextCL(text.GetString());
}

void DuComboBoxCL::TranslateM(const TranslatorTP& translate)
{
    if (m_hWnd != nullptr) {
        slTranslateLines(*this, CB_INSERTSTRING, originals_, translate);
    }
}

// Whether the field says what the line shows, and that is a translation.
bool DuComboBoxCL::showsTranslationM(int line) const
{
    if (originals_.AtM(line) == nullptr) {
        return false;
    }
    const auto at = static_cast<WPARAM>(line);
    std::wstring text(static_cast<std::size_t>(::SendMessageW(m_hWnd, CB_GETLBTEXTLEN, at, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        ::SendMessageW(m_hWnd, CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()))));
    return slTextOfWindow(m_hWnd) == ValueTextCL(text);
}

ControlValueCL DuComboBoxCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd == nullptr) {
        return value;
    }
    const int selected = GetCurSel();
    value.lines.emplace();
    if (selected != CB_ERR) {
        value.lines->push_back(selected);
    }
    if (editAvailable_ == 1 && !showsTranslationM(selected)) {
        value.text = slTextOfWindow(m_hWnd);
    } else {
        value.text = LineTextM(selected);
    }
    return value;
}

bool DuComboBoxCL::WriteValueM(const ControlValueCL& value)
{
    if (m_hWnd == nullptr || !value.IsOfM(LinesPart | TextPart)) {
        return false;
    }
    if (!value.lines) {
        return lineWithM(*value.text) >= 0 ? SetSelM(lineWithM(*value.text)) == 1 : typeM(*value.text);
    }
    const auto lines = value.LinesOfM(GetCount(), false);
    const int line = lines && !lines->empty() ? lines->front() : -1;
    if (value.text && !(line >= 0 && LineTextM(line) == value.text)) {
        ControlValueCL text;
        text.text = value.text;
        return value.lines->empty() ? typeM(*value.text) : WriteValueM(text);
    }
    if (lines) {
        SetCurSel(line);
    }
    return lines.has_value();
}

// Without a selection: what stands in the field would replace the selected item's text on leaving.
bool DuComboBoxCL::typeM(const ValueTextCL& text)
{
    if (editAvailable_ != 1) {
        return false;
    }
    SetCurSel(-1);
    return ::SetWindowTextW(m_hWnd, text.WideM().c_str()) != FALSE;
}

int DuComboBoxCL::lineWithM(const ValueTextCL& text) const
{
    const int count = GetCount();
    for (int line = 0; line < count; ++line) {
        if (LineTextM(line) == text) {
            return line;
        }
    }
    return -1;
}
