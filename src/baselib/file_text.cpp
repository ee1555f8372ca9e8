#include "baselib/file_text.h"
#include "baselib/character_starts.h"
#include "baselib/gbk.h"
#include <algorithm>
#include <cstdint>
#include <cstring>

FileTextCL::FileTextCL(std::unique_ptr<char[]> bytes, std::size_t size)
    : bytes_(std::move(bytes))
    , size_(size)
{
}

FileTextCL::FileTextCL(std::string_view bytes)
    : FileTextCL(std::unique_ptr<char[]>(new char[bytes.size() + 1]), bytes.size()) // Not zeroed first.
{
    std::copy(bytes.begin(), bytes.end(), bytes_.get());
}

std::string_view FileTextCL::CutM(SpanCL span) const
{
    const std::size_t end = std::min(span.end, size_);
    const std::size_t begin = std::min(span.begin, end);
    return { bytes_.get() + begin, end - begin };
}

PlaceCL FileTextCL::PlaceM(std::size_t offset) const
{
    const char* const bytes = bytes_.get();
    if (lineStarts_.empty()) {
        std::vector<std::size_t> starts { 0 };
        for (const char *at = bytes, *end = bytes + size_;
             (at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))))
             != nullptr;) {
            starts.push_back(static_cast<std::size_t>(++at - bytes));
        }
        lineStarts_ = std::move(starts); // All of them or none: there may be no memory.
    }
    offset = std::min(offset, size_);
    // Mostly asked for in rising order: in growing steps from the last one on.
    auto from = lineStarts_.begin();
    auto to = lineStarts_.end();
    if (offset >= lastStart_) {
        from += static_cast<std::ptrdiff_t>(last_.line) - 1;
        std::ptrdiff_t step = 1;
        for (; to - from > step && from[step] <= offset; step *= 2) {
            from += step;
        }
        to = to - from > step ? from + step : to;
    }
    const auto next = std::upper_bound(from, to, offset);
    const auto line = static_cast<std::size_t>(next - lineStarts_.begin());
    const std::size_t start = *(next - 1);
    std::size_t end = next != lineStarts_.end() ? *next - 1 : size_;
    if (next != lineStarts_.end() && end > start && bytes[end - 1] == '\r') {
        --end;
    }
    if (line != last_.line || offset < lastStart_) {
        last_ = { line, 1 };
        lastStart_ = start;
    }
    const char* at = bytes + lastStart_;
    const char* const wanted = bytes + std::min(offset, end);
    while (at < wanted) {
        const int length = slGbkCharLength(at, bytes + end);
        if (at + length > wanted) {
            break;
        }
        at += length;
        ++last_.column;
    }
    lastStart_ = static_cast<std::size_t>(at - bytes);
    return last_;
}

void FileTextCL::findHeadersM() const
{
    std::vector<std::size_t> headers;
    const char* const end = bytes_.get() + size_;
    CharacterStartsCL starts(bytes_.get());
    for (const char* at = bytes_.get();
         (at = static_cast<const char*>(std::memchr(at, '[', static_cast<std::size_t>(end - at)))) != nullptr;
         ++at) {
        if (starts.IsStartM(at, end)) {
            headers.push_back(static_cast<std::size_t>(at - bytes_.get()));
        }
    }
    headers_ = std::move(headers); // All of them or none: there may be no memory.
    hasHeaders_ = true;
}

std::size_t FileTextCL::HeaderEndM(std::string_view header) const
{
    if (!hasHeaders_) {
        findHeadersM();
    }
    const char* const end = bytes_.get() + size_;
    for (const std::size_t begin : headers_) {
        const char* at = bytes_.get() + begin;
        if (size_ - begin < header.size()) {
            break;
        }
        if (std::memcmp(at, header.data(), header.size()) == 0) {
            const char* const headerEnd = at + header.size();
            while (at < headerEnd) {
                at += slGbkCharLength(at, end);
            }
            if (at == headerEnd) {
                return begin + header.size();
            }
        }
    }
    return SIZE_MAX;
}
