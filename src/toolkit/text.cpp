#include "toolkit/text.h"
#include <algorithm>
#include <cstring>

std::wstring GbkToWide(const char* text)
{
    if (text == nullptr || *text == 0) {
        return {};
    }
    int bytes = static_cast<int>(std::strlen(text));
    std::wstring wide(static_cast<size_t>(bytes), L'\0');
    int count = ::MultiByteToWideChar(GbkCodePage, 0, text, bytes, wide.data(), bytes);
    wide.resize(static_cast<size_t>(std::max(count, 0)));
    return wide;
}

std::string WideToGbk(const wchar_t* text, int length)
{
    if (text == nullptr) {
        return {};
    }
    if (length < 0) {
        length = static_cast<int>(std::wcslen(text));
    }
    if (length == 0) {
        return {};
    }
    int room = ::WideCharToMultiByte(GbkCodePage, 0, text, length, nullptr, 0, "?", nullptr);
    std::string gbk(static_cast<size_t>(std::max(room, 0)), '\0');
    ::WideCharToMultiByte(GbkCodePage, 0, text, length, gbk.data(), room, "?", nullptr);
    return gbk;
}

int CopyGbk(char* to, int size, const std::string& from)
{
    if (to == nullptr || size < 1) {
        return 0;
    }
    size_t used = 0;
    while (used < from.size()) {
        unsigned char first = static_cast<unsigned char>(from[used]);
        size_t bytes = first >= 0x81 && first <= 0xFE && used + 1 < from.size() ? 2 : 1;
        if (used + bytes > static_cast<size_t>(size - 1)) {
            break;
        }
        used += bytes;
    }
    std::memcpy(to, from.data(), used);
    to[used] = 0;
    return static_cast<int>(used);
}
