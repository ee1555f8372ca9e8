#pragma once
#include <string>
#include <utility>
#include <vector>

// The subcommands. Each gets what the user typed, as UTF-8, prints its result on standard output and what is
// wrong, in one line, on standard error; the result is the exit code.
constexpr int CannotUse = 2; // Wrong arguments, or a file that can't be opened.

// The function id of a control and the status that it is pictured in.
using ControlStatusTP = std::pair<int, int>;

int dumpCommand(const std::string& file);
int inspectCommand(const std::string& file);
int viewCommand(const std::string& file);

struct CheckOptionsCL
{
    std::vector<std::string> files; // "-": standard input.
    std::string format { "text" };  // Or json, sarif.
    std::string language;           // en, zh; else the user's.
    bool isStrict { false };        // Warnings count too.
};
int checkCommand(const CheckOptionsCL& options); // 0, 1 with findings, CannotUse.

int shotCommand(
    const std::string& file, const std::string& picture, const std::vector<ControlStatusTP>& statuses);

// What authors need at their desk. convert: `out` "" is the file itself; the result is 1 when the other code
// can't hold the text. ids: `out` "" is standard output, space null a namespace named after the file. format:
// 1 when numbers are not lined up and the file was only to be looked at.
int convertCommand(const std::string& file, const std::string& out, bool toUtf8);
int newCommand(const std::string& file, bool force);
int idsCommand(
    const std::string& file, const std::string& out, const std::string* space, const std::string& prefix);
int formatCommand(const std::string& file, bool checkOnly);

// Windows only, and not for users: a window that nobody sees keeps Wine's desktop and services running until
// standard input ends. Prints "ready" once it is there.
int keepCommand();

// One line on standard error; the result is CannotUse.
int complain(const std::string& what);
