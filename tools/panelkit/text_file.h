#pragma once
#include <string>

// Whole files by the names that the user typed (UTF-8). What fails is said on standard error: false.
bool isRegularFile(const std::string& file);
bool isRegularFile(const std::string& file, const std::string& said); // The user wrote it otherwise.
bool readWholeFile(const std::string& file, std::string* bytes);
// Through a new file beside it that takes its place once all is written: whatever fails, what was there
// before stays whole. A link goes on leading to the file that it leads to.
bool writeWholeFile(const std::string& file, const std::string& bytes);
