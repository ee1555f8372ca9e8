#pragma once
#include "dialog/translation.h"
#include "file_reading.h"
#include "findings.h"
#include <filesystem>

Language languageOf(const std::string& option);                        // en, zh; else the user's.
bool readBytes(const std::filesystem::path& path, std::string* bytes); // Without a word when it can't.
// All that is wrong with a file of these bytes. file: as the user named it; folder: where pictures are;
// translation: the captions that are measured.
FindingsCL checkBytes(const std::string& file, const std::filesystem::path& folder, std::string&& bytes,
    const TranslationCL& translation = {});
// The same of a text. reading: gets what was read; null: not wanted.
FindingsCL checkText(const std::string& file, const std::filesystem::path& folder,
    const std::shared_ptr<const FileTextCL>& text, std::unique_ptr<FileReadingCL>* reading = nullptr,
    const TranslationCL& translation = {});

// The groups of checks; each adds what it finds.
bool checkEncoding(const FileTextCL& text, FindingsCL& findings); // False: nothing else can be said.
// Says how many records of each section are sound; the others keep to those.
void checkSections(FileReadingCL& file, FindingsCL& findings);
// Every record, and what it says to others. folder: where pictures are.
void checkRecords(FileReadingCL& file, const std::filesystem::path& folder, const TranslationCL& translation,
    FindingsCL& findings);
