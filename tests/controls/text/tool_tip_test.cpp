#include "controls/text/tool_tip.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

struct TipCL
{
    TipCL() { tip.InitialM(); }
    bool IsOpenM() const { return tip.m_hWnd != nullptr; }
    std::string PlaceM() const
    {
        RECT rect {};
        ::GetWindowRect(tip.m_hWnd, &rect);
        return std::to_string(rect.left) + " " + std::to_string(rect.top) + " "
            + std::to_string(rect.right - rect.left) + " " + std::to_string(rect.bottom - rect.top);
    }
    // Whether some pixel of the window has that colour.
    bool HasColourM(COLORREF colour) const
    {
        ::RedrawWindow(tip.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        CRect client;
        tip.GetClientRect(&client);
        const HDC dc = ::GetDC(tip.m_hWnd);
        bool found = false;
        for (int y = 0; y < client.bottom && !found; ++y) {
            for (int x = 0; x < client.right && !found; ++x) {
                found = ::GetPixel(dc, x, y) == colour;
            }
        }
        ::ReleaseDC(tip.m_hWnd, dc);
        return found;
    }

    PlainWindowCL owner { 400, 300 };
    PlainWindowCL other { 100, 100 };
    uToolTipCtrl tip;
};

const CRect Place(100, 120, 260, 150);
const CRect OtherPlace(300, 320, 400, 345);

} // namespace

TEST(ToolTip, ClassIsRegisteredWithThePlatformsProcedure)
{
    uToolTipCtrl tip;
    EXPECT_EQ(tip.InitialM(), 1);
    EXPECT_EQ(uToolTipCtrl().InitialM(), 1); // It is there already.
    WNDCLASSW description {};
    ASSERT_NE(::GetClassInfoW(::GetModuleHandleW(nullptr), L"MyToolTipCtrl", &description), FALSE);
    EXPECT_EQ(description.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(description.hbrBackground, reinterpret_cast<HBRUSH>(6));
    EXPECT_EQ(description.cbClsExtra, 0);
    EXPECT_EQ(description.cbWndExtra, 0);
    EXPECT_EQ(description.lpszMenuName, nullptr);
}

TEST(ToolTip, FirstCallShowsAWindowAtTheRectangle)
{
    TipCL tip;
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.owner, Place, "help"), 1);
    ASSERT_TRUE(tip.IsOpenM());
    EXPECT_EQ(tip.PlaceM(), "100 120 160 30");
    EXPECT_EQ(styleOf(tip.tip.m_hWnd), 0x94800001U);
    EXPECT_EQ(exStyleOf(tip.tip.m_hWnd) & WS_EX_TOOLWINDOW, static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_EQ(textOf(tip.tip.m_hWnd), "MyToolTipCtrl");
    wchar_t name[32] = L"";
    ::GetClassNameW(tip.tip.m_hWnd, name, 32);
    EXPECT_STREQ(name, L"MyToolTipCtrl");
    EXPECT_EQ(::GetWindow(tip.tip.m_hWnd, GW_OWNER), tip.owner.m_hWnd);
    EXPECT_EQ(tip.tip.GetOwner(), &tip.owner);
}

TEST(ToolTip, WorksWithoutAnOwner)
{
    TipCL tip;
    EXPECT_EQ(tip.tip.ShowHelpM(nullptr, Place, "help"), 1);
    ASSERT_TRUE(tip.IsOpenM());
    EXPECT_EQ(tip.tip.GetOwner(), nullptr);
}

TEST(ToolTip, FailedCreationIsReported)
{
    TipCL tip;
    CWnd gone;
    gone.Attach(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7ffe))); // No window.
    EXPECT_EQ(tip.tip.ShowHelpM(&gone, Place, "help"), 0);
    EXPECT_FALSE(tip.IsOpenM());
    gone.Detach();
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.owner, Place, "help"), 1);
}

TEST(ToolTip, SameTextAndOwnerNeitherMovesNorRecreates)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const HWND window = tip.tip.m_hWnd;
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.owner, OtherPlace, "help"), 1);
    EXPECT_EQ(tip.tip.m_hWnd, window);
    EXPECT_EQ(tip.PlaceM(), "100 120 160 30");
}

TEST(ToolTip, NewTextMovesTheWindow)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const HWND window = tip.tip.m_hWnd;
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.owner, OtherPlace, "other help"), 1);
    EXPECT_EQ(tip.tip.m_hWnd, window);
    EXPECT_EQ(tip.PlaceM(), "300 320 100 25");
}

TEST(ToolTip, LeavesTheFocusToTheFieldBeingTypedIn)
{
    TipCL own;
    CEdit field;
    field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 30), &own.owner, 5);
    ActivateM(own.owner.m_hWnd);
    ASSERT_TRUE(FocusM(field.m_hWnd));
    own.tip.ShowHelpM(&own.owner, Place, "help");
    SettleM();
    EXPECT_TRUE(::IsWindowVisible(own.tip.m_hWnd));
    EXPECT_EQ(styleOf(own.tip.m_hWnd), 0x94800001U);
    EXPECT_EQ(::GetFocus(), field.m_hWnd);
}

TEST(ToolTip, ShorterTextLeavesNothingOfALongerOne)
{
    TipCL own;
    own.tip.ShowHelpM(&own.owner, Place, "MMMMMMMMMMMM");
    PumpPending();
    const int wide = Pixels(own.tip.m_hWnd).CountM(0xDFFFFF);
    own.tip.ShowHelpM(&own.owner, CRect(Place.left + 5, Place.top, Place.right + 5, Place.bottom), "M");
    PumpPending();
    EXPECT_LT(Pixels(own.tip.m_hWnd).CountM(0xDFFFFF), wide / 4);
}

TEST(ToolTip, AnotherOwnerRecreatesTheWindow)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const HWND window = tip.tip.m_hWnd;
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.other, OtherPlace, "help"), 1);
    EXPECT_FALSE(::IsWindow(window) && ::GetWindow(window, GW_OWNER) == tip.owner.m_hWnd);
    EXPECT_EQ(tip.PlaceM(), "300 320 100 25");
    EXPECT_EQ(::GetWindow(tip.tip.m_hWnd, GW_OWNER), tip.other.m_hWnd);
    EXPECT_EQ(tip.tip.GetOwner(), &tip.other);
}

TEST(ToolTip, ClosesBetween1500And1800MillisecondsAfterTheLastCall)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const DWORD first = ::GetTickCount();
    // Asked again on the way, it lives longer.
    ASSERT_TRUE(PumpUntil([&] { return ::GetTickCount() - first >= 700; }));
    ASSERT_TRUE(tip.IsOpenM());
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const DWORD last = ::GetTickCount();
    DWORD closed = 0;
    ASSERT_TRUE(PumpUntil([&] {
        closed = ::GetTickCount();
        return !tip.IsOpenM();
    }));
    EXPECT_GE(closed - last, 1485U);        // The tick count moves in steps of up to 16 ms.
    EXPECT_LE(closed - last, 1800U + 400U); // A late timer on a busy machine.
    // The object is used again.
    EXPECT_EQ(tip.tip.ShowHelpM(&tip.owner, OtherPlace, "help"), 1);
    EXPECT_EQ(tip.PlaceM(), "300 320 100 25");
}

TEST(ToolTip, ClickClosesAtOnce)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const DWORD start = ::GetTickCount();
    ClickM(tip.tip.m_hWnd, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return !tip.IsOpenM(); }, 1000));
    EXPECT_LT(::GetTickCount() - start, 1500U);
}

TEST(ToolTip, ClickThatClosesItLeavesTheFocusToTheFieldBeingTypedIn)
{
    TipCL own;
    CEdit field;
    field.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 30), &own.owner, 5);
    for (const Button button : { Button::Right, Button::Left }) {
        ActivateM(own.owner.m_hWnd);
        ASSERT_TRUE(FocusM(field.m_hWnd));
        own.tip.ShowHelpM(&own.owner, Place, "help");
        SettleM();
        const MessageRecorder messages(field.m_hWnd, { WM_KILLFOCUS });
        ClickM(own.tip.m_hWnd, 5, 5, button);
        SettleM();
        EXPECT_EQ(own.IsOpenM(), button == Button::Right);
        EXPECT_EQ(::GetFocus(), field.m_hWnd);
        EXPECT_TRUE(messages.ListM().empty());
    }
}

TEST(ToolTip, OtherTimersDoNotCloseIt)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, "help");
    const DWORD start = ::GetTickCount();
    tip.tip.KillTimer(55430);
    ASSERT_TRUE(PumpUntil([&] { return ::GetTickCount() - start >= 1600; }));
    tip.tip.SendMessage(WM_TIMER, 1);
    PumpPending();
    EXPECT_TRUE(tip.IsOpenM());
    tip.tip.SendMessage(WM_TIMER, 55430);
    EXPECT_TRUE(tip.IsOpenM()); // Posted, not at once.
    PumpPending();
    EXPECT_FALSE(tip.IsOpenM());
}

TEST(ToolTip, TextStandsOnPaleYellowInAWhiteWindow)
{
    TipCL tip;
    tip.tip.ShowHelpM(&tip.owner, Place, slUtf8ToGbk("帮助").c_str());
    EXPECT_TRUE(tip.HasColourM(RGB(255, 255, 223)));
    EXPECT_TRUE(tip.HasColourM(RGB(0, 0, 0)));
    const HDC dc = ::GetDC(tip.tip.m_hWnd);
    EXPECT_EQ(::GetPixel(dc, 0, 0), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(::GetPixel(dc, 1, 1), RGB(255, 255, 223));
    ::ReleaseDC(tip.tip.m_hWnd, dc);
}

TEST(ToolTip, FontDescriptionIsTheContextsAsAChineseFont)
{
    TipCL tip;
    CFont font;
    LOGFONTA description {};
    description.lfHeight = -23;
    description.lfWeight = FW_BOLD;
    font.CreateFontIndirect(&description);
    CClientDC dc(&tip.owner);
    CFont* const before = dc.SelectObject(&font);
    tip.tip.initFontM(&dc);
    dc.SelectObject(before);
    EXPECT_EQ(tip.tip.GetFontM().lfHeight, -23);
    EXPECT_EQ(tip.tip.GetFontM().lfWeight, FW_BOLD);
    EXPECT_EQ(tip.tip.GetFontM().lfCharSet, 134);
    EXPECT_EQ(slGbkToUtf8(tip.tip.GetFontM().lfFaceName), "宋体");
}
