#include "baselib/file.h"
#include "baselib/gbk.h"
#include <filesystem>
#include <new>

namespace {

#ifdef _WIN32
std::filesystem::path platformPath(const char* path)
{
    return slGbkToWide(path);
}
#else
std::filesystem::path platformPath(const char* path)
{
    return path;
}
#endif

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
    std::error_code failed;
    const std::filesystem::path name = platformPath(path);
    if (!std::filesystem::is_regular_file(name, failed) || failed) {
        return nullptr;
    }
    const std::uintmax_t length = std::filesystem::file_size(name, failed);
    if (failed || length >= static_cast<std::uintmax_t>(PTRDIFF_MAX)) {
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
