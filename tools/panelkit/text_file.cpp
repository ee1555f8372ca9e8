#include "text_file.h"
#include "commands.h"
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int complain(const std::string& what)
{
    std::fprintf(stderr, "panelkit: %s\n", what.c_str());
    return CannotUse;
}

namespace {

bool cannotWrite(const std::string& file, const std::string& why = "")
{
    complain("cannot write '" + file + "'" + (why.empty() ? "" : ": " + why));
    return false;
}

// A name beside the file that nothing has yet.
std::filesystem::path freePathBeside(const std::filesystem::path& path)
{
    for (int i = 0;; ++i) {
        std::filesystem::path beside = path;
        beside += ".new" + std::to_string(i);
        std::error_code error;
        if (!std::filesystem::exists(std::filesystem::symlink_status(beside, error))) {
            return beside;
        }
    }
}

} // namespace

bool isRegularFile(const std::string& file)
{
    return isRegularFile(file, file);
}

bool isRegularFile(const std::string& file, const std::string& said)
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::u8path(file);
    if (!std::filesystem::exists(path, error)) {
        complain("cannot open '" + said + "': no such file");
        return false;
    }
    if (!std::filesystem::is_regular_file(path, error)) {
        complain("cannot open '" + said + "': not a regular file");
        return false;
    }
    return true;
}

bool readWholeFile(const std::string& file, std::string* bytes)
{
    if (!isRegularFile(file)) {
        return false;
    }
    std::ifstream in(std::filesystem::u8path(file), std::ios::binary);
    bytes->assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (!in.is_open() || in.bad()) {
        complain("cannot open '" + file + "'");
        return false;
    }
    return true;
}

bool writeWholeFile(const std::string& file, const std::string& bytes)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path path = fs::weakly_canonical(fs::u8path(file), error);
    const fs::file_status before = fs::status(path, error);
    if (fs::exists(before)) {
        if (!fs::is_regular_file(before)) {
            return cannotWrite(file, "not a regular file");
        }
        constexpr fs::perms AnyWrite
            = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        if ((before.permissions() & AnyWrite) == fs::perms::none
            || !std::fstream(path, std::ios::in | std::ios::out | std::ios::binary).is_open()) {
            return cannotWrite(file, "it may only be read");
        }
    }
    const fs::path beside = freePathBeside(path);
    std::ofstream out(beside, std::ios::binary);
    if (!out.is_open()) {
        return cannotWrite(file);
    }
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    error.clear();
    if (out && fs::exists(before)) {
        fs::permissions(beside, before.permissions(), error);
    }
    if (out && !error) {
        fs::rename(beside, path, error);
    }
    if (!out || error) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        return cannotWrite(file);
    }
    return true;
}
