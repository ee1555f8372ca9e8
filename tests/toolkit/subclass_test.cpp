#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>

namespace {

// What another part of the program puts before a window's procedure.
class OtherSubclassCL
{
public:
    explicit OtherSubclassCL(HWND hWnd)
    {
        messages = 0;
        before = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procM)));
    }
    inline static WNDPROC before;
    inline static int messages;

private:
    static LRESULT CALLBACK procM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        ++messages;
        return ::CallWindowProcW(before, hWnd, message, wParam, lParam);
    }
};

class CountingCL : public CEdit
{
public:
    int seen = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++seen;
        return CEdit::WindowProc(message, wParam, lParam);
    }
};

HWND plainEditM(const OwnerCL& owner)
{
    return ::CreateWindowExW(
        0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, owner, nullptr, nullptr, nullptr);
}

std::string typedM(HWND edit)
{
    ::SetWindowTextW(edit, L"");
    ::SendMessageW(edit, WM_CHAR, 'x', 1);
    char text[8] = {};
    ::GetWindowTextA(edit, text, 8);
    return text;
}

} // namespace

TEST(Subclass, UnsubclassedBelowAnotherTheControlWorksOn)
{
    const OwnerCL owner;
    const HWND edit = plainEditM(owner);
    CountingCL object;
    ASSERT_TRUE(object.SubclassWindow(edit));
    const OtherSubclassCL other(edit);
    EXPECT_EQ(typedM(edit), "x");
    EXPECT_EQ(object.UnsubclassWindow(), edit);
    EXPECT_EQ(object.m_hWnd, nullptr);
    object.seen = 0;
    EXPECT_EQ(typedM(edit), "x");
    EXPECT_EQ(object.seen, 0);
    EXPECT_GT(OtherSubclassCL::messages, 0);
}

TEST(Subclass, SubclassedAgainBelowAnotherTheNewObjectGetsTheMessages)
{
    const OwnerCL owner;
    const HWND edit = plainEditM(owner);
    CountingCL first;
    ASSERT_TRUE(first.SubclassWindow(edit));
    const OtherSubclassCL other(edit);
    first.UnsubclassWindow();
    CountingCL second;
    ASSERT_TRUE(second.SubclassWindow(edit));
    EXPECT_EQ(typedM(edit), "x");
    EXPECT_GT(second.seen, 0);
    second.UnsubclassWindow();
    EXPECT_EQ(typedM(edit), "x");
    ::DestroyWindow(edit);
}
