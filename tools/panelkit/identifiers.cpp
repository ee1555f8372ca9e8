#include "identifiers.h"
#include "baselib/gbk.h"
#include "sounds.h"
#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

bool isUpper(int code)
{
    return code >= 'A' && code <= 'Z';
}

bool isLetter(int code)
{
    return isUpper(code) || (code >= 'a' && code <= 'z');
}

bool isDigit(int code)
{
    return code >= '0' && code <= '9';
}

char capitalOf(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

// Of a long text the beginning is name enough.
constexpr std::size_t MostLetters = 60;

// Null for a character that the tables don't have.
const char* soundOf(unsigned code)
{
    const auto* const more = std::find_if(std::begin(MoreSounds), std::end(MoreSounds),
        [code](const SoundCL& sound) { return sound.code == code; });
    if (more != std::end(MoreSounds)) {
        return more->sound;
    }
    const bool isInOrder = code >= CommonSounds[0].code && code <= LastCommon && (code & 0xFFU) >= 0xA1;
    const auto* const next = std::upper_bound(std::begin(CommonSounds), std::end(CommonSounds), code,
        [](unsigned one, const SoundCL& sound) { return one < sound.code; });
    return isInOrder ? std::prev(next)->sound : nullptr;
}

// What no word is made of: punctuation, signs, lines, what no character has.
bool isSign(char16_t code)
{
    return code < 0xC0 || (code >= 0x2000 && code < 0x2E80 && (code < 0x2150 || code > 0x218F))
        || (code >= 0x3000 && code < 0x3005) || (code >= 0x3008 && code < 0x3021)
        || (code >= 0xE000 && code < 0xF900) || code >= 0xFE10;
}

} // namespace

std::string camelOf(const std::string& words)
{
    std::string camel;
    bool begins = true;
    for (const char letter : words) {
        if (letter == '_') {
            begins = true;
        } else {
            camel += begins ? capitalOf(letter) : letter;
            begins = false;
        }
    }
    return camel;
}

std::string identifierOf(const char* text)
{
    const std::string bytes = text;
    std::string words; // As for camelOf.
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at < end && words.size() < MostLetters;) {
        const int length = slGbkCharLength(at, end);
        const char16_t code = slGbkToUtf16(at, static_cast<std::size_t>(length))[0];
        // Full-width forms of ASCII stand for it.
        const int plain = code >= 0xFF01 && code <= 0xFF5E ? code - 0xFF01 + '!' : code;
        const unsigned pair
            = length == 2 ? static_cast<unsigned char>(at[0]) * 256U + static_cast<unsigned char>(at[1]) : 0;
        at += length;
        if (isLetter(plain) || isDigit(plain)) {
            words += static_cast<char>(plain);
        } else if (const char* const sound = soundOf(pair)) {
            words += std::string("_") + sound + "_";
        } else if (isSign(code)) {
            words += '_';
        } else {
            char number[16];
            std::snprintf(number, sizeof number, "_U%04X_", static_cast<unsigned>(code));
            words += number;
        }
    }
    return camelOf(words);
}

bool isIdentifier(const std::string& name)
{
    return !name.empty() && !isDigit(name[0]) && std::all_of(name.begin(), name.end(), [](char c) {
        return isLetter(c) || isDigit(c) || c == '_';
    });
}
