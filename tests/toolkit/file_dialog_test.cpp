#include "parent_window.h"
#include "support/input.h"
#include "support/message_box.h"
#include "support/script.h"
#include <dlgs.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace testing_support;

namespace {

// A folder of its own with a few files.
class FileDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        wchar_t temp[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temp);
        folder_ = std::wstring(temp) + L"\u4E2D\u6587" + std::to_wstring(::GetCurrentProcessId());
        ASSERT_TRUE(::CreateDirectoryW(folder_.c_str(), nullptr));
        for (const wchar_t* name : { L"\u6587.txt", L"b.txt", L"c.dat" }) {
            const HANDLE file = ::CreateFileW(
                (folder_ + L"\\" + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
            ASSERT_NE(file, INVALID_HANDLE_VALUE);
            ::CloseHandle(file);
        }
        ::GetCurrentDirectoryW(MAX_PATH, current_);
    }
    void TearDown() override
    {
        ::SetCurrentDirectoryW(current_);
        for (const wchar_t* name : { L"\u6587.txt", L"b.txt", L"c.dat" }) {
            ::DeleteFileW((folder_ + L"\\" + name).c_str());
        }
        ::RemoveDirectoryW(folder_.c_str());
    }
    std::string pathM(const char* name) const { return WideToGbk(folder_.c_str()) + "\\" + name; }

    ParentWindowCL parent;
    std::wstring folder_;
    wchar_t current_[MAX_PATH] = {};
};

// Notes what it is told and may refuse a name once.
class NotingDialogCL : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;
    int initialised = 0;
    int done = 0;
    int refusals = 0;
    std::vector<std::string> asked;
    BOOL OnInitDialog() override
    {
        ++initialised;
        return TRUE;
    }
    void OnInitDone() override { ++done; }
    BOOL OnFileNameOK() override
    {
        asked.push_back(std::string(GetFileName()));
        return refusals-- > 0;
    }
    // The system's dialog, in which the object's window lies.
    HWND FrameM() const { return ::GetParent(m_hWnd); }
    bool IsReadyM() const { return done > 0 && ::IsWindowVisible(FrameM()); }
    void AnswerM(const wchar_t* name)
    {
        const HWND combo = ::GetDlgItem(FrameM(), cmb13);
        const HWND field = combo != nullptr ? combo : ::GetDlgItem(FrameM(), edt1);
        ::SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name));
        PressM(IDOK);
    }
    void PressM(int id) { ::PostMessageW(FrameM(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
};

} // namespace

TEST_F(FileDialog, OpensAFileOfAChineseName)
{
    NotingDialogCL dialog(TRUE, "txt", nullptr, OFN_FILEMUSTEXIST, "\xCE\xC4|*.txt|All|*.*||", &parent);
    dialog.m_ofn.lpstrTitle = ChineseText;
    const std::string folder = WideToGbk(folder_.c_str());
    dialog.m_ofn.lpstrInitialDir = folder.c_str();
    std::wstring caption(20, L'\0');
    CString shownFolder;
    Script script([&] { dialog.PressM(IDCANCEL); });
    script.WaitM([&] { return dialog.IsReadyM(); }, "the dialog");
    script.DoM([&] {
        caption.resize(static_cast<size_t>(::GetWindowTextW(dialog.FrameM(), caption.data(), 20)));
        shownFolder = dialog.GetFolderPath();
        EXPECT_FALSE(parent.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(dialog.FrameM(), GW_OWNER), parent.m_hWnd);
        dialog.AnswerM(L"\u6587");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.initialised, 1);
    EXPECT_EQ(caption, ChineseWide);
    EXPECT_EQ(std::string(shownFolder), folder);
    EXPECT_EQ(std::string(dialog.GetPathName()), pathM("\xCE\xC4.txt"));
    EXPECT_EQ(std::string(dialog.GetFileName()), "\xCE\xC4.txt");
    EXPECT_EQ(std::string(dialog.GetFileTitle()), "\xCE\xC4");
    EXPECT_EQ(std::string(dialog.GetFileExt()), "txt");
    EXPECT_STREQ(dialog.m_ofn.lpstrFileTitle, "\xCE\xC4.txt");
    EXPECT_STREQ(dialog.m_ofn.lpstrFile + dialog.m_ofn.nFileExtension, "txt");
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
    POSITION at = dialog.GetStartPosition();
    EXPECT_EQ(std::string(dialog.GetNextPathName(at)), pathM("\xCE\xC4.txt"));
    EXPECT_EQ(at, nullptr);
}

TEST_F(FileDialog, MayRefuseAName)
{
    NotingDialogCL dialog(TRUE, NULL, NULL, OFN_FILEMUSTEXIST, L"All|*.*||", &parent);
    const std::string folder = WideToGbk(folder_.c_str());
    dialog.m_ofn.lpstrInitialDir = folder.c_str();
    dialog.refusals = 1;
    Script script([&] { dialog.PressM(IDCANCEL); });
    script.WaitM([&] { return dialog.IsReadyM(); }, "the dialog");
    script.DoM([&] { dialog.AnswerM(L"b.txt"); });
    script.WaitM([&] { return dialog.asked.size() == 1; }, "the refusal");
    script.DoM([&] {
        EXPECT_TRUE(::IsWindow(dialog.FrameM()));
        dialog.AnswerM(L"c.dat");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(std::string(dialog.GetFileName()), "c.dat");
    EXPECT_EQ(dialog.asked, (std::vector<std::string> { "b.txt", "c.dat" }));
}

TEST_F(FileDialog, GivesAllNamesOfAMultipleSelection)
{
    NotingDialogCL dialog(TRUE, NULL, NULL, OFN_ALLOWMULTISELECT | OFN_FILEMUSTEXIST, NULL, &parent);
    const std::string folder = WideToGbk(folder_.c_str());
    std::vector<char> names(4000);
    dialog.m_ofn.lpstrInitialDir = folder.c_str();
    dialog.m_ofn.lpstrFile = names.data();
    dialog.m_ofn.nMaxFile = static_cast<DWORD>(names.size());
    Script script([&] { dialog.PressM(IDCANCEL); });
    script.WaitM([&] { return dialog.IsReadyM(); }, "the dialog");
    script.DoM([&] { dialog.AnswerM(L"\"\u6587.txt\" \"c.dat\""); });
    ASSERT_EQ(dialog.DoModal(), IDOK);
    std::vector<std::string> paths;
    for (POSITION at = dialog.GetStartPosition(); at != nullptr;) {
        paths.push_back(std::string(dialog.GetNextPathName(at)));
    }
    EXPECT_EQ(paths, (std::vector<std::string> { pathM("\xCE\xC4.txt"), pathM("c.dat") }));
}

TEST_F(FileDialog, SavesUnderANewNameWithItsExtension)
{
    NotingDialogCL dialog(FALSE, "dat", "first", OFN_OVERWRITEPROMPT, "Data|*.dat||", &parent);
    const std::string folder = WideToGbk(folder_.c_str());
    dialog.m_ofn.lpstrInitialDir = folder.c_str();
    std::wstring first(20, L'\0');
    Script script([&] { dialog.PressM(IDCANCEL); });
    script.WaitM([&] { return dialog.IsReadyM(); }, "the dialog");
    script.DoM([&] {
        HWND field = ::GetDlgItem(dialog.FrameM(), cmb13);
        field = field != nullptr ? field : ::GetDlgItem(dialog.FrameM(), edt1);
        first.resize(static_cast<size_t>(
            ::SendMessageW(field, WM_GETTEXT, first.size(), reinterpret_cast<LPARAM>(first.data()))));
        dialog.SetControlText(IDOK, ChineseText);
        wchar_t shown[10] = {};
        ::GetDlgItemTextW(dialog.FrameM(), IDOK, shown, 10);
        EXPECT_STREQ(shown, ChineseWide);
        dialog.HideControl(pshHelp);
        dialog.AnswerM(L"new \u4E2D");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(first, L"first");
    EXPECT_EQ(std::string(dialog.GetPathName()), pathM("new \xD6\xD0.dat"));
}

TEST_F(FileDialog, CancelLeavesTheNameAlone)
{
    NotingDialogCL dialog(TRUE, "txt", "kept.txt", 0, NULL, &parent);
    Script script;
    script.WaitM([&] { return dialog.IsReadyM(); }, "the dialog");
    script.DoM([&] { KeyM(VK_ESCAPE); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_STREQ(dialog.m_ofn.lpstrFile, "kept.txt");
    EXPECT_TRUE(dialog.asked.empty());
}

// The second half of some characters is the bar that divides a filter.
TEST_F(FileDialog, FilterIsDividedBetweenCharacters)
{
    CFileDialog dialog(TRUE, NULL, NULL, 0, "\x81\x7C|*.a|All|*.*||");
    const char expected[] = "\x81\x7C\0*.a\0All\0*.*\0";
    EXPECT_EQ(std::string(dialog.m_ofn.lpstrFilter, sizeof expected), std::string(expected, sizeof expected));
}
