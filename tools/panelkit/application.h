#pragma once
#include <string>
#include <vector>

// What the user typed behind the program's name, as UTF-8 whatever the system's code page.
std::vector<std::string> wideArguments();
std::string utf8Of(const std::wstring& text);
std::wstring wideOf(const std::string& utf8);
