#include "support/test_dialog.h"
#include <gtest/gtest.h>

namespace {

const std::string Labels = HeaderSections
    + std::string("[标题]\n2\n0\n2 12 20 60 100 20 1\nb\n0 -1 0 0\n1 11 20 30 120 20 1\na\n0 -1 0 0\n");

class ExchangingHostCL : public DuBasicDialogCL
{
public:
    CString first { "\xD6\xD0" }; // 中

protected:
    void DoDataExchange(CDataExchange* data) override
    {
        DuBasicDialogCL::DoDataExchange(data);
        DDX_Text(data, 11, first);
    }
};

} // namespace

TEST(DataExchange, HostFindsTheControlsOfItsDescription)
{
    const DescriptionFileCL file(Labels);
    ExchangingHostCL dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    const HWND label = ::GetDlgItem(dialog, 11);
    ASSERT_NE(label, nullptr);
    wchar_t text[8] = L"";
    ::GetWindowTextW(label, text, 8);
    EXPECT_STREQ(text, L"\u4E2D");
    ::SetWindowTextW(label, L"\u6587");
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_STREQ(dialog.first, "\xCE\xC4");
}
