#pragma once
#include "baselib/gbk.h"
#include "toolkit/wide_text.h"
#include "toolkit/wnd.h"

// How the classes of controls speak to their windows. Each text goes to the window as UTF-16: of two members
// of one name the one for GBK hands its text, made wide, to the other. A null text counts as empty.

// A number that may be negative, as a message parameter.
inline WPARAM AfxWordOf(int value)
{
    return static_cast<WPARAM>(static_cast<INT_PTR>(value));
}

// As a message parameter. The text must outlive the message.
inline LPARAM AfxTextOf(LPCWSTR text)
{
    return reinterpret_cast<LPARAM>(text == nullptr ? L"" : text);
}

// A text in GBK for a message about a line of a list: made wide, or the pointer itself where the lines of a
// list that its owner draws are no texts but whatever the application takes them for.
class AfxLineText
{
public:
    // hasStrings: the style of that list by which its lines are texts.
    AfxLineText(const CWnd& list, LPCSTR text, DWORD hasStrings)
        : text_(text)
    {
        const DWORD style = list.m_hWnd != nullptr ? list.GetStyle() : 0;
        isText_ = (style & hasStrings) != 0 || (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0;
        if (isText_) {
            wide_ = slGbkToShown(text);
        }
    }
    // Valid as long as the object and the text.
    operator LPARAM() const { return isText_ ? AfxTextOf(wide_.c_str()) : reinterpret_cast<LPARAM>(text_); }

private:
    LPCSTR text_;
    bool isText_;
    std::wstring wide_;
};
static_assert(LBS_OWNERDRAWFIXED == CBS_OWNERDRAWFIXED && LBS_OWNERDRAWVARIABLE == CBS_OWNERDRAWVARIABLE,
    "a combo box has the numbers of a list box for these");

// -1 without a window, so that a caller's loop over items ends.
inline int AfxSendInt(const CWnd& control, UINT message, int wParam = 0, LPARAM lParam = 0)
{
    return control.m_hWnd != nullptr
        ? static_cast<int>(control.SendMessage(message, AfxWordOf(wParam), lParam))
        : -1;
}

// For messages that take or give something of the system by its handle.
template <class HandleTP>
HandleTP AfxSendHandle(const CWnd& control, UINT message, WPARAM wParam = 0, HandleTP handle = nullptr)
{
    return reinterpret_cast<HandleTP>(control.SendMessage(message, wParam, reinterpret_cast<LPARAM>(handle)));
}
