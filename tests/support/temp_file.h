#pragma once
#include <cstdio>
#include <filesystem>
#include <string>

// A file of these bytes in the temporary folder, removed with the object. The name is unique within the
// machine.
class TempFile
{
public:
    explicit TempFile(const std::string& bytes = "", const std::string& extension = ".txt")
    {
        static int count = 0;
        static const std::string session = std::to_string(std::filesystem::hash_value(
            std::filesystem::current_path() / std::to_string(reinterpret_cast<std::uintptr_t>(&count))));
        const std::filesystem::path folder = std::filesystem::temp_directory_path();
        do {
            path_ = (folder / ("panelkit_" + session + "_" + std::to_string(++count) + extension)).string();
            file_ = std::fopen(path_.c_str(), "wbx");
        } while (file_ == nullptr && count < 100000);
        std::fwrite(bytes.data(), 1, bytes.size(), file_);
        std::fclose(file_);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() { std::remove(path_.c_str()); }

    const char* path() const { return path_.c_str(); }

    std::string bytes() const
    {
        std::string read;
        if (FILE* file = std::fopen(path(), "rb")) {
            for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) {
                read += static_cast<char>(byte);
            }
            std::fclose(file);
        }
        return read;
    }

private:
    std::string path_;
    FILE* file_ { nullptr };
};
