#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>

namespace {

// Runs the body on a thread of its own, which must have ended, with all that belongs to it, by a deadline.
template <void (*body)()> bool endsInTimeM()
{
    constexpr DWORD DeadlineMs = 20000;
    const auto run = [](LPVOID) -> DWORD {
        body();
        return 0;
    };
    const HANDLE thread = ::CreateThread(nullptr, 0, run, nullptr, 0, nullptr);
    const bool hasEnded = ::WaitForSingleObject(thread, DeadlineMs) == WAIT_OBJECT_0;
    if (!hasEnded) {
        ::TerminateThread(thread, 1); // else the end of this program would wait for it
    }
    ::CloseHandle(thread);
    return hasEnded;
}

class EndingDialogCL : public CDialog
{
public:
    BOOL OnInitDialog() override
    {
        EndDialog(5);
        return CDialog::OnInitDialog();
    }
};

void leaveTemporaryObjectM()
{
    EXPECT_NE(CWnd::FromHandle(::GetDesktopWindow()), nullptr);
}

void leaveThreadObjectM()
{
    EXPECT_NE(AfxGetThread(), nullptr);
}

void showDialogM()
{
    EndingDialogCL dialog;
    const TemplateCL shape;
    ASSERT_TRUE(dialog.InitModalIndirect(shape));
    EXPECT_EQ(dialog.DoModal(), 5);
}

// The exit code of this program run anew with these tests only; ~0: it has not ended by the deadline.
DWORD endOfProgramM(const std::wstring& tests)
{
    constexpr DWORD DeadlineMs = 30000;
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(path) + L"\" --gtest_output= --gtest_filter=" + tests;
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(
            path, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
        return ::GetLastError();
    }
    DWORD code = ~0U;
    if (::WaitForSingleObject(process.hProcess, DeadlineMs) == WAIT_OBJECT_0) {
        ::GetExitCodeProcess(process.hProcess, &code);
    } else {
        ::TerminateProcess(process.hProcess, 1);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

} // namespace

TEST(Thread, ProgramEndsAfterThreadsThatLeftObjects)
{
    EXPECT_EQ(endOfProgramM(L"Thread.EndsThat*"), 0U);
}

TEST(Thread, EndsThatLeavesATemporaryObject)
{
    EXPECT_TRUE(endsInTimeM<&leaveTemporaryObjectM>());
}

TEST(Thread, EndsThatAskedForItsThreadObject)
{
    EXPECT_TRUE(endsInTimeM<&leaveThreadObjectM>());
}

TEST(Thread, EndsThatHasShownADialog)
{
    EXPECT_TRUE(endsInTimeM<&showDialogM>());
}
