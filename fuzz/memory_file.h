#pragma once
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

// A file in memory with a name, as readers want one.
class MemoryFileCL
{
public:
    MemoryFileCL(const std::uint8_t* data, std::size_t size)
        : file_(::memfd_create("fuzz", 0))
    {
        if (file_ < 0 || ::write(file_, data, size) != static_cast<ssize_t>(size)) {
            std::abort();
        }
    }
    MemoryFileCL(const MemoryFileCL&) = delete;
    MemoryFileCL& operator=(const MemoryFileCL&) = delete;
    ~MemoryFileCL() { ::close(file_); }
    std::string PathM() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
};
