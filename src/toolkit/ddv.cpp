#include "baselib/message_texts.h"
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
    CDataExchange* exchange, ValueTP value, ValueTP low, ValueTP high, MessageTextId what, int precision = 0)
{
    if (exchange->m_bSaveAndValidate && !(value >= low && value <= high)) {
        refuseCheckedM(exchange, slWideMessageText(what, boundM(low, precision), boundM(high, precision)));
    }
}

} // namespace

void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE low, BYTE high)
{
    checkRangeM<int>(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxShort(CDataExchange* exchange, short value, short low, short high)
{
    checkRangeM<int>(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxInt(CDataExchange* exchange, int value, int low, int high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT low, UINT high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxUnsigned(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxLong(CDataExchange* exchange, long value, long low, long high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}
void DDV_MinMaxFloat(CDataExchange* exchange, float value, float low, float high)
{
    checkRangeM<double>(exchange, value, low, high, NumberBetweenMessage, 6);
}
void DDV_MinMaxDouble(CDataExchange* exchange, double value, double low, double high, int precision)
{
    checkRangeM(exchange, value, low, high, NumberBetweenMessage, precision);
}
void DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD low, DWORD high)
{
    checkRangeM(exchange, value, low, high, IntegerBetweenMessage);
}

void DDV_MaxChars(CDataExchange* exchange, const CString& value, int bytes)
{
    if (!exchange->m_bSaveAndValidate) {
        if (exchange->m_bEditLastControl) {
            ::SendMessageW(exchange->m_hWndLastControl, EM_SETLIMITTEXT, static_cast<WPARAM>(bytes), 0);
        }
    } else if (value.GetLength() > bytes) {
        refuseCheckedM(exchange, slWideMessageText(TooManyBytesMessage, L"0", std::to_wstring(bytes)));
    }
}
