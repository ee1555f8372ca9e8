// The dialog as a person looks at it.
#include "support/description.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>

#ifdef _WIN32

namespace {

// The window of a title in another process, once it is shown; null after a minute.
HWND shownWindow(const wchar_t* title)
{
    for (const ULONGLONG end = ::GetTickCount64() + 60000; ::GetTickCount64() < end; ::Sleep(5)) {
        const HWND window = ::FindWindowW(nullptr, title);
        if (window != nullptr && ::IsWindowVisible(window)) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

TEST(View, DialogWithACancelButtonOfTheLibraryClosesByItsCloseBox)
{
    const DescriptionFileCL file(
        HeaderSections + std::string("[标准按钮]\n1\n0\n1 2 20 30 80 24\n取消\n0\n"));
    std::string line = "\"" PANELKIT_COMMAND "\" view \"" + std::string(file.path()) + "\"";
    STARTUPINFOA start {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process {};
    ASSERT_TRUE(::CreateProcessA(
        nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    const HWND dialog = shownWindow(slGbkToWide(slUtf8ToGbk("参数设置").c_str()).c_str());
    EXPECT_NE(dialog, nullptr);
    ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    EXPECT_EQ(::WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
    DWORD code = 999;
    ::GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 0U);
    ::TerminateProcess(process.hProcess, 1);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

#endif
