#include "toolkit/diagnostics.h"
#include "baselib/gbk.h"
#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

CDumpContext afxDump;

// Here, not with the others of its class: a dump knows objects, so those must not know it.
void CObject::Dump(CDumpContext& context) const
{
    context << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this) << "\n";
}

CDumpContext& CDumpContext::operator<<(LPCSTR text)
{
    ::OutputDebugStringW(slGbkToShown(text).c_str());
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCWSTR text)
{
    ::OutputDebugStringW(text == nullptr ? L"" : text);
    return *this;
}

CDumpContext& CDumpContext::operator<<(int value)
{
    return *this << std::to_string(value).c_str();
}

CDumpContext& CDumpContext::operator<<(UINT value)
{
    return *this << std::to_string(value).c_str();
}

CDumpContext& CDumpContext::operator<<(long value)
{
    return *this << std::to_string(value).c_str();
}

CDumpContext& CDumpContext::operator<<(DWORD value)
{
    return *this << std::to_string(value).c_str();
}

CDumpContext& CDumpContext::operator<<(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return *this << text;
}

CDumpContext& CDumpContext::operator<<(const void* address)
{
    char text[32];
    std::snprintf(text, sizeof text, "$%p", address);
    return *this << text;
}

CDumpContext& CDumpContext::operator<<(const CObject* object)
{
    if (object == nullptr) {
        return *this << "NULL";
    }
    object->Dump(*this);
    return *this;
}

void AfxTrace(LPCSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::vector<char> text(static_cast<size_t>(length < 0 ? 0 : length) + 1);
    std::vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    va_end(arguments);
    ::OutputDebugStringW(slGbkToShown(text.data()).c_str());
}

void AfxTrace(LPCWSTR format, ...)
{
    constexpr size_t MostCharacters = 1024;
    wchar_t text[MostCharacters];
    va_list arguments;
    va_start(arguments, format);
    if (std::vswprintf(text, MostCharacters, format, arguments) < 0) {
        text[MostCharacters - 1] = 0;
    }
    va_end(arguments);
    ::OutputDebugStringW(text);
}

void AfxAssertValidObject(const CObject* object)
{
    ASSERT(object != nullptr);
    if (object != nullptr) {
        object->AssertValid();
    }
}
