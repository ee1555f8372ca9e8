// Positions count bytes, characters stay whole: each operation beside a plain version that works on a list of
// characters, over random texts in which second bytes look like letters, separators and first bytes.
#include "toolkit/toolkit.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

typedef std::vector<std::string> CharactersTP;

bool isPairAt(const std::string& text, size_t at)
{
    const auto byte = [&](size_t k) { return static_cast<unsigned char>(text[k]); };
    return at + 1 < text.size() && byte(at) >= 0x81 && byte(at) <= 0xFE && byte(at + 1) >= 0x40
        && byte(at + 1) != 0x7F && byte(at + 1) != 0xFF;
}

CharactersTP split(const std::string& text)
{
    CharactersTP characters;
    for (size_t at = 0; at < text.size(); at += characters.back().size()) {
        characters.push_back(text.substr(at, isPairAt(text, at) ? 2 : 1));
    }
    return characters;
}

std::string join(const CharactersTP& characters)
{
    std::string text;
    for (const std::string& character : characters) {
        text += character;
    }
    return text;
}

bool has(const std::string& set, const std::string& character)
{
    const CharactersTP all = split(set);
    return std::find(all.begin(), all.end(), character) != all.end();
}

// The characters that lie wholly (or, if not whole, at least in part) in the bytes from first up to last.
std::string between(const std::string& text, int first, int last, bool whole = true)
{
    std::string kept;
    int at = 0;
    for (const std::string& character : split(text)) {
        const int end = at + static_cast<int>(character.size());
        const bool isIn = whole ? at >= first && end <= last : at < last && end > first;
        kept += isIn ? character : "";
        at = end;
    }
    return kept;
}

int plainFind(const std::string& text, const std::string& what, int from)
{
    if (from < 0 || from > static_cast<int>(text.size())) {
        return -1;
    }
    std::vector<size_t> bounds = { 0 };
    for (const std::string& character : split(text)) {
        bounds.push_back(bounds.back() + character.size());
    }
    for (size_t at : bounds) {
        if (static_cast<int>(at) >= from && text.compare(at, what.size(), what) == 0
            && std::binary_search(bounds.begin(), bounds.end(), at + what.size())) {
            return static_cast<int>(at);
        }
    }
    return -1;
}

class CStringEdit : public testing::Test
{
protected:
    std::string randomText(size_t most)
    {
        static const char* const pieces[] = { "a", "Z", "@", " ", "\t", ",", "\xD6\xD0", "\xCE\xC4",
            "\xD0\x61", "\xD0\x41", "\xD0\x40", "\xD0\xD6", "\x81\x5C", "\xD6", "\xFF", "\x80" };
        std::string text;
        while (text.size() < most && pick(0, 7) != 0) {
            text += pieces[pick(0, 15)];
        }
        return text;
    }
    int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    std::mt19937 random_ { 4711 };
};

std::string bytesOf(const CString& text)
{
    return std::string(text.GetString(), static_cast<size_t>(text.GetLength()));
}

} // namespace

TEST_F(CStringEdit, PartsAreAsThePlainVersionCutsThem)
{
    for (int round = 0; round < 20000; ++round) {
        const std::string plain = randomText(24);
        const CString text(plain.c_str());
        const int size = static_cast<int>(plain.size());
        const int first = pick(-2, size + 2);
        const int count = pick(-2, size + 2);
        SCOPED_TRACE(
            testing::PrintToString(plain) + " " + std::to_string(first) + " " + std::to_string(count));
        const int from = std::clamp(first, 0, size);
        const int kept = std::clamp(count, 0, size);
        ASSERT_EQ(bytesOf(text.Mid(first, count)), between(plain, from, from + kept));
        ASSERT_EQ(bytesOf(text.Mid(first)), between(plain, from, size));
        ASSERT_EQ(bytesOf(text.Left(count)), between(plain, 0, kept));
        ASSERT_EQ(bytesOf(text.Right(count)), between(plain, size - kept, size));
        CString cut(text);
        cut.Delete(first, count);
        const std::string head = between(plain, 0, from);
        const int to = std::min(from + kept, size);
        const std::string expected = kept == 0 || from == size ? plain : head + between(plain, to, size);
        ASSERT_EQ(bytesOf(cut), expected);
        CString longer(text);
        const std::string before = between(plain, 0, from);
        ASSERT_EQ(longer.Insert(first, "xy"), size + 2);
        ASSERT_EQ(bytesOf(longer), before + "xy" + plain.substr(before.size()));
    }
}

TEST_F(CStringEdit, SearchesFindWhatThePlainVersionFinds)
{
    for (int round = 0; round < 20000; ++round) {
        const std::string plain = randomText(24);
        const std::string what = randomText(3);
        const CString text(plain.c_str());
        const int from = pick(-1, static_cast<int>(plain.size()) + 1);
        SCOPED_TRACE(testing::PrintToString(plain) + testing::PrintToString(what) + std::to_string(from));
        ASSERT_EQ(text.Find(what.c_str(), from), plainFind(plain, what, from));
        const char one = "aZ@,\xD6\x41"[pick(0, 5)];
        ASSERT_EQ(text.Find(one, from), plainFind(plain, std::string(1, one), from));
        int last = -1;
        for (int at = 0; (at = plainFind(plain, std::string(1, one), at)) >= 0; ++at) {
            last = at;
        }
        ASSERT_EQ(text.ReverseFind(one), last);

        const CharactersTP characters = split(plain);
        size_t in = 0;
        while (in < characters.size() && has(what, characters[in])) {
            ++in;
        }
        size_t out = 0;
        while (out < characters.size() && !has(what, characters[out])) {
            ++out;
        }
        const auto head
            = [&](size_t n) { return join(CharactersTP(characters.begin(), characters.begin() + n)); };
        ASSERT_EQ(bytesOf(text.SpanIncluding(what.c_str())), head(in));
        ASSERT_EQ(bytesOf(text.SpanExcluding(what.c_str())), head(out));
        ASSERT_EQ(
            text.FindOneOf(what.c_str()), out == characters.size() ? -1 : static_cast<int>(head(out).size()));
    }
}

TEST_F(CStringEdit, ReplacesRemovesAndTrimsAsThePlainVersion)
{
    for (int round = 0; round < 20000; ++round) {
        const std::string plain = randomText(24);
        const std::string what = randomText(3);
        const std::string by = randomText(3);
        SCOPED_TRACE(
            testing::PrintToString(plain) + testing::PrintToString(what) + testing::PrintToString(by));
        std::string replaced;
        int count = 0;
        int kept = 0;
        for (int at; !what.empty() && (at = plainFind(plain, what, kept)) >= 0; ++count) {
            replaced += plain.substr(static_cast<size_t>(kept), static_cast<size_t>(at - kept)) + by;
            kept = at + static_cast<int>(what.size());
        }
        replaced += plain.substr(static_cast<size_t>(kept));
        CString text(plain.c_str());
        ASSERT_EQ(text.Replace(what.c_str(), by.c_str()), count);
        ASSERT_EQ(bytesOf(text), replaced);

        CharactersTP characters = split(plain);
        CharactersTP swapped = characters;
        std::replace(swapped.begin(), swapped.end(), std::string("a"), std::string("b"));
        text = plain.c_str();
        ASSERT_EQ(text.Replace('a', 'b'), std::count(characters.begin(), characters.end(), "a"));
        ASSERT_EQ(bytesOf(text), join(swapped));
        CharactersTP left = characters;
        left.erase(std::remove(left.begin(), left.end(), std::string("@")), left.end());
        text = plain.c_str();
        ASSERT_EQ(text.Remove('@'), static_cast<int>(characters.size() - left.size()));
        ASSERT_EQ(bytesOf(text), join(left));

        while (!characters.empty() && has(what, characters.back())) {
            characters.pop_back();
        }
        ASSERT_EQ(bytesOf(CString(plain.c_str()).TrimRight(what.c_str())), join(characters));
        CString both(plain.c_str());
        both.Trim(what.c_str());
        while (!characters.empty() && has(what, characters.front())) {
            characters.erase(characters.begin());
        }
        ASSERT_EQ(bytesOf(both), join(characters));
    }
}

TEST_F(CStringEdit, ChangesLettersAndOrderAsThePlainVersion)
{
    for (int round = 0; round < 5000; ++round) {
        const std::string plain = randomText(24);
        CharactersTP upper = split(plain);
        CharactersTP lower = upper;
        CharactersTP reversed(upper.rbegin(), upper.rend());
        for (size_t k = 0; k < upper.size(); ++k) {
            const char letter = upper[k].size() == 1 ? upper[k][0] : ' ';
            if ((letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')) {
                upper[k][0] = static_cast<char>(letter & ~0x20);
                lower[k][0] = static_cast<char>(letter | 0x20);
            }
        }
        ASSERT_EQ(bytesOf(CString(plain.c_str()).MakeUpper()), join(upper));
        ASSERT_EQ(bytesOf(CString(plain.c_str()).MakeLower()), join(lower));
        ASSERT_EQ(bytesOf(CString(plain.c_str()).MakeReverse()), join(reversed));
    }
}

TEST_F(CStringEdit, TokensAreThePiecesBetweenSeparators)
{
    for (int round = 0; round < 10000; ++round) {
        const std::string plain = randomText(30);
        const std::string separators = randomText(4);
        std::vector<std::string> expected(1);
        for (const std::string& character : split(plain)) {
            if (!has(separators, character)) {
                expected.back() += character;
            } else if (!expected.back().empty()) {
                expected.emplace_back();
            }
        }
        if (expected.back().empty()) {
            expected.pop_back();
        }
        const CString text(plain.c_str());
        std::vector<std::string> tokens;
        int at = 0;
        for (CString token = text.Tokenize(separators.c_str(), at); at != -1;
             token = text.Tokenize(separators.c_str(), at)) {
            tokens.push_back(bytesOf(token));
        }
        ASSERT_EQ(tokens, expected) << testing::PrintToString(plain) << testing::PrintToString(separators);
        ASSERT_EQ(bytesOf(text.Tokenize(separators.c_str(), at)), "");
        ASSERT_EQ(at, -1);
    }
}
