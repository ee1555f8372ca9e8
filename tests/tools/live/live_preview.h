#pragma once
#include "live_dialog.h"
#include "support/all.h"
#include "support/description.h"
#include "support/description_files.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <filesystem>
#include <gtest/gtest.h>

// A folder of its own in the temporary one, the current one while it lives.
class WorkFolderCL
{
public:
    WorkFolderCL()
        : before_(std::filesystem::current_path())
        , path_(std::string(name_.path()) + ".d")
    {
        std::filesystem::create_directory(path_);
        std::filesystem::current_path(path_);
    }
    WorkFolderCL(const WorkFolderCL&) = delete;
    WorkFolderCL& operator=(const WorkFolderCL&) = delete;
    ~WorkFolderCL()
    {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(path_);
    }

private:
    TempFile name_;
    std::filesystem::path before_;
    std::filesystem::path path_;
};

inline void writeBytes(const std::string& name, const std::string& bytes)
{
    FILE* const file = std::fopen(name.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
}

inline void writeDescription(const std::string& sections, const std::string& name = "a.dlg")
{
    writeBytes(name, slUtf8ToGbk((HeaderSections + sections).c_str()));
}

// An example with its pictures, its description as that file.
inline void copyExample(const std::string& example, const std::string& as = "a.dlg")
{
    for (const auto& entry :
        std::filesystem::directory_iterator(std::string(PANELKIT_EXAMPLES "/") + example)) {
        const std::filesystem::path name = entry.path().filename();
        std::filesystem::copy_file(entry.path(), name == example + ".dlg" ? as : name);
    }
}

inline ViewOptionsCL watching()
{
    ViewOptionsCL options;
    options.watches = true;
    options.language = "en";
    return options;
}

// The preview of a.dlg, shown and in the foreground, its keys handled as a dialog's.
class LivePreviewCL : public LiveDialogCL
{
public:
    explicit LivePreviewCL(const ViewOptionsCL& options = watching())
        : LiveDialogCL("a.dlg", options)
    {
        CreateM();
        EXPECT_TRUE(testing_support::PumpUntil([this] { return IsWindowVisible() != FALSE; }));
        EXPECT_TRUE(testing_support::ActivateM(m_hWnd));
        testing_support::pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
    }
    ~LivePreviewCL() override
    {
        testing_support::pumpFilter = nullptr;
        DestroyWindow();
    }

    HWND ItemM(int id) const { return ::GetDlgItem(m_hWnd, id); }
    std::string TextM(int id) const { return textOf(ItemM(id)); }
    bool ShowsM(int id, const std::string& text) const { return ItemM(id) != nullptr && TextM(id) == text; }
    std::string BarTextM() const
    {
        return BarM() != nullptr && ::IsWindowVisible(BarM()) ? textOf(BarM()) : "";
    }
    // Has the whole dialog built anew from these sections, which give the label 901 another text.
    void ChangeToM(const std::string& sections)
    {
        writeDescription(sections + mark());
        EXPECT_TRUE(testing_support::PumpUntil([this] { return ShowsM(901, lastMark_); })) << BarTextM();
        testing_support::PumpPending();
    }

private:
    std::string mark()
    {
        lastMark_ = "build " + std::to_string(++marks_);
        return "[标题]\n1\n0\n90 901 300 200 90 20 2\n" + lastMark_ + "\n0 -1 0 0\n";
    }

    int marks_ { 0 };
    std::string lastMark_;
};
