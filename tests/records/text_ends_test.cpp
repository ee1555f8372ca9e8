// Texts and numbers in front of the end of a file, where the short ways of reading end: of every length, with
// every byte that matters at every place, they are what reading byte by byte gives, and no byte behind the
// file is looked at.
#include "records/field_reader.h"
#include <gtest/gtest.h>

namespace {

// A file of just these bytes: whoever looks behind them is seen.
void open(VrIOCL* io, const std::string& bytes)
{
    std::unique_ptr<char[]> exact(new char[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    io->OpenM(std::make_shared<const FileTextCL>(std::move(exact), bytes.size()));
}

bool isBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r') || byte == '\0';
}

// The first text from a place on, and where the next value may begin.
struct PlainTextCL
{
    PlainTextCL(const std::string& bytes, std::size_t at)
    {
        while (at < bytes.size() && isBlank(bytes[at])) {
            ++at;
        }
        isThere = at < bytes.size();
        for (; at < bytes.size() && bytes[at] != '\n'; ++at) {
            text += bytes[at];
        }
        while (!text.empty() && isBlank(text.back())) {
            text.pop_back();
        }
        text = text.substr(0, text.find('\0'));
        end = at;
    }
    bool isThere;
    std::string text;
    std::size_t end;
};

// Reads two texts, one behind the other.
void expectTexts(const std::string& bytes)
{
    VrIOCL io;
    open(&io, bytes);
    FieldReaderCL reader(&io);
    std::size_t at = 0;
    for (int i = 0; i < 2; ++i) {
        const PlainTextCL plain(bytes, at);
        at = plain.end;
        CharArr text("unread");
        reader.TextM("text", text, {});
        ASSERT_EQ(std::string(text.TextM()), plain.isThere ? plain.text : "unread")
            << testing::PrintToString(bytes);
    }
}

} // namespace

TEST(TextEnds, TextsOfEveryLengthInFrontOfTheEnd)
{
    for (std::size_t length = 0; length <= 40; ++length) {
        for (std::size_t behind = 0; behind <= 40; ++behind) {
            for (const char* const end : { "", "\n", "\r\n", " \n", "\n\n" }) {
                expectTexts(" " + std::string(length, 'a') + end + std::string(behind, 'b'));
            }
        }
    }
}

TEST(TextEnds, EveryByteThatMattersAtEveryPlace)
{
    for (const char byte : { '\n', '\r', '\0', ' ', '\v', '\x80', '\xFF', '\x01' }) {
        for (std::size_t length = 1; length <= 40; ++length) {
            for (std::size_t place = 0; place < length; ++place) {
                std::string text(length, 'a');
                text[place] = byte;
                expectTexts(text + "\n" + std::string(24, 'b') + "\n");
                expectTexts(text);
            }
        }
    }
}

TEST(TextEnds, NumbersOfEveryLengthInFrontOfTheEnd)
{
    for (std::size_t digits = 1; digits <= 9; ++digits) {
        for (std::size_t behind = 0; behind <= 40; ++behind) {
            const std::string number(digits, '7');
            VrIOCL io;
            open(&io, std::string(behind % 3, ' ') + number + std::string(behind, ' ') + number);
            FieldReaderCL reader(&io);
            int values[2] { -1, -1 };
            reader.IntsM("numbers", values, 2);
            EXPECT_EQ(std::to_string(values[0]), behind > 0 ? number : std::to_string(values[0]));
            EXPECT_EQ(values[1], behind > 0 ? values[0] : -1) << digits << ' ' << behind;
        }
    }
}
