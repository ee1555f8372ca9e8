#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>

namespace {

const RECT Place = { 0, 0, 50, 50 };

std::wstring classOfM(const CWnd& wnd)
{
    wchar_t name[128] = {};
    ::GetClassNameW(wnd, name, 128);
    return name;
}

class OwnClassCL : public CWnd
{
public:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_CROSS));
        return CWnd::PreCreateWindow(cs);
    }
};

} // namespace

TEST(WindowClass, RegisteredNameFitsPreCreateWindow)
{
    OwnClassCL wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, "x", WS_POPUP, Place, nullptr, 0));
    const LPCWSTR registered = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_EQ(classOfM(wnd), registered);
    EXPECT_EQ(
        reinterpret_cast<HCURSOR>(::GetClassLongPtrW(wnd, GCLP_HCURSOR)), ::LoadCursorW(nullptr, IDC_CROSS));
}

TEST(WindowClass, RegisteredNameFitsCreateExAndTexts)
{
    const LPCSTR narrow = AfxRegisterWndClass(CS_VREDRAW);
    CString kept;
    kept = AfxRegisterWndClass(CS_VREDRAW);
    EXPECT_STREQ(kept, narrow);
    CWnd one;
    ASSERT_TRUE(one.CreateEx(0, AfxRegisterWndClass(CS_VREDRAW), "x", WS_POPUP, Place, nullptr, 0));
    EXPECT_EQ(classOfM(one), LPCWSTR(AfxRegisterWndClass(CS_VREDRAW)));
    CWnd two;
    ASSERT_TRUE(two.CreateEx(0, kept, "x", WS_POPUP, Place, nullptr, 0));
    EXPECT_EQ(classOfM(two), classOfM(one));
    CWnd three;
    ASSERT_TRUE(three.CreateEx(0, AfxRegisterWndClass(CS_VREDRAW), L"\u4E2D", WS_POPUP, Place, nullptr, 0));
    wchar_t title[8] = {};
    three.GetWindowText(title, 8);
    EXPECT_STREQ(title, L"\u4E2D");
}

TEST(WindowClass, AtomStandsForItsName)
{
    WNDCLASSW look = {};
    look.lpfnWndProc = ::DefWindowProcW;
    look.hInstance = AfxGetInstanceHandle();
    look.lpszClassName = L"toolkit test atom";
    const ATOM atom = ::RegisterClassW(&look);
    ASSERT_NE(atom, 0);
    CWnd wide;
    ASSERT_TRUE(wide.CreateEx(0, MAKEINTATOM(atom), nullptr, WS_POPUP, Place, nullptr, 0));
    EXPECT_EQ(classOfM(wide), look.lpszClassName);
    CWnd narrow;
    ASSERT_TRUE(narrow.CreateEx(
        0, reinterpret_cast<LPCSTR>(static_cast<ULONG_PTR>(atom)), nullptr, WS_POPUP, Place, nullptr, 0));
    EXPECT_EQ(classOfM(narrow), look.lpszClassName);
}

TEST(WindowClass, WideNamesAndTitles)
{
    const OwnerCL owner;
    CWnd child;
    ASSERT_TRUE(child.Create(L"Static", L"\u4E2D", WS_VISIBLE, Place, CWnd::FromHandle(owner), 3));
    EXPECT_EQ(classOfM(child), L"Static");
    EXPECT_EQ(child.GetWindowTextLength(), 2);
}

TEST(WindowClass, DescribedByNamesOfEitherKind)
{
    WNDCLASS look = {};
    look.lpfnWndProc = ::DefWindowProc;
    look.hInstance = ::GetModuleHandle(nullptr);
    look.lpszClassName = "PanelkitNarrowly\xD6\xD0"; // GBK for U+4E2D.
    ASSERT_TRUE(AfxRegisterClass(&look));
    EXPECT_TRUE(AfxRegisterClass(&look)); // It is there already.
    look.lpszClassName = L"PanelkitWidely";
    ASSERT_NE(::RegisterClass(&look), 0);

    WNDCLASSW known = {};
    EXPECT_TRUE(::GetClassInfoW(look.hInstance, L"PanelkitNarrowly\u4E2D", &known));
    WNDCLASS found = {};
    ASSERT_TRUE(::GetClassInfo(look.hInstance, "PanelkitNarrowly\xD6\xD0", &found));
    EXPECT_EQ(found.lpfnWndProc, look.lpfnWndProc);
    EXPECT_STREQ(LPCWSTR(found.lpszClassName), L"PanelkitNarrowly\u4E2D");
    ASSERT_TRUE(::GetClassInfo(look.hInstance, L"PanelkitWidely", &found));
    EXPECT_FALSE(::GetClassInfo(look.hInstance, "PanelkitUnknown", &found));
    EXPECT_EQ(LPCWSTR(WNDCLASS().lpszClassName), nullptr);
}
