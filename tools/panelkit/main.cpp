#include "commands.h"
#include "dialog/translation.h"
#include <algorithm>
#include <CLI/CLI.hpp>
#ifdef _WIN32
#include "application.h"
#include <fcntl.h>
#include <io.h>
#endif

namespace {

int run(std::vector<std::string> arguments)
{
    CLI::App app("Reads, shows, pictures and edits dialog description files.", "panelkit");
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // "/dialogs/a.dlg" is a file on every system.
    app.set_version_flag("--version", "panelkit " PANELKIT_VERSION);

    std::string file;
    ShotOptionsCL shown;
    std::vector<int> statuses; // In pairs: a control's id, its status.
    std::vector<int> size;     // None, or a width and a height.
    int result = 0;
    const auto add = [&](const char* name, const char* what) {
        CLI::App* command = app.add_subcommand(name, what);
        command->add_option("FILE", file, "the dialog description file")->required();
        return command;
    };
    const auto addForMany = [&](const char* name, const char* what) {
        CLI::App* command = app.add_subcommand(name, what);
        command->add_option("FILE", shown.files, "the dialog description files")->required();
        return command;
    };
    const auto addLanguage = [](CLI::App* command, std::string& language) {
        command->add_option("--language", language, "shows the texts of FILE.LANGUAGE.mo beside FILE.dlg")
            ->type_name("LANGUAGE")
            ->check([](const std::string& name) {
                return TranslationCL().SetLanguageM(name.c_str()) && !name.empty()
                    ? std::string()
                    : "'" + name + "' names no language";
            });
    };
    const auto addShowing = [&](const char* name, const char* what) {
        CLI::App* command = addForMany(name, what);
        command->add_option("--lang", shown.language, "language of what check finds: en or zh")
            ->check(CLI::IsMember({ "en", "zh" }));
        command->add_flag(
            "--strict", shown.isStrict, "tells check's warnings too; exit code 1 when it finds anything");
        command->add_option("--scale", shown.scale, "shows the dialog at so many percent, 50 to 800")
            ->check(CLI::Range(50, 800));
        addLanguage(command, shown.textLanguage);
        command->add_option("--as", shown.names)->allow_extra_args(false)->group("");
        command->add_flag("--checked", shown.isChecked)->group("");
        return command;
    };
    addForMany("dump", "Prints what the library reads from each FILE, as JSON.")->callback([&] {
        result = dumpCommand(shown);
    });
    addShowing("inspect", "Prints the windows that the library builds from each FILE, as JSON.")
        ->callback([&] { result = inspectCommand(shown); });
    ViewOptionsCL live;
    CLI::App* view = addShowing("view", "Shows the dialog of each FILE, one after the other.");
    view->add_flag("--watch", live.watches, "follows each change of FILE and its pictures");
    view->add_flag("--messages", live.logsMessages, "prints what the dialog gets from its controls");
    view->add_flag("--ids", live.showsIds, "writes id, place and Tab stop on each control");
    view->add_option("--mark", live.mark, "marks the control whose id FILE holds, and follows that file")
        ->type_name("FILE");
    view->callback([&] {
        static_cast<ShowOptionsCL&>(live) = shown;
        result = viewCommand(live);
    });
    CheckOptionsCL options;
    CLI::App* check = app.add_subcommand("check", "Says what is wrong with each FILE, and where.");
    check->add_option("FILE", options.files, "the dialog description files; - is standard input")->required();
    check->add_option("--format", options.format, "text, json or sarif")
        ->check(CLI::IsMember({ "text", "json", "sarif" }));
    check->add_option("--lang", options.language, "en or zh; without it as the system is set")
        ->check(CLI::IsMember({ "en", "zh" }));
    check->add_flag("--strict", options.isStrict, "warnings count as errors for the exit code");
    addLanguage(check, options.textLanguage);
    check->add_option("--as", options.names)->allow_extra_args(false)->group("");
    check->callback([&] { result = checkCommand(options); });
    CLI::App* shot = addShowing("shot",
        "Writes a picture of the dialog of FILE, frame included, to the OUT.png or OUT.bmp behind it; with "
        "-o one of "
        "each FILE.");
    shot->add_option("--status", statuses,
            "pictures control ID in a status of its own: of a bitmap or multi-state button, the frame of a "
            "normal animation, the position of a new rotate button; may be repeated")
        ->type_name("ID STATUS")
        ->type_size(2)
        ->allow_extra_args(false);
    shot->add_option("--size", size,
            "pictures the dialog at another size, frame included, if its file says how its controls follow")
        ->type_name("WIDTH HEIGHT")
        ->type_size(2)
        ->allow_extra_args(false)
        ->check(CLI::Range(1, 32767));
    shot->add_flag("--ids", shown.showsIds, "writes id, place and Tab stop on each control");
    shot->add_option("-o", shown.folder,
            "the folder for the picture of each FILE, named after it: a.dlg is pictured in DIR/a.png")
        ->type_name("DIR");
    shot->add_option("--out-as", shown.outName)->group("");
    shot->callback([&] {
        if (shown.folder.empty()) {
            if (shown.files.size() != 2) {
                result = complain("shot needs FILE and OUT.png, or -o DIR with any number of files");
                return;
            }
            shown.picture = shown.files.back();
            shown.files.pop_back();
        }
        for (size_t i = 1; i < statuses.size(); i += 2) {
            shown.statuses.emplace_back(statuses[i - 1], statuses[i]);
        }
        if (size.size() == 2) {
            shown.width = size[0];
            shown.height = size[1];
        }
        result = shotCommand(shown);
    });

    std::string out;
    std::string encoding;
    std::string space;
    std::string prefix;
    bool flag = false;
    CLI::App* convert
        = add("convert", "Brings FILE (UTF-8, UTF-16) into GBK, which the library reads, or back.");
    convert->add_option("-o", out, "the file to write (else FILE itself)")->type_name("OUT");
    convert->add_option("--to", encoding, "gbk (without this option), or utf-8")
        ->check(CLI::IsMember({ "gbk", "utf-8" }));
    convert->callback([&] { result = convertCommand(file, out, encoding == "utf-8"); });
    CLI::App* fresh = add("new", "Writes FILE, a small dialog with comments to start from.");
    fresh->add_flag("--force", flag, "overwrites FILE");
    fresh->callback([&] { result = newCommand(file, flag); });
    CLI::App* ids = add("ids", "Writes a C++ header that names the function ids of FILE.");
    ids->add_option("-o", out, "the file to write (else standard output)")->type_name("OUT");
    const CLI::Option* named = ids->add_option("--namespace", space, "the names' namespace; \"\": none");
    ids->add_option("--prefix", prefix, "what every name begins with");
    ids->callback([&] { result = idsCommand(file, out, named->count() > 0 ? &space : nullptr, prefix); });
    CLI::App* format = add("format", "Lines up the numbers of FILE below its comment lines.");
    format->add_flag("--check", flag, "writes nothing; exit code 1 when numbers are not lined up");
    format->callback([&] { result = formatCommand(file, flag); });
    CLI::App* strings = app.add_subcommand(
        "strings", "Writes a gettext template of the texts that people read in each FILE.");
    StringsOptionsCL texts;
    strings->add_option("FILE", texts.files, "the dialog description files")->required();
    strings->add_option("-o", texts.out, "the file to write (else standard output)")->type_name("OUT");
    strings->add_flag("--contexts", texts.byContext, "gives each control its own entry for a text");
    strings->add_flag("--messages", texts.hasMessages, "adds the messages of the library itself");
    strings->callback([&] { result = stringsCommand(texts); });
    CLI::App* lsp
        = app.add_subcommand("lsp", "Serves editors: the language server protocol on standard input.");
    lsp->add_option("--lang", options.language, "language of what it says: en or zh; without it the editor's")
        ->check(CLI::IsMember({ "en", "zh" }));
    lsp->add_flag("--stdio", flag)->group(""); // What clients pass to every server.
    lsp->callback([&] { result = lspCommand(options.language); });
#ifdef _WIN32
    app.add_subcommand("keep")->group("")->callback([&] { result = keepCommand(); });
#endif

    const auto isNamed = [&arguments](const CLI::App* command) { return command->check_name(arguments[0]); };
    if (!arguments.empty() && arguments[0][0] != '-' && app.get_subcommands(isNamed).empty()) {
        return complain("no subcommand '" + arguments[0] + "' (panelkit --help tells which there are)");
    }
    try {
        std::reverse(arguments.begin(), arguments.end()); // As the parser wants them.
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {
            return app.exit(error); // Help or version.
        }
        return complain(std::string(error.what()) + " (panelkit --help tells more)");
    }
    return result;
}

} // namespace

#ifdef _WIN32
// Arguments come as UTF-16 whatever the system's code page.
int wmain(int argc, wchar_t** argv)
{
    _setmode(_fileno(stdout), _O_BINARY); // JSON goes out byte for byte.
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(utf8Of(argv[i]));
    }
    return run(arguments);
}
#else
int main(int argc, char** argv)
{
    return run(std::vector<std::string>(argv + 1, argv + argc));
}
#endif
