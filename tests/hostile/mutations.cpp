#include "hostile/mutations.h"
#include <algorithm>
#include <iterator>

namespace {

using LinesTP = std::vector<std::string>; // Without their line ends.

struct SpanCL
{
    std::size_t begin;
    std::size_t end;
};

LinesTP linesOf(const std::string& bytes)
{
    LinesTP lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        lines.push_back(bytes.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

std::string bytesOf(const LinesTP& lines)
{
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\n";
    }
    return bytes;
}

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\r';
}

std::vector<SpanCL> wordsOf(const std::string& line)
{
    std::vector<SpanCL> words;
    for (std::size_t at = 0; at < line.size();) {
        if (isBlank(line[at])) {
            ++at;
            continue;
        }
        std::size_t end = at;
        while (end < line.size() && !isBlank(line[end])) {
            ++end;
        }
        words.push_back({ at, end });
        at = end;
    }
    return words;
}

bool isNumber(const std::string& line, const SpanCL& word)
{
    const std::string text = line.substr(word.begin, word.end - word.begin);
    return text.find_first_not_of("+-.0123456789eE") == std::string::npos
        && text.find_first_of("0123456789") != std::string::npos;
}

bool isPicture(const std::string& line, const SpanCL& word)
{
    return word.end - word.begin > 4 && line.compare(word.end - 4, 4, ".bmp") == 0;
}

// A word of the kind that the condition tells, in any line; false: none was met.
template <class ConditionTP>
bool findWord(std::mt19937& random, const LinesTP& lines, ConditionTP&& fits, std::size_t* line, SpanCL* word)
{
    for (int tries = 0; tries < 200 && !lines.empty(); ++tries) {
        *line = below(random, lines.size());
        const auto words = wordsOf(lines[*line]);
        if (!words.empty()) {
            *word = words[below(random, words.size())];
            if (fits(lines[*line], *word)) {
                return true;
            }
        }
    }
    return false;
}

void replaceWord(std::string& line, const SpanCL& word, const std::string& with)
{
    line.replace(word.begin, word.end - word.begin, with);
}

// From the line of a section's name up to the next one's.
SpanCL sectionAt(const LinesTP& lines, std::size_t at)
{
    const auto isName = [&lines](std::size_t i) { return !lines[i].empty() && lines[i][0] == '['; };
    std::size_t begin = at;
    while (begin > 0 && !isName(begin)) {
        --begin;
    }
    std::size_t end = at + 1;
    while (end < lines.size() && !isName(end)) {
        ++end;
    }
    return { begin, end };
}

std::string longText(std::mt19937& random)
{
    static const std::size_t Lengths[]
        = { 49, 50, 51, 126, 127, 128, 129, 257, 258, 259, 260, 261, 1000, 10000, 70000 };
    static const char* const Units[] = { "x", "\xD6\xD0", "\x81\x40", "\xFE", "-9", "a\xB1", "&&", "%s%n" };
    const std::size_t length = Lengths[below(random, std::size(Lengths))];
    const std::string unit = Units[below(random, std::size(Units))];
    std::string text;
    while (text.size() < length) {
        text += unit;
    }
    return text.substr(0, length);
}

void exchangePicture(std::mt19937& random, LinesTP& lines, const std::vector<std::string>& pictures)
{
    std::size_t line = 0;
    SpanCL word {};
    if (!pictures.empty() && findWord(random, lines, isPicture, &line, &word)) {
        replaceWord(lines[line], word, pictures[below(random, pictures.size())]);
    }
}

void giveForeignFields(std::mt19937& random, LinesTP& lines)
{
    const auto isAny = [](const std::string&, const SpanCL&) { return true; };
    std::size_t line = 0;
    std::size_t other = 0;
    SpanCL word {};
    SpanCL otherWord {};
    if (!findWord(random, lines, isAny, &line, &word)
        || !findWord(random, lines, isAny, &other, &otherWord)) {
        return;
    }
    if (below(random, 3) == 0) {
        lines[line] = lines[other];
    } else {
        replaceWord(lines[line], word, lines[other].substr(otherWord.begin, otherWord.end - otherWord.begin));
    }
}

void giveExtremeNumber(std::mt19937& random, LinesTP& lines)
{
    static const char* const Extremes[] = { "0", "-1", "1", "2", "3", "2147483647", "-2147483648", "1000000",
        "-1000000", "65535", "65536", "32767", "32768", "99999999999", "1e30", "0.5", "-0" };
    std::size_t line = 0;
    SpanCL word {};
    if (findWord(random, lines, isNumber, &line, &word)) {
        replaceWord(lines[line], word, Extremes[below(random, std::size(Extremes))]);
    }
}

void merge(std::mt19937& random, LinesTP& lines, const LinesTP& other)
{
    if (other.empty()) {
        return;
    }
    const SpanCL taken = sectionAt(other, below(random, other.size()));
    const SpanCL place = lines.empty() ? SpanCL {} : sectionAt(lines, below(random, lines.size()));
    const auto at = [&lines](std::size_t line) {
        return lines.begin() + static_cast<std::ptrdiff_t>(std::min(line, lines.size()));
    };
    if (below(random, 2) == 0) {
        lines.erase(at(place.begin), at(place.end));
    }
    lines.insert(at(place.begin), other.begin() + static_cast<std::ptrdiff_t>(taken.begin),
        other.begin() + static_cast<std::ptrdiff_t>(taken.end));
}

} // namespace

const char* nameOfMutation(int mutation)
{
    static const char* const Names[]
        = { "bytes flipped", "extreme numbers", "lines deleted", "lines doubled", "lines swapped",
              "section merged", "fields of others", "long texts", "file cut", "pictures exchanged" };
    static_assert(std::size(Names) == Mutations);
    return Names[mutation];
}

MutatorCL::MutatedCL MutatorCL::MakeM(std::mt19937& random) const
{
    MutatedCL made;
    made.bytes = files_[below(random, files_.size())];
    for (std::size_t left = 1 + below(random, 4); left > 0; --left) {
        const int mutation = static_cast<int>(below(random, Mutations));
        made.mutations.push_back(mutation);
        LinesTP lines = linesOf(made.bytes);
        for (std::size_t times = 1 + below(random, 4); times > 0 && !lines.empty(); --times) {
            const std::size_t at = below(random, lines.size());
            const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
            std::size_t line = 0;
            SpanCL word {};
            switch (mutation) {
            case FlippedBytes:
                if (!lines[at].empty()) {
                    char& byte = lines[at][below(random, lines[at].size())];
                    byte = static_cast<char>(byte ^ 1 << below(random, 8));
                }
                break;
            case ExtremeNumbers:
                giveExtremeNumber(random, lines);
                break;
            case DeletedLines:
                lines.erase(place);
                break;
            case DoubledLines:
                lines.insert(place, lines[at]);
                break;
            case SwappedLines:
                std::swap(lines[at], lines[below(random, lines.size())]);
                break;
            case ForeignFields:
                giveForeignFields(random, lines);
                break;
            case LongTexts:
                if (below(random, 2) == 0) {
                    lines[at] = longText(random);
                } else if (findWord(
                               random, lines,
                               [](const std::string& of, const SpanCL& a) { return !isNumber(of, a); }, &line,
                               &word)) {
                    replaceWord(lines[line], word, longText(random));
                }
                break;
            case ExchangedPictures:
                exchangePicture(random, lines, pictures_);
                break;
            default:
                break;
            }
        }
        if (mutation == MergedSection) {
            merge(random, lines, linesOf(files_[below(random, files_.size())]));
        }
        made.bytes = bytesOf(lines);
        if (mutation == CutFile) {
            made.bytes.resize(below(random, made.bytes.size()));
        }
    }
    return made;
}
