#pragma once
#include <string>
#include <vector>

// What the user typed behind the program's name, as UTF-8 whatever the system's code page.
std::vector<std::string> wideArguments();
std::string utf8Of(const std::wstring& text);
// The same for a text that stems from a description file: what stands for no character is U+FFFD.
std::string printedOf(const std::wstring& text);
