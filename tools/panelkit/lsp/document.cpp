#include "document.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "check.h"
#include <algorithm>
#include <cstdlib>

namespace {

// Bytes of a character of a sound UTF-8 text by its first byte.
std::size_t utf8Length(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

std::size_t unitsOf(std::size_t length, PositionCode code)
{
    return code == PositionCode::Utf8 ? length : code == PositionCode::Utf16 && length == 4 ? 2 : 1;
}

bool isLineEnd(char byte)
{
    return byte == '\n' || byte == '\r';
}

// Behind the line end that begins there.
std::size_t lineEndEnd(const std::string& text, std::size_t at)
{
    return at + (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1);
}

std::size_t nextLine(const std::string& text, std::size_t at)
{
    const std::size_t end = text.find_first_of("\r\n", at);
    return end == std::string::npos ? text.size() + 1 : lineEndEnd(text, end);
}

bool hasDialogHeader(std::string_view gbk)
{
    return gbk.find(DialogHeader) != std::string_view::npos;
}

} // namespace

DocumentCL::DocumentCL(std::string uri, std::string text, PositionCode code)
    : uri_(std::move(uri))
    , path_(pathOfUri(uri_))
    , code_(code)
{
    setM(std::move(text));
    LookAtFileM();
}

void DocumentCL::setM(std::string text)
{
    utf8_ = std::move(text);
    int lost = 0;
    gbk_ = slUtf8ToGbk(utf8_, &lost);
    mayHaveLost_ = lost > 0;
    findLinesM();
}

// Both texts have the same lines: no byte of a GBK character ends one.
void DocumentCL::findLinesM()
{
    lines_.assign(1, { 0, 0 });
    for (std::size_t at = 0, gbk = 0;;) {
        at = nextLine(utf8_, at);
        gbk = nextLine(gbk_, gbk);
        if (at > utf8_.size() || gbk > gbk_.size()) {
            return;
        }
        lines_.push_back({ at, gbk });
    }
}

// Goes along a line until stops(utf8, gbk, units) or its end.
template <class StopTP>
DocumentCL::PairCL DocumentCL::walkM(std::size_t line, std::size_t* units, StopTP&& stops) const
{
    PairCL at = lines_[line];
    const char* const end = gbk_.data() + gbk_.size();
    *units = 0;
    while (at.utf8 < utf8_.size() && !isLineEnd(utf8_[at.utf8])) {
        const std::size_t length = utf8Length(utf8_[at.utf8]);
        const auto bytes = static_cast<std::size_t>(slGbkCharLength(gbk_.data() + at.gbk, end));
        const std::size_t next = *units + unitsOf(length, code_);
        if (stops(at.gbk + bytes, next)) {
            break;
        }
        at.utf8 += length;
        at.gbk += bytes;
        *units = next;
    }
    return at;
}

DocumentCL::PairCL DocumentCL::placeM(const JsonTP& position) const
{
    const auto line = position.at("line").get<std::size_t>();
    const auto character = position.at("character").get<std::size_t>();
    if (line >= lines_.size()) {
        return { utf8_.size(), gbk_.size() };
    }
    std::size_t units = 0;
    return walkM(line, &units, [character](std::size_t, std::size_t next) { return next > character; });
}

std::size_t DocumentCL::OffsetM(const JsonTP& position) const
{
    return placeM(position).gbk;
}

JsonTP DocumentCL::PositionM(std::size_t offset) const
{
    const auto behind = std::upper_bound(lines_.begin(), lines_.end(), offset,
        [](std::size_t wanted, const PairCL& line) { return wanted < line.gbk; });
    const auto line = static_cast<std::size_t>(behind - lines_.begin()) - 1;
    std::size_t units = 0;
    walkM(line, &units, [offset](std::size_t end, std::size_t) { return end > offset; });
    return { { "line", line }, { "character", units } };
}

JsonTP DocumentCL::RangeM(SpanCL span) const
{
    return { { "start", PositionM(span.begin) }, { "end", PositionM(span.end) } };
}

void DocumentCL::ChangeM(const JsonTP& change)
{
    const std::string& text = change.at("text").get_ref<const std::string&>();
    if (!change.contains("range")) {
        setM(text);
        return;
    }
    const PairCL begin = placeM(change["range"].at("start"));
    PairCL end = placeM(change["range"].at("end"));
    end = { std::max(begin.utf8, end.utf8), std::max(begin.gbk, end.gbk) };
    int lost = 0;
    gbk_.replace(begin.gbk, end.gbk - begin.gbk, slUtf8ToGbk(text, &lost));
    utf8_.replace(begin.utf8, end.utf8 - begin.utf8, text);
    mayHaveLost_ = mayHaveLost_ || lost > 0;
    findLinesM();
}

std::string DocumentCL::LostM(std::size_t* offset) const
{
    const char* const end = gbk_.data() + gbk_.size();
    for (std::size_t at = 0, gbk = 0; mayHaveLost_ && at < utf8_.size();) {
        const std::size_t length = utf8Length(utf8_[at]);
        if (length > 1 && gbk_[gbk] == '?') {
            *offset = gbk;
            return utf8_.substr(at, length);
        }
        at += length;
        gbk += static_cast<std::size_t>(slGbkCharLength(gbk_.data() + gbk, end));
    }
    return "";
}

void DocumentCL::LookAtFileM()
{
    std::string bytes;
    std::error_code error;
    fileEncoding_ = Encoding::Gbk;
    isShownWrongly_ = false;
    if (std::filesystem::is_regular_file(path_, error) && readBytes(path_, &bytes)) {
        fileEncoding_ = encodingOf(bytes);
        isShownWrongly_ = fileEncoding_ == Encoding::Gbk && hasDialogHeader(bytes) && !hasDialogHeader(gbk_);
    }
}

std::filesystem::path pathOfUri(const std::string& uri)
{
    constexpr const char Scheme[] = "file://";
    if (uri.rfind(Scheme, 0) != 0) {
        return {};
    }
    std::string path;
    for (std::size_t at = std::min(uri.find('/', sizeof Scheme - 1), uri.size()); at < uri.size(); ++at) {
        const bool isCode = uri[at] == '%' && at + 2 < uri.size();
        path += isCode ? static_cast<char>(std::strtol(uri.substr(at + 1, 2).c_str(), nullptr, 16)) : uri[at];
        at += isCode ? 2 : 0;
    }
#ifdef _WIN32
    if (path.size() > 2 && path[2] == ':') {
        path.erase(0, 1); // "/c:/panels".
    }
    const std::u16string wide = slUtf8ToUtf16(path); // Takes what is no UTF-8 too.
    return std::wstring(wide.begin(), wide.end());
#else
    return std::filesystem::u8path(path);
#endif
}
