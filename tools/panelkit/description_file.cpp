#include "description_file.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "text_file.h"
#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

// From the folder where the command was started.
bool enterFolderOf(OpenedFileCL& file)
{
    if (!isRegularFile(file.path, file.said)) {
        return false;
    }
    std::error_code error;
    const fs::path path = fs::u8path(file.path);
    fs::current_path(path.parent_path(), error);
#ifdef _WIN32
    file.name = slWideToGbk(path.filename().wstring());
#else
    file.name = path.filename().string();
#endif
    VrIOCL io;
    io.OpenM(file.name.c_str(), "r");
    if (error || !io.IsOpenM()) {
        complain("cannot open '" + file.said + "'");
        return false;
    }
    return true;
}

} // namespace

const std::string& saidOf(const ShowOptionsCL& options, std::size_t number)
{
    return number < options.names.size() ? options.names[number] : options.files[number];
}

int onEachFile(const ShowOptionsCL& options, const std::function<int(const OpenedFileCL&)>& work)
{
    std::error_code error;
    const fs::path start = fs::current_path(error);
    int worst = 0;
    for (std::size_t i = 0; i < options.files.size(); ++i) {
        OpenedFileCL file { i, saidOf(options, i), (start / fs::u8path(options.files[i])).u8string(), "" };
        worst = std::max(worst, enterFolderOf(file) ? work(file) : CannotUse);
    }
    return worst;
}

int showEachFile(const ShowOptionsCL& options, const std::function<int(const OpenedFileCL&)>& work)
{
    return onEachFile(options, [&](const OpenedFileCL& file) {
        const bool isFaulty = !options.isChecked && sayFindings(file.path, file.said, options);
        return std::max(work(file), isFaulty ? 1 : 0);
    });
}
