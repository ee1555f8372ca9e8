#pragma once
#include <string>

std::string utf8Of(const std::wstring& text);
// The same for a text that stems from a description file: what stands for no character is U+FFFD.
std::string printedOf(const std::wstring& text);
