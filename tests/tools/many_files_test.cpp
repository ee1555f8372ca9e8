// Subcommands that take any number of files in a call.
#include "support/description.h"
#include "tools/run_command.h"
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>
#ifdef _WIN32
#include "support/small_picture.h"
#include "tools/png_picture.h"
#endif

namespace fs = std::filesystem;

namespace {

using DocumentTP = nlohmann::ordered_json;

// A folder of its own, removed with the object.
class FolderCL
{
public:
    explicit FolderCL(const std::string& name = "folder")
        : path_(fs::path(beside_.path()).concat(name).string())
    {
        fs::create_directories(path_);
    }
    ~FolderCL() { fs::remove_all(path_); }
    const std::string& PathM() const { return path_; }
    std::string FileM(const std::string& name, const std::string& bytes) const
    {
        const std::string file = path_ + "/" + name;
        std::ofstream(fs::path(file), std::ios::binary) << bytes;
        return file;
    }
    std::vector<std::string> NamesM() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    TempFile beside_;
    std::string path_;
};

std::string quoted(const std::vector<std::string>& words)
{
    std::string line;
    for (const std::string& word : words) {
        line += " \"" + word + "\"";
    }
    return line;
}

std::string dialogOf(const std::string& sections)
{
    return slUtf8ToGbk(HeaderSections + sections);
}

// "dump" or "inspect" of many files tells of each what it tells of that file alone.
void expectAList(const std::string& command, const std::vector<std::string>& files)
{
    DocumentTP expected = DocumentTP::array();
    for (const std::string& file : files) {
        DocumentTP document { { "file", file } };
        document.update(DocumentTP::parse(runCommand(command + quoted({ file })).output));
        expected.push_back(document);
    }
    const CommandResultCL result = runCommand(command + quoted(files));
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.output, expected.dump(2) + "\n");
}

} // namespace

TEST(ManyFiles, DumpIsAListOfNamedDocuments)
{
    expectAList("dump", { sample("two_kinds.dlg"), exampleFiles()[0], sample("two_kinds.dlg") });
}

TEST(ManyFiles, ThoseThatCannotBeReadAreNamedAndTheOthersAreInTheList)
{
    const std::string file = sample("two_kinds.dlg");
    const CommandResultCL result = runCommand("dump" + quoted({ "nix.dlg", file }));
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.errors.rfind("panelkit: cannot open 'nix.dlg': no such file", 0), 0U) << result.errors;
    EXPECT_EQ(countOf(result.errors, "\n"), 1) << result.errors;
    const auto list = DocumentTP::parse(result.output);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0]["file"], file);
    EXPECT_EQ(runCommand("dump nix.dlg nox.dlg").output, "");
}

TEST(ManyFiles, PicturesThatCannotBeMeantAreRefusedBeforeAnythingIsShown)
{
    const FolderCL folder;
    const std::string first = folder.FileM("a.dlg", dialogOf(""));
    const std::string same = folder.FileM("A.txt", dialogOf(""));
    const std::vector<std::string> names = folder.NamesM();
    expectComplaint(runCommand("shot" + quoted({ first, same, "-o", folder.PathM() })),
        "'" + first + "' and '" + same + "' would both be pictured in '" + folder.PathM() + "/A.png'");
    expectComplaint(runCommand("shot" + quoted({ first, "-o", "no/such/folder" })),
        "cannot write 'no/such/folder/a.png': no such folder");
    expectComplaint(runCommand("shot" + quoted({ first, "no/such/x.png" })),
        "cannot write 'no/such/x.png': no such folder");
    expectComplaint(
        runCommand("shot" + quoted({ first, folder.PathM() + "/x.gif" })), "x.gif': a picture's name ends");
    expectComplaint(runCommand("shot" + quoted({ first, same })), "A.txt': a picture's name ends");
    expectComplaint(
        runCommand("shot" + quoted({ first, folder.PathM() + "/.png" })), "a picture's name ends");
    expectComplaint(runCommand("shot" + quoted({ first, same, "x.png" })), "-o DIR");
    EXPECT_EQ(folder.NamesM(), names);
}

#ifdef _WIN32

TEST(ManyFiles, InspectIsAListOfNamedDocuments)
{
    expectAList("inspect", { exampleFiles()[0], exampleFiles()[1], exampleFiles()[0] });
}

TEST(ManyFiles, EachIsPicturedAsItIsAloneUnderItsOwnName)
{
    const FolderCL out;
    std::vector<std::string> files = exampleFiles();
    std::set<std::string> stems; // Two examples may have the same name in their folders.
    files.erase(std::remove_if(files.begin(), files.end(),
                    [&stems](const std::string& file) {
                        return !stems.insert(fs::path(file).stem().string()).second;
                    }),
        files.end());
    ASSERT_GT(files.size(), 10U);
    std::vector<std::string> words = files;
    words.insert(words.end(), { "-o", out.PathM() });
    const CommandResultCL result = runCommand("shot" + quoted(words));
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(out.NamesM().size(), files.size());
    const FolderCL alone;
    for (const std::string& file : files) {
        const std::string picture = fs::path(file).stem().string() + ".png";
        EXPECT_EQ(runCommand("shot" + quoted({ file, alone.PathM() + "/" + picture })).code, 0);
        EXPECT_FALSE(wholeFile(out.PathM() + "/" + picture).empty()) << file;
        EXPECT_TRUE(wholeFile(out.PathM() + "/" + picture) == wholeFile(alone.PathM() + "/" + picture))
            << file;
    }
}

TEST(ManyFiles, EachFindsThePicturesOfItsOwnFolder)
{
    constexpr std::uint32_t Colours[] = { 0xC01001, 0x02C020 };
    const FolderCL folders[2] = { FolderCL("one"), FolderCL("other") };
    const FolderCL out;
    std::vector<std::string> words;
    for (int i = 0; i < 2; ++i) {
        folders[i].FileM("same.bmp", SmallPictureCL(Colours[i], 40, 30).bytes());
        words.push_back(folders[i].FileM(std::to_string(i) + ".dlg",
            dialogOf("[位图按钮]\n1\n0\n1 11 20 30 40 30\nsame.bmp\nNULL\nNULL\nNULL\nNULL\n")));
    }
    words.insert(words.end(), { "-o", out.PathM() });
    const CommandResultCL result = runCommand("shot" + quoted(words));
    EXPECT_EQ(result.code, 0) << result.errors;
    for (int i = 0; i < 2; ++i) {
        const PngPictureCL png(out.PathM() + "/" + std::to_string(i) + ".png");
        EXPECT_EQ(png.CountM(Colours[i]), 40 * 30);
        EXPECT_EQ(png.CountM(Colours[1 - i]), 0);
    }
}

TEST(ManyFiles, BitmapHasThePixelsOfThePng)
{
    const FolderCL out;
    for (const char* const name : { "/x.png", "/x.BMP", "/y.bmp" }) {
        const CommandResultCL result = runCommand("shot" + quoted({ exampleFiles()[0], out.PathM() + name }));
        EXPECT_EQ(result.code, 0) << result.errors;
    }
    const std::string bmp = wholeFile(out.PathM() + "/x.BMP");
    ASSERT_GT(bmp.size(), 54U);
    EXPECT_EQ(bmp.substr(0, 2), "BM");
    EXPECT_EQ(bmp.substr(14, 1), "\x28");                           // The head that every program knows.
    EXPECT_EQ(bmp.substr(28, 6), std::string("\x18\0\0\0\0\0", 6)); // 24 bits, not packed.
    EXPECT_TRUE(bmp == wholeFile(out.PathM() + "/y.bmp"));
    EXPECT_TRUE(
        PngPictureCL(out.PathM() + "/x.BMP").PixelsM() == PngPictureCL(out.PathM() + "/x.png").PixelsM());
}

#endif
