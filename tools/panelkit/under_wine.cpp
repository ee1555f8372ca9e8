// On Linux the subcommands that need windows are those of panelkit.exe, started under Wine.
#include "commands.h"
#include "description_file.h"
#include <cstdlib>
#include <filesystem>
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

int start(std::vector<std::string> arguments, Display display)
{
    if (display == Display::OurOwn) {
        ::unsetenv("DISPLAY"); // The script then starts one.
    }
    const std::string script = fs::weakly_canonical(checkout() / "scripts/wine").string();
    const std::string program = fs::weakly_canonical(checkout() / "build/windows/bin/panelkit.exe").string();
    if (!fs::exists(program)) {
        return complain("'" + program + "' is not built; scripts/panelkit builds it");
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
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) < 0 || !WIFEXITED(status) || WEXITSTATUS(status) == 127) {
        return complain("cannot start '" + script + "'");
    }
    return WEXITSTATUS(status);
}

// Starts a subcommand with its options on the file in its own folder, where the Windows program needs no more
// than its name.
int startOn(std::vector<std::string> words, const std::string& file, const std::vector<std::string>& more,
    Display display)
{
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    words.insert(words.end(), { "--", name });
    words.insert(words.end(), more.begin(), more.end());
    return start(std::move(words), display);
}

} // namespace

int inspectCommand(const std::string& file)
{
    return startOn({ "inspect" }, file, {}, Display::OurOwn);
}

int viewCommand(const std::string& file)
{
    if (std::getenv("DISPLAY") == nullptr) {
        return complain("view needs a display (shot writes a picture without one)");
    }
    return startOn({ "view" }, file, {}, Display::Users);
}

int shotCommand(
    const std::string& file, const std::string& picture, const std::vector<ControlStatusTP>& statuses)
{
    std::vector<std::string> words { "shot" };
    for (const auto& [id, status] : statuses) {
        words.insert(words.end(), { "--status", std::to_string(id), std::to_string(status) });
    }
    return startOn(words, file, { "Z:" + fs::absolute(picture).string() }, Display::OurOwn);
}
