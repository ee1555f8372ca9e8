#include "baselib/gbk.h"
#include "baselib/gbk_table.h"
#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr char16_t Replacement = 0xFFFD;
constexpr char16_t Euro = 0x20AC;
constexpr char EuroByte = static_cast<char>(0x80);
constexpr char16_t NoLead = 0xF8F5; // What the platform makes of the one byte that is neither ASCII nor lead.
constexpr char NoLeadByte = static_cast<char>(0xFF);

char16_t decodePair(char lead, char trail)
{
    const int column = static_cast<unsigned char>(trail) - 0x40;
    return gbkTable[static_cast<unsigned char>(lead) - 0x81][column > 0x3F ? column - 1 : column];
}

char16_t decodeByte(char byte)
{
    if (static_cast<unsigned char>(byte) < 0x80) {
        return static_cast<char16_t>(byte);
    }
    return byte == EuroByte ? Euro : Replacement;
}

template <typename Store> void decode(const char* text, std::size_t length, Store store)
{
    const char* const end = text + length;
    for (const char* at = text; at < end;) {
        const int bytes = slGbkCharLength(at, end);
        store(bytes == 2 ? decodePair(at[0], at[1]) : decodeByte(*at));
        at += bytes;
    }
}

void appendUtf8(std::string& out, std::uint32_t code)
{
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        if (code < 0x10000) {
            out += static_cast<char>(0xE0 | (code >> 12));
        } else {
            out += static_cast<char>(0xF0 | (code >> 18));
            out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
        }
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

bool isHighHalf(char16_t code)
{
    return code >= 0xD800 && code <= 0xDBFF;
}
bool isLowHalf(char16_t code)
{
    return code >= 0xDC00 && code <= 0xDFFF;
}

// From UTF-16 to the two bytes of a pair, 0 where there is none.
const std::vector<std::uint16_t>& encodingTable()
{
    static const std::vector<std::uint16_t> table = [] {
        std::vector<std::uint16_t> made(0x10000);
        for (int lead = 0; lead < GbkLeadCount; ++lead) {
            for (int column = 0; column < GbkTrailCount; ++column) {
                const int trail = column + (column >= 0x3F ? 0x41 : 0x40);
                made[gbkTable[lead][column]] = static_cast<std::uint16_t>(((lead + 0x81) << 8) | trail);
            }
        }
        return made;
    }();
    return table;
}

bool appendGbk(std::string& out, std::uint32_t code)
{
    if (code < 0x80) {
        out += static_cast<char>(code);
        return true;
    }
    if (code == Euro) {
        out += EuroByte;
        return true;
    }
    const std::uint16_t pair = code < 0x10000 ? encodingTable()[code] : std::uint16_t { 0 };
    if (pair == 0) {
        out += '?';
        return false;
    }
    out += static_cast<char>(pair >> 8);
    out += static_cast<char>(pair & 0xFF);
    return true;
}

// Decodes the character at `at` and moves past it; Replacement for a byte that doesn't belong.
std::uint32_t takeUtf8(const char*& at, const char* end)
{
    const unsigned char first = static_cast<unsigned char>(*at++);
    if (first < 0x80) {
        return first;
    }
    const int more = first >= 0xF0 && first < 0xF5 ? 3
        : first >= 0xE0 && first < 0xF0            ? 2
        : first >= 0xC2 && first < 0xE0            ? 1
                                                   : 0;
    if (more == 0 || end - at < more) {
        return Replacement;
    }
    std::uint32_t code = first & (0x3F >> more);
    for (int k = 0; k < more; ++k) {
        const unsigned char next = static_cast<unsigned char>(at[k]);
        if ((next & 0xC0) != 0x80) {
            return Replacement;
        }
        code = (code << 6) | (next & 0x3F);
    }
    const std::uint32_t least[] = { 0, 0x80, 0x800, 0x10000 };
    if (code < least[more]) {
        return Replacement;
    }
    at += more;
    return code;
}

} // namespace

std::size_t slGbkCutLength(const char* text, std::size_t length, std::size_t most)
{
    if (text == nullptr) {
        return 0;
    }
    if (length <= most) {
        return length;
    }
    std::size_t at = 0;
    for (;;) {
        const std::size_t next = at + slGbkCharLength(text + at, text + length);
        if (next > most) {
            return at;
        }
        at = next;
    }
}

int slCopyText(char* to, int size, const char* from)
{
    if (to == nullptr || size < 1) {
        return 0;
    }
    const char* const text = from != nullptr ? from : "";
    // A text need not be measured beyond what fits and the byte behind it.
    std::size_t length = 0;
    while (length <= static_cast<std::size_t>(size) && text[length] != '\0') {
        ++length;
    }
    return slCopyText(to, size, std::string_view(text, length));
}

int slCopyText(char* to, int size, std::string_view from)
{
    if (to == nullptr || size < 1) {
        return 0;
    }
    const std::size_t kept = slGbkCutLength(from.data(), from.size(), static_cast<std::size_t>(size) - 1);
    if (kept != 0) {
        std::memmove(to, from.data(), kept);
    }
    to[kept] = '\0';
    return static_cast<int>(kept);
}

void slCutText(char* text, int most)
{
    if (text != nullptr) {
        text[slGbkCutLength(text, std::strlen(text), most > 0 ? static_cast<std::size_t>(most) : 0)] = '\0';
    }
}

std::u16string slGbkToUtf16(const char* text)
{
    return slGbkToUtf16(text, text != nullptr ? std::strlen(text) : 0);
}

std::u16string slGbkToUtf16(const char* text, std::size_t length)
{
    std::u16string out;
    decode(text, text != nullptr ? length : 0, [&out](char16_t code) { out += code; });
    return out;
}

std::u16string slGbkToShownUtf16(const char* text)
{
    std::u16string out;
    const char* const end = text + (text != nullptr ? std::strlen(text) : 0);
    for (const char* at = text; at < end;) {
        const bool broken = slGbkIsLead(*at) && slGbkCharLength(at, end) == 1;
        if (broken) {
            out += u'?';
            at += std::min<std::ptrdiff_t>(2, end - at);
        } else if (slGbkIsLead(*at)) {
            out += decodePair(at[0], at[1]);
            at += 2;
        } else {
            out += *at == NoLeadByte ? NoLead : decodeByte(*at);
            ++at;
        }
    }
    return out;
}

std::string slGbkToUtf8(const char* text)
{
    return slGbkToUtf8(text, text != nullptr ? std::strlen(text) : 0);
}

std::string slGbkToUtf8(const char* text, std::size_t length)
{
    std::string out;
    decode(text, text != nullptr ? length : 0, [&out](char16_t code) {
        const bool privateUse = code >= 0xE000 && code <= 0xF8FF;
        appendUtf8(out, privateUse ? Replacement : code);
    });
    return out;
}

std::string slUtf16ToGbk(const char16_t* text, std::size_t length, int* lost)
{
    std::string out;
    int missing = 0;
    for (std::size_t k = 0; text != nullptr && k < length; ++k) {
        missing += appendGbk(out, text[k]) ? 0 : 1;
        if (isHighHalf(text[k]) && k + 1 < length && isLowHalf(text[k + 1])) {
            ++k; // The two halves are one character.
        }
    }
    if (lost != nullptr) {
        *lost = missing;
    }
    return out;
}

std::string slUtf8ToGbk(const std::string& text, int* lost)
{
    std::string out;
    int missing = 0;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        missing += appendGbk(out, takeUtf8(at, end)) ? 0 : 1;
    }
    if (lost != nullptr) {
        *lost = missing;
    }
    return out;
}

std::u16string slUtf8ToUtf16(const std::string& text)
{
    std::u16string out;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at < end;) {
        const std::uint32_t code = takeUtf8(at, end);
        if (code < 0x10000) {
            const auto unit = static_cast<char16_t>(code);
            out += isHighHalf(unit) || isLowHalf(unit) ? Replacement : unit;
        } else {
            out += code > 0x10FFFF ? Replacement : static_cast<char16_t>(0xD7C0 + (code >> 10));
            out.append(code > 0x10FFFF ? 0 : 1, static_cast<char16_t>(0xDC00 + (code & 0x3FF)));
        }
    }
    return out;
}

std::string slUtf16ToUtf8(const char16_t* text, std::size_t length)
{
    std::string out;
    for (std::size_t k = 0; text != nullptr && k < length; ++k) {
        const bool isPair = isHighHalf(text[k]) && k + 1 < length && isLowHalf(text[k + 1]);
        if (isPair) {
            appendUtf8(out, 0x10000U + ((text[k] - 0xD800U) << 10) + (text[k + 1] - 0xDC00U));
            ++k;
        } else {
            appendUtf8(out, isHighHalf(text[k]) || isLowHalf(text[k]) ? Replacement : text[k]);
        }
    }
    return out;
}
