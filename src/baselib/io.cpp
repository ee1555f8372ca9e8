#include "baselib/io.h"
#include "baselib/file.h"
#include "baselib/gbk.h"
#include "baselib/path.h"
#include <cstring>
#include <string_view>
#include <utility>

namespace {

#ifdef _WIN32
std::size_t directoryLength(const char* path)
{
    const std::size_t length = static_cast<std::size_t>(slGetFileName(path) - path);
    return length == 0 && path[0] != '\0' && path[1] == ':' ? 2 : length;
}
#else
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
    CharArr directory; // Before the file, which is not to be left half open.
    directory.SetM(path, directoryLength(path));
    if (reading) {
        std::size_t size = 0;
        if (auto bytes = slReadFile(path, &size)) {
            OpenM(std::make_shared<const FileTextCL>(std::move(bytes), size));
        }
    } else {
        out_ = slOpenFile(path, true);
    }
    if (IsOpenM()) {
        binary_ = wanted.size() == 2;
        directory_ = std::move(directory);
    }
}

void VrIOCL::OpenM(std::shared_ptr<const FileTextCL> text, const char* path)
{
    CloseM();
    if (text == nullptr) {
        return;
    }
    if (path != nullptr) {
        directory_.SetM(path, directoryLength(path));
    }
    text_ = std::move(text);
    data_ = text_->BytesM();
    end_ = data_ + text_->SizeM();
    at_ = data_;
}

void VrIOCL::CloseM()
{
    if (out_ != nullptr) {
        std::fclose(out_);
        out_ = nullptr;
    }
    text_.reset();
    data_ = nullptr;
    end_ = nullptr;
    at_ = nullptr;
    binary_ = false;
    outputLineBegun_ = false;
    directory_.SetM("");
}

int VrIOCL::GetFilePathM(char* out) const
{
    if (out == nullptr) {
        return 0;
    }
    slCopyText(out, PathSize, directory_.TextM());
    return IsOpenM() ? 1 : 0;
}
