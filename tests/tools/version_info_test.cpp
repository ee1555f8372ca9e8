// What Windows shows as the details of the library and the programs.
#ifdef _WIN32
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

namespace {

// Files beside the command.
std::string besideCommand(const std::string& name)
{
    const std::string command = PANELKIT_COMMAND;
    return command.substr(0, command.rfind('/') + 1) + name;
}

struct VersionInfoCL
{
    explicit VersionInfoCL(const std::string& path)
    {
        DWORD unused = 0;
        block.resize(::GetFileVersionInfoSizeA(path.c_str(), &unused));
        if (!block.empty() && !::GetFileVersionInfoA(path.c_str(), 0, block.size(), block.data())) {
            block.clear();
        }
    }
    std::string TextM(const std::string& name)
    {
        char* text = nullptr;
        UINT length = 0;
        const std::string key = "\\StringFileInfo\\040904B0\\" + name;
        const bool found = !block.empty()
            && ::VerQueryValueA(block.data(), key.c_str(), reinterpret_cast<void**>(&text), &length);
        return found ? text : "";
    }
    // "major.minor.patch".
    std::string NumbersM()
    {
        VS_FIXEDFILEINFO* info = nullptr;
        UINT length = 0;
        if (block.empty()
            || !::VerQueryValueA(block.data(), "\\", reinterpret_cast<void**>(&info), &length)) {
            return "";
        }
        EXPECT_EQ(info->dwFileVersionMS, info->dwProductVersionMS);
        EXPECT_EQ(info->dwFileVersionLS, info->dwProductVersionLS);
        isLibrary = info->dwFileType == VFT_DLL;
        return std::to_string(HIWORD(info->dwFileVersionMS)) + "."
            + std::to_string(LOWORD(info->dwFileVersionMS)) + "."
            + std::to_string(HIWORD(info->dwFileVersionLS));
    }

    std::vector<char> block;
    bool isLibrary { false };
};

TEST(VersionInfo, IsThatOfTheProjectInTheLibraryAndEveryProgram)
{
    for (const std::string name : { "panelkit.dll", "panelkit.exe", "plotter.exe", "pictures.exe" }) {
        SCOPED_TRACE(name);
        VersionInfoCL info(besideCommand(name));
        EXPECT_EQ(info.NumbersM(), PANELKIT_VERSION);
        EXPECT_EQ(info.isLibrary, name == "panelkit.dll");
        EXPECT_EQ(info.TextM("FileVersion"), PANELKIT_VERSION);
        EXPECT_EQ(info.TextM("ProductVersion"), PANELKIT_VERSION);
        EXPECT_EQ(info.TextM("ProductName"), "Panelkit");
        EXPECT_EQ(info.TextM("OriginalFilename"), name);
        EXPECT_NE(info.TextM("FileDescription"), "");
    }
}

} // namespace
#endif
