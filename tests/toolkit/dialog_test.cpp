#include "soak/guarded_object.h"
#include "support/deleted_when_shown.h"
#include "support/message_box.h"
#include "support/pump.h"
#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class DialogCL : public CDialog
{
public:
    using CDialog::CDialog;
    int initialised = 0;
    int oks = 0;
    bool ownerWasEnabled = true;
    bool wasVisible = false;
    int early = 0;
    UINT key = 0; // pressed in the edit field; 0: the timer ends the dialog with 77
    DialogCL* inner = nullptr;
    int innerResult = 0;
    BOOL OnInitDialog() override
    {
        ++initialised;
        SetTimer(1, 10);
        return CDialog::OnInitDialog();
    }
    afx_msg void OnTimer(UINT_PTR id)
    {
        if (!IsWindowVisible() && ++early < 100) {
            return; // due before the loop had nothing else to do
        }
        KillTimer(id);
        wasVisible = IsWindowVisible() != FALSE;
        HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
        ownerWasEnabled = owner != nullptr && ::IsWindowEnabled(owner);
        if (inner != nullptr) {
            innerResult = static_cast<int>(inner->DoModal());
        }
        if (key != 0) {
            GetDlgItem(100)->PostMessage(WM_KEYDOWN, key, 1);
        } else {
            EndDialog(77);
        }
    }
    void OnOK() override
    {
        ++oks;
        CDialog::OnOK();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DialogCL, CDialog)
ON_WM_TIMER()
END_MESSAGE_MAP()

} // namespace

TEST(Dialog, ModalDialogShowsItselfDisablesItsOwnerAndGivesItsResult)
{
    OwnerCL owner;
    TemplateCL shape;
    DialogCL dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(shape, &owner));
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(dialog.initialised, 1);
    EXPECT_TRUE(dialog.wasVisible);
    EXPECT_FALSE(dialog.ownerWasEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(Dialog, ModalDialogsNest)
{
    OwnerCL owner;
    TemplateCL shape;
    DialogCL inner;
    DialogCL outer;
    inner.InitModalIndirect(shape, &outer);
    outer.InitModalIndirect(shape, &owner);
    outer.inner = &inner;
    EXPECT_EQ(outer.DoModal(), 77);
    EXPECT_EQ(outer.innerResult, 77);
    EXPECT_FALSE(inner.ownerWasEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

namespace {

// Its window goes while it is made, with or without a result.
class VanishingDialogCL : public CDialog
{
public:
    explicit VanishingDialogCL(int result)
        : result_(result)
    {
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (result_ != 0) {
            EndDialog(result_);
        }
        DestroyWindow();
        return TRUE;
    }

private:
    int result_;
};

// Ends what waits for messages in vain.
class EndingCL
{
public:
    EndingCL()
        : timer_(::SetTimer(nullptr, 0, 3000, &end))
    {
        wasNeeded = false;
    }
    EndingCL(const EndingCL&) = delete;
    EndingCL& operator=(const EndingCL&) = delete;
    ~EndingCL()
    {
        ::KillTimer(nullptr, timer_);
        MSG quit {};
        ::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    }
    static inline bool wasNeeded { false };

private:
    static void CALLBACK end(HWND, UINT, UINT_PTR, DWORD)
    {
        wasNeeded = true;
        ::PostQuitMessage(0);
    }
    UINT_PTR timer_;
};

} // namespace

TEST(Dialog, ModalDialogWhoseWindowGoesWhileItIsMadeIsOver)
{
    TemplateCL shape;
    for (const int result : { 0, 5 }) {
        OwnerCL owner;
        VanishingDialogCL dialog(result);
        dialog.InitModalIndirect(shape, &owner);
        const EndingCL ending;
        EXPECT_EQ(dialog.DoModal(), result == 0 ? -1 : result);
        EXPECT_FALSE(EndingCL::wasNeeded);
        EXPECT_TRUE(owner.IsWindowEnabled());
    }
}

TEST(Dialog, ModalDialogMayBeDeletedWhenItIsShown)
{
    OwnerCL owner;
    TemplateCL shape;
    const GuardedPagesCL pages;
    auto* const dialog = new GuardedCL<DeletedWhenShownCL<CDialog>>;
    dialog->InitModalIndirect(shape, &owner);
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_EQ(DeletedWhenShownCL<CDialog>::living, 0);
    EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(Dialog, EnterIsOkAndEscapeIsCancel)
{
    OwnerCL owner;
    TemplateCL shape;
    DialogCL dialog;
    dialog.InitModalIndirect(shape, &owner);
    dialog.key = VK_RETURN;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.oks, 1);
    dialog.key = VK_ESCAPE;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.oks, 1);
}

TEST(Dialog, ModelessDialogTakesItsKeysInAForeignMessageLoop)
{
    OwnerCL owner;
    TemplateCL shape(WS_POPUP | WS_VISIBLE);
    DialogCL dialog;
    dialog.key = VK_TAB;
    ASSERT_TRUE(dialog.CreateIndirect(shape, &owner));
    EXPECT_TRUE(owner.IsWindowEnabled());
    dialog.GetDlgItem(100)->SetFocus();
    pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == ::GetDlgItem(dialog, IDOK); }));
    pumpFilter = nullptr;
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(Dialog, WithoutATemplateThereIsNoDialog)
{
    DialogCL dialog(4711);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(4711));
    EXPECT_FALSE(dialog.Create(MAKEINTRESOURCE(4711)));
    DialogCL wide(L"no such template");
    EXPECT_EQ(wide.DoModal(), -1);
    DialogCL number(MAKEINTRESOURCE(4711));
    EXPECT_EQ(number.DoModal(), -1);
    EXPECT_EQ(dialog.initialised, 0);
}

TEST(App, MessageBoxBelongsToTheMainWindowAndHasTheApplicationsTitle)
{
    OwnerCL owner;
    CWinApp app("\xB1\xEA\xCC\xE2"); // 标题
    app.m_pMainWnd = &owner;
    MessageBoxWatcher watcher;
    EXPECT_EQ(AfxMessageBox("\xD6\xD0\xCE\xC4"), IDOK); // 中文
    ASSERT_TRUE(watcher.WaitForM(1));
    MessageBoxSeen box = watcher.SeenM()[0];
    EXPECT_EQ(box.owner, owner.m_hWnd);
    EXPECT_EQ(box.caption, L"\u6807\u9898");
    EXPECT_EQ(box.text, L"\u4E2D\u6587");
    EXPECT_EQ(box.icon, 0u);
}

TEST(App, MessageBoxOfAProgramWithoutApplicationObjectIsNamedAfterIt)
{
    MessageBoxWatcher watcher;
    EXPECT_EQ(AfxMessageBox("text"), IDOK);
    ASSERT_TRUE(watcher.WaitForM(1));
    EXPECT_EQ(watcher.SeenM()[0].caption, L"toolkit_test");
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST(App, MessageBoxOfAWindowBelongsToIt)
{
    OwnerCL owner;
    MessageBoxWatcher watcher;
    EXPECT_EQ(owner.MessageBox("text", "own caption", MB_OK | MB_ICONEXCLAMATION), IDOK);
    ASSERT_TRUE(watcher.WaitForM(1));
    MessageBoxSeen box = watcher.SeenM()[0];
    EXPECT_EQ(box.owner, owner.m_hWnd);
    EXPECT_EQ(box.caption, L"own caption");
    EXPECT_EQ(box.icon, static_cast<UINT>(MB_ICONEXCLAMATION));
}

namespace {

class CountedAppCL : public CWinApp
{
public:
    int idles = 0;
    BOOL OnIdle(LONG count) override
    {
        CWinApp::OnIdle(count);
        if (++idles == 1) {
            m_pMainWnd->DestroyWindow();
        }
        return FALSE;
    }
};

} // namespace

TEST(App, RunEndsWithTheMainWindow)
{
    OwnerCL owner;
    CountedAppCL app;
    app.m_pMainWnd = &owner;
    EXPECT_EQ(app.Run(), 0);
    EXPECT_GE(app.idles, 1);
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    EXPECT_EQ(owner.m_hWnd, nullptr);
}

TEST(App, IdleDropsTemporaryObjectsButAModalLoopKeepsThoseFromOutside)
{
    OwnerCL owner;
    HWND plain = ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 5, 5, owner, nullptr, nullptr, nullptr);
    CWnd* outside = CWnd::FromHandle(plain);
    outside->m_hWnd = nullptr; // marks the object: a new one would know its window
    TemplateCL shape;
    DialogCL dialog;
    dialog.InitModalIndirect(shape, &owner);
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(CWnd::FromHandle(plain)->m_hWnd, nullptr) << "dropped by the modal loop";
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(CWnd::FromHandle(plain)->m_hWnd, plain) << "not dropped while idle";
}
