// Brings a description file into the code that the library reads, and back.
#include "commands.h"
#include "encodings.h"
#include "text_file.h"
#include <cstdio>

namespace {

std::string reasonOf(const CharacterCL& character, const std::string& bytes, Encoding from, Encoding to)
{
    char code[16];
    if (character.code == NoCharacter) {
        const bool isOne = character.span.end - character.span.begin == 1;
        std::string text = isOne ? "the byte" : "the bytes";
        for (std::size_t at = character.span.begin; at < character.span.end; ++at) {
            std::snprintf(code, sizeof code, " 0x%02X", static_cast<unsigned char>(bytes[at]));
            text += code;
        }
        return text + (isOne ? " is no " : " are no ") + encodingName(from);
    }
    std::snprintf(code, sizeof code, " U+%04X", static_cast<unsigned>(character.code));
    std::string itself;
    appendEncoded(itself, character.code, Encoding::Utf8);
    return std::string(encodingName(to)) + " has no" + code
        + (character.code >= 0xA0 ? " '" + itself + "'" : "");
}

// What can't be converted: the first place and how many there are.
class RefusedCL
{
public:
    void AddM(PlaceCL place, const CharacterCL& character)
    {
        if (count_++ == 0) {
            place_ = place;
            first_ = character;
        }
    }
    bool AnyM() const { return count_ > 0; }
    void SayM(const std::string& file, const std::string& bytes, Encoding from, Encoding to) const
    {
        const std::string what = reasonOf(first_, bytes, from, to);
        const std::string more = count_ == 1 ? "" : "; " + std::to_string(count_) + " such places";
        std::fprintf(stderr, "%s:%zu:%zu: %s%s; nothing was changed\n", file.c_str(), place_.line,
            place_.column, what.c_str(), more.c_str());
    }

private:
    std::size_t count_ { 0 };
    PlaceCL place_;
    CharacterCL first_ {};
};

// The text in the other code, without a byte order mark.
std::string convertedText(const std::string& bytes, Encoding from, Encoding to, RefusedCL& refused)
{
    std::string result;
    PlaceCL place;
    for (std::size_t at = textBegin(bytes, from); at < bytes.size();) {
        const CharacterCL character = characterAt(bytes, at, from);
        at = character.span.end;
        if (!appendEncoded(result, character.code, to)) {
            refused.AddM(place, character);
        }
        place = character.code == '\n' ? PlaceCL { place.line + 1, 1 }
                                       : PlaceCL { place.line, place.column + 1 };
    }
    return result;
}

} // namespace

int convertFile(const std::string& file, const std::string& out, bool toUtf8, std::string* said)
{
    std::string bytes;
    if (!readWholeFile(file, &bytes)) {
        return CannotUse;
    }
    const Encoding from = encodingOf(bytes);
    const Encoding to = toUtf8 ? Encoding::Utf8 : Encoding::Gbk;
    RefusedCL refused;
    const std::string result = convertedText(bytes, from, to, refused);
    if (refused.AnyM()) {
        refused.SayM(file, bytes, from, to);
        return 1;
    }
    // Plain ASCII is both.
    const bool isThere = from == to || result == bytes;
    if ((!isThere || !out.empty()) && !writeWholeFile(out.empty() ? file : out, isThere ? bytes : result)) {
        return CannotUse;
    }
    *said = isThere ? std::string("already ") + encodingName(to)
                    : std::string(encodingName(from)) + " to " + encodingName(to);
    return 0;
}

int convertCommand(const std::string& file, const std::string& out, bool toUtf8)
{
    std::string said;
    const int result = convertFile(file, out, toUtf8, &said);
    if (result == 0) {
        std::printf("%s: %s\n", file.c_str(), said.c_str());
    }
    return result;
}
