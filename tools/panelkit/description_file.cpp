#include "description_file.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "commands.h"
#include "text_file.h"
#include <filesystem>

namespace fs = std::filesystem;

bool enterFolderOf(const std::string& file, std::string* name)
{
    if (!isRegularFile(file)) {
        return false;
    }
    std::error_code error;
    const fs::path path = fs::u8path(file);
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
