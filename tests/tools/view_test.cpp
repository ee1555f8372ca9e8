// The dialog as a person looks at it.
#include "support/description.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>

#ifdef _WIN32

namespace {

// True once the condition holds; false after a minute.
template <class ConditionTP> bool waitFor(ConditionTP&& holds)
{
    const ULONGLONG end = ::GetTickCount64() + 60000;
    while (!holds()) {
        if (::GetTickCount64() > end) {
            return false;
        }
        ::Sleep(5);
    }
    return true;
}

// A view of a file in a process of its own.
class RunningViewCL
{
public:
    RunningViewCL(const std::string& options, const std::string& file)
    {
        STARTUPINFOA start {};
        start.cb = sizeof start;
        start.dwFlags = STARTF_USESTDHANDLES;
        start.hStdOutput = inheritedFile(output_.path());
        start.hStdError = start.hStdOutput;
        std::string line = "\"" PANELKIT_COMMAND "\" view " + options + " \"" + file + "\"";
        EXPECT_TRUE(::CreateProcessA(
            nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process_));
        ::CloseHandle(start.hStdOutput);
    }
    RunningViewCL(const RunningViewCL&) = delete;
    RunningViewCL& operator=(const RunningViewCL&) = delete;
    ~RunningViewCL()
    {
        ::TerminateProcess(process_.hProcess, 1);
        ::WaitForSingleObject(process_.hProcess, 60000);
        ::CloseHandle(process_.hThread);
        ::CloseHandle(process_.hProcess);
    }

    // Its dialog of that title (UTF-8), once it is shown.
    HWND DialogM(const std::string& title)
    {
        const std::wstring wide = slGbkToWide(slUtf8ToGbk(title.c_str()).c_str());
        HWND window = nullptr;
        EXPECT_TRUE(waitFor([&] {
            window = ::FindWindowW(nullptr, wide.c_str());
            return window != nullptr && ::IsWindowVisible(window);
        })) << title;
        return window;
    }
    std::string OutputM() const { return output_.bytes(); } // So far.
    DWORD CloseM(HWND dialog)
    {
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
        EXPECT_EQ(::WaitForSingleObject(process_.hProcess, 60000), WAIT_OBJECT_0);
        DWORD code = 999;
        ::GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

private:
    TempFile output_;
    PROCESS_INFORMATION process_ {};
};

const std::string CancelButton = "[标准按钮]\n1\n0\n1 2 20 30 80 24\n取消\n0\n";

} // namespace

TEST(View, DialogWithACancelButtonOfTheLibraryClosesByItsCloseBox)
{
    const DescriptionFileCL file(HeaderSections + CancelButton);
    RunningViewCL view("", file.path());
    EXPECT_EQ(view.CloseM(view.DialogM("参数设置")), 0U);
    EXPECT_EQ(view.OutputM(), "");
}

TEST(View, WatchedFileIsFollowedUntilTheDialogIsClosed)
{
    const DescriptionFileCL file(HeaderSections + CancelButton);
    RunningViewCL view("--watch --ids --messages", file.path());
    const HWND dialog = view.DialogM("参数设置");
    std::string changed = HeaderSections + CancelButton;
    changed.replace(changed.find("参数设置"), std::string("参数设置").size(), "其他设置");
    FILE* const rewritten = std::fopen(file.path(), "wb");
    std::fputs(slUtf8ToGbk(changed.c_str()).c_str(), rewritten);
    std::fclose(rewritten);
    EXPECT_EQ(view.DialogM("其他设置"), dialog);
    EXPECT_EQ(view.CloseM(dialog), 0U);
}

TEST(View, MessagesArePrintedAsTheyHappen)
{
    const DescriptionFileCL file(HeaderSections
        + std::string(
            "[标准按钮]\n1\n0\n1 118 20 30 80 24\n甲\n0\n[多选按钮]\n1\n0\n2 117 20 60 80 20 0\n乙\n"
            "[单行文本]\n1\n0\n3 105 20 90 60 20 1 0 100 0 0 2 42 0 1 255 255 255\n"));
    RunningViewCL view("--messages", file.path());
    const HWND dialog = view.DialogM("参数设置");
    const auto isTold = [&view](const std::string& line) {
        return waitFor([&] { return countOf(view.OutputM(), line) > 0; });
    };
    ::PostMessageW(::GetDlgItem(dialog, 118), BM_CLICK, 0, 0);
    EXPECT_TRUE(isTold("ButtonActionMsg 1424 id=118 button pressed (sent)\n")) << view.OutputM();
    EXPECT_TRUE(isTold("BN_CLICKED 0 id=118 clicked (sent)\n")) << view.OutputM();
    ::PostMessageW(::GetDlgItem(dialog, 117), BM_CLICK, 0, 0);
    EXPECT_TRUE(isTold("CheckClickedMsg 1739 id=117 check box clicked (posted)\n")) << view.OutputM();
    ::PostMessageW(::GetDlgItem(dialog, 105), WM_CHAR, '7', 0);
    EXPECT_TRUE(isTold("EN_CHANGE 768 id=105 text changed (sent)\n")) << view.OutputM();
    EXPECT_EQ(view.CloseM(dialog), 0U);
}

TEST(View, ManyFilesAreShownOneAfterTheOther)
{
    std::string second = HeaderSections + CancelButton;
    second.replace(second.find("参数设置"), std::string("参数设置").size(), "第二个");
    const DescriptionFileCL files[2] { DescriptionFileCL(HeaderSections + CancelButton),
        DescriptionFileCL(second) };
    RunningViewCL view("", files[0].path() + std::string("\" \"") + files[1].path());
    ::PostMessageW(view.DialogM("参数设置"), WM_CLOSE, 0, 0);
    EXPECT_EQ(view.CloseM(view.DialogM("第二个")), 0U);
}

#endif
