// That real keyboard and mouse input reaches windows here, with no window manager about.
#include "support/all.h"
#include <gtest/gtest.h>
#include <string>

using namespace testing_support;

namespace {

std::wstring textOf(HWND window)
{
    wchar_t text[200] = {};
    GetWindowTextW(window, text, 200);
    return text;
}

struct InputTest : testing::Test
{
    PlainWindow window;
    HWND edit { window.AddM(L"Edit", L"", ES_AUTOHSCROLL | WS_BORDER, { 10, 10, 310, 40 }, 5) };
    void SetUp() override
    {
        ASSERT_TRUE(ActivateM(window.HandleM()));
        ASSERT_TRUE(FocusM(edit));
    }
};

} // namespace

TEST_F(InputTest, TypedTextReachesTheFocusedEdit)
{
    TypeM(L"Abc 1.5");
    EXPECT_EQ(textOf(edit), L"Abc 1.5");
}

TEST_F(InputTest, CharactersWithoutAKeyArriveToo)
{
    TypeM(L"x参数y");
    EXPECT_EQ(textOf(edit), L"x参数y");
}

TEST_F(InputTest, NamedKeysAndChordsEdit)
{
    TypeM(L"abc");
    KeyM(VK_BACK);
    KeyM(VK_HOME);
    KeyM(VK_DELETE);
    EXPECT_EQ(textOf(edit), L"b");
    ChordM(VK_SHIFT, VK_END);
    TypeM(L"z");
    EXPECT_EQ(textOf(edit), L"z");
    EXPECT_GE(GetKeyState(VK_SHIFT), 0) << "the key is up again";
}

TEST_F(InputTest, MouseGoesToTheClientPixel)
{
    EXPECT_TRUE(MoveMouseToM(window.HandleM(), 0, 0));
    EXPECT_TRUE(MoveMouseToM(window.HandleM(), 399, 299));
    EXPECT_TRUE(MoveMouseToM(edit, 7, 3));
}

TEST_F(InputTest, ClickMovesTheFocusAndReportsToTheParent)
{
    HWND button = window.AddM(L"Button", L"Go", WS_TABSTOP, { 10, 60, 110, 90 }, 6);
    MessageRecorder recorder(window.HandleM(), { WM_COMMAND });
    ClickM(button, 20, 10);
    EXPECT_EQ(GetFocus(), button);
    ASSERT_FALSE(recorder.ListM().empty());
    EXPECT_EQ(recorder.ListM().back(),
        "sent 273 w=6 l=" + std::to_string(reinterpret_cast<LPARAM>(button))); // BN_CLICKED
}

TEST_F(InputTest, PressedButtonStaysDownUntilReleased)
{
    HWND button = window.AddM(L"Button", L"Go", 0, { 10, 60, 110, 90 }, 6);
    MoveMouseToM(button, 20, 10);
    PressM();
    EXPECT_EQ(SendMessageW(button, BM_GETSTATE, 0, 0) & BST_PUSHED, BST_PUSHED);
    EXPECT_EQ(GetCapture(), button);
    MoveMouseToM(window.HandleM(), 390, 290);
    EXPECT_EQ(SendMessageW(button, BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    ReleaseM();
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(InputTest, TwoClicksAreNotADoubleClick)
{
    MessageRecorder recorder(edit, { WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONUP });
    const std::string at = " l=" + std::to_string(MAKELONG(20, 8));
    ClickM(edit, 20, 8);
    ClickM(edit, 20, 8);
    EXPECT_EQ(recorder.ListM(), (std::vector<std::string> { "posted 513 w=1" + at, "posted 513 w=1" + at }));
    recorder.ClearM();
    DoubleClickM(edit, 20, 8);
    EXPECT_EQ(recorder.ListM(), (std::vector<std::string> { "posted 513 w=1" + at, "posted 515 w=1" + at }));
}

TEST_F(InputTest, RightButtonIsAnother)
{
    HWND button = window.AddM(L"Button", L"Go", 0, { 10, 60, 110, 90 }, 6);
    MessageRecorder recorder(button, { WM_RBUTTONDOWN, WM_RBUTTONUP, WM_LBUTTONDOWN });
    ClickM(button, 5, 6, Button::Right);
    const std::string at = " l=" + std::to_string(MAKELONG(5, 6));
    EXPECT_EQ(recorder.ListM(), (std::vector<std::string> { "posted 516 w=2" + at, "posted 517 w=0" + at }));
}

TEST_F(InputTest, WheelReachesTheWindow)
{
    MessageRecorder recorder(edit, { WM_MOUSEWHEEL });
    MoveMouseToM(edit, 5, 5);
    WheelM(-120);
    EXPECT_EQ(recorder.ListM().size(), 1u);
}

TEST(Activation, PassesBetweenTopLevelWindows)
{
    PlainWindow first;
    PlainWindow second(200, 100, 600, 300);
    EXPECT_TRUE(ActivateM(first.HandleM()));
    EXPECT_TRUE(ActivateM(second.HandleM()));
    ClickM(first.HandleM(), 50, 50);
    EXPECT_TRUE(PumpUntil([&] { return GetActiveWindow() == first.HandleM(); }));
}
