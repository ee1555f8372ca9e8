// Whom a dialog tells of its controls when it is destroyed, and when they go.
#include "soak/guarded_object.h"
#include "support/deleted_when_shown.h"
#include "support/pump.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// A window that notes which of its children it is told to go.
template <class WindowTP> class ToldCL : public WindowTP
{
public:
    using WindowTP::WindowTP;
    std::string told;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY) {
            told += std::to_string(HIWORD(wParam)) + " ";
        }
        return WindowTP::WindowProc(message, wParam, lParam);
    }
};

// A label of the application's that looks for another one when its window goes.
class LookingLabelCL : public DuLabelCL
{
public:
    explicit LookingLabelCL(bool* finds)
        : finds_(finds)
    {
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY) {
            int kind = 0;
            auto* const dialog = static_cast<DuBasicDialogCL*>(GetParent());
            *finds_ = dialog->GetContrlPtrM(12, &kind) != nullptr;
        }
        return DuLabelCL::WindowProc(message, wParam, lParam);
    }

private:
    bool* finds_;
};

// The application's own handler of that message.
class MappedCL : public TestDialogCL
{
public:
    using TestDialogCL::TestDialogCL;
    std::string told;

protected:
    afx_msg void OnParentNotify(UINT message, LPARAM child)
    {
        if (LOWORD(message) == WM_DESTROY) {
            told += std::to_string(HIWORD(message)) + " ";
        }
        TestDialogCL::OnParentNotify(message, child);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MappedCL, TestDialogCL)
ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

// The procedure of a window class of the application's.
int heardByClass = 0;
LRESULT CALLBACK classProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    heardByClass += message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY ? 1 : 0;
    return ::DefDlgProcW(window, message, wParam, lParam);
}

constexpr struct
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    wchar_t className[16] { L"PanelkitHearing" };
    WORD title { 0 };
} OwnClassTemplate {};

const std::string Labels = HeaderSections
    + std::string("[标题]\n2\n0\n1 11 10 10 90 20 1\na\n0 -1 0 0\n2 12 10 40 90 20 1\nb\n0 -1 0 0\n");

} // namespace

TEST(Destroying, HandlersOfTheMapHearOfEachControl)
{
    MappedCL dialog(Labels);
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.told, "11 12 ");
}

TEST(Destroying, AWindowClassOfTheApplicationHearsOfEachControl)
{
    WNDCLASSW own {};
    ASSERT_TRUE(::GetClassInfoW(nullptr, L"#32770", &own));
    own.lpszClassName = OwnClassTemplate.className;
    own.lpfnWndProc = &classProc;
    own.hInstance = ::GetModuleHandleW(nullptr);
    ASSERT_NE(::RegisterClassW(&own), 0);
    const DescriptionFileCL file(Labels);
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_TRUE(dialog.CreateIndirect(&OwnClassTemplate.header, nullptr));
    dialog.DestroyWindow();
    EXPECT_EQ(heardByClass, 2);
    EXPECT_TRUE(::UnregisterClassW(own.lpszClassName, own.hInstance));
}

TEST(Destroying, TheDialogIsToldOfEachControlOnceAndItsOwnerOfNone)
{
    const DescriptionFileCL file(Labels);
    ToldCL<PlainWindowCL> owner;
    ToldCL<DuBasicDialogCL> dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(&owner), 1);
    ::SetFocus(owner.m_hWnd); // Else the controls go one by one.
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.told, "11 12 ");
    EXPECT_EQ(owner.told, "");
}

TEST(Destroying, AControlInAnotherWindowGoesThereOnce)
{
    const DescriptionFileCL file(Labels);
    ToldCL<PlainWindowCL> other;
    ToldCL<DuBasicDialogCL> dialog;
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    const HWND label = ::GetDlgItem(dialog.m_hWnd, 11);
    ::SetParent(label, other.m_hWnd);
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_FALSE(::IsWindow(label));
    EXPECT_EQ(other.told, "11 ");
    EXPECT_EQ(dialog.told, "12 ");
}

TEST(Destroying, AControlOfTheApplicationGoesWhileTheOthersAreThere)
{
    const DescriptionFileCL file(Labels);
    bool finds = false;
    DuBasicDialogCL dialog;
    dialog.SetFactoryM<DuLabelCL>([&finds](int id) {
        return id == 11 ? std::make_unique<LookingLabelCL>(&finds) : std::unique_ptr<DuLabelCL>();
    });
    dialog.SetConfigFileM(file.path());
    ASSERT_EQ(dialog.CreateM(), 1);
    ::SetFocus(nullptr); // Else they go one by one.
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_TRUE(finds);
}

TEST(Destroying, AModelessDialogMayBeDeletedWhenItShowsItself)
{
    const DescriptionFileCL file(Labels);
    const GuardedPagesCL pages;
    auto* const dialog = new GuardedCL<DeletedWhenShownCL<DuBasicDialogCL>>;
    dialog->SetConfigFileM(file.path());
    ASSERT_EQ(dialog->CreateM(), 1);
    EXPECT_TRUE(PumpUntil([] { return DeletedWhenShownCL<DuBasicDialogCL>::living == 0; }));
    EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
}
