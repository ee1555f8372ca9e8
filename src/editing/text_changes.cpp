#include "editing/text_changes.h"

bool slAreInOrder(const TextChangesTP& changes, std::size_t size)
{
    std::size_t at = 0;
    for (const TextChangeCL& change : changes) {
        if (change.span.begin < at || change.span.end < change.span.begin || change.span.end > size) {
            return false;
        }
        at = change.span.end;
    }
    return true;
}

std::string slWithChanges(std::string_view text, const TextChangesTP& changes)
{
    std::string result;
    result.reserve(text.size() + 64);
    std::size_t at = 0;
    for (const TextChangeCL& change : changes) {
        result += text.substr(at, change.span.begin - at);
        result += change.text;
        at = change.span.end;
    }
    result += text.substr(at);
    return result;
}

TextChangesTP slUndoing(std::string_view text, const TextChangesTP& changes)
{
    TextChangesTP undoing;
    std::size_t more = 0; // By which the changed text is ahead; it wraps around where it is behind.
    for (const TextChangeCL& change : changes) {
        const SpanCL span = change.span;
        undoing.push_back({ { span.begin + more, span.begin + more + change.text.size() },
            std::string(text.substr(span.begin, span.end - span.begin)) });
        more += change.text.size() - (span.end - span.begin);
    }
    return undoing;
}
