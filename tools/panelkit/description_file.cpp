#include "description_file.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "commands.h"
#include <filesystem>

namespace fs = std::filesystem;

bool enterFolderOf(const std::string& file, std::string* name)
{
    std::error_code error;
    const fs::path path = fs::u8path(file);
    if (!fs::exists(path, error)) {
        complain("cannot open '" + file + "': no such file");
        return false;
    }
    if (!fs::is_regular_file(path, error)) {
        complain("cannot open '" + file + "': not a regular file");
        return false;
    }
    if (path.has_parent_path()) {
        fs::current_path(path.parent_path(), error);
    }
#ifdef _WIN32
    *name = slWideToGbk(path.filename().wstring());
#else
    *name = path.filename().string();
#endif
    VrIOCL io;
    io.OpenM(name->c_str(), "r");
    if (error || !io.IsOpenM()) {
        complain("cannot open '" + file + "'");
        return false;
    }
    return true;
}
