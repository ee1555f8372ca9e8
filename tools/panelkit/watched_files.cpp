#include "watched_files.h"
#include <set>
#include <windows.h>

namespace {

// Milliseconds. Together with the build they keep within half a second.
constexpr DWORD LookPeriod = 150;  // Without any notice.
constexpr DWORD SettlePeriod = 20; // Between two looks at files that are being written.
constexpr ULONGLONG SettleTime = 60;
constexpr ULONGLONG AbsenceTime = 200; // A file that is gone may be about to be replaced.

} // namespace

// The notices of the folders that the files are in.
class WatchedFilesCL::FoldersCL
{
public:
    FoldersCL() = default;
    FoldersCL(const FoldersCL&) = delete;
    FoldersCL& operator=(const FoldersCL&) = delete;
    ~FoldersCL() { closeM(); }

    void OpenM(const std::map<std::filesystem::path, FileCL>& files)
    {
        closeM();
        // A wait takes no more; files elsewhere are looked at all the same.
        constexpr std::size_t MostFolders = MAXIMUM_WAIT_OBJECTS - 2;
        std::set<std::filesystem::path> folders;
        for (const auto& file : files) {
            folders.insert(file.first.parent_path());
        }
        for (const std::filesystem::path& folder : folders) {
            const HANDLE notices = ::FindFirstChangeNotificationW(folder.c_str(), FALSE,
                FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE);
            if (notices != INVALID_HANDLE_VALUE && notices_.size() < MostFolders) {
                notices_.push_back(notices);
            }
        }
    }
    // Waits for a notice, one of two events, or the end of the time. Which event; -1 for none.
    int WaitM(HANDLE first, HANDLE second, DWORD milliseconds)
    {
        std::vector<HANDLE> all { first, second };
        all.insert(all.end(), notices_.begin(), notices_.end());
        const DWORD result
            = ::WaitForMultipleObjects(static_cast<DWORD>(all.size()), all.data(), FALSE, milliseconds);
        if (result < WAIT_OBJECT_0 + 2) {
            return static_cast<int>(result - WAIT_OBJECT_0);
        }
        if (result < WAIT_OBJECT_0 + all.size()) {
            ::FindNextChangeNotification(all[result - WAIT_OBJECT_0]);
        }
        return -1;
    }

private:
    void closeM()
    {
        for (const HANDLE notices : notices_) {
            ::FindCloseChangeNotification(notices);
        }
        notices_.clear();
    }

    std::vector<HANDLE> notices_;
};

WatchedFilesCL::WatchedFilesCL(std::function<void()> changed)
    : changed_(std::move(changed))
    , stop_(::CreateEventW(nullptr, TRUE, FALSE, nullptr))
    , poke_(::CreateEventW(nullptr, FALSE, FALSE, nullptr))
    , thread_([this] { watchM(); })
{
}

WatchedFilesCL::~WatchedFilesCL()
{
    ::SetEvent(stop_);
    thread_.join();
    ::CloseHandle(stop_);
    ::CloseHandle(poke_);
}

void WatchedFilesCL::WatchM(const std::vector<std::filesystem::path>& files)
{
    std::map<std::filesystem::path, FileCL> wanted;
    const std::lock_guard<std::mutex> lock(mutex_);
    for (const std::filesystem::path& file : files) {
        const auto known = files_.find(file);
        if (known != files_.end()) {
            wanted.insert(*known);
        } else {
            const StampCL stamp = stampOf(file);
            wanted.insert({ file, { stamp, stamp } });
        }
    }
    files_ = std::move(wanted);
    ::SetEvent(poke_);
}

WatchedFilesCL::StampCL WatchedFilesCL::stampOf(const std::filesystem::path& file)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!::GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data)) {
        return {};
    }
    const auto joined = [](DWORD high, DWORD low) { return std::uint64_t { high } << 32 | low; };
    return { true, joined(data.nFileSizeHigh, data.nFileSizeLow),
        joined(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime) };
}

bool WatchedFilesCL::isReadable(const std::filesystem::path& file)
{
    const HANDLE handle = ::CreateFileW(file.c_str(), GENERIC_READ,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return ::GetLastError() != ERROR_SHARING_VIOLATION; // For anything else waiting is no help.
    }
    ::CloseHandle(handle);
    return true;
}

unsigned WatchedFilesCL::waitM() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return isUnsettled_ ? SettlePeriod : LookPeriod;
}

// Looks at all files. True when some are others than was told, and have been as they are for a while: then
// that counts as told.
bool WatchedFilesCL::hasSettledM()
{
    const std::lock_guard<std::mutex> lock(mutex_);
    bool isMoving = false;
    bool isAbsent = false;
    isUnsettled_ = false;
    for (auto& [path, file] : files_) {
        const StampCL now = stampOf(path);
        isMoving = isMoving || now != file.seen;
        file.seen = now;
        if (now != file.told) {
            isUnsettled_ = true;
            isAbsent = isAbsent || !now.isThere;
            isMoving = isMoving || (now.isThere && !isReadable(path));
        }
    }
    const std::uint64_t time = ::GetTickCount64();
    if (isMoving) {
        since_ = time;
    }
    if (!isUnsettled_ || isMoving || time - since_ < (isAbsent ? AbsenceTime : SettleTime)) {
        return false;
    }
    isUnsettled_ = false;
    for (auto& named : files_) {
        named.second.told = named.second.seen;
    }
    return true;
}

void WatchedFilesCL::watchM()
{
    FoldersCL folders;
    for (;;) {
        const int event = folders.WaitM(stop_, poke_, waitM());
        if (event == 0) {
            return;
        }
        if (event == 1) {
            const std::lock_guard<std::mutex> lock(mutex_);
            folders.OpenM(files_);
        }
        if (hasSettledM()) {
            changed_();
        }
    }
}
