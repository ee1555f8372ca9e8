#pragma once
#include "toolkit/text.h"
#include <vector>

// A text of GBK bytes, always ended by a zero. Lengths and positions count bytes. The bytes lie in a vector,
// so that an object which holds one may be moved by its bytes.
class PANELKIT_API CString
{
public:
    CString() = default;
    CString(const char* text);
    CString(const char* text, int length);

    int GetLength() const { return static_cast<int>(bytes_.empty() ? 0 : bytes_.size() - 1); }
    BOOL IsEmpty() const { return GetLength() == 0; }
    void Empty() { bytes_.clear(); }
    const char* GetString() const { return bytes_.empty() ? "" : bytes_.data(); }
    operator const char*() const { return GetString(); }
    char GetAt(int index) const { return GetString()[index]; }
    char operator[](int index) const { return GetAt(index); }
    // Room for length bytes and a zero; ReleaseBuffer follows with the length used (-1: up to the zero).
    char* GetBuffer(int length);
    void ReleaseBuffer(int length = -1);

    int Compare(const char* other) const;
    int CompareNoCase(const char* other) const;
    int Find(const char* what, int from = 0) const; // -1: not there
    CString Left(int count) const { return Mid(0, count); }
    CString Right(int count) const { return Mid(GetLength() - count, count); }
    CString Mid(int first, int count) const; // bounds are cut to the text
    void Format(const char* format, ...);
    CString& operator+=(const char* text);

private:
    std::vector<char> bytes_;
};

inline CString operator+(CString one, const char* two)
{
    return one += two;
}
inline bool operator==(const CString& one, const char* two)
{
    return one.Compare(two) == 0;
}
inline bool operator!=(const CString& one, const char* two)
{
    return one.Compare(two) != 0;
}
inline bool operator==(const CString& one, const CString& two)
{
    return one.Compare(two) == 0;
}
inline bool operator!=(const CString& one, const CString& two)
{
    return one.Compare(two) != 0;
}
