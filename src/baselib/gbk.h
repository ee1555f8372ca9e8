#pragma once
#include "baselib/api.h"
#include <cstddef>
#include <string>
#include <string_view>

// GBK text (code page 936): a byte 0x81..0xFE followed by 0x40..0x7E or 0x80..0xFE is one character.

// Whether a byte can begin a character of two bytes, or end one.
constexpr bool slGbkIsLead(char code)
{
    const unsigned char value = static_cast<unsigned char>(code);
    return value >= 0x81 && value <= 0xFE;
}

// Whether a byte can end a character of two bytes.
constexpr bool slGbkIsTrail(char code)
{
    const unsigned char value = static_cast<unsigned char>(code);
    return value >= 0x40 && value <= 0xFE && value != 0x7F;
}

// Bytes of the character at `at`: 2 or 1 (also for a byte that belongs to no character); 0 at `end`.
constexpr int slGbkCharLength(const char* at, const char* end)
{
    if (at >= end) {
        return 0;
    }
    return end - at >= 2 && slGbkIsLead(at[0]) && slGbkIsTrail(at[1]) ? 2 : 1;
}

// The largest number of bytes, at most `most`, at which a text of `length` bytes ends between characters.
PANELKIT_API std::size_t slGbkCutLength(const char* text, std::size_t length, std::size_t most);

// Copies into a buffer of `size` bytes with its terminator, cut at a character boundary. Null text counts
// as empty; a null buffer or size below 1: nothing. Result: bytes copied, without the terminator.
PANELKIT_API int slCopyText(char* to, int size, const char* from);
PANELKIT_API int slCopyText(char* to, int size, std::string_view from);

// Cuts a text in place to at most `most` bytes, at a character boundary.
PANELKIT_API void slCutText(char* text, int most);

// Decoding of names for the platform: byte 0x80 is the euro sign, user-defined pairs give the platform's
// private-use codes (so they come back when encoded); a byte that belongs to no character gives U+FFFD. Null
// is empty.
PANELKIT_API std::u16string slGbkToUtf16(const char* text);
PANELKIT_API std::u16string slGbkToUtf16(const char* text, std::size_t length);

// Decoding of what a window shows: the same, but broken bytes as Windows itself converts code page 936. A
// lead byte without its trail is one '?' together with the byte that follows; 0xFF gives U+F8F5.
PANELKIT_API std::u16string slGbkToShownUtf16(const char* text);

// Decoding for printing: the same, but a pair to which code page 936 assigns no character (private-use for
// the platform) is U+FFFD.
PANELKIT_API std::string slGbkToUtf8(const char* text);
PANELKIT_API std::string slGbkToUtf8(const char* text, std::size_t length);

// Encoding: what has no GBK form becomes '?', one for each character; *lost (may be null) receives how many.
PANELKIT_API std::string slUtf16ToGbk(const char16_t* text, std::size_t length, int* lost = nullptr);
PANELKIT_API std::string slUtf8ToGbk(const std::string& text, int* lost = nullptr);

// Between the two Unicode forms: what is no character gives U+FFFD.
PANELKIT_API std::u16string slUtf8ToUtf16(const std::string& text);
PANELKIT_API std::string slUtf16ToUtf8(const char16_t* text, std::size_t length);

#ifdef _WIN32
// As slGbkToUtf16.
inline std::wstring slGbkToWide(const char* text)
{
    const std::u16string wide = slGbkToUtf16(text);
    return std::wstring(wide.begin(), wide.end());
}

// As slGbkToShownUtf16.
inline std::wstring slGbkToShown(const char* text)
{
    const std::u16string wide = slGbkToShownUtf16(text);
    return std::wstring(wide.begin(), wide.end());
}

// As slUtf16ToGbk.
inline std::string slWideToGbk(const std::wstring& text, int* lost = nullptr)
{
    return slUtf16ToGbk(reinterpret_cast<const char16_t*>(text.data()), text.size(), lost);
}
#endif
