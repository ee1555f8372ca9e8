// Clips, dates and combinations of keys.
#include "parent_window.h"
#include <gtest/gtest.h>

TEST(AnimateCtrl, RefusesWhatIsNoClip)
{
    ParentWindowCL parent;
    CAnimateCtrl clip;
    ASSERT_TRUE(clip.Create(WS_VISIBLE, Place, &parent, 1));
    EXPECT_FALSE(clip.Open("no such clip.avi"));
    EXPECT_FALSE(clip.Open(4711u));
    EXPECT_FALSE(clip.Play(0, 1, 1));
    EXPECT_FALSE(clip.IsPlaying());
}

TEST(DateTimeCtrl, KeepsADateWithinItsRange)
{
    ParentWindowCL parent;
    CDateTimeCtrl date;
    ASSERT_TRUE(date.Create(WS_VISIBLE | DTS_SHOWNONE, Place, &parent, 1));
    SYSTEMTIME given = {};
    given.wYear = 2011;
    given.wMonth = 2;
    given.wDay = 28;
    EXPECT_TRUE(date.SetTime(&given));
    SYSTEMTIME seen = {};
    EXPECT_EQ(date.GetTime(&seen), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(seen.wYear, 2011);
    EXPECT_EQ(seen.wDay, 28);
    EXPECT_TRUE(date.SetTime());
    EXPECT_EQ(date.GetTime(&seen), static_cast<DWORD>(GDT_NONE));
    EXPECT_TRUE(date.SetFormat("yyyy'\xC4\xEA'")); // 年
    EXPECT_TRUE(date.SetFormat(L"yyyy"));
    SYSTEMTIME ends[2] = { given, given };
    ends[1].wYear = 2012;
    EXPECT_TRUE(date.SetRange(GDTR_MIN | GDTR_MAX, ends));
    SYSTEMTIME range[2] = {};
    EXPECT_EQ(date.GetRange(range), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(range[1].wYear, 2012);
    date.SetMonthCalColor(MCSC_TEXT, 0x112233);
    EXPECT_EQ(date.GetMonthCalColor(MCSC_TEXT), 0x112233u);
}

TEST(HotKeyCtrl, KeepsItsKeys)
{
    ParentWindowCL parent;
    CHotKeyCtrl field;
    ASSERT_TRUE(field.Create(WS_VISIBLE, Place, &parent, 1));
    field.SetHotKey('S', HOTKEYF_CONTROL | HOTKEYF_ALT);
    WORD key = 0;
    WORD modifiers = 0;
    field.GetHotKey(key, modifiers);
    EXPECT_EQ(key, 'S');
    EXPECT_EQ(modifiers, HOTKEYF_CONTROL | HOTKEYF_ALT);
    EXPECT_EQ(field.GetHotKey(), static_cast<DWORD>(MAKEWORD('S', HOTKEYF_CONTROL | HOTKEYF_ALT)));
}
