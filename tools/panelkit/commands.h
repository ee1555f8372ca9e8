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

// Windows only, and not for users: a window that nobody sees keeps Wine's desktop and services running until
// standard input ends. Prints "ready" once it is there.
int keepCommand();

// One line on standard error; the result is CannotUse.
int complain(const std::string& what);
