#pragma once
#include "commands.h"
#include <functional>

// One of the files that a subcommand was given. Its folder is the current one, where its pictures are found.
struct OpenedFileCL
{
    std::size_t number; // Which of the files, from 0.
    std::string said;   // As the user wrote it.
    std::string path;   // From wherever, UTF-8.
    std::string name;   // As the library is to be given it: its name alone, GBK on Windows.
};

// Calls `work` for each file in turn. A file that can't be read is said to be so, and passed over. The result
// is the worst of all exit codes.
int onEachFile(const ShowOptionsCL& options, const std::function<int(const OpenedFileCL&)>& work);
// The same, and says before each what check finds in it, unless the program that started this one does.
int showEachFile(const ShowOptionsCL& options, const std::function<int(const OpenedFileCL&)>& work);
