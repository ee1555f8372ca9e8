#include "toolkit/ddx.h"
#include "toolkit/message_box.h"
#include <cstdio>
#include <string>

namespace {

template <class ValueTP> std::wstring boundM(ValueTP value, int)
{
    return std::to_wstring(value);
}

std::wstring boundM(double value, int precision)
{
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"%.*g", precision, value);
    return text;
}

[[noreturn]] void refuseCheckedM(CDataExchange* exchange, const std::wstring& text)
{
    AfxMessageBox(text.c_str(), MB_OK | MB_ICONEXCLAMATION);
    exchange->Fail();
}

template <class ValueTP>
void checkRangeM(
    CDataExchange* exchange, ValueTP value, ValueTP low, ValueTP high, const wchar_t* what, int precision = 0)
{
    if (exchange->m_bSaveAndValidate && !(value >= low && value <= high)) {
        // 请键入一个在…和…之间的整数。
        refuseCheckedM(exchange,
            L"\u8BF7\u952E\u5165\u4E00\u4E2A\u5728 " + boundM(low, precision) + L" \u548C "
                + boundM(high, precision) + L" \u4E4B\u95F4\u7684" + what);
    }
}

const wchar_t* const Integer = L"\u6574\u6570\u3002"; // 整数。
const wchar_t* const Number = L"\u6570\u5B57\u3002";  // 数字。

} // namespace

void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE low, BYTE high)
{
    checkRangeM<int>(exchange, value, low, high, Integer);
}
void DDV_MinMaxShort(CDataExchange* exchange, short value, short low, short high)
{
    checkRangeM<int>(exchange, value, low, high, Integer);
}
void DDV_MinMaxInt(CDataExchange* exchange, int value, int low, int high)
{
    checkRangeM(exchange, value, low, high, Integer);
}
void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT low, UINT high)
{
    checkRangeM(exchange, value, low, high, Integer);
}
void DDV_MinMaxUnsigned(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, Integer);
}
void DDV_MinMaxLong(CDataExchange* exchange, long value, long low, long high)
{
    checkRangeM(exchange, value, low, high, Integer);
}
void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, Integer);
}
void DDV_MinMaxFloat(CDataExchange* exchange, float value, float low, float high)
{
    checkRangeM<double>(exchange, value, low, high, Number, 6);
}
void DDV_MinMaxDouble(CDataExchange* exchange, double value, double low, double high, int precision)
{
    checkRangeM(exchange, value, low, high, Number, precision);
}
void DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, Integer);
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int bytes)
{
    if (!exchange->m_bSaveAndValidate) {
        if (exchange->m_bEditLastControl) {
            ::SendMessageW(exchange->m_hWndLastControl, EM_SETLIMITTEXT, static_cast<WPARAM>(bytes), 0);
        }
    } else if (value.GetLength() > bytes) {
        // 请键入不超过…个字符。
        refuseCheckedM(exchange,
            L"\u8BF7\u952E\u5165\u4E0D\u8D85\u8FC7 " + std::to_wstring(bytes) + L" \u4E2A\u5B57\u7B26\u3002");
    }
}
