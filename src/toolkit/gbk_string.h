#pragma once
#include "toolkit/format_argument.h"
#include "toolkit/text.h"
#include "toolkit/wide_text.h"
#include <cstdarg>
#include <vector>

// Overloads for wide texts and for single characters are templates, so that NULL stays a null narrow text.
template <class C> using AfxIfChar = std::enable_if_t<std::is_same<C, char>::value, int>;

// A text of GBK bytes, always ended by a zero. Lengths and positions count bytes, yet no result is half a
// character: a cut within one drops its half that would stay, and nothing is found in the second byte of
// one. Wide texts are converted (WideToGbk). A null text counts as empty. A member that runs out of memory
// throws std::bad_alloc and has changed nothing. Texts given may lie in the object itself. The bytes lie in a
// vector, so that an object which holds one may be moved by its bytes.
class PANELKIT_API CString
{
public:
    CString() = default;
    CString(
        const char* text); // MAKEINTRESOURCE of an id: the text of the string table; empty if there is none
    // So many bytes of a text; below 0 counts as 0.
    CString(const char* text, int length);
    // From GBK.
    template <class C, std::enable_if_t<std::is_same<C, unsigned char>::value, int> = 0>
    CString(const C* text)
        : CString(reinterpret_cast<const char*>(text))
    {
    }
    template <class C, AfxIfWide<C> = 0>
    CString(const C* text)
        : CString(WideToGbk(text))
    {
    }
    template <class C, AfxIfWide<C> = 0>
    CString(const C* text, int length)
        : CString(WideToGbk(text, length < 0 ? 0 : length))
    {
    }
    // A character, so many times.
    template <class C, AfxIfChar<C> = 0>
    explicit CString(C character, int repeat = 1)
        : CString(std::string(repeat < 0 ? 0 : static_cast<size_t>(repeat), character))
    {
    }
    template <class C, AfxIfWide<C> = 0> explicit CString(C character, int repeat = 1)
    {
        for (; repeat > 0; --repeat) {
            Append(CString(&character, 1));
        }
    }
    // Becomes a copy of a text, or of a character.
    CString& operator=(const char* text) { return *this = CString(text); }
    template <class C, AfxIfWide<C> = 0> CString& operator=(const C* text) { return *this = CString(text); }
    template <class C, AfxIfChar<C> = 0> CString& operator=(C character)
    {
        return *this = CString(character);
    }
    // The same; length: so many bytes of it.
    void SetString(const char* text) { *this = CString(text); }
    void SetString(const char* text, int length) { *this = CString(text, length); }
    template <class C, AfxIfWide<C> = 0> void SetString(const C* text) { *this = CString(text); }

    // In bytes, without the zero.
    int GetLength() const { return static_cast<int>(bytes_.empty() ? 0 : bytes_.size() - 1); }
    // Whether it has none.
    BOOL IsEmpty() const { return GetLength() == 0; }
    // Becomes the empty text.
    void Empty() { std::vector<char>().swap(bytes_); }
    // The text, valid until it changes; never null.
    const char* GetString() const { return bytes_.empty() ? "" : bytes_.data(); }
    operator const char*() const { return GetString(); }
    // The byte there; 0 outside the text.
    char GetAt(int index) const { return index < 0 || index >= GetLength() ? '\0' : GetString()[index]; }
    char operator[](int index) const { return GetAt(index); }
    // Outside the text: nothing. The two bytes of a character are the caller's.
    void SetAt(int index, char byte);

    // Room for length bytes and a zero; ReleaseBuffer follows with the length used (-1: up to the zero). Both
    // take the length as it is, also within a character.
    char* GetBuffer(int length = 0);
    char* GetBufferSetLength(int length);
    void ReleaseBuffer(int length = -1);
    void ReleaseBufferSetLength(int length) { ReleaseBuffer(length < 0 ? 0 : length); }
    char* LockBuffer() { return GetBuffer(); } // the bytes are never shared
    // Nothing is left to do.
    void UnlockBuffer() { }
    // Frees what is held in reserve.
    void FreeExtra() { bytes_.shrink_to_fit(); }
    // Makes room for so many bytes.
    void Preallocate(int length) { bytes_.reserve(static_cast<size_t>(length < 0 ? 0 : length) + 1); }
    // How many bytes there is room for.
    int GetAllocLength() const
    {
        return bytes_.capacity() == 0 ? 0 : static_cast<int>(bytes_.capacity()) - 1;
    }
    // Cuts the text to so many bytes.
    void Truncate(int length) { *this = Left(length); }

    int Compare(const char* other) const; // below 0, 0, above 0: by bytes
    // The same without regard to case.
    int CompareNoCase(const char* other) const;
    int Collate(const char* other) const; // as the user's language sorts
    // The same without regard to case.
    int CollateNoCase(const char* other) const;
    template <class C, AfxIfWide<C> = 0> int Compare(const C* other) const { return Compare(CString(other)); }
    template <class C, AfxIfWide<C> = 0> int CompareNoCase(const C* other) const
    {
        return CompareNoCase(CString(other));
    }
    template <class C, AfxIfWide<C> = 0> int Collate(const C* other) const { return Collate(CString(other)); }
    template <class C, AfxIfWide<C> = 0> int CollateNoCase(const C* other) const
    {
        return CollateNoCase(CString(other));
    }

    // A position in the text, -1: not there. What is looked for begins and ends between characters.
    int Find(const char* what, int from = 0) const;
    int Find(char what, int from = 0) const;

    // The last place of a character.
    int ReverseFind(char what) const;
    // The first place of one of these characters.
    int FindOneOf(const char* characters) const;
    template <class C, AfxIfWide<C> = 0> int Find(const C* what, int from = 0) const
    {
        return Find(CString(what), from);
    }
    template <class C, AfxIfWide<C> = 0> int FindOneOf(const C* set) const { return FindOneOf(CString(set)); }

    // The first bytes, or the last ones.
    CString Left(int count) const { return Mid(0, count); }
    CString Right(int count) const;
    // From a position on.
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Mid(int first, int count) const; // bounds are cut to the text
    // What of its beginning consists of these characters, or of others.
    CString SpanIncluding(const char* characters) const;
    CString SpanExcluding(const char* characters) const;
    // The next piece between characters of that set, none of them empty; start is where the search goes on,
    // -1 with an empty result when there are no more.
    CString Tokenize(const char* separators, int& start) const;
    template <class C, AfxIfWide<C> = 0> CString Tokenize(const C* separators, int& start) const
    {
        return Tokenize(CString(separators), start);
    }
    template <class C, AfxIfWide<C> = 0> CString SpanIncluding(const C* characters) const
    {
        return SpanIncluding(CString(characters));
    }
    template <class C, AfxIfWide<C> = 0> CString SpanExcluding(const C* characters) const
    {
        return SpanExcluding(CString(characters));
    }

    // Takes away what the text begins or ends with: blanks (space, tab, line ends, vertical tab, form feed),
    // a character, or any of several.
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(char what) { return TrimRight(what).TrimLeft(what); }
    CString& Trim(const char* characters);
    CString& TrimLeft();
    CString& TrimLeft(char what);
    CString& TrimLeft(const char* characters);
    CString& TrimRight();
    CString& TrimRight(char what);
    CString& TrimRight(const char* characters);
    CString& MakeUpper(); // ASCII letters alone
    // The same.
    CString& MakeLower();
    CString& MakeReverse();               // by characters
    int Insert(int at, const char* text); // within a character: in front of it; result: the length now
    int Insert(int at, char character);
    int Delete(int at, int count = 1); // characters reached by half go whole; result: the length now
    int Replace(const char* what, const char* by); // result: how many
    int Replace(char what, char by);
    int Remove(char what); // result: how many
    template <class C, AfxIfWide<C> = 0> CString& Trim(const C* set) { return Trim(CString(set)); }
    template <class C, AfxIfWide<C> = 0> CString& TrimLeft(const C* set) { return TrimLeft(CString(set)); }
    template <class C, AfxIfWide<C> = 0> CString& TrimRight(const C* set) { return TrimRight(CString(set)); }
    template <class C, AfxIfWide<C> = 0> int Insert(int at, const C* text)
    {
        return Insert(at, CString(text));
    }
    template <class C, AfxIfWide<C> = 0> int Replace(const C* what, const C* by)
    {
        return Replace(CString(what), CString(by));
    }

    // As printf, with every value's type known: %s takes narrow and wide texts and string objects alike, and
    // a precision cuts between characters. What has no value stays as it is written. An id: of the string
    // table, an unknown one gives an empty text.
    template <class... A> void Format(const char* format, A... values)
    {
        formatM(format, { AfxFormatArgument(values)... }, false);
    }
    template <class... A> void Format(const wchar_t* format, A... values)
    {
        formatM(CString(format), { AfxFormatArgument(values)... }, false);
    }
    template <class... A> void Format(UINT id, A... values) { Format(loadedM(id).GetString(), values...); }
    template <class... A> void AppendFormat(const char* format, A... values)
    {
        formatM(format, { AfxFormatArgument(values)... }, true);
    }
    template <class... A> void AppendFormat(const wchar_t* format, A... values)
    {
        formatM(CString(format), { AfxFormatArgument(values)... }, true);
    }
    template <class... A> void AppendFormat(UINT id, A... values)
    {
        AppendFormat(loadedM(id).GetString(), values...);
    }
    void FormatV(const char* format, va_list values); // the types are those that the format tells
    // The same, behind the text.
    void AppendFormatV(const char* format, va_list values);
    BOOL LoadString(UINT id); // of the application's string tables; FALSE: there is none, nothing changed
    BOOL LoadString(HINSTANCE module, UINT id);
    BOOL GetEnvironmentVariable(const char* name); // FALSE: not set, the text is empty

    // Puts a text, or so many bytes of it, behind this one.
    void Append(const char* text);
    void Append(const char* text, int length);
    template <class C, AfxIfWide<C> = 0> void Append(const C* text) { *this += text; }
    // Puts a byte behind the text.
    void AppendChar(char character) { Append(&character, 1); }
    // The same for texts, strings and characters.
    CString& operator+=(const char* text)
    {
        Append(text);
        return *this;
    }
    CString& operator+=(const CString& text)
    {
        Append(text.GetString(), text.GetLength());
        return *this;
    }
    template <class C, AfxIfWide<C> = 0> CString& operator+=(const C* text) { return *this += CString(text); }
    template <class C, AfxIfChar<C> = 0> CString& operator+=(C character)
    {
        AppendChar(character);
        return *this;
    }
    template <class C, AfxIfWide<C> = 0> CString& operator+=(C character)
    {
        return *this += CString(character);
    }

private:
    explicit CString(const std::string& text)
        : CString(text.data(), static_cast<int>(text.size()))
    {
    }
    static CString loadedM(UINT id);
    void formatM(const char* format, const std::vector<AfxFormatArgument>& values, bool append);
    bool isWithinM(int at) const;
    int charLengthM(int at) const;

    std::vector<char> bytes_;
};

// The same string under the name for a narrow one.
typedef CString CStringA;

#include "toolkit/gbk_string_operators.h"
