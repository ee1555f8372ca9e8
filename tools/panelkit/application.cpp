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

std::wstring wideOf(const std::string& utf8)
{
    const int length = static_cast<int>(utf8.size());
    std::wstring result(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0), 0);
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, result.data(), static_cast<int>(result.size()));
    return result;
}

std::vector<std::string> wideArguments()
{
    int count = 0;
    LPWSTR* arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> result;
    for (int i = 1; i < count; ++i) {
        result.push_back(utf8Of(arguments[i]));
    }
    ::LocalFree(arguments);
    return result;
}
