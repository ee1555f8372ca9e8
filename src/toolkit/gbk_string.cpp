#include "toolkit/gbk_string.h"
#include "baselib/gbk.h"
#include "toolkit/module.h"
#include <algorithm>
#include <cstring>
#include <functional>

CString::CString(const char* text)
{
    if (text != nullptr && IS_INTRESOURCE(text)) {
        LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(text)));
    } else {
        Append(text);
    }
}

CString::CString(const char* text, int length)
{
    Append(text, length);
}

char* CString::GetBuffer(int length)
{
    bytes_.resize(static_cast<size_t>(std::max(length, GetLength())) + 1);
    return bytes_.data();
}

char* CString::GetBufferSetLength(int length)
{
    GetBuffer(length);
    ReleaseBufferSetLength(length);
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

void CString::SetAt(int index, char byte)
{
    if (index >= 0 && index < GetLength()) {
        bytes_[static_cast<size_t>(index)] = byte;
    }
}

void CString::Append(const char* text)
{
    Append(text, text == nullptr ? 0 : static_cast<int>(std::strlen(text)));
}

void CString::Append(const char* text, int length)
{
    if (text == nullptr || length <= 0) {
        return;
    }
    const std::less<const char*> before;
    if (!bytes_.empty() && !before(text, bytes_.data()) && before(text, bytes_.data() + bytes_.size())) {
        // The text lies in this object, whose bytes may move.
        const std::vector<char> own(text, text + length);
        Append(own.data(), length);
        return;
    }
    const size_t needed = static_cast<size_t>(GetLength()) + static_cast<size_t>(length) + 1;
    if (needed > bytes_.capacity()) {
        bytes_.reserve(bytes_.empty() ? needed : std::max(needed, 2 * bytes_.capacity()));
    }
    // There is room now: nothing below can fail.
    if (!bytes_.empty()) {
        bytes_.pop_back();
    }
    bytes_.insert(bytes_.end(), text, text + length);
    bytes_.push_back(0);
}

// Bytes 0x81 to 0xFE can be first or second. Behind the last byte that cannot be first, characters begin
// anew.
bool CString::isWithinM(int at) const
{
    const char* const text = GetString();
    if (at <= 0 || at >= GetLength() || !slGbkIsTrail(text[at])) {
        return false;
    }
    int leads = 0;
    while (leads < at && slGbkIsLead(text[at - 1 - leads])) {
        ++leads;
    }
    return leads % 2 == 1;
}

int CString::charLengthM(int at) const
{
    return slGbkCharLength(GetString() + at, GetString() + GetLength());
}

CString CString::Mid(int first, int count) const
{
    int from = std::clamp(first, 0, GetLength());
    int to = from + std::clamp(count, 0, GetLength() - from);
    from += isWithinM(from) ? 1 : 0;
    to -= isWithinM(to) ? 1 : 0;
    return CString(GetString() + from, to - from);
}

CString CString::Right(int count) const
{
    count = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - count, count);
}

int CString::Insert(int at, const char* text)
{
    at = std::clamp(at, 0, GetLength());
    at -= isWithinM(at) ? 1 : 0;
    CString joined(GetString(), at);
    joined.Append(text);
    joined.Append(GetString() + at, GetLength() - at);
    bytes_.swap(joined.bytes_);
    return GetLength();
}

int CString::Insert(int at, char character)
{
    const char text[] = { character, '\0' };
    return Insert(at, text);
}

int CString::Delete(int at, int count)
{
    int from = std::clamp(at, 0, GetLength());
    int to = from + std::clamp(count, 0, GetLength() - from);
    if (from < to) {
        from -= isWithinM(from) ? 1 : 0;
        to += isWithinM(to) ? 1 : 0;
        bytes_.erase(bytes_.begin() + from, bytes_.begin() + to);
    }
    return GetLength();
}

CString& CString::MakeUpper()
{
    for (int at = 0; at < GetLength(); at += charLengthM(at)) {
        char& byte = bytes_[static_cast<size_t>(at)];
        byte = byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
    }
    return *this;
}

CString& CString::MakeLower()
{
    for (int at = 0; at < GetLength(); at += charLengthM(at)) {
        char& byte = bytes_[static_cast<size_t>(at)];
        byte = byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    }
    return *this;
}

CString& CString::MakeReverse()
{
    std::vector<char> reversed(bytes_.size());
    for (int at = 0, to = GetLength(); at < GetLength();) {
        const int length = charLengthM(at);
        to -= length;
        std::copy_n(bytes_.begin() + at, length, reversed.begin() + to);
        at += length;
    }
    bytes_.swap(reversed);
    return *this;
}

int CString::Replace(const char* what, const char* by)
{
    const CString wanted(what);
    const CString with(by);
    if (wanted.IsEmpty()) {
        return 0;
    }
    int count = 0;
    int kept = 0;
    CString result;
    for (int at; (at = Find(wanted, kept)) >= 0; kept = at + wanted.GetLength()) {
        result.Append(GetString() + kept, at - kept);
        result += with;
        ++count;
    }
    if (count != 0) {
        result.Append(GetString() + kept, GetLength() - kept);
        bytes_.swap(result.bytes_);
    }
    return count;
}

int CString::Replace(char what, char by)
{
    int count = 0;
    for (int at = 0; by != what && (at = Find(what, at)) >= 0; ++at) {
        bytes_[static_cast<size_t>(at)] = by;
        ++count;
    }
    return count;
}

int CString::Remove(char what)
{
    CString kept;
    kept.Preallocate(GetLength());
    int count = 0;
    for (int at = 0; at < GetLength();) {
        const int length = charLengthM(at);
        if (length == 1 && GetString()[at] == what) {
            ++count;
        } else {
            kept.Append(GetString() + at, length);
        }
        at += length;
    }
    if (count != 0) {
        bytes_.swap(kept.bytes_);
    }
    return count;
}

BOOL CString::LoadString(UINT id)
{
    return LoadString(AfxGetResourceHandle(), id);
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    const wchar_t* text = nullptr; // in the resource itself, without a zero behind it
    const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0) {
        return FALSE;
    }
    *this = CString(text, length);
    return TRUE;
}

CString CString::loadedM(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

BOOL CString::GetEnvironmentVariable(const char* name)
{
    const std::wstring wide = GbkToWide(name);
    std::wstring value(::GetEnvironmentVariableW(wide.c_str(), nullptr, 0), L'\0');
    value.resize(::GetEnvironmentVariableW(wide.c_str(), value.data(), static_cast<DWORD>(value.size())));
    *this = CString(value.c_str());
    return !value.empty();
}
