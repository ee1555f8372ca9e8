// What windows are given for GBK text and give back is what the platform's own conversion makes of it,
// character by character and also where bytes are broken or a character has no GBK form of its own.
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

constexpr UINT Gbk = 936;

std::wstring platformWide(const std::string& bytes)
{
    const int length = static_cast<int>(bytes.size());
    std::wstring wide(bytes.size(), L'\0');
    const int count = ::MultiByteToWideChar(Gbk, 0, bytes.data(), length, wide.data(), length);
    wide.resize(static_cast<size_t>(count));
    return wide;
}

std::string platformBytes(const std::wstring& wide)
{
    const int length = static_cast<int>(wide.size());
    std::string bytes(2 * wide.size(), '\0');
    const int count = ::WideCharToMultiByte(
        Gbk, 0, wide.data(), length, bytes.data(), static_cast<int>(bytes.size()), "?", nullptr);
    bytes.resize(static_cast<size_t>(count));
    return bytes;
}

// A window that shows nothing but keeps its text as it is given.
class GbkTextInWindows : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NE(window_.CreateEx(0, "Static", nullptr, WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0), FALSE);
    }
    void expectShown(const std::string& bytes)
    {
        window_.SetWindowText(bytes.c_str());
        std::wstring shown(bytes.size() + 1, L'\0');
        shown.resize(
            static_cast<size_t>(::GetWindowTextW(window_, shown.data(), static_cast<int>(shown.size()))));
        ASSERT_EQ(shown, platformWide(bytes)) << testing::PrintToString(bytes);
    }
    void expectRead(const std::wstring& wide)
    {
        ASSERT_NE(::SetWindowTextW(window_, wide.c_str()), FALSE);
        CString read;
        window_.GetWindowText(read);
        const std::string expected = platformBytes(wide);
        ASSERT_EQ(std::string(read), expected) << "from U+" << std::hex << static_cast<int>(wide[0]);
        std::string copied(expected.size() + 1, 'x');
        ASSERT_EQ(window_.GetWindowText(copied.data(), static_cast<int>(copied.size())),
            static_cast<int>(expected.size()));
        ASSERT_EQ(copied.c_str(), expected);
    }

    CWnd window_;
};

} // namespace

TEST_F(GbkTextInWindows, EveryByteIsShownAsThePlatformDecodesIt)
{
    for (int byte = 1; byte <= 0xFF; ++byte) {
        const char code = static_cast<char>(byte);
        ASSERT_NO_FATAL_FAILURE(expectShown(std::string(1, code)));
        ASSERT_NO_FATAL_FAILURE(expectShown(std::string("a") + code));
    }
}

TEST_F(GbkTextInWindows, EveryPairOfBytesIsShownAsThePlatformDecodesIt)
{
    for (int first = 1; first <= 0xFF; ++first) {
        std::string all;
        for (int second = 1; second <= 0xFF; ++second) {
            // The letter behind shows whether a broken pair takes one byte or two.
            all += { static_cast<char>(first), static_cast<char>(second), 'A' };
        }
        ASSERT_NO_FATAL_FAILURE(expectShown(all));
    }
}

TEST_F(GbkTextInWindows, BrokenTextsAreShownAsThePlatformDecodesThem)
{
    for (const char* text : { "", "\xD6", "\xD6\xD0\xD6", "\xD6\xFF\xD6\xD0", "\x81 x", "\x81\x81\x81",
             "\x81\x30\x81\x30", "\x80\xFF", "\xFF\xFF", "\xFE\x7F\xFE" }) {
        ASSERT_NO_FATAL_FAILURE(expectShown(text));
    }
    std::mt19937 random(936);
    std::uniform_int_distribution<int> byte(1, 0xFF);
    for (int k = 0; k < 2000; ++k) {
        std::string text;
        while (text.size() < 12) {
            text += static_cast<char>(byte(random));
        }
        ASSERT_NO_FATAL_FAILURE(expectShown(text));
    }
}

TEST_F(GbkTextInWindows, EveryCharacterIsReadAsThePlatformEncodesIt)
{
    const int perText = 64;
    for (int first = 0; first < 0x10000; first += perText) {
        std::wstring wide;
        for (int code = first == 0 ? 1 : first; code < first + perText; ++code) {
            wide += static_cast<wchar_t>(code);
        }
        ASSERT_NO_FATAL_FAILURE(expectRead(wide));
    }
    ASSERT_NO_FATAL_FAILURE(expectRead(L"\xA5 \xF900 \xE4 \xD83D\xDE00 \xD83D z\xDE00 \x0E01"));
}

// Room for any number of bytes: the text is cut between characters, and never beyond the room.
TEST_F(GbkTextInWindows, CutBetweenCharacters)
{
    window_.SetWindowText("a\xD6\xD0\xFF"
                          "b\xD6\xD0");
    const char* const cut[] = { "", "a", "a", "a\xD6\xD0", "a\xD6\xD0\xFF",
        "a\xD6\xD0\xFF"
        "b",
        "a\xD6\xD0\xFF"
        "b",
        "a\xD6\xD0\xFF"
        "b\xD6\xD0" };
    for (int room = 1; room <= 8; ++room) {
        char to[10] = "xxxxxxxxx";
        EXPECT_EQ(window_.GetWindowText(to, room), static_cast<int>(std::string(cut[room - 1]).size()));
        EXPECT_STREQ(to, cut[room - 1]);
        EXPECT_EQ(to[room], 'x');
    }
    char untouched = 'x';
    EXPECT_EQ(window_.GetWindowText(&untouched, 0), 0);
    EXPECT_EQ(untouched, 'x');
}
