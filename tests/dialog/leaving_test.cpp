// Dialogs that go while a field or a combo box of theirs has the focus: nothing in them has been left.
#include "controls/text/edit_story.h"
#include "support/script.h"

using namespace testing_support;

namespace {

const char* const Sections
    = "[带spin的文本]\n1\n0\n1 12 20 90 120 24 1 0 100 0 1 2 7 12 22 16\n[下拉列表框]\n1\n0\n"
      "1 13 20 120 120 120 1\n[下拉列表框初始值]\n2\n0\n13 one\n13 two\n"
      "[标准按钮]\n1\n0\n20 1 200 20 80 30\nok\n1\n";

// A modal dialog with a field 11, a spin edit 12, a combo box 13 and OK, which runs the script once it is
// built.
class GoingCL : public DuBasicDialogCL
{
public:
    explicit GoingCL(int focused)
        : focused_(focused)
    {
        SetConfigFileM(file_.path());
        ActivateM(owner_.m_hWnd);
    }
    // What the user was told and what the dialog was posted by the time it is gone.
    std::string RunM()
    {
        DoModalM(&owner_);
        PumpPending();
        std::string all = told_.SeenM().empty() ? "" : "told ";
        for (const std::string& line : seen_) {
            all += line;
        }
        return all + items_;
    }
    HWND FieldM() const
    {
        const HWND item = ::GetDlgItem(m_hWnd, focused_);
        return focused_ == 13 ? ::GetWindow(item, GW_CHILD) : item;
    }
    bool endsAtOnce { false };

protected:
    BOOL OnInitDialog() override
    {
        DuBasicDialogCL::OnInitDialog();
        auto* const combo = static_cast<DuComboBoxCL*>(GetDlgItem(13));
        if (focused_ == 13) { // The first item is the one that the user chose last.
            combo->SetCurSel(0);
            ::SendMessageW(
                m_hWnd, WM_COMMAND, MAKEWPARAM(13, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo->m_hWnd));
        }
        ::SetFocus(FieldM());
        ::SetWindowTextW(FieldM(), L"x");
        if (endsAtOnce) {
            EndDialog(IDOK);
        }
        return FALSE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KILLFOCUS && wParam == static_cast<WPARAM>(focused_)) {
            seen_.push_back("8 ");
        }
        if (message == ValueReportMsg) {
            seen_.push_back("1624 ");
        }
        if (message == ButtonActionMsg) {
            EndDialog(IDOK);
        }
        if (message == WM_DESTROY && focused_ == 13) {
            CString first;
            static_cast<DuComboBoxCL*>(GetDlgItem(13))->GetLBText(0, first);
            items_ = first != "one" ? "item " + std::string(first) : "";
        }
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    const int focused_;
    const DescriptionFileCL file_ { editSection({ editRecord(11, "1 0 100", "5") }) + Sections };
    PlainWindowCL owner_;
    MessageBoxWatcher told_;
    std::vector<std::string> seen_;
    std::string items_;
};

class LeavingTest : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(LeavingTest, IsNotWhatADialogDoesThatEndsItselfWhileItIsBuilt)
{
    GoingCL dialog(GetParam());
    dialog.endsAtOnce = true;
    EXPECT_EQ(dialog.RunM(), "");
}

TEST_P(LeavingTest, IsNotWhatCancellingADialogBeforeItIsPaintedDoes)
{
    GoingCL dialog(GetParam());
    Script script([&dialog] { dialog.EndDialog(0); });
    script.WaitM([&dialog] { return dialog.m_hWnd != nullptr; }, "the dialog");
    script.DoM([&dialog] { dialog.PostMessage(WM_COMMAND, IDCANCEL); });
    EXPECT_EQ(dialog.RunM(), "");
}

TEST_P(LeavingTest, IsNotWhatClosingADialogWithEnterDoes)
{
    GoingCL dialog(GetParam());
    Script script([&dialog] { dialog.EndDialog(0); });
    script.WaitM([&dialog] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([&dialog] { ActivateM(dialog.m_hWnd); });
    script.DoM([&dialog] { EXPECT_TRUE(FocusM(dialog.FieldM())); });
    script.DoM([] { KeyM(VK_RETURN); });
    EXPECT_EQ(dialog.RunM(), "");
}

TEST_P(LeavingTest, IsNotWhatHidingADialogDoes)
{
    GoingCL dialog(GetParam());
    Script script([&dialog] { dialog.EndDialog(0); });
    script.WaitM([&dialog] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible(); }, "the dialog");
    script.DoM([&dialog] { ActivateM(dialog.m_hWnd); });
    script.DoM([&dialog] { EXPECT_TRUE(FocusM(dialog.FieldM())); });
    script.DoM([&dialog] { dialog.ShowWindow(SW_HIDE); });
    script.DoM([&dialog] { dialog.EndDialog(0); });
    EXPECT_EQ(dialog.RunM(), "");
}

INSTANTIATE_TEST_SUITE_P(Fields, LeavingTest, testing::Values(11, 12, 13));
