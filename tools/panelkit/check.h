#pragma once
#include "file_reading.h"
#include "findings.h"
#include <filesystem>

// The groups of checks; each adds what it finds.
bool checkEncoding(const FileTextCL& text, FindingsCL& findings); // False: nothing else can be said.
// Says how many records of each section are sound; the others keep to those.
void checkSections(FileReadingCL& file, FindingsCL& findings);
// Every record, and what it says to others. folder: where pictures are.
void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, FindingsCL& findings);
