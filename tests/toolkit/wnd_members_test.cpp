#include "support/pump.h"
#include "support/window.h"
#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <vector>

using namespace testing_support;

namespace {

// That it compiles is a test: what a member function of a window's class calls by these names is a member,
// never the system's function of the same name with the handle that a window turns into.
class HidingCL : public CDialog
{
public:
    using CDialog::EndDialog;
    using CDialog::MapDialogRect;
    using CWnd::ArrangeIconicWindows;
    using CWnd::BeginPaint;
    using CWnd::BringWindowToTop;
    using CWnd::ChangeClipboardChain;
    using CWnd::CheckDlgButton;
    using CWnd::CheckRadioButton;
    using CWnd::ChildWindowFromPoint;
    using CWnd::ClientToScreen;
    using CWnd::CloseWindow;
    using CWnd::CreateCaret;
    using CWnd::DefWindowProc;
    using CWnd::DestroyWindow;
    using CWnd::DlgDirList;
    using CWnd::DlgDirListComboBox;
    using CWnd::DragAcceptFiles;
    using CWnd::DrawAnimatedRects;
    using CWnd::DrawCaption;
    using CWnd::DrawMenuBar;
    using CWnd::EnableScrollBar;
    using CWnd::EnableWindow;
    using CWnd::EndPaint;
    using CWnd::FindWindow;
    using CWnd::FindWindowEx;
    using CWnd::FlashWindow;
    using CWnd::FlashWindowEx;
    using CWnd::GetActiveWindow;
    using CWnd::GetAncestor;
    using CWnd::GetCapture;
    using CWnd::GetCaretPos;
    using CWnd::GetClientRect;
    using CWnd::GetClipboardOwner;
    using CWnd::GetClipboardViewer;
    using CWnd::GetDC;
    using CWnd::GetDCEx;
    using CWnd::GetDesktopWindow;
    using CWnd::GetDlgCtrlID;
    using CWnd::GetDlgItem;
    using CWnd::GetDlgItemInt;
    using CWnd::GetDlgItemText;
    using CWnd::GetFocus;
    using CWnd::GetForegroundWindow;
    using CWnd::GetLastActivePopup;
    using CWnd::GetLayeredWindowAttributes;
    using CWnd::GetMenu;
    using CWnd::GetMenuBarInfo;
    using CWnd::GetNextDlgGroupItem;
    using CWnd::GetNextDlgTabItem;
    using CWnd::GetNextWindow;
    using CWnd::GetOpenClipboardWindow;
    using CWnd::GetParent;
    using CWnd::GetScrollBarInfo;
    using CWnd::GetScrollInfo;
    using CWnd::GetScrollPos;
    using CWnd::GetScrollRange;
    using CWnd::GetSystemMenu;
    using CWnd::GetTitleBarInfo;
    using CWnd::GetTopWindow;
    using CWnd::GetUpdateRect;
    using CWnd::GetUpdateRgn;
    using CWnd::GetWindow;
    using CWnd::GetWindowContextHelpId;
    using CWnd::GetWindowDC;
    using CWnd::GetWindowInfo;
    using CWnd::GetWindowPlacement;
    using CWnd::GetWindowRect;
    using CWnd::GetWindowRgn;
    using CWnd::GetWindowText;
    using CWnd::GetWindowTextLength;
    using CWnd::HideCaret;
    using CWnd::HiliteMenuItem;
    using CWnd::InvalidateRect;
    using CWnd::InvalidateRgn;
    using CWnd::IsChild;
    using CWnd::IsDialogMessage;
    using CWnd::IsDlgButtonChecked;
    using CWnd::IsIconic;
    using CWnd::IsWindowEnabled;
    using CWnd::IsWindowVisible;
    using CWnd::IsZoomed;
    using CWnd::KillTimer;
    using CWnd::LockWindowUpdate;
    using CWnd::MapWindowPoints;
    using CWnd::MessageBox;
    using CWnd::MoveWindow;
    using CWnd::OpenClipboard;
    using CWnd::OpenIcon;
    using CWnd::PostMessage;
    using CWnd::PrintWindow;
    using CWnd::RedrawWindow;
    using CWnd::ReleaseDC;
    using CWnd::ScreenToClient;
    using CWnd::ScrollWindow;
    using CWnd::ScrollWindowEx;
    using CWnd::SendDlgItemMessage;
    using CWnd::SendMessage;
    using CWnd::SendNotifyMessage;
    using CWnd::SetActiveWindow;
    using CWnd::SetCapture;
    using CWnd::SetCaretPos;
    using CWnd::SetClipboardViewer;
    using CWnd::SetDlgItemInt;
    using CWnd::SetDlgItemText;
    using CWnd::SetFocus;
    using CWnd::SetForegroundWindow;
    using CWnd::SetLayeredWindowAttributes;
    using CWnd::SetMenu;
    using CWnd::SetParent;
    using CWnd::SetScrollInfo;
    using CWnd::SetScrollPos;
    using CWnd::SetScrollRange;
    using CWnd::SetTimer;
    using CWnd::SetWindowContextHelpId;
    using CWnd::SetWindowPlacement;
    using CWnd::SetWindowPos;
    using CWnd::SetWindowRgn;
    using CWnd::SetWindowText;
    using CWnd::ShowCaret;
    using CWnd::ShowOwnedPopups;
    using CWnd::ShowScrollBar;
    using CWnd::ShowWindow;
    using CWnd::UpdateLayeredWindow;
    using CWnd::UpdateWindow;
    using CWnd::ValidateRect;
    using CWnd::ValidateRgn;
    using CWnd::WindowFromPoint;
    using CWnd::WinHelp;
};

class ScrolledCL : public CWnd
{
public:
    bool createWindowM()
    {
        return CreateEx(0, nullptr, "x", WS_POPUP | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL, 50, 50, 200, 150,
                   nullptr, nullptr)
            != FALSE;
    }
    CScrollBar* control = nullptr;
    CScrollBar* GetScrollBarCtrl(int bar) const override { return bar == SB_VERT ? control : nullptr; }
    // As a derived class calls it: the member.
    void ScrollByM(int dx, int dy) { ScrollWindow(dx, dy); }
};

const RECT Place = { 10, 10, 40, 30 };

} // namespace

TEST(WndMembers, ScrollBarsOfTheWindow)
{
    ScrolledCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 20;
    EXPECT_TRUE(wnd.SetScrollInfo(SB_VERT, &info));
    SCROLLINFO read = {};
    ASSERT_TRUE(wnd.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(read.nMax, 99);
    EXPECT_EQ(read.nPos, 20);
    EXPECT_EQ(wnd.GetScrollPos(SB_VERT), 20);
    EXPECT_EQ(wnd.GetScrollLimit(SB_VERT), 90);
    wnd.SetScrollRange(SB_HORZ, 3, 8);
    int low = 0;
    int high = 0;
    wnd.GetScrollRange(SB_HORZ, &low, &high);
    EXPECT_EQ(low, 3);
    EXPECT_EQ(high, 8);
}

TEST(WndMembers, ControlStandsForAScrollBar)
{
    ScrolledCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(SBS_VERT | WS_VISIBLE, Place, &wnd, 5));
    wnd.control = &bar;
    wnd.SetScrollRange(SB_VERT, 0, 50);
    wnd.SetScrollPos(SB_VERT, 7);
    EXPECT_EQ(::GetScrollPos(bar, SB_CTL), 7);
    EXPECT_EQ(wnd.GetScrollPos(SB_VERT), 7);
    EXPECT_EQ(::GetScrollPos(wnd, SB_VERT), 0);
    wnd.EnableScrollBarCtrl(SB_VERT, FALSE);
    EXPECT_FALSE(bar.IsWindowEnabled());
}

TEST(WndMembers, ScrollingMovesTheChildren)
{
    ScrolledCL wnd;
    ASSERT_TRUE(wnd.createWindowM());
    CStatic child;
    ASSERT_TRUE(child.Create("x", WS_VISIBLE, Place, &wnd, 5));
    wnd.ScrollByM(5, 7);
    CRect at;
    child.GetWindowRect(&at);
    wnd.ScreenToClient(&at);
    EXPECT_EQ(at, CRect(15, 17, 45, 37));
}

TEST(WndMembers, DescendantsAreFoundAndTold)
{
    OwnerCL parent;
    CStatic middle;
    ASSERT_TRUE(middle.Create("m", WS_VISIBLE, Place, &parent, 5));
    CEdit leaf;
    ASSERT_TRUE(leaf.Create(WS_VISIBLE, Place, &middle, 6));
    const HWND plain = ::CreateWindowExW(
        0, L"Edit", L"", WS_CHILD, 0, 0, 5, 5, middle, reinterpret_cast<HMENU>(7), nullptr, nullptr);
    EXPECT_EQ(parent.GetDescendantWindow(6), &leaf);
    EXPECT_EQ(parent.GetDescendantWindow(7)->m_hWnd, plain);
    EXPECT_EQ(parent.GetDescendantWindow(7, TRUE), nullptr);
    parent.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"t"));
    EXPECT_EQ(leaf.GetWindowTextLength(), 1);
    EXPECT_EQ(::GetWindowTextLengthW(plain), 1);
    parent.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""), TRUE, TRUE);
    EXPECT_EQ(leaf.GetWindowTextLength(), 0);
    EXPECT_EQ(::GetWindowTextLengthW(plain), 1);
}

TEST(WndMembers, PlacementOwnersAndPoints)
{
    OwnerCL parent;
    CStatic child;
    ASSERT_TRUE(child.Create("c", WS_VISIBLE, Place, &parent, 5));
    WINDOWPLACEMENT placement = {};
    ASSERT_TRUE(parent.GetWindowPlacement(&placement));
    EXPECT_EQ(placement.length, sizeof placement);
    placement.rcNormalPosition = { 30, 40, 230, 240 };
    placement.length = 0;
    EXPECT_TRUE(parent.SetWindowPlacement(&placement));
    CRect at;
    parent.GetWindowRect(&at);
    EXPECT_EQ(at.Size(), CSize(200, 200));
    EXPECT_EQ(parent.ChildWindowFromPoint(CPoint(15, 15)), &child);
    EXPECT_EQ(parent.ChildWindowFromPoint(CPoint(90, 90)), &parent);
    EXPECT_EQ(child.GetTopLevelOwner(), &parent);
    EXPECT_EQ(child.GetParentOwner(), &parent);
    EXPECT_EQ(child.GetOwner(), &parent);
    OwnerCL other;
    child.SetOwner(&other);
    EXPECT_EQ(child.GetOwner(), &other);
    HWND top = nullptr;
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &parent);
    EXPECT_EQ(top, parent.m_hWnd);
}

TEST(WndMembers, WindowRectangleHasRoomForItsFrame)
{
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "x", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr, nullptr));
    CRect wanted(0, 0, 300, 200);
    wnd.CalcWindowRect(&wanted);
    wnd.MoveWindow(CRect(CPoint(0, 0), wanted.Size()));
    CRect client;
    wnd.GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(300, 200));
}

TEST(WndMembers, CaretIsPlaced)
{
    OwnerCL wnd;
    ActivateM(wnd);
    FocusM(wnd);
    wnd.CreateSolidCaret(2, 10);
    CWnd::SetCaretPos(CPoint(12, 34));
    wnd.ShowCaret();
    EXPECT_EQ(CWnd::GetCaretPos(), CPoint(12, 34));
    wnd.HideCaret();
    ::DestroyCaret();
}

TEST(WndMembers, OwnModalLoopRunsUntilItIsEnded)
{
    class LoopingCL : public OwnerCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                EndModalLoop(5);
            }
            return OwnerCL::WindowProc(message, wParam, lParam);
        }
    } wnd;
    wnd.PostMessage(WM_USER);
    EXPECT_EQ(wnd.RunModalLoop(), 5);
    wnd.PostMessage(WM_USER);
    EXPECT_EQ(wnd.RunModalLoop(MLF_SHOWONIDLE), 5);
}

TEST(WndMembers, TextsAreWideWhereTheyAreGivenSo)
{
    OwnerCL wnd;
    wnd.SetWindowText(L"\u4E2D\u6587");
    char gbk[8] = "";
    wnd.GetWindowText(gbk, 8);
    EXPECT_STREQ(gbk, "\xD6\xD0\xCE\xC4");
    wchar_t wide[8] = L"";
    EXPECT_EQ(wnd.GetWindowText(wide, 8), 2);
    EXPECT_STREQ(wide, L"\u4E2D\u6587");
    CString text("\xD6\xD0");
    wnd.SetWindowText(text);
    EXPECT_EQ(wnd.GetWindowTextLength(), 2);
    wnd.SetWindowText(nullptr);
    EXPECT_EQ(wnd.GetWindowTextLength(), 0);
}

TEST(WndMembers, NoObjectHasNoHandle)
{
    CWnd* volatile noWindow = nullptr;
    CMenu* volatile noMenu = nullptr;
    EXPECT_EQ(noWindow->GetSafeHwnd(), nullptr);
    EXPECT_EQ(noMenu->GetSafeHmenu(), nullptr);
    const OwnerCL wnd;
    EXPECT_EQ(wnd.GetSafeHwnd(), wnd.m_hWnd);
}

TEST(WndMembers, WindowsAreFoundByTheirTitle)
{
    CWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, L"\u4E2D toolkit test", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    EXPECT_EQ(CWnd::FindWindow(nullptr, "\xD6\xD0 toolkit test"), &wnd);
    EXPECT_EQ(CWnd::FindWindow(nullptr, L"\u4E2D toolkit test"), &wnd);
    EXPECT_EQ(CWnd::FindWindow(L"AfxWnd", L"\u4E2D toolkit test"), &wnd);
    EXPECT_EQ(CWnd::FindWindow("AfxWnd", "no such window"), nullptr);
}
