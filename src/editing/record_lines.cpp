#include "editing/record_lines.h"
#include "baselib/number_text.h"

namespace {

bool isLineBlank(char byte)
{
    return byte != '\n' && slIsBlank(byte);
}

} // namespace

std::string lineEndNear(std::string_view bytes, std::size_t at)
{
    std::size_t feed = bytes.find('\n', at);
    if (feed == std::string_view::npos) {
        feed = bytes.find('\n');
    }
    const bool isCrLf = feed != std::string_view::npos && feed > 0 && bytes[feed - 1] == '\r';
    return isCrLf ? "\r\n" : "\n";
}

RecordLinesCL::RecordLinesCL(std::string_view bytes, const SeenSectionCL& section)
    : bytes_(bytes)
    , section_(section)
    , lineEnd_(lineEndNear(bytes, section.head.headerSpan.begin))
{
}

std::optional<std::size_t> RecordLinesCL::lineBeginM(int record) const
{
    std::size_t at = section_.FirstM(record)->begin;
    while (at > 0 && isLineBlank(bytes_[at - 1])) {
        --at;
    }
    return at == 0 || bytes_[at - 1] == '\n' ? std::optional<std::size_t>(at) : std::nullopt;
}

std::optional<std::size_t> RecordLinesCL::behindLineM(std::size_t at) const
{
    while (at < bytes_.size() && isLineBlank(bytes_[at])) {
        ++at;
    }
    if (at == bytes_.size()) {
        return at;
    }
    return bytes_[at] == '\n' ? std::optional<std::size_t>(at + 1) : std::nullopt;
}

RecordTextCL RecordLinesCL::CutM(int record, std::size_t* begin) const
{
    const std::optional<std::size_t> lineBegin = lineBeginM(record);
    const std::optional<std::size_t> behind = behindLineM(lastM(record).end);
    if (!lineBegin || !behind) {
        const SpanCL values = ValuesM(record);
        *begin = values.begin;
        return { std::string(bytes_.substr(values.begin, values.end - values.begin)), "" };
    }
    *begin = *lineBegin;
    std::size_t end = *behind;
    if (hasLineEndM(end)) {
        --end;
        end -= end > *lineBegin && bytes_[end - 1] == '\r' ? 1 : 0;
    }
    return { std::string(bytes_.substr(*lineBegin, end - *lineBegin)),
        std::string(bytes_.substr(end, *behind - end)) };
}

TextChangeCL RecordLinesCL::DeletingM(int first, int last) const
{
    const SpanCL values { ValuesM(first).begin, ValuesM(last).end };
    const std::optional<std::size_t> lineBegin = lineBeginM(first);
    const std::optional<std::size_t> behind = behindLineM(values.end);
    if (lineBegin && behind) {
        return { { *lineBegin, *behind }, "" };
    }
    if (behind) { // Others begin its first line.
        std::size_t begin = values.begin;
        while (isLineBlank(bytes_[begin - 1])) {
            --begin;
        }
        return { { begin, values.end }, "" };
    }
    std::size_t end = values.end; // Others end its last one.
    while (isLineBlank(bytes_[end])) {
        ++end;
    }
    const bool isJoined = values.begin > 0 && !slIsBlank(bytes_[values.begin - 1]);
    return { { values.begin, end }, isJoined ? " " : "" };
}

TextChangeCL RecordLinesCL::InsertingM(int before, const RecordTextCL& text) const
{
    if (section_.RecordsM() == 0) {
        return insertingBehindM(behindHeadM(), text);
    }
    if (before == section_.RecordsM()) {
        return insertingBehindM(lastM(before - 1).end, text);
    }
    const std::string lines = text.lines + (text.lineEnd.empty() ? lineEnd_ : text.lineEnd);
    if (const std::optional<std::size_t> lineBegin = lineBeginM(before)) {
        return { { *lineBegin, *lineBegin }, lines };
    }
    const std::size_t at = section_.FirstM(before)->begin;
    return { { at, at }, (slIsBlank(bytes_[at - 1]) ? "" : " ") + lines };
}

TextChangeCL RecordLinesCL::insertingBehindM(std::size_t at, const RecordTextCL& text) const
{
    const std::string& lineEnd = text.lineEnd.empty() ? lineEnd_ : text.lineEnd;
    if (at == 0 || bytes_[at - 1] == '\n') {
        return { { at, at }, text.lines + lineEnd };
    }
    const std::optional<std::size_t> behind = behindLineM(at);
    if (behind && hasLineEndM(*behind)) {
        return { { *behind, *behind }, text.lines + lineEnd };
    }
    return behind ? TextChangeCL { { *behind, *behind }, lineEnd_ + text.lines }
                  : TextChangeCL { { at, at }, lineEnd_ + text.lines + lineEnd };
}

std::size_t RecordLinesCL::behindHeadM() const
{
    return section_.head.status == SectionStatus::Empty ? slEndOfEmptyHead(section_, bytes_)
                                                        : section_.head.comments.end;
}
