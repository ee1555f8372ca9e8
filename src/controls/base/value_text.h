#pragma once
#include "baselib/gbk.h"
#include <string>

// A text of a control, taken and given in the encoding that suits the caller: GBK, as everywhere in the
// library, UTF-8 or UTF-16.
class PANELKIT_API ValueTextCL
{
public:
    ValueTextCL() = default; // The empty text.
    // From GBK; of broken bytes it has what a window shows of them. Null: no text, which setters refuse.
    ValueTextCL(const char* gbk);
    ValueTextCL(std::nullptr_t)
        : isNone_(true)
    {
    }
    ValueTextCL(const std::string& gbk)
        : ValueTextCL(gbk.c_str())
    {
    }
    explicit ValueTextCL(const std::u16string& text)
        : text_(text)
    {
    }
    static ValueTextCL FromUtf8M(const char* text); // Null: no text.
    static ValueTextCL FromUtf8M(const std::string& text) { return FromUtf8M(text.c_str()); }
    static ValueTextCL FromUtf8M(std::nullptr_t) { return nullptr; }

    bool IsNoneM() const { return isNone_; }
    bool operator==(const ValueTextCL& other) const
    {
        return text_ == other.text_ && isNone_ == other.isNone_;
    }
    bool operator!=(const ValueTextCL& other) const { return !(*this == other); }

    // What has no GBK form becomes '?', one for each character; *lost (may be null) receives how many.
    std::string GbkM(int* lost = nullptr) const;
    std::string Utf8M() const;
    const std::u16string& Utf16M() const { return text_; }

    // The same into a buffer of `size` bytes with its terminator, cut between characters. A null buffer or a
    // size below 1: nothing is written. The size needed for the whole text, terminator included.
    int GbkM(char* buffer, int size) const;
    int Utf8M(char* buffer, int size) const;

#ifdef _WIN32
    ValueTextCL(const wchar_t* wide); // Null: no text.
    ValueTextCL(const std::wstring& wide)
        : ValueTextCL(wide.c_str())
    {
    }
    std::wstring WideM() const
    {
        return std::wstring(text_.begin(), text_.end());
    }
    int WideM(wchar_t* buffer, int size) const; // Sizes are units of UTF-16 here.
#endif

private:
    std::u16string text_;
    bool isNone_ { false };
};
