#pragma once
#include "dialog/translation.h"
#include "file_reading.h"
#include "findings.h"
#include <filesystem>

Language languageOf(const std::string& option); // en, zh; else the user's.
// Null, and false, when the file can't be read; without a word.
std::shared_ptr<const FileTextCL> readText(const std::filesystem::path& path);
bool readBytes(const std::filesystem::path& path, std::string* bytes);
// All that is wrong with a file of this text. file: as the user named it; folder: where pictures are;
// reading: gets what was read, with all values; null: not wanted; translation: the captions that are
// measured.
FindingsCL checkText(const std::string& file, const std::filesystem::path& folder,
    const std::shared_ptr<const FileTextCL>& text, std::unique_ptr<FileReadingCL>* reading = nullptr,
    const TranslationCL& translation = {});

// The groups of checks; each adds what it finds.
bool checkEncoding(const FileTextCL& text, FindingsCL& findings); // False: nothing else can be said.
// Of sections that have been read: says how many records of each are sound.
void checkSections(FileReadingCL& file, FindingsCL& findings);
// The sections, every sound record, and what it says to others. folder: where pictures are.
void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, const TranslationCL& translation,
    FindingsCL& findings);
