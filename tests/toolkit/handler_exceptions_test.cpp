#include "support/message_box.h"
#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <vector>

using testing_support::MessageBoxWatcher;

namespace {

class ThrowingDialogCL : public CDialog
{
public:
    bool throwsInPreTranslate = false;
    BOOL OnInitDialog() override
    {
        PostMessage(WM_USER);
        return CDialog::OnInitDialog();
    }
    BOOL PreTranslateMessage(MSG* message) override
    {
        if (throwsInPreTranslate && message->message == WM_USER) {
            throw 11;
        }
        return CDialog::PreTranslateMessage(message);
    }
};

class IdleThrowingAppCL : public CWinApp
{
public:
    BOOL OnIdle(LONG) override { throw 12; }
};

// Notes what the application's hook is told.
class NotingAppCL : public CWinApp
{
public:
    std::vector<UINT> messages;
    bool wasUserException = false;
    LRESULT ProcessWndProcException(CException* e, const MSG* message) override
    {
        messages.push_back(message->message);
        wasUserException = e->IsKindOf(RUNTIME_CLASS(CUserException)) != FALSE;
        return message->message == WM_USER ? 33 : CWinApp::ProcessWndProcException(e, message);
    }
};

class CountedExceptionCL : public CException
{
public:
    CountedExceptionCL() { ++living; }
    ~CountedExceptionCL() override { --living; }
    inline static int living = 0;
};

class ThrowingWndCL : public CWnd
{
public:
    bool throwsInCreate = false;
    bool createWindowM()
    {
        return CreateEx(0, nullptr, "x", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr) != FALSE;
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (throwsInCreate) {
            AfxThrowResourceException();
        }
        return CWnd::OnCreate(create);
    }
    afx_msg void OnPaint() { AfxThrowMemoryException(); }
    afx_msg LRESULT OnUser(WPARAM, LPARAM) { throw new CountedExceptionCL; }
    afx_msg void OnCommandOne() { AfxThrowUserException(); }
    afx_msg void OnCommandTwo() { AfxThrowNotSupportedException(); }
    afx_msg void OnSize(UINT, int, int) { throw 1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThrowingWndCL, CWnd)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_SIZE()
ON_MESSAGE(WM_USER, &ThrowingWndCL::OnUser)
ON_COMMAND(1, &ThrowingWndCL::OnCommandOne)
ON_COMMAND(2, &ThrowingWndCL::OnCommandTwo)
END_MESSAGE_MAP()

int thrownByDoModalM(CDialog* dialog)
{
    try {
        dialog->DoModal();
    } catch (int thrown) {
        return thrown;
    }
    return 0;
}

} // namespace

TEST(HandlerExceptions, OneOutOfPreTranslateMessagePassesDoModalWithTheOwnerEnabled)
{
    OwnerCL owner;
    const TemplateCL shape;
    ThrowingDialogCL dialog;
    dialog.throwsInPreTranslate = true;
    dialog.InitModalIndirect(shape, &owner);
    EXPECT_EQ(thrownByDoModalM(&dialog), 11);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(owner.GetLastActivePopup(), &owner);
}

TEST(HandlerExceptions, OneOutOfIdleWorkPassesDoModalWithTheOwnerEnabled)
{
    OwnerCL owner;
    const TemplateCL shape;
    ThrowingDialogCL dialog;
    IdleThrowingAppCL app;
    dialog.InitModalIndirect(shape, &owner);
    EXPECT_EQ(thrownByDoModalM(&dialog), 12);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(HandlerExceptions, ApplicationIsToldAndAnswersForTheHandler)
{
    NotingAppCL app;
    ThrowingWndCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    app.messages.clear();
    EXPECT_EQ(wnd.SendMessage(WM_USER), 33);
    EXPECT_EQ(app.messages, (std::vector<UINT> { WM_USER }));
    EXPECT_EQ(CountedExceptionCL::living, 0) << "deleted afterwards";
    EXPECT_FALSE(app.wasUserException);
}

TEST(HandlerExceptions, WindowWhoseCreationThrowsIsNone)
{
    ThrowingWndCL wnd;
    wnd.throwsInCreate = true;
    EXPECT_FALSE(wnd.createWindowM());
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(HandlerExceptions, WindowWhosePaintingThrowsIsNotPaintedAgain)
{
    ThrowingWndCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
}

TEST(HandlerExceptions, UserIsToldOfAnExceptionOfACommandButNotOfHisOwn)
{
    ThrowingWndCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    const MessageBoxWatcher watcher;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 1), 1);
    EXPECT_TRUE(watcher.SeenM().empty());
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, 2), 1);
    ASSERT_TRUE(watcher.WaitForM(1));
    EXPECT_EQ(watcher.SeenM()[0].text, L"\u4E0D\u652F\u6301\u6B64\u64CD\u4F5C\u3002");
    EXPECT_EQ(watcher.SeenM()[0].icon, static_cast<UINT>(MB_ICONEXCLAMATION));
}

TEST(HandlerExceptions, OneThatIsNoCExceptionIsNotForTheApplication)
{
    NotingAppCL app;
    ThrowingWndCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    app.messages.clear();
    EXPECT_EQ(wnd.SendMessage(WM_SIZE), 0);
    EXPECT_TRUE(app.messages.empty());
}
