#include "application.h"
#include "toolkit/toolkit.h"
#include <shellapi.h>

namespace {

// Gives the dialogs a message loop and message boxes their caption.
class ToolAppCL : public CWinApp
{
};

ToolAppCL application;

} // namespace

std::string utf8Of(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string result(
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr), 0);
    ::WideCharToMultiByte(
        CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()), nullptr, nullptr);
    return result;
}

std::string printedOf(const std::wstring& text)
{
    // Bytes and pairs without a character were shown as private-use codes.
    constexpr wchar_t FirstPrivate = 0xE000;
    constexpr wchar_t LastPrivate = 0xF8FF;
    std::wstring printed = text;
    for (wchar_t& character : printed) {
        if (character >= FirstPrivate && character <= LastPrivate) {
            character = 0xFFFD;
        }
    }
    return utf8Of(printed);
}
