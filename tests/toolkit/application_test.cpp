#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>

TEST(Application, ProgramWithAnApplicationObjectNeedsNoMainFunction)
{
    constexpr DWORD DeadlineMs = 30000;
    wchar_t own[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, own, MAX_PATH);
    std::wstring path(own);
    path.replace(path.find_last_of(L'\\') + 1, std::wstring::npos, L"bare_application.exe");
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    ASSERT_TRUE(::CreateProcessW(
        path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    EXPECT_EQ(::WaitForSingleObject(process.hProcess, DeadlineMs), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 42U);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
}

namespace {

// An application with settings of its own, which it takes away.
class SettingsAppCL : public CWinApp
{
public:
    explicit SettingsAppCL(bool isRegistry)
        : CWinApp("toolkit test settings")
        , isRegistry_(isRegistry)
    {
        if (isRegistry_) {
            SetRegistryKey("\xD6\xD0"); // 中
        }
    }
    ~SettingsAppCL() override
    {
        WriteProfileString("part", nullptr, nullptr);
        if (!isRegistry_) {
            wchar_t folder[MAX_PATH] = {};
            ::GetWindowsDirectoryW(folder, MAX_PATH);
            ::DeleteFileW((std::wstring(folder) + L"\\toolkit test settings.INI").c_str());
        } else {
            ::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\\u4E2D\\toolkit test settings");
            ::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\\u4E2D");
        }
    }

private:
    bool isRegistry_;
};

class Settings : public testing::TestWithParam<bool>
{
};

std::string nameOfStore(const testing::TestParamInfo<bool>& store)
{
    return store.param ? "Registry" : "File";
}

} // namespace

TEST_P(Settings, AreKept)
{
    SettingsAppCL app(GetParam());
    EXPECT_EQ(app.GetProfileInt("part", "number", 5), 5U);
    EXPECT_TRUE(app.WriteProfileInt("part", "number", -7));
    EXPECT_EQ(static_cast<int>(app.GetProfileInt("part", "number", 5)), -7);
    EXPECT_STREQ(app.GetProfileString("part", "text", "none"), "none");
    EXPECT_TRUE(app.WriteProfileString("part", "text", "\xD6\xD0\xCE\xC4"));
    EXPECT_STREQ(app.GetProfileString("part", "text", "none"), "\xD6\xD0\xCE\xC4");
    BYTE bytes[] = { 0, 1, 255, 128 };
    EXPECT_TRUE(app.WriteProfileBinary("part", "bytes", bytes, sizeof bytes));
    BYTE* read = nullptr;
    UINT size = 0;
    ASSERT_TRUE(app.GetProfileBinary("part", "bytes", &read, &size));
    ASSERT_EQ(size, sizeof bytes);
    EXPECT_EQ(memcmp(read, bytes, size), 0);
    delete[] read;
}

TEST_P(Settings, AreTakenAway)
{
    SettingsAppCL app(GetParam());
    app.WriteProfileString("part", "text", "a");
    app.WriteProfileString("part", "other", "b");
    EXPECT_TRUE(app.WriteProfileString("part", "text", nullptr));
    EXPECT_STREQ(app.GetProfileString("part", "text", "none"), "none");
    EXPECT_STREQ(app.GetProfileString("part", "other"), "b");
    EXPECT_TRUE(app.WriteProfileString("part", nullptr, nullptr));
    EXPECT_STREQ(app.GetProfileString("part", "other"), "");
    BYTE* read = nullptr;
    UINT size = 1;
    EXPECT_FALSE(app.GetProfileBinary("part", "bytes", &read, &size));
    EXPECT_EQ(read, nullptr);
    EXPECT_EQ(size, 0U);
}

INSTANTIATE_TEST_SUITE_P(, Settings, testing::Bool(), nameOfStore);

TEST(WaitCursor, ShowsTheHourglassAsLongAsTheOutermostLives)
{
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR hourglass = ::LoadCursorW(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), hourglass);
        {
            const CWaitCursor inner;
            EXPECT_EQ(::GetCursor(), hourglass);
        }
        EXPECT_EQ(::GetCursor(), hourglass);
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(::GetCursor(), hourglass);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}
