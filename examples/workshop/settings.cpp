#include "settings.h"

#include <fstream>
#include <sstream>

#include <windows.h>

#include <shlobj.h>

std::filesystem::path SettingsCL::UsersFolderM()
{
    wchar_t folder[MAX_PATH] = L"";
    ::SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
    return std::filesystem::path(folder) / "Panelkit Workshop";
}

std::string SettingsCL::LoadM(const std::string& dialog) const
{
    std::ifstream file(pathM(dialog), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

bool SettingsCL::SaveM(const std::string& dialog, const std::string& text) const
{
    std::error_code error;
    std::filesystem::create_directories(folder_, error);
    const std::filesystem::path path = pathM(dialog);
    std::filesystem::path fresh = path;
    fresh += ".new";
    {
        std::ofstream file(fresh, std::ios::binary);
        file << text;
        file.close();
        if (!file) {
            return false;
        }
    }
    return ::MoveFileExW(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
}

std::string slTextOfValues(const std::vector<std::pair<int, std::string>>& values)
{
    std::string text;
    for (const auto& [id, value] : values) {
        text += std::to_string(id) + ' ' + value + '\n';
    }
    return text;
}

std::vector<std::pair<int, std::string>> slValuesOfText(const std::string& text)
{
    std::vector<std::pair<int, std::string>> values;
    std::istringstream lines(text);
    int id = 0;
    for (std::string value; lines >> id;) {
        lines.get(); // The blank between them.
        std::getline(lines, value);
        values.emplace_back(id, value);
    }
    return values;
}
