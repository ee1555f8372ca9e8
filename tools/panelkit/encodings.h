#pragma once
#include "baselib/file_text.h"
#include <string>

// How the text of a file is written.
enum class Encoding
{
    Gbk,
    Utf8,
    Utf16Low, // The low byte of each unit first,
    Utf16High // or the high one.
};

// "GBK", "UTF-8", "UTF-16".
const char* encodingName(Encoding encoding);

// One character of a text.
struct CharacterCL
{
    char32_t code; // NoCharacter for bytes that are none.
    SpanCL span;   // Its bytes.
};
constexpr char32_t NoCharacter = 0xFFFFFFFF;

// What convertCommand does, but prints nothing on standard output: `said` gets what was done.
int convertFile(const std::string& file, const std::string& out, bool toUtf8, std::string* said);

// What a byte order mark says; without one UTF-16 where every other of the first bytes is 0, else what the
// bytes break the rules of least often, UTF-8 if both are kept: sections' headers in GBK are no UTF-8. Plain
// ASCII is GBK.
Encoding encodingOf(const std::string& bytes);
// Says of a file in another code than GBK that nothing is read from it; the result is CannotUse.
int complainOfEncoding(const std::string& file, Encoding encoding);
std::size_t textBegin(const std::string& bytes, Encoding encoding); // Behind a byte order mark.
// The character at an offset within the text. A GBK pair without one has the platform's private-use code.
CharacterCL characterAt(const std::string& bytes, std::size_t at, Encoding encoding);
// Appends a character as GBK or UTF-8. False, and nothing is appended, when it has no form there.
bool appendEncoded(std::string& bytes, char32_t code, Encoding encoding);
