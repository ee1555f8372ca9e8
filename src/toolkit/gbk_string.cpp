#include "toolkit/gbk_string.h"
#include "baselib/gbk.h"
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

CString::CString(const char* text)
    : CString(text, text == nullptr ? 0 : static_cast<int>(std::strlen(text)))
{
}

CString::CString(const char* text, int length)
{
    if (text != nullptr && length > 0) {
        bytes_.assign(text, text + length);
        bytes_.push_back(0);
    }
}

char* CString::GetBuffer(int length)
{
    bytes_.resize(static_cast<size_t>(std::max(length, GetLength())) + 1);
    return bytes_.data();
}

void CString::ReleaseBuffer(int length)
{
    if (bytes_.empty()) {
        return;
    }
    bytes_.back() = 0;
    int used = length < 0 ? static_cast<int>(std::strlen(bytes_.data())) : length;
    bytes_.resize(static_cast<size_t>(std::min(used, GetLength())) + 1);
    bytes_.back() = 0;
}

int CString::Compare(const char* other) const
{
    return std::strcmp(GetString(), other == nullptr ? "" : other);
}

int CString::CompareNoCase(const char* other) const
{
    std::wstring one = slGbkToShown(GetString());
    std::wstring two = slGbkToShown(other);
    return ::CompareStringOrdinal(one.c_str(), -1, two.c_str(), -1, TRUE) - CSTR_EQUAL;
}

int CString::Find(const char* what, int from) const
{
    if (what == nullptr || from < 0 || from > GetLength()) {
        return -1;
    }
    const char* at = std::strstr(GetString() + from, what);
    return at == nullptr ? -1 : static_cast<int>(at - GetString());
}

CString CString::Mid(int first, int count) const
{
    first = std::clamp(first, 0, GetLength());
    return CString(GetString() + first, std::clamp(count, 0, GetLength() - first));
}

void CString::Format(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::vector<char> text(static_cast<size_t>(std::max(length, 0)) + 1);
    std::vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    va_end(arguments);
    bytes_ = std::move(text);
}

CString& CString::operator+=(const char* text)
{
    if (text != nullptr && *text != 0) {
        std::vector<char> joined(bytes_.begin(), bytes_.begin() + GetLength());
        joined.insert(joined.end(), text, text + std::strlen(text) + 1);
        bytes_ = std::move(joined);
    }
    return *this;
}
