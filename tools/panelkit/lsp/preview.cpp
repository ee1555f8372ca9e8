#include "preview.h"
#include "check.h"
#include "text_file.h"
#include <cstdlib>
#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

long long ownNumber()
{
    return static_cast<long long>(::GetCurrentProcessId());
}

bool isRunning(long long process)
{
    const auto handle = reinterpret_cast<HANDLE>(process);
    return process != 0 && ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
}

std::wstring quoted(const std::wstring& word)
{
    return L" \"" + word + L"\"";
}

// 0 when it can't be started.
long long startView(const fs::path& file, const fs::path& mark, Language language)
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    const wchar_t* const words = language == Language::Chinese ? L" view --watch --lang zh --mark"
                                                               : L" view --watch --lang en --mark";
    std::wstring line = quoted(program).substr(1) + words + quoted(mark.wstring()) + quoted(file.wstring());
    SECURITY_ATTRIBUTES inherited { sizeof inherited, nullptr, TRUE };
    const HANDLE nothing = ::CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
        FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0, nullptr);
    // What it inherited of ours would keep the client waiting for the end of our output.
    for (const DWORD standard : { STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE }) {
        ::SetHandleInformation(::GetStdHandle(standard), HANDLE_FLAG_INHERIT, 0);
    }
    STARTUPINFOW start {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES; // Ours are the client's.
    start.hStdInput = start.hStdOutput = start.hStdError = nothing;
    PROCESS_INFORMATION process {};
    const BOOL isStarted = ::CreateProcessW(
        nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr, &start, &process);
    ::CloseHandle(nothing);
    if (!isStarted) {
        return 0;
    }
    ::CloseHandle(process.hThread);
    return reinterpret_cast<long long>(process.hProcess);
}

#else

long long ownNumber()
{
    return ::getpid();
}

bool isRunning(long long process)
{
    return process != 0 && ::waitpid(static_cast<pid_t>(process), nullptr, WNOHANG) == 0;
}

// 0 when it can't be started.
long long startView(const fs::path& file, const fs::path& mark, Language language)
{
    const std::string program = fs::read_symlink("/proc/self/exe").string();
    const std::string lang = language == Language::Chinese ? "--lang=zh" : "--lang=en";
    const std::string marking = "--mark=" + mark.string();
    const pid_t child = ::fork();
    if (child == 0) {
        const int nothing = ::open("/dev/null", O_RDWR); // Ours are the client's.
        for (const int standard : { 0, 1, 2 }) {
            ::dup2(nothing, standard);
        }
        ::execl(program.c_str(), program.c_str(), "view", "--watch", lang.c_str(), marking.c_str(),
            file.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    return child > 0 ? child : 0;
}

#endif

// The id of the control that a place belongs to; "" for none.
std::string idAt(OpenFileCL& file, std::size_t offset)
{
    const ValueInTextCL place = file.ValueAtM(offset);
    if (place.value == nullptr) {
        return "";
    }
    const SeenSectionCL& section = file.ReadingM().SectionM(place.grammar);
    const SeenValueCL* const own = section.FindM(place.record, "function_id");
    const SeenValueCL* const id = own != nullptr ? own : section.FindM(place.record, "control");
    return id != nullptr ? std::to_string(file.NumberM(*id)) : "";
}

} // namespace

PreviewsCL::~PreviewsCL()
{
    for (const auto& [path, preview] : previews_) {
        std::error_code error;
        fs::remove(preview.mark, error);
    }
}

std::string PreviewsCL::ShowM(OpenFileCL& file, const JsonTP& arguments, Language language)
{
    const fs::path& path = file.DocumentM().PathM();
    PreviewCL& preview = previews_[path.u8string()];
    if (preview.mark.empty()) {
        std::error_code error;
        preview.mark = fs::temp_directory_path(error)
            / ("panelkit-mark-" + std::to_string(ownNumber()) + "-" + std::to_string(previews_.size()));
    }
    const std::string id
        = arguments.size() > 1 ? idAt(file, file.DocumentM().OffsetM(arguments[1])) : std::string();
    if (!writeWholeFile(preview.mark.u8string(), id + "\n")) {
        return "cannot write '" + preview.mark.u8string() + "'";
    }
#ifndef _WIN32
    if (std::getenv("DISPLAY") == nullptr) {
        return "showing the dialog needs a display";
    }
#endif
    if (!isRunning(preview.process)) {
        preview.process = startView(path, preview.mark, language);
    }
    return preview.process != 0 ? "" : "the preview can't be started";
}
