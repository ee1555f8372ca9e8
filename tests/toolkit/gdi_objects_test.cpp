#include "toolkit/toolkit.h"
#include <gtest/gtest.h>

// A process holds about 65,000 GDI handles: what leaked would run out.
TEST(GdiObjects, ManyRoundsLeakNoHandle)
{
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    for (int round = 0; round < 70000; ++round) {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        CBrush brush(RGB(1, 2, 3));
        CRgn region;
        region.CreateRectRgn(0, 0, 5, 5);
        ASSERT_NE(pen.m_hObject, nullptr) << round;
        ASSERT_NE(brush.m_hObject, nullptr) << round;
        ASSERT_NE(region.m_hObject, nullptr) << round;
        CPen* old = memory.SelectObject(&pen);
        ASSERT_NE(old, nullptr);
        memory.SelectObject(old);
    }
}

TEST(GdiObjects, CreationTakesTheHandleAndDestructionDeletesIt)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateSolidBrush(RGB(9, 9, 9)));
        handle = brush.m_hObject;
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(GdiObjects, RegionsCombineAndCompare)
{
    CRgn left;
    CRgn right;
    CRgn both;
    CRgn whole;
    left.CreateRectRgn(0, 0, 5, 10);
    right.CreateRectRgn(5, 0, 10, 10);
    whole.CreateRectRgn(0, 0, 10, 10);
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_OR), SIMPLEREGION);
    EXPECT_TRUE(both.EqualRgn(&whole));
    EXPECT_FALSE(both.EqualRgn(&left));
    EXPECT_TRUE(both.PtInRegion(CPoint(7, 7)));
    EXPECT_FALSE(left.PtInRegion(7, 7));
}

TEST(GdiObjects, PensAndBrushesOfEveryKind)
{
    const LOGBRUSH look = { BS_SOLID, RGB(1, 2, 3), 0 };
    const DWORD dashes[] = { 4, 2 };
    CPen pen(PS_GEOMETRIC | PS_USERSTYLE, 3, &look, 2, dashes);
    EXPECT_EQ(pen.GetObjectType(), static_cast<UINT>(OBJ_EXTPEN));
    LOGPEN simple = { PS_DOT, { 1, 0 }, RGB(1, 2, 3) };
    CPen dotted;
    ASSERT_TRUE(dotted.CreatePenIndirect(&simple));
    LOGPEN read = {};
    EXPECT_NE(dotted.GetLogPen(&read), 0);
    EXPECT_EQ(read.lopnStyle, static_cast<UINT>(PS_DOT));
    CBrush hatch(HS_CROSS, RGB(1, 2, 3));
    LOGBRUSH brush = {};
    EXPECT_NE(hatch.GetLogBrush(&brush), 0);
    EXPECT_EQ(brush.lbStyle, static_cast<UINT>(BS_HATCHED));
    const WORD bits[8] = { 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55 };
    CBitmap pattern;
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, bits));
    CBrush patterned(&pattern);
    EXPECT_NE(patterned.GetLogBrush(&brush), 0);
    EXPECT_EQ(brush.lbStyle, static_cast<UINT>(BS_PATTERN));
    CBrush system;
    ASSERT_TRUE(system.CreateSysColorBrush(COLOR_BTNFACE));
    EXPECT_NE(system.GetLogBrush(&brush), 0);
    EXPECT_EQ(brush.lbColor, ::GetSysColor(COLOR_BTNFACE));
    CBrush none;
    EXPECT_FALSE(none.CreatePatternBrush(nullptr));
    EXPECT_TRUE(none.CreateStockObject(DC_BRUSH));
}

TEST(GdiObjects, BitmapsKeepTheirBitsAndDimension)
{
    CBitmap bitmap;
    const BYTE bits[] = { 0xF0, 0, 0x0F, 0 };
    ASSERT_TRUE(bitmap.CreateBitmap(8, 2, 1, 1, bits));
    BYTE read[4] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(sizeof read, read), 4u);
    EXPECT_EQ(read[2], 0x0F);
    read[0] = 0x55;
    EXPECT_EQ(bitmap.SetBitmapBits(sizeof read, read), 4u);
    BITMAP look = {};
    EXPECT_NE(bitmap.GetBitmap(&look), 0);
    EXPECT_EQ(CSize(look.bmWidth, look.bmHeight), CSize(8, 2));
    EXPECT_EQ(bitmap.SetBitmapDimension(30, 40), CSize(0, 0));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize(30, 40));
    CBitmap none;
    EXPECT_FALSE(none.LoadBitmap("NO_SUCH_PICTURE"));
    EXPECT_FALSE(none.LoadBitmap(L"NO_SUCH_PICTURE"));
    EXPECT_FALSE(none.LoadBitmap(MAKEINTRESOURCEA(4711)));
    EXPECT_FALSE(none.CreateCompatibleBitmap(nullptr, 1, 1));
}

TEST(GdiObjects, FontFaceIsGbk)
{
    LOGFONTA wanted = {};
    wanted.lfHeight = -16;
    memcpy(wanted.lfFaceName, "\xCB\xCE\xCC\xE5", 5); // 宋体
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&wanted));
    LOGFONTW wide = {};
    font.GetLogFont(&wide);
    EXPECT_STREQ(wide.lfFaceName, L"\u5B8B\u4F53");
    LOGFONTA back = {};
    font.GetLogFont(&back);
    EXPECT_STREQ(back.lfFaceName, wanted.lfFaceName);
    EXPECT_EQ(back.lfHeight, -16);
}

TEST(Dc, DrawsIntoAMemoryBitmap)
{
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    CClientDC screen(nullptr);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 20, 20));
    CBitmap* old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(CRect(0, 0, 20, 20), RGB(10, 20, 30));
    EXPECT_EQ(memory.GetPixel(5, 5), RGB(10, 20, 30));
    CBrush red(RGB(255, 0, 0));
    memory.FillRect(CRect(0, 0, 3, 3), &red);
    EXPECT_EQ(memory.GetPixel(2, 2), RGB(255, 0, 0));
    EXPECT_EQ(memory.GetPixel(3, 3), RGB(10, 20, 30));
    EXPECT_EQ(memory.GetCurrentBitmap()->m_hObject, bitmap.m_hObject);
    memory.SelectObject(old);
}
