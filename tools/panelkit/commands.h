#pragma once
#include <string>
#include <utility>
#include <vector>

// The subcommands. Each gets what the user typed, as UTF-8, prints its result on standard output and what is
// wrong, in one line, on standard error; the result is the exit code.
constexpr int CannotUse = 2; // Wrong arguments, or a file that can't be opened.

// The function id of a control and the status that it is pictured in.
using ControlStatusTP = std::pair<int, int>;

// What the subcommands that show files take.
struct ShowOptionsCL
{
    std::vector<std::string> files;
    // What the user wrote for each file, where another program starts this one in the user's name.
    std::vector<std::string> names;
    bool isChecked { false }; // That program says what check finds.
    std::string language;     // As for check.
    bool isStrict { false };
    int scale { 0 };          // Percent; 0: none was asked for.
    std::string textLanguage; // That the dialog is shown in; empty: as in the file.
};
// As the user wrote the file of a number.
const std::string& saidOf(const ShowOptionsCL& options, std::size_t number);
// Each prints what it has even when a file can't be used or is faulty; the result is the worst of all files.
int dumpCommand(const ShowOptionsCL& options);
int inspectCommand(const ShowOptionsCL& options);

struct ViewOptionsCL : ShowOptionsCL
{
    bool watches { false };      // Follows changes of the file and its pictures.
    bool logsMessages { false }; // Prints what the dialog gets from its controls.
    bool showsIds { false };     // Writes on each control what the file calls it.
    std::string mark;            // A file with the id of a control that is marked; "": none.
};
int viewCommand(const ViewOptionsCL& options);

struct CheckOptionsCL
{
    std::vector<std::string> files; // "-": standard input.
    std::string format { "text" };  // Or json, sarif.
    std::vector<std::string> names; // As of ShowOptionsCL.
    std::string language;           // en, zh; else the user's.
    std::string textLanguage;       // That captions are measured in; empty: as in the file.
    bool isStrict { false };        // Warnings count too.
};
int checkCommand(const CheckOptionsCL& options);   // 0, 1 with findings, CannotUse.
int checkUnderWine(const CheckOptionsCL& options); // Linux only: the same by panelkit.exe.
// For who shows a file: says on standard error what check finds in it, errors alone unless strict, with the
// file as `said`. True when the exit code must be 1 for that. Says nothing of a file that can't be read.
bool sayFindings(const std::string& file, const std::string& said, const ShowOptionsCL& options);

struct ShotOptionsCL : ShowOptionsCL
{
    std::string picture;                   // Of the one file;
    std::string folder;                    // or where each file's picture goes, which is named after it.
    std::string outName;                   // What the user wrote for that, as `names`.
    std::vector<ControlStatusTP> statuses; // Of each file.
    bool showsIds { false };               // As view does.
    int width { 0 };                       // Of the dialog, frame included; 0: the file's.
    int height { 0 };                      // The same.
};
int shotCommand(const ShotOptionsCL& options);

// What authors need at their desk. convert: `out` "" is the file itself; the result is 1 when the other code
// can't hold the text. ids: `out` "" is standard output, space null a namespace named after the file. format:
// 1 when numbers are not lined up and the file was only to be looked at.
int convertCommand(const std::string& file, const std::string& out, bool toUtf8);
int newCommand(const std::string& file, bool force);
int idsCommand(
    const std::string& file, const std::string& out, const std::string* space, const std::string& prefix);
int formatCommand(const std::string& file, bool checkOnly);

struct StringsOptionsCL
{
    std::vector<std::string> files;
    std::string out;            // "": standard output.
    bool byContext { false };   // The same text in two controls can be translated differently.
    bool hasMessages { false }; // The library's own too.
};
int stringsCommand(const StringsOptionsCL& options); // A template for translators.

// A language server on standard input and output. language: as for check, "" for the client's.
int lspCommand(const std::string& language);

// Windows only, and not for users: a window that nobody sees keeps Wine's desktop and services running until
// standard input ends. Prints "ready" once it is there.
int keepCommand();

// One line on standard error; the result is CannotUse.
int complain(const std::string& what);
