#include "idiom/child_program.h"
#include "support/window.h"

using namespace testing_support;

namespace {

constexpr DWORD StartMs = 60000; // A start of a program may be slow; what it does then is not.

std::wstring textOfWindow(HWND window)
{
    std::wstring text(256, L'\0');
    const LRESULT length
        = ::SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(&text[0]));
    text.resize(static_cast<size_t>(length));
    return text;
}

bool hasClass(HWND window, const wchar_t* className)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    return ::lstrcmpiW(name, className) == 0;
}

// A process without the foreground may take it only on behalf of the thread that has it.
bool bringForward(HWND window)
{
    const DWORD front = ::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr);
    const DWORD self = ::GetCurrentThreadId();
    const bool attached = front != 0 && front != self && ::AttachThreadInput(self, front, TRUE);
    ::SetForegroundWindow(window);
    if (attached) {
        ::AttachThreadInput(self, front, FALSE);
    }
    return PumpUntil([window] { return ::GetForegroundWindow() == window; });
}

} // namespace

ChildProgram::ChildProgram(const std::string& name, const std::string& arguments)
{
    STARTUPINFOA start {};
    start.cb = sizeof start;
    std::string line = "\"" PANELKIT_IDIOM_PROGRAMS "/" + name + ".exe\" " + arguments;
    EXPECT_TRUE(::CreateProcessA(
        nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process_))
        << line;
}

ChildProgram::~ChildProgram()
{
    ::TerminateProcess(process_.hProcess, 1); // Too late if it has ended by itself, as it should.
    ::WaitForSingleObject(process_.hProcess, StartMs);
    ::CloseHandle(process_.hThread);
    ::CloseHandle(process_.hProcess);
}

HWND ChildProgram::findM(const std::function<bool(HWND)>& wanted) const
{
    for (HWND window = ::GetTopWindow(nullptr); window; window = ::GetWindow(window, GW_HWNDNEXT)) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == process_.dwProcessId && ::IsWindowVisible(window) && wanted(window)) {
            return window;
        }
    }
    return nullptr;
}

HWND ChildProgram::WindowM(const wchar_t* title)
{
    HWND found = nullptr;
    PumpUntil(
        [&] {
            found = findM([title](HWND window) { return textOfWindow(window) == title; });
            return found != nullptr || ::WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0;
        },
        StartMs);
    if (found == nullptr) {
        ADD_FAILURE() << "no window of that title";
        return nullptr;
    }
    EXPECT_TRUE(bringForward(found)) << "the window stays behind";
    EXPECT_TRUE(PumpUntil([this] { return FocusM() != nullptr; })) << "the window has no focus";
    SettleProgramM(found);
    return found;
}

HWND ChildProgram::WindowOfClassM(const wchar_t* className)
{
    HWND found = nullptr;
    PumpUntil([&] {
        found = findM([className](HWND window) { return hasClass(window, className); });
        return found != nullptr;
    });
    EXPECT_NE(found, nullptr) << "no such window";
    return found;
}

bool ChildProgram::HasWindowOfClassM(const wchar_t* className) const
{
    return findM([className](HWND window) { return hasClass(window, className); }) != nullptr;
}

HWND ChildProgram::FocusM() const
{
    GUITHREADINFO info {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(process_.dwThreadId, &info) ? info.hwndFocus : nullptr;
}

int ChildProgram::ExitCodeM()
{
    if (!PumpUntil(
            [this] { return ::WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }, StartMs)) {
        return -1;
    }
    DWORD code = 0;
    ::GetExitCodeProcess(process_.hProcess, &code);
    return static_cast<int>(code);
}

bool Becomes(const std::function<bool()>& condition)
{
    return PumpUntil(condition);
}

std::wstring TextOf(HWND dialog, int id)
{
    return textOfWindow(::GetDlgItem(dialog, id));
}

bool TextBecomes(HWND dialog, int id, const wchar_t* text)
{
    if (PumpUntil([&] { return TextOf(dialog, id) == text; })) {
        return true;
    }
    ADD_FAILURE() << "the text is: " << testing::PrintToString(TextOf(dialog, id));
    return false;
}

bool FocusBecomes(const ChildProgram& program, HWND window)
{
    return PumpUntil([&] { return program.FocusM() == window; });
}

std::vector<std::wstring> LinesOf(HWND listBox)
{
    std::vector<std::wstring> lines;
    const LRESULT count = ::SendMessageW(listBox, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        wchar_t text[256] = L"";
        ::SendMessageW(listBox, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        lines.emplace_back(text);
    }
    return lines;
}

int CountOnScreen(HWND window, COLORREF color, const RECT* part)
{
    const Pixels screen(::GetDesktopWindow());
    RECT rect {};
    ::GetClientRect(window, &rect);
    if (part) {
        ::IntersectRect(&rect, &rect, part);
    }
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
    int count = 0;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            count += screen.AtM(x, y) == color;
        }
    }
    return count;
}

void ClickMiddle(HWND window)
{
    RECT rect {};
    ::GetClientRect(window, &rect);
    ClickM(window, rect.right / 2, rect.bottom / 2);
}

void SelectAll()
{
    KeyM(VK_HOME);
    ChordM(VK_SHIFT, VK_END);
}

COLORREF ScreenPixel(HWND window, int x, int y)
{
    POINT point { x, y };
    ::ClientToScreen(window, &point);
    return Pixels(::GetDesktopWindow()).AtM(point.x, point.y);
}
