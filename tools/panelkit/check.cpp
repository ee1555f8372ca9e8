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

bool readBytes(const fs::path& path, std::string* bytes)
{
    std::error_code error;
    std::ifstream in(path, std::ios::binary);
    const auto size = fs::file_size(path, error);
    bytes->resize(error ? 0 : static_cast<std::size_t>(size));
    return in.is_open()
        && (in.read(bytes->data(), static_cast<std::streamsize>(bytes->size())) || bytes->empty());
}

FindingsCL checkBytes(const std::string& file, const fs::path& folder, std::string&& bytes)
{
    const auto text = std::make_shared<const FileTextCL>(bytes);
    std::string().swap(bytes);
    FindingsCL findings(file, text);
    if (checkEncoding(*text, findings)) {
        FileReadingCL reading(text);
        checkRecords(reading, folder, findings);
    }
    findings.SortM();
    return findings;
}

namespace {

bool readStandardInput(std::string* bytes)
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    char block[65536];
    for (std::size_t read = 0; (read = std::fread(block, 1, sizeof block, stdin)) > 0;) {
        bytes->append(block, read);
    }
    return std::ferror(stdin) == 0;
}

bool readNamedFile(const std::string& file, std::string* bytes)
{
    if (!isRegularFile(file)) {
        return false;
    }
    if (!readBytes(fs::u8path(file), bytes)) {
        complain("cannot read '" + file + "'");
        return false;
    }
    return true;
}

} // namespace

int checkCommand(const CheckOptionsCL& options)
{
    const Language language = languageOf(options.language);
    std::vector<FindingsCL> all;
    bool isUnreadable = false;
    bool isFaulty = false;
    for (const std::string& file : options.files) {
        std::string bytes;
        const bool isInput = file == "-";
        if (!(isInput ? readStandardInput(&bytes) : readNamedFile(file, &bytes))) {
            isUnreadable = true;
            continue;
        }
        all.push_back(checkBytes(isInput ? "<stdin>" : file,
            isInput ? fs::path() : fs::u8path(file).parent_path(), std::move(bytes)));
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
    std::string bytes;
    if (!fs::is_regular_file(path, error) || !readBytes(path, &bytes)) {
        return false;
    }
    const FindingsCL findings = checkBytes(said, path.parent_path(), std::move(bytes));
    const std::string text = findings.TextM(languageOf(options.language), options.isStrict);
    std::fwrite(text.data(), 1, text.size(), stderr);
    return options.isStrict && findings.IsFaultyM(true);
}
