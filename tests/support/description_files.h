#pragma once
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

inline std::string wholeFile(const std::string& path)
{
    std::string bytes;
    if (FILE* file = std::fopen(path.c_str(), "rb")) {
        char block[4096];
        for (size_t read = 0; (read = std::fread(block, 1, sizeof block, file)) > 0;) {
            bytes.append(block, read);
        }
        std::fclose(file);
    }
    return bytes;
}

// The description files of a folder and those below it.
inline std::vector<std::string> descriptionFiles(const std::string& folder)
{
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".dlg") {
            files.push_back(entry.path().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}
