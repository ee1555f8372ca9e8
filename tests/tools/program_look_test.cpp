// What the programs say of themselves to the system: visual styles, and that they know of each monitor's dpi.
#ifdef _WIN32
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

namespace {

// The manifest of a program beside the command, for windows made while the object lives.
class ProgramsManifestCL
{
public:
    explicit ProgramsManifestCL(const std::string& name)
    {
        const std::string command = PANELKIT_COMMAND;
        const std::string program = command.substr(0, command.rfind('/') + 1) + name;
        ACTCTXA source {};
        source.cbSize = sizeof source;
        source.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
        source.lpSource = program.c_str();
        source.lpResourceName = MAKEINTRESOURCEA(1);
        context_ = ::CreateActCtxA(&source);
        isThere = context_ != INVALID_HANDLE_VALUE && ::ActivateActCtx(context_, &cookie_);
    }
    ProgramsManifestCL(const ProgramsManifestCL&) = delete;
    ProgramsManifestCL& operator=(const ProgramsManifestCL&) = delete;
    ~ProgramsManifestCL()
    {
        if (isThere) {
            ::DeactivateActCtx(0, cookie_);
        }
        if (context_ != INVALID_HANDLE_VALUE) {
            ::ReleaseActCtx(context_);
        }
    }

    bool HasStylesM() const
    {
        ACTCTX_SECTION_KEYED_DATA found {};
        found.cbSize = sizeof found;
        return isThere
            && ::FindActCtxSectionStringW(
                0, nullptr, ACTIVATION_CONTEXT_SECTION_WINDOW_CLASS_REDIRECTION, L"Button", &found);
    }
    std::wstring SettingM(const wchar_t* space, const wchar_t* name) const
    {
        wchar_t text[64] = L"";
        const bool found = isThere && ::QueryActCtxSettingsW(0, context_, space, name, text, 64, nullptr);
        return found ? text : L"";
    }

    bool isThere { false };

private:
    HANDLE context_ { INVALID_HANDLE_VALUE };
    ULONG_PTR cookie_ { 0 };
};

TEST(ProgramLook, IsTodaysInTheCommandAndEveryExample)
{
    for (const std::string name : { "panelkit.exe", "plotter.exe", "pictures.exe", "workshop.exe",
             "dialog_application.exe", "custom_control.exe", "custom_draw.exe" }) {
        SCOPED_TRACE(name);
        const ProgramsManifestCL manifest(name);
        EXPECT_TRUE(manifest.HasStylesM());
        const wchar_t* const space = L"http://schemas.microsoft.com/SMI/";
        EXPECT_EQ(manifest.SettingM((std::wstring(space) + L"2005/WindowsSettings").c_str(), L"dpiAware"),
            L"true/pm");
        EXPECT_EQ(manifest.SettingM((std::wstring(space) + L"2016/WindowsSettings").c_str(), L"dpiAwareness"),
            L"PerMonitorV2, PerMonitor");
    }
}

// The library takes the look of the program that uses it.
TEST(ProgramLook, IsNotChosenByTheLibrary)
{
    EXPECT_FALSE(ProgramsManifestCL("panelkit.dll").isThere);
}

} // namespace
#endif
