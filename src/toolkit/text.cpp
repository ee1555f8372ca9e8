#include "toolkit/text.h"
#include "baselib/gbk.h"
#include <algorithm>
#include <cwchar>

namespace {

constexpr UINT GbkCodePage = 936;

} // namespace

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

std::wstring GbkToWide(const char* text, int length)
{
    return length < 0 || text == nullptr
        ? slGbkToShown(text)
        : slGbkToShown(std::string(text, static_cast<size_t>(length)).c_str());
}
