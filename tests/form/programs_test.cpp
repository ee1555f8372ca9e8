// The programs of the pages, run as their readers would; and what the pages say of the events.
#include "support/all.h"
#include "support/seen_by_reader.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

using namespace testing_support;

namespace {

constexpr DWORD ProgramStartMs = 60000; // A start of a program may be slow; what it does then is not.

std::string wholeFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// A program in a folder with the panel.dlg that `panelkit new` writes.
class PageProgramCL
{
public:
    explicit PageProgramCL(const std::string& program)
        : folder_(std::filesystem::temp_directory_path() / ("panelkit_" + program))
    {
        std::filesystem::create_directories(folder_);
        EXPECT_TRUE(startM("\"" PANELKIT_COMMAND "\" new --force panel.dlg"));
        EXPECT_EQ(ExitCodeM(), 0);
        EXPECT_TRUE(startM("\"" PANELKIT_PROGRAMS "/" + program + ".exe\""));
    }
    PageProgramCL(const PageProgramCL&) = delete;
    PageProgramCL& operator=(const PageProgramCL&) = delete;
    ~PageProgramCL()
    {
        ::TerminateProcess(process_.hProcess, 9); // Too late if it has ended by itself, as it should.
        closeM();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    // Its dialog, once that has the foreground.
    HWND WindowM()
    {
        HWND window = nullptr;
        EXPECT_TRUE(PumpUntil(
            [this, &window] {
                DWORD process = 0;
                window = ::GetForegroundWindow();
                ::GetWindowThreadProcessId(window, &process);
                return process == process_.dwProcessId && ::GetDlgItem(window, 1002) != nullptr;
            },
            ProgramStartMs));
        return window;
    }
    DWORD ExitCodeM()
    {
        DWORD code = 99;
        // Its windows come and go among ours, which must hear of it.
        EXPECT_TRUE(PumpUntil(
            [this] { return ::WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }, ProgramStartMs));
        ::GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }
    std::string PrintedM() const { return wholeFile(folder_ / "printed"); }

private:
    bool startM(std::string line)
    {
        closeM();
        SECURITY_ATTRIBUTES inherited { sizeof inherited, nullptr, TRUE };
        STARTUPINFOW start {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = ::CreateFileW((folder_ / "printed").c_str(), GENERIC_WRITE, FILE_SHARE_READ,
            &inherited, CREATE_ALWAYS, 0, nullptr);
        start.hStdError = start.hStdOutput;
        std::wstring wide(line.begin(), line.end());
        const BOOL isStarted = ::CreateProcessW(
            nullptr, wide.data(), nullptr, nullptr, TRUE, 0, nullptr, folder_.c_str(), &start, &process_);
        ::CloseHandle(start.hStdOutput);
        return isStarted != FALSE;
    }
    void closeM()
    {
        if (process_.hProcess != nullptr) {
            ::CloseHandle(process_.hThread);
            ::CloseHandle(process_.hProcess);
        }
        process_ = {};
    }

    const std::filesystem::path folder_;
    PROCESS_INFORMATION process_ {};
};

std::set<std::string> namesIn(const std::string& text, const char* pattern)
{
    const std::regex name(pattern);
    std::set<std::string> names;
    for (std::sregex_iterator found(text.begin(), text.end(), name), end; found != end; ++found) {
        names.insert((*found)[1]);
    }
    return names;
}

} // namespace

TEST(PagePrograms, TheSmallestProgramPrintsWhatWasTyped)
{
    PageProgramCL program("README_page_program");
    const HWND window = program.WindowM();
    ClickM(::GetDlgItem(window, 1002), 5, 5);
    KeyM(VK_HOME);
    ChordM(VK_SHIFT, VK_END);
    TypeM(L"pen");
    wchar_t title[20] = L"";
    EXPECT_TRUE(PumpUntil([window, &title] {
        ::SendMessageW(window, WM_GETTEXT, 20, reinterpret_cast<LPARAM>(title));
        return std::wstring(title) == L"pen"; // Its handler has shown it.
    })) << testing::PrintToString(std::wstring(title));
    ClickM(::GetDlgItem(window, 1), 5, 5);
    EXPECT_EQ(program.ExitCodeM(), 0u);
    EXPECT_EQ(program.PrintedM(), "pen\r\n");
}

TEST(Programs, NamesOfControlsReachAScreenReaderInAnotherProcess)
{
    PageProgramCL program("named_program");
    const HWND window = program.WindowM();
    EXPECT_EQ(SeenByReaderCL(::GetDlgItem(window, 1003)).NameM(), L"Frame the drawing");
    ClickM(::GetDlgItem(window, 2), 5, 5);
    EXPECT_EQ(program.ExitCodeM(), 0u);
}

TEST(PagePrograms, OfThePagesEndAsTheySay)
{
    for (const char* name : { "form_page_program", "c_page_program" }) {
        PageProgramCL program(name);
        const HWND window = program.WindowM();
        const bool isC = name[0] == 'c';
        ClickM(::GetDlgItem(window, isC ? 1 : 2), 5, 5);
        EXPECT_EQ(program.ExitCodeM(), isC ? 0u : 1u) << name;
        EXPECT_EQ(program.PrintedM(), isC ? u8"未命名\r\n" : "") << name;
    }
}

TEST(PagePrograms, TheTableOfEventsIsThatOfTheHeader)
{
    const std::filesystem::path docs(PANELKIT_DOCS);
    const auto inHeader
        = namesIn(wholeFile(docs.parent_path() / "src/form/panelkit_c.h"), "(PANELKIT_EVENT_[A-Z_]+) = ");
    const auto onPage = namesIn(wholeFile(docs / "c-interface.md"), "\\n\\| `(PANELKIT_EVENT_[A-Z_]+)` \\|");
    EXPECT_EQ(inHeader.size(), 10u);
    EXPECT_EQ(inHeader, onPage);
}
