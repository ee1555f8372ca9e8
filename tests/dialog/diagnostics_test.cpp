// Who is told of a description file's faults while its dialog is built.
#include "support/test_dialog.h"
#include <winternl.h>

namespace {

using LinesTP = std::vector<std::string>;

void keepLine(const DiagnosticCL& what, void* lines)
{
    static_cast<LinesTP*>(lines)->push_back(
        std::to_string(what.line) + " " + what.code + " " + slGbkToUtf8(what.message));
}

// What the thread says to the debugger while this lives.
class DebuggerTextCL
{
public:
    DebuggerTextCL()
        : handler_(::AddVectoredExceptionHandler(1, &listen))
    {
        lines().clear();
    }
    DebuggerTextCL(const DebuggerTextCL&) = delete;
    DebuggerTextCL& operator=(const DebuggerTextCL&) = delete;
    ~DebuggerTextCL() { ::RemoveVectoredExceptionHandler(handler_); }
    static LinesTP& lines()
    {
        static LinesTP said;
        return said;
    }

private:
    static LONG CALLBACK listen(EXCEPTION_POINTERS* what)
    {
        // The platform offers the text as it is, or in the system's code page, or both in turn.
        constexpr DWORD wideText = 0x4001000A;
        constexpr DWORD narrowText = 0x40010006;
        const EXCEPTION_RECORD& record = *what->ExceptionRecord;
        if (record.ExceptionCode == wideText) {
            lines().push_back(slWideToGbk(reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1])));
        } else if (record.ExceptionCode == narrowText) {
            lines().push_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
        } else {
            return EXCEPTION_CONTINUE_SEARCH;
        }
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    void* handler_;
};

// The process believes that a debugger runs it.
class PretendedDebuggerCL
{
public:
    PretendedDebuggerCL() { flag() = 1; }
    PretendedDebuggerCL(const PretendedDebuggerCL&) = delete;
    PretendedDebuggerCL& operator=(const PretendedDebuggerCL&) = delete;
    ~PretendedDebuggerCL() { flag() = 0; }

private:
    static BYTE& flag() { return ::NtCurrentTeb()->ProcessEnvironmentBlock->BeingDebugged; }
};

const std::string Faulty = std::string(HeaderSections) + "[标题]\n1\n0\n1 2 x 4 5 6 1\n速度\n0 0 0 0\n";
const char* const Fault
    = "a number should stand here ([标题] record 1, position), not 'x'; the values behind it slip";

} // namespace

TEST(Diagnostics, TheApplicationIsToldAtEachBuild)
{
    const DescriptionFileCL file(Faulty);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    LinesTP lines;
    dialog.SetDiagnosticsM(&keepLine, &lines);
    ASSERT_EQ(dialog.CreateM(), 1);
    const LinesTP expected { std::string("14 bad-number ") + Fault };
    EXPECT_EQ(lines, expected);
    lines.clear();
    dialog.InitDlgM(&dialog, 1);
    EXPECT_EQ(lines, expected);
}

TEST(Diagnostics, AMissingFileIsTold)
{
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM("no\\such\\file.dlg");
    LinesTP lines;
    dialog.SetDiagnosticsM(&keepLine, &lines);
    PlainWindowCL parent;
    dialog.InitDlgM(&parent, 0);
    EXPECT_EQ(lines, LinesTP { "0 missing-file there is no such description file" });
}

TEST(Diagnostics, WithoutACallbackTheDebuggerIsToldOnce)
{
    const DescriptionFileCL file(Faulty);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    dialog.SetDiagnosticsM(nullptr, nullptr);
    const DebuggerTextCL debugger;
    ASSERT_EQ(dialog.CreateM(), 1);
    dialog.InitDlgM(&dialog, 1);
    ASSERT_EQ(debugger.lines().size(), 1U);
    const std::string begin = std::string("panelkit: ") + file.path() + ":14:5: a number should stand here (";
    EXPECT_EQ(debugger.lines()[0].substr(0, begin.size()), begin);
    const std::string end = "not 'x'; the values behind it slip [bad-number]\n";
    EXPECT_EQ(debugger.lines()[0].substr(debugger.lines()[0].size() - end.size()), end);
}

TEST(Diagnostics, UntilTheApplicationAsksNobodyButADebuggerIsTold)
{
    const DebuggerTextCL debugger;
    const TestDialogCL untold(Faulty);
    EXPECT_EQ(debugger.lines(), LinesTP());
    const PretendedDebuggerCL pretended;
    const TestDialogCL told(Faulty);
    EXPECT_EQ(debugger.lines().size(), 1U);
}

TEST(Diagnostics, BeingToldChangesNothingInTheDialog)
{
    const DescriptionFileCL file(Faulty);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    LinesTP lines;
    dialog.SetDiagnosticsM(&keepLine, &lines);
    ASSERT_EQ(dialog.CreateM(), 1);
    const TestDialogCL untold(Faulty);
    ASSERT_EQ(childrenOf(dialog.m_hWnd), childrenOf(untold.m_hWnd));
    HWND a = ::GetWindow(dialog.m_hWnd, GW_CHILD);
    HWND b = ::GetWindow(untold.m_hWnd, GW_CHILD);
    for (; a != nullptr && b != nullptr; a = ::GetWindow(a, GW_HWNDNEXT), b = ::GetWindow(b, GW_HWNDNEXT)) {
        EXPECT_EQ(placeOf(a), placeOf(b));
        EXPECT_EQ(textOf(a), textOf(b));
        EXPECT_EQ(styleOf(a), styleOf(b));
    }
}
