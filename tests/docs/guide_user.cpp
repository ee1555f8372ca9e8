// guide_user PROGRAM: does with the program of docs/getting-started.md what the page says, and ends as it
// does.
#include "support/input.h"
#include "support/pump.h"
#include <cstdio>
#include <string>

using namespace testing_support;

namespace {

constexpr DWORD ProgramStartMs = 60000; // A start of a program may be slow; what it does then is not.
constexpr int OkId = 1;
constexpr int WidthId = 1102;

std::wstring textOf(HWND window)
{
    wchar_t text[64] = L"";
    ::SendMessageW(window, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text));
    return text;
}

// Whether it could be done; what not is said.
bool useDialog(const PROCESS_INFORMATION& program)
{
    HWND dialog = nullptr;
    const auto isShown = [&] {
        DWORD process = 0;
        dialog = ::GetForegroundWindow();
        ::GetWindowThreadProcessId(dialog, &process);
        return process == program.dwProcessId && ::GetDlgItem(dialog, WidthId) != nullptr;
    };
    const auto hasEnded = [&] { return ::WaitForSingleObject(program.hProcess, 0) == WAIT_OBJECT_0; };
    if (!PumpUntil([&] { return isShown() || hasEnded(); }, ProgramStartMs) || !isShown()) {
        std::puts("its dialog does not show");
        return false;
    }
    const HWND width = ::GetDlgItem(dialog, WidthId);
    ClickM(width, 5, 5);
    KeyM(VK_HOME);
    ChordM(VK_SHIFT, VK_END);
    TypeM(L"0.7");
    if (!PumpUntil([width] { return textOf(width) == L"0.7"; })) {
        std::puts("the width cannot be typed");
        return false;
    }
    ClickM(::GetDlgItem(dialog, OkId), 5, 5);
    if (!PumpUntil(hasEnded, ProgramStartMs)) {
        std::puts("OK does not end it");
        return false;
    }
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        return 2;
    }
    STARTUPINFOA start {};
    start.cb = sizeof start;
    PROCESS_INFORMATION program {};
    std::string line = "\"" + std::string(arguments[1]) + "\"";
    if (!::CreateProcessA(
            nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &program)) {
        std::printf("cannot start %s\n", arguments[1]);
        return 2;
    }
    DWORD code = 2;
    if (useDialog(program)) {
        ::GetExitCodeProcess(program.hProcess, &code);
    } else {
        ::TerminateProcess(program.hProcess, 2);
    }
    return static_cast<int>(code);
}
