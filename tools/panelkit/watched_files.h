#pragma once
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

// Tells when files change, come or go, each written to its end: editors write in steps, and save by deleting
// or renaming. The system's notices make it quick; because some file systems give none, it looks by itself
// too.
class WatchedFilesCL
{
public:
    // changed: called on a thread of its own, until this object goes.
    explicit WatchedFilesCL(std::function<void()> changed);
    WatchedFilesCL(const WatchedFilesCL&) = delete;
    WatchedFilesCL& operator=(const WatchedFilesCL&) = delete;
    ~WatchedFilesCL();

    // From now on these; they may be missing. What changed of those watched before is still told.
    void WatchM(const std::vector<std::filesystem::path>& files);

private:
    struct StampCL
    {
        bool isThere { false };
        std::uint64_t size { 0 };
        std::uint64_t written { 0 };
        bool operator==(const StampCL& other) const
        {
            return isThere == other.isThere && size == other.size && written == other.written;
        }
        bool operator!=(const StampCL& other) const { return !(*this == other); }
    };
    struct FileCL
    {
        StampCL told;
        StampCL seen;
    };
    class FoldersCL;

    static StampCL stampOf(const std::filesystem::path& file);
    static bool isReadable(const std::filesystem::path& file);
    void watchM();
    bool hasSettledM();
    unsigned waitM() const;

    std::function<void()> changed_;
    void* stop_;
    void* poke_; // The files are others.
    mutable std::mutex mutex_;
    std::map<std::filesystem::path, FileCL> files_;
    bool isUnsettled_ { false };
    std::uint64_t since_ { 0 }; // When what is seen was first seen.
    std::thread thread_;
};
