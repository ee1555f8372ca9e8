#pragma once
#include <string>

// Makes the folder of a description file the current one, so that its pictures are found from anywhere, and
// checks that the file can be read. Says why on standard error when it can't: false. *name is then how the
// library is to be given the file: its name alone, GBK on Windows.
bool enterFolderOf(const std::string& file, std::string* name);
