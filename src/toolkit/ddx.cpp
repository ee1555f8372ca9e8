#include "toolkit/ddx.h"
#include "baselib/gbk.h"
#include "baselib/message_texts.h"
#include "toolkit/exceptions.h"
#include "toolkit/message_box.h"
#include "toolkit/text.h"
#include "toolkit/wnd.h"
#include <cerrno>
#include <cfloat>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace {

std::wstring fieldTextM(HWND field)
{
    std::vector<wchar_t> text(static_cast<size_t>(::GetWindowTextLengthW(field)) + 1);
    return std::wstring(text.data(),
        static_cast<size_t>(::GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
}

// As a text that has not changed would only flicker and lose its selection.
void showTextM(HWND field, const std::wstring& text)
{
    if (fieldTextM(field) != text) {
        ::SetWindowTextW(field, text.c_str());
    }
}

[[noreturn]] void refuseM(CDataExchange* exchange, MessageTextId why)
{
    AfxMessageBox(slWideMessageText(why).c_str(), MB_OK | MB_ICONEXCLAMATION);
    exchange->Fail();
}

bool isRestBlankM(const wchar_t* rest)
{
    while (*rest == L' ' || *rest == L'\t') {
        ++rest;
    }
    return *rest == 0;
}

template <class ValueTP> bool readM(const std::wstring& text, ValueTP* value)
{
    const size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring::npos) {
        return false;
    }
    const wchar_t* const from = text.c_str() + first;
    wchar_t* end = nullptr;
    errno = 0;
    if constexpr (std::is_floating_point_v<ValueTP>) {
        const double read = std::wcstod(from, &end);
        *value = static_cast<ValueTP>(read);
    } else if constexpr (std::is_signed_v<ValueTP>) {
        const long long read = std::wcstoll(from, &end, 10);
        if (read < std::numeric_limits<ValueTP>::min() || read > std::numeric_limits<ValueTP>::max()) {
            return false;
        }
        *value = static_cast<ValueTP>(read);
    } else {
        const unsigned long long read = *from == L'-' ? 0 : std::wcstoull(from, &end, 10);
        if (end == nullptr || read > std::numeric_limits<ValueTP>::max()) {
            return false;
        }
        *value = static_cast<ValueTP>(read);
    }
    return end != from && errno != ERANGE && isRestBlankM(end);
}

template <class ValueTP> std::wstring writtenM(ValueTP value)
{
    if constexpr (std::is_floating_point_v<ValueTP>) {
        wchar_t text[64];
        std::swprintf(text, std::size(text), L"%.*g", sizeof value == sizeof(float) ? FLT_DIG : DBL_DIG,
            static_cast<double>(value));
        return text;
    } else {
        return std::to_wstring(value);
    }
}

template <class ValueTP> void numberM(CDataExchange* exchange, int id, ValueTP* value)
{
    const HWND field = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        showTextM(field, writtenM(*value));
        return;
    }
    ValueTP read = {};
    if (!readM(fieldTextM(field), &read)) {
        refuseM(exchange,
            std::is_floating_point_v<ValueTP> ? WantsNumberMessage
                : std::is_signed_v<ValueTP>   ? WantsIntegerMessage
                                              : WantsPositiveMessage);
    }
    *value = read;
}

} // namespace

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd != nullptr) {
        return; // has it since the first exchange
    }
    const HWND window = exchange->PrepareCtrl(id);
    if (!control.SubclassWindow(window)) {
        AfxThrowNotSupportedException();
    }
}

void DDX_Text(CDataExchange* exchange, int id, BYTE& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, short& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, int& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, UINT& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, long& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, DWORD& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, float& value)
{
    numberM(exchange, id, &value);
}
void DDX_Text(CDataExchange* exchange, int id, double& value)
{
    numberM(exchange, id, &value);
}

void DDX_Text(CDataExchange* exchange, int id, CString& value)
{
    const HWND field = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = WideToGbk(fieldTextM(field).c_str()).c_str();
    } else {
        showTextM(field, slGbkToShown(value.GetString()));
    }
}

void DDX_Text(CDataExchange* exchange, int id, LPSTR value, int size)
{
    const HWND field = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        slCopyText(value, size, WideToGbk(fieldTextM(field).c_str()));
    } else {
        showTextM(field, slGbkToShown(value));
    }
}

void DDX_Text(CDataExchange* exchange, int id, LPWSTR value, int size)
{
    const HWND field = exchange->PrepareEditCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        ::GetWindowTextW(field, value, size);
    } else {
        showTextM(field, value);
    }
}
