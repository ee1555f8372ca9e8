#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "check.h"
#include "section_layout.h"
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

// Bytes of the UTF-8 character there; 0 where none stands.
std::size_t utf8Length(std::string_view bytes, std::size_t at)
{
    const auto byte = static_cast<unsigned char>(bytes[at]);
    const std::size_t length = byte < 0x80 ? 1
        : byte >= 0xC2 && byte < 0xE0      ? 2
        : byte >= 0xE0 && byte < 0xF0      ? 3
        : byte >= 0xF0 && byte < 0xF5      ? 4
                                           : 0;
    if (length == 0 || at + length > bytes.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((static_cast<unsigned char>(bytes[at + i]) & 0xC0) != 0x80) {
            return 0;
        }
    }
    return length;
}

// Where the first character beyond ASCII stands in a UTF-8 text; npos for any other text.
std::size_t firstOfUtf8(std::string_view bytes)
{
    std::size_t first = std::string_view::npos;
    for (std::size_t at = 0, length = 0; at < bytes.size(); at += length) {
        length = utf8Length(bytes, at);
        if (length == 0) {
            return std::string_view::npos;
        }
        if (length > 1 && first == std::string_view::npos) {
            first = at;
        }
    }
    return first;
}

bool hasAnyHeader(std::string_view bytes)
{
    for (const GrammarCL& grammar : slGrammars()) {
        if (bytes.find(grammar.header) != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

bool isUtf16(std::string_view bytes)
{
    if (bytes.size() >= 2 && (bytes.substr(0, 2) == "\xFF\xFE" || bytes.substr(0, 2) == "\xFE\xFF")) {
        return true;
    }
    // Without a mark: every other byte of its ASCII characters is NUL.
    std::size_t nuls = 0;
    for (std::size_t at = bytes.find('\0'); at != std::string_view::npos; at = bytes.find('\0', at + 1)) {
        ++nuls;
    }
    return bytes.size() % 2 == 0 && nuls * 5 > bytes.size();
}

// Behind the ASCII characters that stand there, perhaps not all of them.
std::size_t skipAscii(std::string_view bytes, std::size_t at)
{
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    std::uint64_t word = 0;
    for (; at + sizeof word <= bytes.size(); at += sizeof word) {
        std::memcpy(&word, bytes.data() + at, sizeof word);
        if ((word & HighBits) != 0) {
            break;
        }
    }
    return at;
}

} // namespace

bool checkEncoding(const FileTextCL& text, FindingsCL& findings)
{
    const std::string_view bytes = text.CutM({ 0, text.SizeM() });
    if (isUtf16(bytes)) {
        findings.AddM(Says::FileIsUtf16, 0);
        return false;
    }
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF") {
        findings.AddM(Says::FileIsUtf8, 0);
        return false;
    }
    for (std::size_t at = skipAscii(bytes, 0); at < bytes.size();) {
        const char* const begin = bytes.data() + at;
        const int length = slGbkCharLength(begin, bytes.data() + bytes.size());
        const auto byte = static_cast<unsigned char>(*begin);
        if (length == 1 && byte > 0x80) {
            const std::size_t utf8 = firstOfUtf8(bytes);
            char shown[8];
            std::snprintf(shown, sizeof shown, "0x%02X", byte);
            if (utf8 != std::string_view::npos) {
                findings.AddM(Says::FileIsUtf8, utf8);
            } else {
                findings.AddM(Says::NoGbkByte, at, { shown });
            }
            return false;
        }
        at += static_cast<std::size_t>(length);
        at = length == 1 ? skipAscii(bytes, at) : at;
    }
    // Chinese UTF-8 may happen to be bytes of GBK, but then it has no header that the library knows.
    const std::size_t utf8 = hasAnyHeader(bytes) ? std::string_view::npos : firstOfUtf8(bytes);
    if (utf8 != std::string_view::npos) {
        findings.AddM(Says::FileIsUtf8, utf8);
        return false;
    }
    if (nextText(bytes, 0, bytes.size()) == bytes.size()) {
        findings.AddM(Says::EmptyFile, 0);
        return false;
    }
    return true;
}
