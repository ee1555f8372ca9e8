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
    // From UTF-16.
    explicit ValueTextCL(const std::u16string& text)
        : text_(text)
    {
    }
    // From UTF-8; what is none gives U+FFFD. Null: no text.
    static ValueTextCL FromUtf8M(const char* text);
    static ValueTextCL FromUtf8M(const std::string& text) { return FromUtf8M(text.c_str()); }
    static ValueTextCL FromUtf8M(std::nullptr_t) { return nullptr; }

    // Whether it is no text: made of null.
    bool IsNoneM() const { return isNone_; }
    // Compare the texts, exactly; no text equals no other.
    bool operator==(const ValueTextCL& other) const
    {
        return text_ == other.text_ && isNone_ == other.isNone_;
    }
    bool operator!=(const ValueTextCL& other) const { return !(*this == other); }

    // What has no GBK form becomes '?', one for each character; *lost (may be null) receives how many.
    std::string GbkM(int* lost = nullptr) const;
    // The text in UTF-8, or UTF-16; empty when it is none.
    std::string Utf8M() const;
    const std::u16string& Utf16M() const { return text_; }

    // The same into a buffer of `size` bytes with its terminator, cut between characters. A null buffer or a
    // size below 1: nothing is written. The size needed for the whole text, terminator included.
    int GbkM(char* buffer, int size) const;
    int Utf8M(char* buffer, int size) const;

#ifdef _WIN32
    // From UTF-16. Null: no text.
    ValueTextCL(const wchar_t* wide);
    ValueTextCL(const std::wstring& wide)
        : ValueTextCL(wide.c_str())
    {
    }
    // The text in UTF-16; empty when it is none.
    std::wstring WideM() const
    {
        return std::wstring(text_.begin(), text_.end());
    }
    // The same into a buffer, as for GbkM; sizes are units of UTF-16.
    int WideM(wchar_t* buffer, int size) const;
#endif

private:
    std::u16string text_;
    bool isNone_ { false };
};
