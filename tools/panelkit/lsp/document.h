#pragma once
#include "baselib/file_text.h"
#include "encodings.h"
#include "json.h"
#include <filesystem>
#include <string>
#include <vector>

// How a client counts the characters of a line.
enum class PositionCode
{
    Utf8,
    Utf16,
    Utf32
};

// A text that is open in the editor: as UTF-8, as it comes, and as GBK, as the library reads it. Where it
// stands the protocol says by line and character, everything else here by the offset in GBK.
class DocumentCL
{
public:
    DocumentCL(std::string uri, std::string text, PositionCode code);

    const std::string& UriM() const { return uri_; }
    // The file; empty when the text belongs to none.
    const std::filesystem::path& PathM() const { return path_; }
    const std::string& GbkM() const { return gbk_; }
    const std::string& Utf8M() const { return utf8_; }

    // Takes a change of the protocol: a range and its new text, or all of the text.
    void ChangeM(const JsonTP& change);

    std::size_t OffsetM(const JsonTP& position) const; // The nearest one there is.
    JsonTP PositionM(std::size_t offset) const;
    JsonTP RangeM(SpanCL span) const;
    // The first character that GBK doesn't have, as UTF-8, and where its "?" stands; "" without one.
    std::string LostM(std::size_t* offset) const;

    // What the file holds while the editor has it open; looked at when it is opened and saved.
    Encoding FileEncodingM() const { return fileEncoding_; }
    bool IsShownWronglyM() const { return isShownWrongly_; }
    void LookAtFileM();

    int version { 0 };

private:
    struct PairCL // One place in both texts.
    {
        std::size_t utf8;
        std::size_t gbk;
    };
    void setM(std::string text);
    void findLinesM();
    PairCL placeM(const JsonTP& position) const;
    template <class StopTP> PairCL walkM(std::size_t line, std::size_t* units, StopTP&& stops) const;

    std::string uri_;
    std::filesystem::path path_;
    PositionCode code_;
    std::string utf8_;
    std::string gbk_;
    std::vector<PairCL> lines_; // Where each begins.
    bool mayHaveLost_ { false };
    Encoding fileEncoding_ { Encoding::Gbk };
    bool isShownWrongly_ { false };
};

std::filesystem::path pathOfUri(const std::string& uri); // Empty unless it is a file's.
