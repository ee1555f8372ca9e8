#include "toolkit/edit_text.h"
#include "toolkit/text.h"
#include <algorithm>

namespace {

const wchar_t LimitProperty[] = L"CEditTextLimit";
const wchar_t ProcProperty[] = L"CEditTextLimitProc";
constexpr WPARAM PasteKey = 22; // Ctrl+V as a character

std::wstring clipboardTextM(HWND owner)
{
    std::wstring text;
    if (::OpenClipboard(owner)) {
        const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
        const void* locked = data == nullptr ? nullptr : ::GlobalLock(data);
        if (locked != nullptr) {
            text = static_cast<const wchar_t*>(locked);
            ::GlobalUnlock(data);
        }
        ::CloseClipboard();
    }
    return text;
}

// What a message is about to put into the text.
std::wstring enteredM(HWND edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PASTE || (message == WM_CHAR && wParam == PasteKey)) {
        return clipboardTextM(edit);
    }
    if (message == EM_REPLACESEL) {
        return reinterpret_cast<const wchar_t*>(lParam == 0 ? AfxTextOf(nullptr) : lParam);
    }
    const bool hasLines = (::GetWindowLongPtrW(edit, GWL_STYLE) & ES_MULTILINE) != 0;
    if (wParam == '\r' || wParam == '\n') {
        return hasLines ? L"\r\n" : L"";
    }
    const bool isText = (wParam >= ' ' && wParam != 0x7F) || (wParam == '\t' && hasLines);
    return isText ? std::wstring(1, static_cast<wchar_t>(wParam)) : std::wstring();
}

LRESULT enterLimitedM(
    HWND edit, UINT limit, UINT message, WPARAM wParam, LPARAM lParam, const EditProcTP& behind)
{
    const std::wstring entered = enteredM(edit, message, wParam, lParam);
    const EditTextCL text(edit);
    DWORD first = 0;
    DWORD end = 0;
    behind(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    const int staying
        = text.LengthM() - (text.BytesM(static_cast<int>(end)) - text.BytesM(static_cast<int>(first)));
    const int room = std::max(static_cast<int>(limit) - staying, 0);
    const EditTextCL added(entered.c_str());
    if (added.LengthM() <= room) {
        return behind(message, wParam, lParam);
    }
    // The window cuts what it gets by itself, by its own count.
    const int most = ::GetWindowTextLengthW(edit) - static_cast<int>(end - first) + added.UnitsM(room);
    if (most == 0) { // Which to the window would mean no limit.
        const UINT id = static_cast<UINT>(::GetDlgCtrlID(edit));
        ::SendMessageW(
            ::GetParent(edit), WM_COMMAND, MAKEWPARAM(id, EN_MAXTEXT), reinterpret_cast<LPARAM>(edit));
        return 0;
    }
    behind(EM_SETLIMITTEXT, static_cast<WPARAM>(most), 0);
    const LRESULT result = behind(message, wParam, lParam);
    if (::IsWindow(edit)) {
        behind(EM_SETLIMITTEXT, limit, 0);
    }
    return result;
}

bool isOfLimitM(UINT message)
{
    return message == EM_SETLIMITTEXT || message == WM_CHAR || message == WM_PASTE
        || message == EM_REPLACESEL;
}

LRESULT keepLimitM(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, const EditProcTP& behind)
{
    const UINT limit = isOfLimitM(message) ? EditTextLimit(edit) : 0;
    if (limit == 0) {
        return behind(message, wParam, lParam);
    }
    if (message != EM_SETLIMITTEXT) {
        return enterLimitedM(edit, limit, message, wParam, lParam, behind);
    }
    ::RemovePropW(edit, LimitProperty); // By somebody who counts as the window does.
    return behind(message, wParam, lParam);
}

// For windows whose messages no object gets.
LRESULT CALLBACK limitedProcM(HWND edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto old = reinterpret_cast<WNDPROC>(::GetPropW(edit, ProcProperty));
    if (message == WM_NCDESTROY) {
        ::RemovePropW(edit, ProcProperty);
        ::RemovePropW(edit, LimitProperty);
        ::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(old));
    }
    return keepLimitM(edit, message, wParam, lParam,
        [&](UINT next, WPARAM w, LPARAM l) { return ::CallWindowProcW(old, edit, next, w, l); });
}

} // namespace

EditTextCL::EditTextCL(HWND edit)
{
    CString text;
    CWnd::FromHandle(edit)->GetWindowText(text);
    gbk_ = text.GetString();
}

EditTextCL::EditTextCL(const wchar_t* text)
    : gbk_(WideToGbk(text))
{
}

int EditTextCL::BytesM(int units) const
{
    if (units < 0) {
        return units;
    }
    const char* at = gbk_.c_str();
    const char* const end = at + gbk_.size();
    for (int passed = 0; passed < units && at < end; ++passed) {
        at += slGbkCharLength(at, end);
    }
    return static_cast<int>(at - gbk_.c_str());
}

int EditTextCL::UnitsM(int bytes) const
{
    if (bytes < 0) {
        return bytes;
    }
    const char* at = gbk_.c_str();
    const char* const end = at + gbk_.size();
    const char* const wanted = at + std::min(bytes, LengthM());
    int units = 0;
    while (at < end && at + slGbkCharLength(at, end) <= wanted) {
        at += slGbkCharLength(at, end);
        ++units;
    }
    return units;
}

void LimitEditText(HWND edit, UINT bytes)
{
    ::SendMessageW(edit, EM_SETLIMITTEXT, bytes, 0); // This forgets the limit before.
    if (bytes == 0 || edit == nullptr) {
        return;
    }
    ::SetPropW(edit, LimitProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(bytes)));
    const auto proc = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(edit, GWLP_WNDPROC));
    if (proc != AfxWndProc && ::GetPropW(edit, ProcProperty) == nullptr) {
        ::SetPropW(edit, ProcProperty, reinterpret_cast<HANDLE>(proc));
        ::SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&limitedProcM));
    }
}

UINT EditTextLimit(HWND edit)
{
    return static_cast<UINT>(reinterpret_cast<UINT_PTR>(::GetPropW(edit, LimitProperty)));
}

LRESULT LimitedEditMessage(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, const EditProcTP& behind)
{
    const bool isKeptByWindow = isOfLimitM(message) && ::GetPropW(edit, ProcProperty) != nullptr;
    return isKeptByWindow ? behind(message, wParam, lParam)
                          : keepLimitM(edit, message, wParam, lParam, behind);
}
