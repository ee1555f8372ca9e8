// What is wrong with description files.
#include "check.h"
#include "baselib/gbk.h"
#include "commands.h"
#include "text_file.h"
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace fs = std::filesystem;

Language languageOf(const std::string& option)
{
    if (!option.empty()) {
        return option == "zh" ? Language::Chinese : Language::English;
    }
#ifdef _WIN32
    if (PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_CHINESE) {
        return Language::Chinese;
    }
#endif
    for (const char* const name : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            return std::strncmp(value, "zh", 2) == 0 ? Language::Chinese : Language::English;
        }
    }
    return Language::English;
}

std::shared_ptr<const FileTextCL> readText(const fs::path& path)
{
    std::error_code error;
    std::ifstream in(path, std::ios::binary);
    const auto length = fs::file_size(path, error);
    const auto size = static_cast<std::size_t>(error ? 0 : length);
    std::unique_ptr<char[]> bytes(new char[size + 1]);
    const bool isRead
        = in.is_open() && (in.read(bytes.get(), static_cast<std::streamsize>(size)) || size == 0);
    return isRead ? std::make_shared<const FileTextCL>(std::move(bytes), size) : nullptr;
}

bool readBytes(const fs::path& path, std::string* bytes)
{
    const auto text = readText(path);
    *bytes = text != nullptr ? text->CutM({ 0, text->SizeM() }) : std::string_view();
    return text != nullptr;
}

FindingsCL checkText(const std::string& file, const fs::path& folder,
    const std::shared_ptr<const FileTextCL>& text, std::unique_ptr<FileReadingCL>* reading,
    const TranslationCL& translation)
{
    FindingsCL findings(file, text);
    const bool isReadable = checkEncoding(*text, findings);
    if (isReadable || reading != nullptr) {
        auto read = std::make_unique<FileReadingCL>(text, reading != nullptr);
        if (isReadable) {
            checkRecords(*read, folder, translation, findings);
        } else {
            read->ReadKindsM();
        }
        if (reading != nullptr) {
            *reading = std::move(read);
        }
    }
    findings.SortM();
    return findings;
}

namespace {

std::shared_ptr<const FileTextCL> readStandardInput()
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    std::string bytes;
    char block[65536];
    for (std::size_t read = 0; (read = std::fread(block, 1, sizeof block, stdin)) > 0;) {
        bytes.append(block, read);
    }
    return std::ferror(stdin) == 0 ? std::make_shared<const FileTextCL>(bytes) : nullptr;
}

std::shared_ptr<const FileTextCL> readNamedFile(const std::string& file, const std::string& said)
{
    if (!isRegularFile(file, said)) {
        return nullptr;
    }
    auto text = readText(fs::u8path(file));
    if (text == nullptr) {
        complain("cannot read '" + said + "'");
    }
    return text;
}

// Without a language there is nothing to read.
bool readTranslation(TranslationCL& translation, const std::string& file, const std::string& said)
{
    if (translation.LanguageM().empty()) {
        return true;
    }
#ifdef _WIN32
    const std::string name = slWideToGbk(fs::u8path(file).wstring());
#else
    const std::string& name = file;
#endif
    if (file == "-" || !translation.ReadM(name.c_str())) {
        complain("no catalogue of '" + translation.LanguageM() + "' is beside '" + said + "'");
        return false;
    }
    return true;
}

} // namespace

int checkCommand(const CheckOptionsCL& options)
{
#ifndef _WIN32
    if (!options.textLanguage.empty()) {
        return checkUnderWine(options); // Where captions can be measured.
    }
#endif
    TranslationCL translation;
    translation.SetLanguageM(options.textLanguage.c_str());
    const Language language = languageOf(options.language);
    std::vector<FindingsCL> all;
    bool isUnreadable = false;
    bool isFaulty = false;
    for (std::size_t i = 0; i < options.files.size(); ++i) {
        const std::string& file = options.files[i];
        const std::string& said = i < options.names.size() ? options.names[i] : file;
        const bool isInput = file == "-";
        const auto text = isInput ? readStandardInput() : readNamedFile(file, said);
        if (text == nullptr || !readTranslation(translation, file, said)) {
            isUnreadable = true;
            continue;
        }
        all.push_back(checkText(isInput ? "<stdin>" : said,
            isInput ? fs::path() : fs::u8path(file).parent_path(), text, nullptr, translation));
        isFaulty = isFaulty || all.back().IsFaultyM(options.isStrict);
    }
    if (options.format == "json") {
        printFindingsAsJson(all, language);
    } else if (options.format == "sarif") {
        printFindingsAsSarif(all, language);
    } else {
        printFindings(all, language);
    }
    return isUnreadable ? CannotUse : isFaulty ? 1 : 0;
}

bool sayFindings(const std::string& file, const std::string& said, const ShowOptionsCL& options)
{
    std::error_code error;
    const fs::path path = fs::u8path(file);
    const auto bytes = fs::is_regular_file(path, error) ? readText(path) : nullptr;
    if (bytes == nullptr) {
        return false;
    }
    const FindingsCL findings = checkText(said, path.parent_path(), bytes);
    const std::string text = findings.TextM(languageOf(options.language), options.isStrict);
    std::fwrite(text.data(), 1, text.size(), stderr);
    return options.isStrict && findings.IsFaultyM(true);
}
