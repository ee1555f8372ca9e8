// What the dialogs hold between two runs of the program.
#pragma once
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

// A folder with one small file (UTF-8) for each dialog.
class SettingsCL
{
public:
    // The folder is made when something is kept in it first.
    explicit SettingsCL(std::filesystem::path folder)
        : folder_(std::move(folder))
    {
    }
    // Below the roaming settings of the user (%APPDATA%), where Windows programs keep such things: the folder
    // of the program may not be written to, and all users share it.
    static std::filesystem::path UsersFolderM();

    std::string LoadM(const std::string& dialog) const; // Empty: nothing was kept yet.
    // Puts the new file in the place of the old one once it is whole: whatever happens, one of them is there.
    // False: it can't be written; the old one stays.
    bool SaveM(const std::string& dialog, const std::string& text) const;

private:
    std::filesystem::path pathM(const std::string& dialog) const { return folder_ / (dialog + ".txt"); }

    std::filesystem::path folder_;
};

// The values of a dialog class (DialogValuesCL::AllM) as a text: a line with id and value for each. Only for
// values of one line, which a panel without multi-line edits has. A Form makes such a text itself (SaveAll).
std::string slTextOfValues(const std::vector<std::pair<int, std::string>>& values);
std::vector<std::pair<int, std::string>> slValuesOfText(const std::string& text);
