// The pictures that a file names.
#include "baselib/gbk.h"
#include "control_list.h"
#include "pictures/bmp_reader.h"
#include <algorithm>
#include <fstream>

namespace {

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte; });
    return text;
}

// A path on another machine, or the name of a device: it stands for one in every folder, with any extension.
bool isRemote(const std::string& name)
{
    if (name.size() >= 2 && (name[0] == '\\' || name[0] == '/') && (name[1] == '\\' || name[1] == '/')) {
        return true;
    }
    if (name.find("://") != std::string::npos) {
        return true;
    }
    std::string stem = lowered(name.substr(name.find_last_of("/\\") + 1));
    stem = stem.substr(0, stem.find_first_of(".:"));
    for (const char* const device : { "con", "prn", "aux", "nul" }) {
        if (stem == device) {
            return true;
        }
    }
    return stem.size() == 4 && (stem.compare(0, 3, "com") == 0 || stem.compare(0, 3, "lpt") == 0)
        && stem[3] >= '1' && stem[3] <= '9';
}

// What slIsBmp or slIsShownBmp says of a file. Of large ones only the beginning is read.
bool isPicture(const std::filesystem::path& path, int (*judge)(const void*, std::size_t, std::size_t))
{
    std::error_code error;
    const auto size = static_cast<std::size_t>(std::filesystem::file_size(path, error));
    if (error) {
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    std::string bytes(std::min(size, BmpBeginning), '\0');
    const auto read = [&](std::size_t from) {
        in.read(&bytes[from], static_cast<std::streamsize>(bytes.size() - from));
        return in.good();
    };
    if (!read(0)) {
        return false;
    }
    int result = judge(bytes.data(), bytes.size(), size);
    if (result < 0) {
        bytes.resize(size);
        result = read(BmpBeginning) ? judge(bytes.data(), size, size) : 0;
    }
    return result == 1;
}

} // namespace

// The file systems of Windows take names in any case.
std::filesystem::path PicturesCL::findM(const std::string& name) const
{
    std::error_code error;
    std::string utf8 = slGbkToUtf8(name.c_str());
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    std::filesystem::path path = folder_ / std::filesystem::u8path(utf8);
    if (std::filesystem::is_regular_file(path, error)) {
        return path;
    }
    const std::string wanted = lowered(path.filename().u8string());
    const std::filesystem::path folder
        = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (lowered(entry.path().filename().u8string()) == wanted && entry.is_regular_file(error)) {
            return entry.path();
        }
    }
    return {};
}

PicturesCL::State PicturesCL::stateM(const std::string& name)
{
    if (isRemote(name)) {
        return State::Remote;
    }
    const std::filesystem::path path = findM(name);
    if (path.empty()) {
        return State::Missing;
    }
    return isPicture(path, &slIsBmp)     ? State::Good
        : isPicture(path, &slIsShownBmp) ? State::TooLarge
                                         : State::Bad;
}

void PicturesCL::CheckM(const std::string& name, bool isRegion, std::size_t offset, FindingsCL& findings)
{
    if (name.empty()) {
        return;
    }
    auto found = states_.find(name);
    if (found == states_.end()) {
        const PictureCL picture { stateM(name), findings.PackM({ slGbkToUtf8(name.c_str()) }) };
        found = states_.emplace(name, picture).first;
        if (found->second.state != State::Remote) {
            findings.AddPictureM(name);
        }
    }
    const PictureCL& picture = found->second;
    switch (picture.state) {
    case State::Missing:
        findings.AddPackedM(Says::MissingFile, offset, picture.shown);
        break;
    case State::Bad:
        findings.AddPackedM(Says::BadPicture, offset, picture.shown);
        break;
    case State::Remote:
        findings.AddPackedM(Says::RemoteFile, offset, picture.shown);
        break;
    case State::TooLarge:
        if (isRegion) {
            findings.AddPackedM(Says::NoRegion, offset, picture.shown);
        }
        break;
    case State::Good:
        break;
    }
}
