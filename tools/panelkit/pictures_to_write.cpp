#include "pictures_to_write.h"
#include <algorithm>
#include <filesystem>
#include <map>

namespace fs = std::filesystem;

namespace {

std::string inLowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 'a' - 'A') : byte; });
    return text;
}

std::string endingOf(const std::string& picture)
{
    return inLowerCase(fs::u8path(picture).extension().u8string());
}

bool isFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

// Why nothing can be written there; "" when it can.
std::string faultOf(const PictureToWriteCL& picture)
{
    const fs::path path = fs::u8path(picture.path);
    if (endingOf(picture.said) != ".png" && !isBmpName(picture.said)) {
        return "a picture's name ends with .png or .bmp";
    }
    if (!isFolder(path.parent_path())) {
        return "no such folder";
    }
    return isFolder(path) ? "it is a folder" : "";
}

} // namespace

bool isBmpName(const std::string& picture)
{
    return endingOf(picture) == ".bmp";
}

std::vector<PictureToWriteCL> picturesToWrite(const ShotOptionsCL& options)
{
    std::vector<PictureToWriteCL> pictures;
    std::map<std::string, std::string> files; // By their pictures: some systems know no case.
    const std::string& out = options.folder.empty() ? options.picture : options.folder;
    const std::string& said = options.outName.empty() ? out : options.outName;
    for (std::size_t i = 0; i < options.files.size(); ++i) {
        PictureToWriteCL picture { fs::absolute(fs::u8path(out)).u8string(), said };
        if (!options.folder.empty()) {
            const std::string name = fs::u8path(options.files[i]).stem().u8string() + ".png";
            const bool endsAsFolder = said.find_last_of("/\\") == said.size() - 1;
            picture.path = (fs::u8path(picture.path) / fs::u8path(name)).u8string();
            picture.said = said + (endsAsFolder ? "" : "/") + name;
        }
        const std::string fault = faultOf(picture);
        if (!fault.empty()) {
            complain("cannot write '" + picture.said + "': " + fault);
            return {};
        }
        const std::string& file = saidOf(options, i);
        const auto [other, isNew] = files.insert({ inLowerCase(picture.path), file });
        if (!isNew) {
            complain("'" + other->second + "' and '" + file + "' would both be pictured in '" + picture.said
                + "'");
            return {};
        }
        pictures.push_back(std::move(picture));
    }
    return pictures;
}
