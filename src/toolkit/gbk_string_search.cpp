#include "baselib/gbk.h"
#include "toolkit/gbk_string.h"
#include <algorithm>
#include <cstring>

namespace {

// Characters to look for, one or two bytes each.
class CharacterSetCL
{
public:
    explicit CharacterSetCL(const char* characters)
        : at_(characters == nullptr ? "" : characters)
        , end_(at_ + std::strlen(at_))
    {
    }
    bool HasM(const char* character, int length) const
    {
        for (const char* at = at_; at < end_; at += slGbkCharLength(at, end_)) {
            if (slGbkCharLength(at, end_) == length && std::memcmp(at, character, length) == 0) {
                return true;
            }
        }
        return false;
    }

private:
    const char* at_;
    const char* end_;
};

// Where the first character at or behind `from` stands that is (isIn) or isn't in the set; else the end.
int spanM(const char* text, int length, int from, const CharacterSetCL& set, bool isIn)
{
    while (from < length) {
        const int bytes = slGbkCharLength(text + from, text + length);
        if (set.HasM(text + from, bytes) == isIn) {
            break;
        }
        from += bytes;
    }
    return from;
}

const char* const blanks = " \t\n\v\f\r";

} // namespace

int CString::Compare(const char* other) const
{
    return std::strcmp(GetString(), other == nullptr ? "" : other);
}

int CString::CompareNoCase(const char* other) const
{
    const std::wstring one = GbkToWide(GetString());
    const std::wstring two = GbkToWide(other);
    return ::CompareStringOrdinal(one.c_str(), -1, two.c_str(), -1, TRUE) - CSTR_EQUAL;
}

int CString::Collate(const char* other) const
{
    const std::wstring one = GbkToWide(GetString());
    const std::wstring two = GbkToWide(other);
    return ::CompareStringW(LOCALE_USER_DEFAULT, 0, one.c_str(), -1, two.c_str(), -1) - CSTR_EQUAL;
}

int CString::CollateNoCase(const char* other) const
{
    const std::wstring one = GbkToWide(GetString());
    const std::wstring two = GbkToWide(other);
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, one.c_str(), -1, two.c_str(), -1)
        - CSTR_EQUAL;
}

int CString::Find(const char* what, int from) const
{
    if (what == nullptr || from < 0 || from > GetLength()) {
        return -1;
    }
    const int wanted = static_cast<int>(std::strlen(what));
    for (int at = from + (isWithinM(from) ? 1 : 0); at + wanted <= GetLength(); at += charLengthM(at)) {
        if (std::memcmp(GetString() + at, what, static_cast<size_t>(wanted)) == 0
            && !isWithinM(at + wanted)) {
            return at;
        }
    }
    return -1;
}

int CString::Find(char what, int from) const
{
    const char text[] = { what, '\0' };
    return what == '\0' ? -1 : Find(text, from);
}

int CString::ReverseFind(char what) const
{
    const void* const found = std::memchr(GetString(), what, static_cast<size_t>(GetLength()));
    int last = -1;
    for (int at = found == nullptr ? GetLength() : 0; at < GetLength();) {
        const int length = charLengthM(at);
        last = length == 1 && GetString()[at] == what ? at : last;
        at += length;
    }
    return last;
}

int CString::FindOneOf(const char* characters) const
{
    const int at = spanM(GetString(), GetLength(), 0, CharacterSetCL(characters), true);
    return at < GetLength() ? at : -1;
}

CString CString::SpanIncluding(const char* characters) const
{
    return Left(spanM(GetString(), GetLength(), 0, CharacterSetCL(characters), false));
}

CString CString::SpanExcluding(const char* characters) const
{
    return Left(spanM(GetString(), GetLength(), 0, CharacterSetCL(characters), true));
}

CString CString::Tokenize(const char* separators, int& start) const
{
    const CharacterSetCL set(separators);
    if (start >= 0 && start < GetLength()) {
        const int from = start + (isWithinM(start) ? 1 : 0);
        const int first = spanM(GetString(), GetLength(), from, set, false);
        if (first < GetLength()) {
            const int last = spanM(GetString(), GetLength(), first, set, true);
            start = last + (last < GetLength() ? charLengthM(last) : 1);
            return Mid(first, last - first);
        }
    }
    start = -1;
    return CString();
}

CString& CString::Trim(const char* characters)
{
    const CString set(characters); // they may lie in this text
    return TrimRight(set).TrimLeft(set);
}

CString& CString::TrimLeft()
{
    return TrimLeft(blanks);
}

CString& CString::TrimLeft(char what)
{
    const char set[] = { what, '\0' };
    return TrimLeft(set);
}

CString& CString::TrimLeft(const char* characters)
{
    const int first = spanM(GetString(), GetLength(), 0, CharacterSetCL(characters), false);
    if (first > 0) {
        bytes_.erase(bytes_.begin(), bytes_.begin() + first);
    }
    return *this;
}

CString& CString::TrimRight()
{
    return TrimRight(blanks);
}

CString& CString::TrimRight(char what)
{
    const char set[] = { what, '\0' };
    return TrimRight(set);
}

CString& CString::TrimRight(const char* characters)
{
    const CharacterSetCL set(characters);
    int end = 0;
    for (int at = 0; at < GetLength();) {
        const int length = charLengthM(at);
        end = set.HasM(GetString() + at, length) ? end : at + length;
        at += length;
    }
    if (end < GetLength()) {
        ReleaseBuffer(end);
    }
    return *this;
}
