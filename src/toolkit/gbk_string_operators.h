#pragma once
#include "toolkit/gbk_string.h"

// A string beside a string, a narrow or wide text, or a character.

// The second behind the first, as a new string.
inline CString operator+(CString one, const CString& two)
{
    return std::move(one += two);
}
inline CString operator+(CString one, const char* two)
{
    return std::move(one += two);
}
inline CString operator+(const char* one, const CString& two)
{
    return CString(one) += two;
}
template <class C, AfxIfWide<C> = 0> CString operator+(CString one, const C* two)
{
    return std::move(one += two);
}
template <class C, AfxIfWide<C> = 0> CString operator+(const C* one, const CString& two)
{
    return CString(one) += two;
}
template <class C, AfxIfChar<C> = 0> CString operator+(CString one, C two)
{
    return std::move(one += two);
}
template <class C, AfxIfChar<C> = 0> CString operator+(C one, const CString& two)
{
    return CString(one) += two;
}

// Declares one comparison by bytes for every pair; defined here only.
#define AFX_COMPARE_STRINGS(op)                                                                              \
    inline bool operator op(const CString& one, const CString& two)                                          \
    {                                                                                                        \
        return one.Compare(two) op 0;                                                                        \
    }                                                                                                        \
    inline bool operator op(const CString& one, const char* two)                                             \
    {                                                                                                        \
        return one.Compare(two) op 0;                                                                        \
    }                                                                                                        \
    inline bool operator op(const char* one, const CString& two)                                             \
    {                                                                                                        \
        return 0 op two.Compare(one);                                                                        \
    }                                                                                                        \
    template <class C, AfxIfWide<C> = 0> bool operator op(const CString& one, const C* two)                  \
    {                                                                                                        \
        return one op CString(two);                                                                          \
    }                                                                                                        \
    template <class C, AfxIfWide<C> = 0> bool operator op(const C* one, const CString& two)                  \
    {                                                                                                        \
        return CString(one) op two;                                                                          \
    }                                                                                                        \
    template <class C, AfxIfChar<C> = 0> bool operator op(const CString& one, C two)                         \
    {                                                                                                        \
        return one op CString(two);                                                                          \
    }                                                                                                        \
    template <class C, AfxIfChar<C> = 0> bool operator op(C one, const CString& two)                         \
    {                                                                                                        \
        return CString(one) op two;                                                                          \
    }
AFX_COMPARE_STRINGS(==)
AFX_COMPARE_STRINGS(!=)
AFX_COMPARE_STRINGS(<)
AFX_COMPARE_STRINGS(<=)
AFX_COMPARE_STRINGS(>)
AFX_COMPARE_STRINGS(>=)
#undef AFX_COMPARE_STRINGS

// *to becomes the text of the string table under that id, with what it calls %1 and %2 put in.
PANELKIT_API void AfxFormatString1(CString& to, UINT id, const char* one);
PANELKIT_API void AfxFormatString2(CString& to, UINT id, const char* one, const char* two);

template <class C, AfxIfWide<C> = 0> void AfxFormatString1(CString& to, UINT id, const C* one)
{
    AfxFormatString1(to, id, CString(one));
}
template <class C, AfxIfWide<C> = 0> void AfxFormatString2(CString& to, UINT id, const C* one, const C* two)
{
    AfxFormatString2(to, id, CString(one), CString(two));
}

// A wide text, for functions of the window system, as in `SetWindowTextW(hWnd, CStringW(text))`.
class CStringW
{
public:
    CStringW() = default;
    // Null counts as empty.
    CStringW(const wchar_t* text)
        : text_(text == nullptr ? L"" : text)
    {
    }
    CStringW(const char* text) // GBK
        : text_(GbkToWide(text))
    {
    }
    // In wide characters, without the zero.
    int GetLength() const { return static_cast<int>(text_.size()); }
    // Whether it has none.
    BOOL IsEmpty() const { return text_.empty(); }
    // The text, valid as long as the object; never null.
    const wchar_t* GetString() const { return text_.c_str(); }
    operator const wchar_t*() const { return text_.c_str(); }
    // Into an array of that many characters, cut to it, with its zero.
    void CopyM(wchar_t* to, int size) const { to[text_.copy(to, static_cast<size_t>(size) - 1)] = L'\0'; }

private:
    std::wstring text_;
};
