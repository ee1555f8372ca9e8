// On Linux the subcommands that need windows are those of panelkit.exe, started under Wine.
#include "check.h"
#include "commands.h"
#include "description_file.h"
#include "pictures_to_write.h"
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

// OurOwn: nothing to look at, so nothing appears on a desktop.
enum class Display
{
    Users,
    OurOwn
};

// This program is build/host/bin/panelkit of a checkout.
fs::path checkout()
{
    return fs::read_symlink("/proc/self/exe").parent_path() / "../../..";
}

// Starts panelkit.exe, and does `meanwhile` while it runs; the result is the worse of both exit codes.
int start(std::vector<std::string> arguments, Display display, const std::function<int()>& meanwhile)
{
    if (display == Display::OurOwn) {
        ::unsetenv("DISPLAY"); // The script then starts one.
    }
    const std::string script = fs::weakly_canonical(checkout() / "scripts/wine").string();
    const std::string program = fs::weakly_canonical(checkout() / "build/windows/bin/panelkit.exe").string();
    if (!fs::exists(program)) {
        return complain("panelkit.exe is not built; scripts/panelkit builds it");
    }
    arguments.insert(arguments.begin(), { script, program });
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::execv(words[0], words.data());
        ::_exit(127);
    }
    const int ours = child < 0 ? 0 : meanwhile();
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) == 127) {
        return complain("cannot start scripts/wine");
    }
    return std::max(ours, WEXITSTATUS(status));
}

// As the Windows program reaches a file or folder whose own folder is there: links and ".." are ours to
// follow.
std::string underWine(const std::string& file)
{
    const fs::path path = fs::absolute(file);
    std::error_code error;
    const fs::path folder = fs::canonical(path.parent_path(), error);
    return "Z:" + (error ? path : folder / path.filename()).string();
}

// Starts a subcommand with its options on the files, which go on being called what the user wrote, and says
// meanwhile what check finds in them. more: what stands behind the files.
int startOn(std::vector<std::string> words, const ShowOptionsCL& options, Display display,
    const std::vector<std::string>& more = {})
{
    // Without anything to show there is nothing to start.
    const auto isReadable = [](const std::string& file) {
        return fs::is_regular_file(file) && ::access(file.c_str(), R_OK) == 0;
    };
    if (std::none_of(options.files.begin(), options.files.end(), isReadable)) {
        return onEachFile(options, [](const OpenedFileCL&) { return 0; });
    }
    if (options.scale != 0) {
        words.push_back("--scale=" + std::to_string(options.scale));
    }
    for (const std::string& file : options.files) {
        words.push_back("--as=" + file);
    }
    if (!options.textLanguage.empty()) {
        words.push_back("--language=" + options.textLanguage);
    }
    words.insert(words.end(), { "--checked", "--" });
    std::transform(options.files.begin(), options.files.end(), std::back_inserter(words), underWine);
    words.insert(words.end(), more.begin(), more.end());
    return start(std::move(words), display, [&options] {
        int result = 0;
        for (const std::string& file : options.files) {
            result = std::max(result, sayFindings(file, file, options) ? 1 : 0);
        }
        return result;
    });
}

} // namespace

int checkUnderWine(const CheckOptionsCL& options)
{
    std::vector<std::string> words { "check", "--language=" + options.textLanguage,
        "--format=" + options.format,
        languageOf(options.language) == Language::Chinese ? "--lang=zh" : "--lang=en" };
    if (options.isStrict) {
        words.emplace_back("--strict");
    }
    for (const std::string& file : options.files) {
        words.push_back("--as=" + file);
    }
    words.emplace_back("--");
    std::transform(options.files.begin(), options.files.end(), std::back_inserter(words),
        [](const std::string& file) { return file == "-" ? file : underWine(file); });
    return start(std::move(words), Display::OurOwn, [] { return 0; });
}

int inspectCommand(const ShowOptionsCL& options)
{
    return startOn({ "inspect" }, options, Display::OurOwn);
}

int viewCommand(const ViewOptionsCL& options)
{
    if (std::getenv("DISPLAY") == nullptr) {
        return complain("view needs a display (shot writes a picture without one)");
    }
    // What the program finds while it runs is told in the user's language too.
    std::vector<std::string> words { "view",
        languageOf(options.language) == Language::Chinese ? "--lang=zh" : "--lang=en" };
    const std::pair<const char*, bool> flags[] { { "--watch", options.watches },
        { "--messages", options.logsMessages }, { "--ids", options.showsIds } };
    for (const auto& [flag, isSet] : flags) {
        if (isSet) {
            words.emplace_back(flag);
        }
    }
    if (!options.mark.empty()) {
        words.push_back("--mark=" + underWine(options.mark));
    }
    return startOn(words, options, Display::Users);
}

int shotCommand(const ShotOptionsCL& options)
{
    if (picturesToWrite(options).empty()) {
        return CannotUse;
    }
    std::vector<std::string> words { "shot" };
    for (const auto& [id, status] : options.statuses) {
        words.insert(words.end(), { "--status", std::to_string(id), std::to_string(status) });
    }
    if (options.width > 0) {
        words.insert(
            words.end(), { "--size", std::to_string(options.width), std::to_string(options.height) });
    }
    if (options.showsIds) {
        words.emplace_back("--ids");
    }
    if (options.folder.empty()) {
        words.push_back("--out-as=" + options.picture);
        return startOn(words, options, Display::OurOwn, { underWine(options.picture) });
    }
    words.insert(words.end(), { "--out-as=" + options.folder, "-o", underWine(options.folder) });
    return startOn(words, options, Display::OurOwn);
}
