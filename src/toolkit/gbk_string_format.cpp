#include "baselib/gbk.h"
#include "toolkit/gbk_string.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// One conversion of a format: "%-8.*lld".
struct ConversionTP
{
    const char* end = nullptr; // behind it
    std::string flags;
    int width = -1; // -1: none; Star: a value tells
    int precision = -1;
    std::string size; // "h", "ll", "I64", ...
    char letter = '\0';
};
constexpr int Star = -2;
constexpr int MostRoom = 1 << 20; // A wider field is a mistake in a format, not a wish.

int numberM(const char*& at)
{
    if (*at == '*') {
        ++at;
        return Star;
    }
    int number = 0;
    for (; *at >= '0' && *at <= '9'; ++at) {
        number = std::min(10 * number + (*at - '0'), MostRoom);
    }
    return number;
}

// at: behind the percent sign.
ConversionTP conversionM(const char* at)
{
    ConversionTP spec;
    while (*at != '\0' && std::strchr("-+ #0'", *at) != nullptr) {
        spec.flags += *at++;
    }
    if (*at == '*' || (*at >= '1' && *at <= '9')) {
        spec.width = numberM(at);
    }
    if (*at == '.') {
        spec.precision = numberM(++at);
    }
    for (const char* size : { "I64", "I32", "ll", "hh", "l", "h", "L", "j", "z", "t", "w", "I" }) {
        if (std::strncmp(at, size, std::strlen(size)) == 0) {
            spec.size = size;
            at += spec.size.size();
            break;
        }
    }
    spec.letter = *at;
    spec.end = *at == '\0' ? at : at + 1;
    return spec;
}

bool isIntegerM(char letter)
{
    return letter != '\0' && std::strchr("diouxX", letter) != nullptr;
}
bool isRealM(char letter)
{
    return letter != '\0' && std::strchr("fFeEgGaA", letter) != nullptr;
}

template <class T> std::string printedM(const ConversionTP& spec, const char* size, char letter, T value)
{
    std::string format = "%" + spec.flags;
    format += spec.width >= 0 ? std::to_string(spec.width) : "";
    format += spec.precision >= 0 ? "." + std::to_string(spec.precision) : "";
    format += size;
    format += letter;
    const int length = std::snprintf(nullptr, 0, format.c_str(), value);
    std::string text(static_cast<size_t>(std::max(length, 0)) + 1, '\0');
    std::snprintf(text.data(), text.size(), format.c_str(), value);
    text.pop_back();
    return text;
}

std::string integerTextM(const ConversionTP& spec, char letter, const AfxFormatArgument& value)
{
    unsigned long long bits = value.BitsM();
    const bool isSigned = letter == 'd' || letter == 'i';
    if (spec.size == "hh") {
        bits = isSigned ? static_cast<unsigned long long>(static_cast<signed char>(bits)) : bits & 0xFF;
    } else if (spec.size == "h") {
        bits = isSigned ? static_cast<unsigned long long>(static_cast<short>(bits)) : bits & 0xFFFF;
    } else if (!value.IsLongM()) {
        bits = isSigned ? static_cast<unsigned long long>(static_cast<int>(bits)) : bits & 0xFFFFFFFF;
    }
    return printedM(spec, "ll", letter, bits);
}

std::string paddedM(const ConversionTP& spec, std::string text)
{
    if (spec.width > static_cast<int>(text.size())) {
        const bool left = spec.flags.find('-') != std::string::npos;
        text.insert(left ? text.size() : 0, static_cast<size_t>(spec.width) - text.size(), ' ');
    }
    return text;
}

std::string textOfM(const ConversionTP& spec, const AfxFormatArgument& value)
{
    std::string text = "(null)";
    if (value.PointerM() != nullptr && value.KindM() == AfxFormatArgument::WideTextKind) {
        text = WideToGbk(static_cast<const wchar_t*>(value.PointerM()));
    } else if (value.PointerM() != nullptr) {
        // A text that a precision cuts need not end with a zero.
        const char* const bytes = static_cast<const char*>(value.PointerM());
        const size_t most = spec.precision >= 0 ? static_cast<size_t>(spec.precision) : SIZE_MAX;
        size_t length = 0;
        while (length < most && bytes[length] != '\0') {
            ++length;
        }
        text.assign(bytes, length);
        // Nothing is read beyond the precision: a first byte there counts as half a character.
        if (length == most) {
            size_t whole = 0;
            while (whole < length && !(whole + 1 == length && slGbkIsLead(bytes[whole]))) {
                whole += static_cast<size_t>(slGbkCharLength(bytes + whole, bytes + length));
            }
            text.resize(whole);
        }
        return paddedM(spec, text);
    }
    if (spec.precision >= 0) {
        text.resize(slGbkCutLength(text.data(), text.size(), static_cast<size_t>(spec.precision)));
    }
    return paddedM(spec, text);
}

std::string characterM(const ConversionTP& spec, const AfxFormatArgument& value)
{
    const bool isWide
        = value.IsWideCharacterM() || spec.letter == 'C' || spec.size == "l" || spec.size == "w";
    if (isWide && spec.size != "h") {
        const wchar_t character = static_cast<wchar_t>(value.BitsM());
        return paddedM(spec, WideToGbk(&character, 1));
    }
    return paddedM(spec, std::string(1, static_cast<char>(value.BitsM())));
}

std::string convertedM(const ConversionTP& spec, const AfxFormatArgument& value)
{
    const char letter = spec.letter;
    switch (value.KindM()) {
    case AfxFormatArgument::IntegerKind:
        if (letter == 'c' || letter == 'C') {
            return characterM(spec, value);
        }
        if (isRealM(letter)) {
            return printedM(spec, "", letter, static_cast<double>(static_cast<long long>(value.BitsM())));
        }
        if (letter == 'p') {
            return printedM(spec, "", letter, reinterpret_cast<void*>(static_cast<UINT_PTR>(value.BitsM())));
        }
        return integerTextM(spec, isIntegerM(letter) ? letter : 'd', value);
    case AfxFormatArgument::RealKind: {
        const char shown = isRealM(letter) ? letter : 'g';
        return value.IsLongM() ? printedM(spec, "L", shown, value.RealM())
                               : printedM(spec, "", shown, static_cast<double>(value.RealM()));
    }
    case AfxFormatArgument::PointerKind:
        if (isIntegerM(letter)) {
            return printedM(spec, "ll", letter, reinterpret_cast<UINT_PTR>(value.PointerM()));
        }
        return letter == 's' && value.PointerM() == nullptr ? textOfM(spec, value)
                                                            : printedM(spec, "", 'p', value.PointerM());
    default:
        return letter == 'p' ? printedM(spec, "", 'p', value.PointerM()) : textOfM(spec, value);
    }
}

// The values that a format asks for, in its own types.
std::vector<AfxFormatArgument> valuesM(const char* format, va_list from)
{
    std::vector<AfxFormatArgument> values;
    for (const char* at = format == nullptr ? "" : format; (at = std::strchr(at, '%')) != nullptr;) {
        const ConversionTP spec = conversionM(at + 1);
        at = spec.end;
        for (int number : { spec.width, spec.precision }) {
            if (number == Star) {
                values.emplace_back(va_arg(from, int));
            }
        }
        const std::string& size = spec.size;
        const bool isLong
            = size == "ll" || size == "I64" || size == "j" || size == "z" || size == "t" || size == "I";
        const bool isWide
            = ((spec.letter == 's' && (size == "l" || size == "w")) || spec.letter == 'S') && size != "h";
        if (isIntegerM(spec.letter)) {
            isLong ? values.emplace_back(va_arg(from, long long)) : values.emplace_back(va_arg(from, int));
        } else if (spec.letter == 'c' || spec.letter == 'C') {
            values.emplace_back(va_arg(from, int));
        } else if (isRealM(spec.letter)) {
            size == "L" ? values.emplace_back(va_arg(from, long double))
                        : values.emplace_back(va_arg(from, double));
        } else if (isWide) {
            values.emplace_back(va_arg(from, const wchar_t*));
        } else if (spec.letter == 's' || spec.letter == 'S') {
            values.emplace_back(va_arg(from, const char*));
        } else if (spec.letter == 'p' || spec.letter == 'n') {
            values.emplace_back(va_arg(from, const void*));
        }
    }
    return values;
}

void insertStringsM(CString& to, UINT id, const char* const* strings, int count)
{
    CString format;
    format.LoadString(id);
    CString result;
    int kept = 0;
    for (int at = 0; (at = format.Find('%', at)) >= 0; ++at) {
        const int which = format[at + 1] - '1';
        if (which >= 0 && which < count) {
            result.Append(format.GetString() + kept, at - kept);
            result.Append(strings[which]);
            kept = at + 2;
        }
    }
    result.Append(format.GetString() + kept);
    to = result;
}

} // namespace

void CString::formatM(const char* format, const std::vector<AfxFormatArgument>& values, bool append)
{
    std::string text;
    size_t next = 0;
    const char* at = format == nullptr ? "" : format;
    for (const char* percent; (percent = std::strchr(at, '%')) != nullptr;) {
        text.append(at, percent);
        ConversionTP spec = conversionM(percent + 1);
        at = spec.end;
        if (spec.letter == '%') {
            text += '%';
            continue;
        }
        for (int* number : { &spec.width, &spec.precision }) {
            if (*number == Star && next < values.size()) {
                const int given = static_cast<int>(values[next++].BitsM());
                spec.flags += number == &spec.width && given < 0 ? "-" : "";
                const long long size = number == &spec.width ? std::llabs(given) : given;
                *number = static_cast<int>(std::clamp<long long>(size, -1, MostRoom));
            }
        }
        const bool isKnown = isIntegerM(spec.letter) || isRealM(spec.letter)
            || (spec.letter != '\0' && std::strchr("cCsSp", spec.letter) != nullptr);
        if (spec.letter == 'n') {
            ++next; // Nothing is ever written through a value.
        } else if (isKnown && next < values.size()) {
            text += convertedM(spec, values[next++]);
        } else {
            text.append(percent, at);
        }
    }
    text += at;
    if (append) {
        Append(text.data(), static_cast<int>(text.size()));
    } else {
        *this = CString(text);
    }
}

void CString::FormatV(const char* format, va_list values)
{
    formatM(format, valuesM(format, values), false);
}

void CString::AppendFormatV(const char* format, va_list values)
{
    formatM(format, valuesM(format, values), true);
}

void AfxFormatString1(CString& to, UINT id, const char* one)
{
    insertStringsM(to, id, &one, 1);
}

void AfxFormatString2(CString& to, UINT id, const char* one, const char* two)
{
    const char* const strings[] = { one, two };
    insertStringsM(to, id, strings, 2);
}
