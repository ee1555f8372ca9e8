#include "controls/base/control_value.h"
#include "baselib/number_text.h"
#include "baselib/real_text.h"
#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

std::string numberText(int number)
{
    char text[16];
    return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

std::string numberText(float number)
{
    char text[64];
    return std::string(text, slWriteShortest(text, number));
}

// The number that the whole text is.
template <class NumberTP> std::optional<NumberTP> wholeNumber(const std::string& text)
{
    NumberTP number {};
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional<NumberTP>(number) : std::nullopt;
}

template <> std::optional<float> wholeNumber<float>(const std::string& text)
{
    const bool isNegative = !text.empty() && text[0] == '-';
    std::string word = text.substr(isNegative ? 1 : 0);
    std::transform(word.begin(), word.end(), word.begin(),
        [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    float number = 0;
    if (word == "inf" || word == "infinity") {
        number = INFINITY;
    } else if (word == "nan") {
        number = NAN;
    } else {
        const char* const begin = word.data();
        const char* const end = begin + word.size();
        const bool isNumber
            = !word.empty() && word[0] != '+' && word[0] != '-' && slReadReal(begin, end, &number) == end;
        if (!isNumber || !slNearestReal(begin, end, &number)) {
            return std::nullopt;
        }
    }
    return isNegative ? -number : number;
}

std::string linesText(const std::vector<int>& lines)
{
    std::string text;
    for (const int line : lines) {
        text += (text.empty() ? "" : " ") + numberText(line);
    }
    return text;
}

std::optional<std::vector<int>> linesOfText(const std::string& text)
{
    std::vector<int> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const auto line = wholeNumber<int>(text.substr(at, end - at));
        if (!line || end + 1 == text.size()) {
            return std::nullopt;
        }
        lines.push_back(*line);
        at = end + 1;
    }
    return lines;
}

// The two sides of the first separator; without one nothing.
std::optional<std::pair<std::string, std::string>> halves(const std::string& text, char separator)
{
    const std::size_t at = text.find(separator);
    if (at == std::string::npos) {
        return std::nullopt;
    }
    return std::pair(text.substr(0, at), text.substr(at + 1));
}

} // namespace

unsigned ControlValueCL::PartsM() const
{
    return (checked ? CheckedPart : 0U) | (number ? NumberPart : 0U) | (real ? RealPart : 0U)
        | (text && !text->IsNoneM() ? TextPart : 0U) | (lines ? LinesPart : 0U)
        | (path && !path->IsNoneM() ? PathPart : 0U);
}

bool ControlValueCL::IsOfM(unsigned parts) const
{
    const bool hasNone = (text && text->IsNoneM()) || (path && path->IsNoneM());
    return !hasNone && PartsM() != NoPart && (PartsM() & ~parts) == 0;
}

ControlValueCL ControlValueCL::OnlyM(unsigned parts) const
{
    ControlValueCL only;
    const auto take = [this, parts, &only](auto member, ValuePart part) {
        if ((parts & part) != 0) {
            only.*member = this->*member;
        }
    };
    take(&ControlValueCL::checked, CheckedPart);
    take(&ControlValueCL::number, NumberPart);
    take(&ControlValueCL::real, RealPart);
    take(&ControlValueCL::text, TextPart);
    take(&ControlValueCL::lines, LinesPart);
    take(&ControlValueCL::path, PathPart);
    return only;
}

std::string ControlValueCL::SavedM() const
{
    std::string saved;
    if (checked) {
        saved += *checked ? '1' : '0';
    }
    if (real) {
        saved += numberText(*real) + (number ? " " : "");
    }
    if (number) {
        saved += numberText(*number);
    }
    if (lines) {
        saved += lines->empty() && text ? "-1" : linesText(*lines);
    }
    if (text) {
        saved += (lines ? "=" : "") + text->Utf8M();
    }
    return path ? saved + path->Utf8M() : saved;
}

std::optional<ControlValueCL> ControlValueCL::FromSavedM(const std::string& saved, unsigned parts)
{
    ControlValueCL value;
    switch (parts) {
    case CheckedPart:
        if (saved == "1" || saved == "0") {
            value.checked = saved == "1";
        }
        break;
    case NumberPart:
        value.number = wholeNumber<int>(saved);
        break;
    case RealPart:
        value.real = wholeNumber<float>(saved);
        break;
    case RealPart | NumberPart:
        if (const auto pair = halves(saved, ' ')) {
            value.real = wholeNumber<float>(pair->first);
            value.number = wholeNumber<int>(pair->second);
        }
        break;
    case TextPart:
        value.text = ValueTextCL::FromUtf8M(saved);
        break;
    case LinesPart:
        value.lines = linesOfText(saved);
        break;
    case LinesPart | TextPart:
        if (const auto pair = halves(saved, '=')) {
            value.lines = pair->first == "-1" ? std::vector<int>() : linesOfText(pair->first);
            value.text = ValueTextCL::FromUtf8M(pair->second);
        }
        break;
    case PathPart:
        value.path = ValueTextCL::FromUtf8M(saved);
        break;
    default:
        break;
    }
    return parts != NoPart && value.PartsM() == parts ? std::optional(value) : std::nullopt;
}

std::optional<std::vector<int>> ControlValueCL::LinesOfM(int count, bool many) const
{
    if (!lines) {
        return std::nullopt;
    }
    std::vector<int> sorted = *lines;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const bool exist = sorted.empty() || (sorted.front() >= 0 && sorted.back() < count);
    return exist && (many || sorted.size() <= 1) ? std::optional(sorted) : std::nullopt;
}
