#include "dialog/translation.h"
#include "baselib/file.h"
#include "baselib/path.h"
#include <algorithm>
#include <cctype>
#include <cstring>

std::string slTextContext(const char* kind, int id)
{
    constexpr const char* WithoutId = "dialog";
    std::string context = kind;
    std::replace(context.begin(), context.end(), '_', ' ');
    return context == WithoutId ? context : context + ' ' + std::to_string(id);
}

bool TranslationCL::SetLanguageM(const char* language)
{
    std::string name = language != nullptr ? language : "";
    std::replace(name.begin(), name.end(), '-', '_');
    // It becomes a part of a file's name.
    const bool isName = std::all_of(name.begin(), name.end(), [](unsigned char letter) {
        return letter < 0x80 && (std::isalnum(letter) != 0 || letter == '_' || letter == '@');
    });
    if (isName) {
        language_ = name;
    }
    return isName;
}

std::vector<std::string> TranslationCL::FilesM(const char* file) const
{
    if (file == nullptr) {
        return {};
    }
    const char* const name = slGetFileName(file);
    const char* const point = std::strrchr(name, '.');
    const std::string stem(file, point != nullptr ? point : name + std::strlen(name));
    std::vector<std::string> files;
    for (std::string language = language_; !language.empty();) {
        files.push_back(stem + '.' + language + ".mo");
        const std::size_t shorter = language.find_last_of("_@");
        language.resize(shorter != std::string::npos ? shorter : 0);
    }
    return files;
}

bool TranslationCL::ReadM(const char* file)
{
    for (const std::string& name : FilesM(file)) {
        std::size_t size = 0;
        const auto bytes = slReadFile(name.c_str(), &size);
        if (bytes != nullptr && catalogue_.ReadM(std::string(bytes.get(), size))) {
            return true;
        }
    }
    ForgetM();
    return false;
}

ValueTextCL TranslationCL::FindM(const ValueTextCL& text, const char* kind, int id) const
{
    return EmptyM() ? nullptr
                    : ValueTextCL::FromUtf8M(catalogue_.FindM(text.Utf8M(), slTextContext(kind, id)));
}
