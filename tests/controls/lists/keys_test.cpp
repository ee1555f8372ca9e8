// Keys with which the window system's own lists and fields end a program under Wine.
#include "support/shown_dialog.h"
#include "support/small_picture.h"

using namespace testing_support;

namespace {

class ComboFieldTest : public testing::Test
{
protected:
    ComboFieldTest()
    {
        ::SendMessageW(dialog.ItemM(11), CB_SETCURSEL, 0, 0);
        field = ::GetWindow(dialog.ItemM(11), GW_CHILD);
        EXPECT_TRUE(FocusM(field));
        KeyM(VK_HOME);
    }

    ShownDialogCL dialog { HeaderSections
        + std::string(
            "[下拉列表框]\n1\n0\n1 11 10 10 60 90 1\n[下拉列表框初始值]\n2\n0\n11 a wide item for this "
            "field\n11 b\n") };
    HWND field { nullptr };
};

} // namespace

TEST(ListBoxKeys, SpaceDoesNothingWhereThereIsNoLine)
{
    for (const char* const mode : { "1", "2", "3", "4" }) {
        SCOPED_TRACE(mode);
        ShownDialogCL dialog(HeaderSections
            + ("[文本列表框]\n1\n0\n1 11 10 10 90 80 14 " + std::string(mode)
                + " 1 255 255 255 0\n[文本列表框初始值]\n0\n0\n[图片列表框]\n1\n0\n2 12 110 10 60 60 2 1 2 "
                + mode + "\n[图片列表框位图]\n0\n0\n"));
        for (const int id : { 11, 12 }) {
            dialog.StartAtM(id);
            ClickM(dialog.ItemM(id), 20, 20);
            for (const WORD key : { VK_SPACE, VK_HOME, VK_SPACE, VK_DOWN, VK_SPACE }) {
                KeyM(key);
                PumpPending();
            }
            EXPECT_EQ(::SendMessageW(dialog.ItemM(id), LB_GETCOUNT, 0, 0), 0);
        }
    }
}

TEST(ListBoxKeys, SpaceSelectsALineAndTakesThatBack)
{
    ShownDialogCL dialog(HeaderSections
        + std::string("[文本列表框]\n1\n0\n1 11 10 10 90 80 14 2 1 255 255 255 0\n"
                      "[文本列表框初始值]\n1\n0\n11 a\n"));
    dialog.StartAtM(11);
    KeyM(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return ::SendMessageW(dialog.ItemM(11), LB_GETSEL, 0, 0) > 0; }));
    KeyM(VK_SPACE);
    EXPECT_TRUE(PumpUntil([&] { return ::SendMessageW(dialog.ItemM(11), LB_GETSEL, 0, 0) == 0; }));
}

namespace {

int questions = 0;

LRESULT CALLBACK countQuestions(int code, WPARAM wParam, LPARAM lParam)
{
    questions += reinterpret_cast<const CWPSTRUCT*>(lParam)->message == EM_GETSEL ? 1 : 0;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace

// Once the guard asked whatever message came, its own question too, until the system had enough.
TEST_F(ComboFieldTest, IsAskedForItsSelectionOnlyWhereThatMatters)
{
    const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROC, countQuestions, nullptr, ::GetCurrentThreadId());
    questions = 0;
    ::SendMessageW(field, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(questions, 0);
    ::SendMessageW(field, WM_CHAR, 'x', 1);
    EXPECT_EQ(questions, 1);
    ::UnhookWindowsHookEx(hook);
}

TEST_F(ComboFieldTest, NothingIsInsertedBeforeATextThatIsTooWide)
{
    TypeM(L"xyz");
    PumpPending();
    EXPECT_EQ(textOf(field), "a wide item for this field");
    ::SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"xyz"));
    EXPECT_EQ(textOf(field), "a wide item for this field");
}

TEST_F(ComboFieldTest, ATextThatIsTooWideIsShortenedFromItsBeginning)
{
    KeyM(VK_DELETE);
    EXPECT_TRUE(PumpUntil([&] { return textOf(field) == " wide item for this field"; })) << textOf(field);
    KeyM(VK_RIGHT);
    KeyM(VK_BACK);
    EXPECT_TRUE(PumpUntil([&] { return textOf(field) == "wide item for this field"; })) << textOf(field);
    ::SendMessageW(field, EM_SETSEL, 0, 5);
    TypeM(L"x");
    EXPECT_TRUE(PumpUntil([&] { return textOf(field) == "item for this field"; })) << textOf(field);
    ::SendMessageW(field, EM_SETSEL, 0, -1);
    TypeM(L"xy");
    EXPECT_TRUE(PumpUntil([&] { return textOf(field) == "xy"; })) << textOf(field);
    KeyM(VK_HOME);
    TypeM(L"w");
    EXPECT_TRUE(PumpUntil([&] { return textOf(field) == "wxy"; })) << textOf(field);
}
