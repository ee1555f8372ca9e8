#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>

TEST(Application, ProgramWithAnApplicationObjectNeedsNoMainFunction)
{
    constexpr DWORD DeadlineMs = 30000;
    wchar_t own[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, own, MAX_PATH);
    std::wstring path(own);
    path.replace(path.find_last_of(L'\\') + 1, std::wstring::npos, L"bare_application.exe");
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(::CreateProcessW(
        path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    EXPECT_EQ(::WaitForSingleObject(process.hProcess, DeadlineMs), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 42U);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}
