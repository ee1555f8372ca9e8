#include "toolkit/toolkit.h"
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <utility>
#include <vector>

namespace {

const char ChineseText[] = "\xD6\xD0\xCE\xC4"
                           "a"; // 中文a
const wchar_t ChineseWide[] = L"\u4E2D\u6587"
                              L"a";

class ParentCL : public CWnd
{
public:
    ParentCL() { CreateEx(0, nullptr, "parent", WS_OVERLAPPEDWINDOW, 0, 0, 300, 300, nullptr, nullptr); }
    std::vector<std::string> seen;

    afx_msg void OnClicked() { seen.push_back("parent clicked"); }
    afx_msg void OnChange() { seen.push_back("parent change"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ParentCL, CWnd)
ON_BN_CLICKED(7, &ParentCL::OnClicked)
ON_EN_CHANGE(8, &ParentCL::OnChange)
END_MESSAGE_MAP()

class ChildCL : public CStatic
{
public:
    std::vector<UINT> messages;
    bool hasSeenCreate = false;
    int preSubclassed = 0;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.style |= WS_VISIBLE | WS_GROUP | SS_CENTER;
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        return CStatic::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        ++preSubclassed;
        ModifyStyle(0, SS_NOTIFY);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        messages.push_back(message);
        return CStatic::WindowProc(message, wParam, lParam);
    }
    afx_msg int OnCreate(LPCREATESTRUCT cs)
    {
        hasSeenCreate = true;
        return CStatic::OnCreate(cs);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ChildCL, CStatic)
ON_WM_CREATE()
END_MESSAGE_MAP()

class ButtonCL : public CButton
{
public:
    std::vector<std::string>* seen = nullptr;
    BOOL isKept = TRUE;
    afx_msg BOOL OnClicked()
    {
        seen->push_back("child clicked");
        return isKept;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ButtonCL, CButton)
ON_CONTROL_REFLECT_EX(BN_CLICKED, &ButtonCL::OnClicked)
END_MESSAGE_MAP()

class DrawnListCL : public CListBox
{
public:
    int measured = 0;
    int drawn = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = 37;
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

class SuicidalCL : public CWnd
{
public:
    explicit SuicidalCL(bool* gone)
        : gone_(gone)
    {
    }
    ~SuicidalCL() override { *gone_ = true; }
    afx_msg void OnTimer(UINT_PTR) { delete this; }
    DECLARE_MESSAGE_MAP()

private:
    bool* gone_;
};

BEGIN_MESSAGE_MAP(SuicidalCL, CWnd)
ON_WM_TIMER()
END_MESSAGE_MAP()

class SelfDeletingCL : public CWnd
{
public:
    explicit SelfDeletingCL(bool* gone)
        : gone_(gone)
    {
    }
    afx_msg void OnLButtonUp(UINT flags, CPoint at)
    {
        DestroyWindow();
        static_cast<void>(flags);
        static_cast<void>(at);
    }
    void PostNcDestroy() override
    {
        EXPECT_EQ(m_hWnd, nullptr);
        *gone_ = true;
        delete this;
    }
    DECLARE_MESSAGE_MAP()

private:
    bool* gone_;
};

BEGIN_MESSAGE_MAP(SelfDeletingCL, CWnd)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

const RECT Place = { 10, 10, 110, 60 };

} // namespace

namespace {

// A hook that an application has on the windows of its thread.
class CreationsCL
{
public:
    CreationsCL() { InstallM(); }
    CreationsCL(const CreationsCL&) = delete;
    CreationsCL& operator=(const CreationsCL&) = delete;
    ~CreationsCL() { ::UnhookWindowsHookEx(hook_); }

    void InstallM()
    {
        if (hook_ != nullptr) {
            ::UnhookWindowsHookEx(hook_);
        }
        hook_ = ::SetWindowsHookExW(WH_CBT, &CreationsCL::procM, nullptr, ::GetCurrentThreadId());
    }

    inline static std::vector<HWND> seen;
    inline static bool isRefusing = false;
    inline static std::function<void()> onceSeen;

private:
    static LRESULT CALLBACK procM(int code, WPARAM wParam, LPARAM lParam)
    {
        wchar_t name[8] = {};
        if (code == HCBT_CREATEWND && ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 8) != 0
            && ::lstrcmpiW(name, L"IME") != 0) {
            seen.push_back(reinterpret_cast<HWND>(wParam));
            if (const auto once = std::exchange(onceSeen, nullptr)) {
                once();
            }
            if (isRefusing) {
                return 1;
            }
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_ { nullptr };
};

// Puts the application's hook anew, in front of all, while it is being created.
class LateHookCL : public CStatic
{
public:
    CreationsCL* creations = nullptr;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        creations->InstallM();
        return CStatic::PreCreateWindow(cs);
    }
};

} // namespace

TEST(Wnd, HooksOfTheApplicationSeeTheWindowsThatAreCreated)
{
    ParentCL parent;
    CreationsCL creations;
    CreationsCL::seen.clear();
    ChildCL child;
    ASSERT_TRUE(child.Create("a", 0, Place, &parent, 5));
    EXPECT_TRUE(child.hasSeenCreate);
    ASSERT_EQ(CreationsCL::seen.size(), 1U);
    EXPECT_EQ(CreationsCL::seen[0], child.m_hWnd);
    LateHookCL late;
    late.creations = &creations;
    ASSERT_TRUE(late.Create("b", 0, Place, &parent, 6));
    ASSERT_EQ(CreationsCL::seen.size(), 2U);
    EXPECT_EQ(CreationsCL::seen[1], late.m_hWnd);
}

TEST(Wnd, HookOfTheApplicationMayRefuseAWindow)
{
    ParentCL parent;
    const CreationsCL creations;
    CreationsCL::seen.clear();
    ChildCL child;
    CreationsCL::isRefusing = true;
    EXPECT_FALSE(child.Create("a", 0, Place, &parent, 5));
    CreationsCL::isRefusing = false;
    EXPECT_EQ(CreationsCL::seen.size(), 1U);
    EXPECT_EQ(child.m_hWnd, nullptr);
    EXPECT_EQ(child.preSubclassed, 0);
    ASSERT_TRUE(child.Create("a", 0, Place, &parent, 5));
    EXPECT_TRUE(child.hasSeenCreate);
}

TEST(Wnd, WindowThatAHookCreatesMeanwhileIsNotTakenForTheOneWanted)
{
    ParentCL parent;
    const CreationsCL creations;
    CreationsCL::seen.clear();
    HWND other = nullptr;
    CreationsCL::onceSeen = [&] {
        other = ::CreateWindowExW(
            0, L"Static", L"", WS_CHILD, 0, 0, 5, 5, parent.m_hWnd, nullptr, nullptr, nullptr);
    };
    ChildCL child;
    ASSERT_TRUE(child.Create("a", 0, Place, &parent, 5));
    ASSERT_EQ(CreationsCL::seen.size(), 2U);
    EXPECT_EQ(CreationsCL::seen[0], child.m_hWnd);
    EXPECT_EQ(CreationsCL::seen[1], other);
    EXPECT_EQ(CWnd::FromHandlePermanent(other), nullptr);
    EXPECT_TRUE(child.hasSeenCreate);
}

TEST(Wnd, OwnMapSeesCreationFromItsFirstMessage)
{
    ParentCL parent;
    ChildCL child;
    ASSERT_TRUE(child.Create("text", 0, Place, &parent, 5));
    EXPECT_TRUE(child.hasSeenCreate);
    auto& seen = child.messages;
    EXPECT_NE(std::find(seen.begin(), seen.end(), WM_NCCREATE), seen.end());
}

TEST(Wnd, PreCreateWindowAddsStylesAndPreSubclassWindowRunsOnce)
{
    ParentCL parent;
    ChildCL child;
    ASSERT_TRUE(child.Create("text", 0, Place, &parent, 5));
    EXPECT_EQ(child.preSubclassed, 1);
    EXPECT_EQ(child.GetStyle(), static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_GROUP | SS_CENTER | SS_NOTIFY));
    EXPECT_TRUE(child.GetExStyle() & WS_EX_CLIENTEDGE);
    wchar_t name[20] = {};
    ::GetClassNameW(child, name, 20);
    EXPECT_STREQ(name, L"Static");
}

TEST(Wnd, CommandIsOfferedToTheChildAndThenToTheParent)
{
    ParentCL parent;
    ButtonCL button;
    button.seen = &parent.seen;
    ASSERT_TRUE(button.Create("ok", WS_VISIBLE, Place, &parent, 7));
    parent.seen.clear();
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "child clicked" }));
    button.isKept = FALSE;
    parent.seen.clear();
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "child clicked", "parent clicked" }));
}

TEST(Wnd, UnreflectedNotificationReachesTheParentsMap)
{
    ParentCL parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, Place, &parent, 8));
    parent.seen.clear();
    edit.SetWindowText("new");
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "parent change" }));
}

TEST(Wnd, OwnerDrawnListBoxIsAskedForItsItemHeightDuringCreation)
{
    ParentCL parent;
    DrawnListCL list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED, Place, &parent, 9));
    EXPECT_EQ(list.measured, 1);
    EXPECT_EQ(list.GetItemHeight(0), 37);
    list.AddString("x");
    parent.ShowWindow(SW_SHOWNA);
    list.RedrawWindow();
    EXPECT_GT(list.drawn, 0);
}

TEST(Wnd, FromHandleGivesThePermanentObjectElseTheSameTemporaryOne)
{
    ParentCL parent;
    EXPECT_EQ(CWnd::FromHandle(parent), &parent);
    HWND plain
        = ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 5, 5, parent, nullptr, nullptr, nullptr);
    CWnd* temporary = CWnd::FromHandle(plain);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, plain);
    EXPECT_EQ(CWnd::FromHandle(plain), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    EXPECT_EQ(temporary->GetParent(), &parent);
    AfxGetThread()->OnIdle(0);
    EXPECT_TRUE(::IsWindow(plain)) << "a temporary object does not own its window";
    CWnd other;
    ASSERT_TRUE(other.SubclassWindow(plain));
    EXPECT_EQ(CWnd::FromHandle(plain), &other);
    EXPECT_EQ(other.Detach(), plain);
    EXPECT_NE(reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(plain, GWLP_WNDPROC)), &AfxWndProc);
}

TEST(Wnd, ATemporaryObjectServesAsParent)
{
    HWND foreign
        = ::CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr);
    CStatic label;
    EXPECT_TRUE(label.Create("x", WS_VISIBLE, Place, CWnd::FromHandle(foreign), 3));
    EXPECT_EQ(::GetParent(label), foreign);
    ::DestroyWindow(foreign);
    EXPECT_EQ(label.m_hWnd, nullptr);
}

TEST(Wnd, TextIsGbkInBothDirectionsAndCutBetweenCharacters)
{
    ParentCL parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, Place, &parent, 8));
    edit.SetWindowText(ChineseText);
    wchar_t wide[10] = {};
    ::GetWindowTextW(edit, wide, 10);
    EXPECT_STREQ(wide, ChineseWide);
    EXPECT_EQ(edit.GetWindowTextLength(), 5);
    char text[6] = {};
    EXPECT_EQ(edit.GetWindowText(text, 6), 5);
    EXPECT_STREQ(text, ChineseText);
    EXPECT_EQ(edit.GetWindowText(text, 4), 2); // three bytes of room would split the second character
    EXPECT_STREQ(text, "\xD6\xD0");
    EXPECT_EQ(edit.GetWindowText(text, 0), 0);
    ::SetWindowTextW(edit,
        L"\u0E01"
        L"b"); // GBK has no such letter
    EXPECT_EQ(edit.GetWindowText(text, 6), 2);
    EXPECT_STREQ(text, "?b");
    edit.SetWindowText(nullptr);
    EXPECT_EQ(edit.GetWindowTextLength(), 0);
}

TEST(Wnd, DestroyedObjectTakesItsWindowAlongAndViceVersa)
{
    HWND hWnd = nullptr;
    {
        ParentCL parent;
        hWnd = parent;
        CStatic child;
        child.Create("x", 0, Place, &parent, 1);
        ::DestroyWindow(hWnd);
        EXPECT_EQ(parent.m_hWnd, nullptr);
        EXPECT_EQ(child.m_hWnd, nullptr);
    }
    {
        ParentCL parent;
        hWnd = parent;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(Wnd, ObjectMayGoInsideItsOwnHandler)
{
    bool gone = false;
    SuicidalCL* wnd = new SuicidalCL(&gone);
    ASSERT_TRUE(wnd->CreateEx(0, nullptr, "x", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr));
    HWND hWnd = *wnd;
    wnd->SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(gone);
    EXPECT_FALSE(::IsWindow(hWnd));

    gone = false;
    SelfDeletingCL* other = new SelfDeletingCL(&gone);
    ASSERT_TRUE(other->CreateEx(0, nullptr, "x", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr));
    other->SendMessage(WM_LBUTTONUP);
    EXPECT_TRUE(gone);
}

TEST(Wnd, ObjectMovesByItsBytesUntilItHasAWindow)
{
    ParentCL parent;
    alignas(DrawnListCL) unsigned char first[sizeof(DrawnListCL)];
    alignas(DrawnListCL) unsigned char second[sizeof(DrawnListCL)];
    new (first) DrawnListCL;
    std::memcpy(second, first, sizeof first);
    std::memset(first, 0xCD, sizeof first);
    DrawnListCL* list = std::launder(reinterpret_cast<DrawnListCL*>(second));
    ASSERT_TRUE(list->Create(LBS_OWNERDRAWFIXED, Place, &parent, 9));
    EXPECT_EQ(CWnd::FromHandle(list->m_hWnd), list);
    EXPECT_EQ(list->measured, 1);
    list->~DrawnListCL();
}

TEST(Wnd, StackingOrderFollowsSetWindowPos)
{
    ParentCL parent;
    CStatic one;
    CStatic two;
    one.Create("1", 0, Place, &parent, 1);
    two.Create("2", 0, Place, &parent, 2);
    UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    EXPECT_TRUE(two.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, flags));
    EXPECT_EQ(parent.GetTopWindow(), &two);
    EXPECT_TRUE(one.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, flags));
    EXPECT_TRUE(two.SetWindowPos(&one, 0, 0, 0, 0, flags));
    EXPECT_EQ(one.GetNextWindow(), &two);
}
