#include "encodings.h"
#include "baselib/gbk.h"
#include "commands.h"
#include <algorithm>
#include <cstdint>

namespace {

const std::string Utf8Mark = "\xEF\xBB\xBF";

bool startsWith(const std::string& bytes, const std::string& begin)
{
    return bytes.compare(0, begin.size(), begin) == 0;
}

// The character at an offset, which is in the file.
CharacterCL gbkCharacter(const std::string& bytes, std::size_t at)
{
    const char* const begin = bytes.data() + at;
    const auto length = static_cast<std::size_t>(slGbkCharLength(begin, bytes.data() + bytes.size()));
    const char16_t code = slGbkToUtf16(begin, length)[0];
    return { code == 0xFFFD ? NoCharacter : char32_t { code }, { at, at + length } };
}

CharacterCL utf8Character(const std::string& bytes, std::size_t at)
{
    const auto byteAt = [&bytes](std::size_t place) {
        return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0U;
    };
    const unsigned first = byteAt(at);
    const std::size_t length = first < 0x80 ? 1
        : first < 0xC2                      ? 0
        : first < 0xE0                      ? 2
        : first < 0xF0                      ? 3
        : first < 0xF5                      ? 4
                                            : 0;
    char32_t code = length < 2 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(at + i) & 0xC0U) != 0x80) {
            return { NoCharacter, { at, at + 1 } };
        }
        code = code << 6 | (byteAt(at + i) & 0x3FU);
    }
    constexpr char32_t Least[] = { 0, 0, 0x80, 0x800, 0x10000 };
    if (length == 0 || code < Least[length] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) {
        return { NoCharacter, { at, at + 1 } };
    }
    return { code, { at, at + length } };
}

CharacterCL utf16Character(const std::string& bytes, std::size_t at, Encoding encoding)
{
    const auto unitAt = [&bytes, encoding](std::size_t place) -> char32_t {
        if (place + 2 > bytes.size()) {
            return 0;
        }
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        return encoding == Encoding::Utf16Low ? first | second << 8 : second | first << 8;
    };
    if (at + 2 > bytes.size()) {
        return { NoCharacter, { at, bytes.size() } };
    }
    const char32_t first = unitAt(at);
    const char32_t second = unitAt(at + 2);
    if (first < 0xD800 || first > 0xDFFF) {
        return { first, { at, at + 2 } };
    }
    if (first > 0xDBFF || second < 0xDC00 || second > 0xDFFF) {
        return { NoCharacter, { at, at + 2 } };
    }
    return { 0x10000 + ((first & 0x3FF) << 10) + (second & 0x3FF), { at, at + 4 } };
}

// How well bytes agree with an encoding.
struct AgreementCL
{
    std::size_t faults { 0 };
    bool hasLong { false }; // Three bytes or more that are one character: not by accident.
};

AgreementCL agreementWith(const std::string& bytes, Encoding encoding)
{
    AgreementCL agreement;
    for (std::size_t at = 0; at < bytes.size();) {
        const CharacterCL character = characterAt(bytes, at, encoding);
        agreement.faults += character.code == NoCharacter ? 1 : 0;
        agreement.hasLong = agreement.hasLong || character.span.end - at > 2;
        at = character.span.end;
    }
    return agreement;
}

} // namespace

CharacterCL characterAt(const std::string& bytes, std::size_t at, Encoding encoding)
{
    return encoding == Encoding::Gbk ? gbkCharacter(bytes, at)
        : encoding == Encoding::Utf8 ? utf8Character(bytes, at)
                                     : utf16Character(bytes, at, encoding);
}

const char* encodingName(Encoding encoding)
{
    return encoding == Encoding::Gbk ? "GBK" : encoding == Encoding::Utf8 ? "UTF-8" : "UTF-16";
}

Encoding encodingOf(const std::string& bytes)
{
    if (startsWith(bytes, Utf8Mark)) {
        return Encoding::Utf8;
    }
    const bool hasTwo = bytes.size() >= 2;
    if (startsWith(bytes, "\xFF\xFE") || (hasTwo && bytes[0] != '\0' && bytes[1] == '\0')) {
        return Encoding::Utf16Low;
    }
    if (startsWith(bytes, "\xFE\xFF") || (hasTwo && bytes[0] == '\0' && bytes[1] != '\0')) {
        return Encoding::Utf16High;
    }
    const bool isAscii
        = std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
    const AgreementCL gbk = agreementWith(bytes, Encoding::Gbk);
    const AgreementCL utf8 = agreementWith(bytes, Encoding::Utf8);
    const bool isUtf8
        = utf8.faults == 0 || utf8.faults < gbk.faults || (utf8.faults == gbk.faults && utf8.hasLong);
    return isAscii || !isUtf8 ? Encoding::Gbk : Encoding::Utf8;
}

int complainOfEncoding(const std::string& file, Encoding encoding)
{
    return complain("'" + file + "' is " + encodingName(encoding)
        + ", which gives an empty dialog (panelkit convert '" + file + "' brings it into GBK)");
}

std::size_t textBegin(const std::string& bytes, Encoding encoding)
{
    if (encoding == Encoding::Utf8) {
        return startsWith(bytes, Utf8Mark) ? Utf8Mark.size() : 0;
    }
    return encoding != Encoding::Gbk && (startsWith(bytes, "\xFF\xFE") || startsWith(bytes, "\xFE\xFF")) ? 2
                                                                                                         : 0;
}

bool appendEncoded(std::string& bytes, char32_t code, Encoding encoding)
{
    if (code == NoCharacter) {
        return false;
    }
    if (encoding == Encoding::Gbk) {
        const auto unit = static_cast<char16_t>(code);
        int lost = code > 0xFFFF ? 1 : 0;
        const std::string pair = lost == 0 ? slUtf16ToGbk(&unit, 1, &lost) : "";
        bytes += lost == 0 ? pair : "";
        return lost == 0;
    }
    if (code < 0x80) {
        bytes += static_cast<char>(code);
        return true;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    bytes += static_cast<char>((0xFF00U >> (more + 1) & 0xFFU) | code >> 6 * more);
    for (int i = more - 1; i >= 0; --i) {
        bytes += static_cast<char>(0x80U | (code >> 6 * i & 0x3FU));
    }
    return true;
}
