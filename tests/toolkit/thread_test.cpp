#include "support/pump.h"
#include "toolkit/dialog_template.h"
#include <atomic>
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

UINT workM(LPVOID param)
{
    EXPECT_EQ(AfxGetThread()->m_nThreadID, ::GetCurrentThreadId());
    *static_cast<DWORD*>(param) = ::GetCurrentThreadId();
    return 21;
}

UINT endEarlyM(LPVOID)
{
    AfxEndThread(22);
}

const UINT Stop = WM_USER + 7;

// Shows no window, but has a loop and takes messages of its own.
class LoopingThreadCL : public CWinThread
{
    DECLARE_DYNCREATE(LoopingThreadCL)
public:
    LoopingThreadCL() { ++living; }
    ~LoopingThreadCL() override { --living; }
    inline static std::atomic<int> living { 0 };
    inline static std::atomic<int> seen { 0 };
    BOOL InitInstance() override { return TRUE; }
    int ExitInstance() override { return CWinThread::ExitInstance() + 1; }

protected:
    afx_msg void OnNote(WPARAM wParam, LPARAM lParam)
    {
        seen += static_cast<int>(wParam) + static_cast<int>(lParam);
    }
    afx_msg void OnStop(WPARAM wParam, LPARAM) { ::PostQuitMessage(static_cast<int>(wParam)); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(LoopingThreadCL, CWinThread)
BEGIN_MESSAGE_MAP(LoopingThreadCL, CWinThread)
ON_THREAD_MESSAGE(WM_USER + 6, &LoopingThreadCL::OnNote)
ON_THREAD_MESSAGE(Stop, &LoopingThreadCL::OnStop)
END_MESSAGE_MAP()

// The exit code of a thread that was begun suspended; its object stays as it was asked to.
DWORD exitCodeM(CWinThread* thread)
{
    HANDLE copy = nullptr;
    const HANDLE self = ::GetCurrentProcess();
    ::DuplicateHandle(self, thread->m_hThread, self, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS);
    thread->ResumeThread();
    constexpr DWORD DeadlineMs = 20000;
    EXPECT_EQ(::WaitForSingleObject(copy, DeadlineMs), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(copy, &code);
    ::CloseHandle(copy);
    return code;
}

} // namespace

TEST(Thread, FunctionRunsOnAThreadOfItsOwn)
{
    DWORD id = 0;
    CWinThread* thread = AfxBeginThread(&workM, &id, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(exitCodeM(thread), 21U);
    EXPECT_EQ(id, thread->m_nThreadID);
    EXPECT_NE(id, ::GetCurrentThreadId());
    delete thread;
}

TEST(Thread, FunctionMayEndItsThread)
{
    CWinThread* thread = AfxBeginThread(&endEarlyM, nullptr, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(exitCodeM(thread), 22U);
}

TEST(Thread, ThreadWithALoopTakesItsMessagesAndGoesWithItsObject)
{
    LoopingThreadCL::seen = 0;
    CWinThread* const own = AfxGetThread();
    CWinThread* thread
        = AfxBeginThread(RUNTIME_CLASS(LoopingThreadCL), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(AfxGetThread(), own) << "a thread that is begun is not the one that begins it";
    HANDLE copy = nullptr;
    const HANDLE self = ::GetCurrentProcess();
    ::DuplicateHandle(self, thread->m_hThread, self, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS);
    thread->ResumeThread();
    // The queue comes with the loop.
    EXPECT_TRUE(
        testing_support::PumpUntil([&] { return thread->PostThreadMessage(WM_USER + 6, 3, 4) != FALSE; }));
    EXPECT_TRUE(thread->PostThreadMessage(Stop, 8, 0));
    EXPECT_EQ(::WaitForSingleObject(copy, 20000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(copy, &code);
    EXPECT_EQ(code, 9U);
    EXPECT_EQ(LoopingThreadCL::seen, 7);
    EXPECT_EQ(LoopingThreadCL::living, 0);
    ::CloseHandle(copy);
}

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
