#include "baselib/io.h"
#include "baselib/gbk.h"
#include "baselib/path.h"
#include <cstring>
#include <filesystem>
#include <new>
#include <string_view>

namespace {

#ifdef _WIN32
std::filesystem::path platformPath(const char* path)
{
    return slGbkToWide(path);
}

FILE* openFile(const char* path, bool writing)
{
    return _wfopen(slGbkToWide(path).c_str(), writing ? L"wb" : L"rb");
}

std::size_t directoryLength(const char* path)
{
    const std::size_t length = static_cast<std::size_t>(slGetFileName(path) - path);
    return length == 0 && path[0] != '\0' && path[1] == ':' ? 2 : length;
}
#else
std::filesystem::path platformPath(const char* path)
{
    return path;
}

FILE* openFile(const char* path, bool writing)
{
    return std::fopen(path, writing ? "wb" : "rb");
}

std::size_t directoryLength(const char* path)
{
    const char* const separator = std::strrchr(path, '/');
    return separator != nullptr ? static_cast<std::size_t>(separator - path) + 1 : 0;
}
#endif

} // namespace

VrIOCL::~VrIOCL()
{
    CloseM();
}

void VrIOCL::OpenM(const char* path, const char* mode)
{
    CloseM();
    const std::string_view wanted = mode != nullptr ? mode : "";
    const bool reading = wanted == "r" || wanted == "rb";
    const bool writing = wanted == "w" || wanted == "wb";
    if (path == nullptr || (!reading && !writing)) {
        return;
    }
    if (reading) {
        readFileM(path);
    } else {
        out_ = openFile(path, true);
    }
    if (IsOpenM()) {
        binary_ = wanted.size() == 2;
        directory_.SetM(path, directoryLength(path));
    }
}

// Only regular files: opening a pipe or a device could wait for ever, and reading one never end.
void VrIOCL::readFileM(const char* path)
{
    std::error_code failed;
    const std::filesystem::path name = platformPath(path);
    if (!std::filesystem::is_regular_file(name, failed) || failed) {
        return;
    }
    const std::uintmax_t length = std::filesystem::file_size(name, failed);
    if (failed || length >= static_cast<std::uintmax_t>(PTRDIFF_MAX)) {
        return;
    }
    FILE* const file = openFile(path, false);
    if (file == nullptr) {
        return;
    }
    data_.reset(new (std::nothrow) char[static_cast<std::size_t>(length) + 1]);
    size_ = data_ ? std::fread(data_.get(), 1, static_cast<std::size_t>(length), file) : 0;
    std::fclose(file);
}

void VrIOCL::CloseM()
{
    if (out_ != nullptr) {
        std::fclose(out_);
        out_ = nullptr;
    }
    data_.reset();
    size_ = 0;
    at_ = 0;
    binary_ = false;
    directory_.SetM("");
}

int VrIOCL::GetFilePathM(char* out) const
{
    slCopyText(out, PathSize, directory_.TextM());
    return IsOpenM() ? 1 : 0;
}
