#include "baselib/file.h"
#include "baselib/gbk.h"
#include <cstdint>
#include <new>
#include <sys/stat.h>

namespace {

// The length of a regular file, -1 for anything else.
std::int64_t regularLength(const char* path)
{
#ifdef _WIN32
    struct _stat64 status = {};
    const bool known = _wstat64(slGbkToWide(path).c_str(), &status) == 0;
#else
    struct stat status = {};
    const bool known = stat(path, &status) == 0;
#endif
    return known && (status.st_mode & S_IFMT) == S_IFREG ? status.st_size : -1;
}

} // namespace

FILE* slOpenFile(const char* path, bool writing)
{
#ifdef _WIN32
    return _wfopen(slGbkToWide(path).c_str(), writing ? L"wb" : L"rb");
#else
    return std::fopen(path, writing ? "wb" : "rb");
#endif
}

std::unique_ptr<char[]> slReadFile(const char* path, std::size_t* size)
{
    *size = 0;
    const std::int64_t length = regularLength(path);
    if (length < 0 || length >= PTRDIFF_MAX) {
        return nullptr;
    }
    FILE* const file = slOpenFile(path, false);
    if (file == nullptr) {
        return nullptr;
    }
    std::unique_ptr<char[]> bytes(new (std::nothrow) char[static_cast<std::size_t>(length) + 1]);
    *size = bytes ? std::fread(bytes.get(), 1, static_cast<std::size_t>(length), file) : 0;
    std::fclose(file);
    return bytes;
}

std::size_t slReadFileBeginning(const char* path, void* to, std::size_t most, std::size_t* size)
{
    *size = 0;
    const std::int64_t length = regularLength(path);
    FILE* const file = length >= 0 && length < PTRDIFF_MAX ? slOpenFile(path, false) : nullptr;
    if (file == nullptr) {
        return 0;
    }
    *size = static_cast<std::size_t>(length);
    const std::size_t read = std::fread(to, 1, most, file);
    std::fclose(file);
    return read;
}

bool slIsTooLargeToRead(const char* path)
{
    std::size_t size = 0;
    slReadFileBeginning(path, nullptr, 0, &size);
    return size > 0;
}
