#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

#define ZHONG "\xD6\xD0" // U+4E2D
#define WEN "\xCE\xC4"   // U+6587

namespace {

// A white picture to draw black texts into.
class DcText : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dc_.CreateCompatibleDC(nullptr));
        CClientDC screen(nullptr);
        ASSERT_TRUE(picture_.CreateCompatibleBitmap(&screen, Width, Height));
        ASSERT_NE(dc_.SelectObject(&picture_), nullptr);
        ASSERT_TRUE(font_.CreateFont(-16, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
            NONANTIALIASED_QUALITY, DEFAULT_PITCH, "SimSun"));
        ASSERT_NE(dc_.SelectObject(&font_), nullptr);
        clear();
    }
    void TearDown() override { dc_.DeleteDC(); }
    void clear()
    {
        dc_.FillSolidRect(0, 0, Width, Height, RGB(255, 255, 255));
        dc_.SetTextColor(RGB(0, 0, 0));
    }
    // What has been drawn since the picture was clear.
    std::vector<DWORD> drawn()
    {
        ::GdiFlush();
        std::vector<DWORD> pixels(Width * Height);
        EXPECT_NE(
            picture_.GetBitmapBits(static_cast<DWORD>(pixels.size() * sizeof(DWORD)), pixels.data()), 0u);
        clear();
        return pixels;
    }
    std::vector<DWORD> blank() { return drawn(); }

    static constexpr int Width = 300;
    static constexpr int Height = 60;
    CDC dc_;
    CBitmap picture_;
    CFont font_;
};

} // namespace

// An advance for each byte: a character of two gets the sum of both.
TEST_F(DcText, WidthsAreGivenForEachByte)
{
    const std::vector<DWORD> nothing = blank();
    const char* const text = "a" ZHONG "b\xD6";
    const INT perByte[] = { 20, 7, 30, 11, 9 };
    ASSERT_TRUE(dc_.ExtTextOut(2, 2, 0, nullptr, text, 5, perByte));
    const std::vector<DWORD> ours = drawn();
    const INT perCharacter[] = { 20, 37, 11, 9 };
    ASSERT_TRUE(::ExtTextOutW(dc_, 2, 2, 0, nullptr,
        L"a\x4E2D"
        L"b?",
        4, perCharacter));
    EXPECT_EQ(ours, drawn());
    EXPECT_NE(ours, nothing);

    // Other numbers draw something else, so the above is no accident.
    const INT others[] = { 20, 7, 20, 11, 9 };
    ASSERT_TRUE(dc_.ExtTextOut(2, 2, 0, nullptr, text, 5, others));
    EXPECT_NE(ours, drawn());
}

// A broken first byte swallows the one behind it, as the platform converts them.
TEST_F(DcText, WidthsOfBrokenPairsAreThoseOfWhatIsShown)
{
    const INT perByte[] = { 10, 20, 40, 15, 15 };
    ASSERT_TRUE(dc_.ExtTextOut(2, 2, 0, nullptr, "x\xD6 yz", 5, perByte));
    const std::vector<DWORD> ours = drawn();
    const INT perCharacter[] = { 10, 60, 15, 15 };
    ASSERT_TRUE(::ExtTextOutW(dc_, 2, 2, 0, nullptr, L"x?yz", 4, perCharacter));
    EXPECT_EQ(ours, drawn());
}

TEST_F(DcText, WidthsMayBePairs)
{
    const INT perByte[] = { 20, 0, 10, 3, 15, 4, 9, 0 };
    ASSERT_TRUE(dc_.ExtTextOut(2, 20, ETO_PDY, nullptr, "a" ZHONG "b", 4, perByte));
    const std::vector<DWORD> ours = drawn();
    const INT perCharacter[] = { 20, 0, 25, 7, 9, 0 };
    ASSERT_TRUE(::ExtTextOutW(dc_, 2, 20, ETO_PDY, nullptr,
        L"a\x4E2D"
        L"b",
        3, perCharacter));
    EXPECT_EQ(ours, drawn());
}

TEST_F(DcText, NarrowAndWideTextsDrawTheSame)
{
    const CString text("a" ZHONG "b" WEN);
    const std::vector<DWORD> nothing = blank();
    dc_.TextOut(3, 3, text);
    const std::vector<DWORD> expected = drawn();
    EXPECT_NE(expected, nothing);
    dc_.TextOut(3, 3, text.GetString(), 6);
    EXPECT_EQ(drawn(), expected);
    dc_.TextOut(3, 3,
        L"a\x4E2D"
        L"b\x6587");
    EXPECT_EQ(drawn(), expected);
    dc_.TextOut(3, 3,
        L"a\x4E2D"
        L"b\x6587!",
        4);
    EXPECT_EQ(drawn(), expected);
    dc_.ExtTextOut(3, 3, 0, nullptr, text, nullptr);
    EXPECT_EQ(drawn(), expected);
    dc_.ExtTextOut(3, 3, 0, nullptr,
        L"a\x4E2D"
        L"b\x6587",
        4, nullptr);
    EXPECT_EQ(drawn(), expected);
    dc_.TabbedTextOut(3, 3, text, 0, nullptr, 0);
    EXPECT_EQ(drawn(), expected);
    dc_.DrawState(CPoint(3, 3), CSize(0, 0), text, DSS_NORMAL);
    EXPECT_EQ(drawn(), expected);
    dc_.TabbedTextOut(3, 3,
        L"a\x4E2D"
        L"b\x6587",
        -1, 0, nullptr, 0);
    EXPECT_EQ(drawn(), expected);
    dc_.DrawState(CPoint(3, 3), CSize(0, 0),
        L"a\x4E2D"
        L"b\x6587",
        DSS_NORMAL);
    EXPECT_EQ(drawn(), expected);

    CRect room(0, 0, Width, Height);
    EXPECT_NE(dc_.DrawText(text, room, DT_CENTER | DT_SINGLELINE), 0);
    const std::vector<DWORD> centred = drawn();
    EXPECT_NE(centred, nothing);
    dc_.DrawText("a" ZHONG "b" WEN "!", 6, room, DT_CENTER | DT_SINGLELINE);
    EXPECT_EQ(drawn(), centred);
    dc_.DrawText(L"a\x4E2D"
                 L"b\x6587",
        room, DT_CENTER | DT_SINGLELINE);
    EXPECT_EQ(drawn(), centred);
    dc_.DrawTextEx(text, room, DT_CENTER | DT_SINGLELINE, nullptr);
    EXPECT_EQ(drawn(), centred);
    dc_.DrawTextEx(L"a\x4E2D"
                   L"b\x6587",
        -1, room, DT_CENTER | DT_SINGLELINE, nullptr);
    EXPECT_EQ(drawn(), centred);
}

TEST_F(DcText, ANullTextOnlyFillsItsRectangle)
{
    dc_.SetBkColor(RGB(1, 2, 3));
    EXPECT_TRUE(dc_.ExtTextOut(0, 0, ETO_OPAQUE, CRect(0, 0, 5, 5), NULL, 0, NULL));
    EXPECT_EQ(dc_.GetPixel(4, 4), RGB(1, 2, 3));
    EXPECT_EQ(dc_.GetPixel(5, 5), RGB(255, 255, 255));
}

TEST_F(DcText, TextsAreMeasured)
{
    const CString text("a" ZHONG);
    SIZE expected = {};
    ASSERT_TRUE(::GetTextExtentPoint32W(dc_, L"a\x4E2D", 2, &expected));
    EXPECT_EQ(dc_.GetTextExtent(text), CSize(expected));
    EXPECT_EQ(dc_.GetTextExtent("a" ZHONG "b", 3), CSize(expected));
    EXPECT_EQ(dc_.GetTextExtent(L"a\x4E2D"), CSize(expected));
    EXPECT_EQ(dc_.GetOutputTextExtent(text), CSize(expected));
    EXPECT_EQ(dc_.GetOutputTextExtent(L"a\x4E2D"), CSize(expected));
    EXPECT_EQ(dc_.GetTabbedTextExtent(L"a\x4E2D", 2, 0, nullptr), CSize(expected));
    EXPECT_EQ(dc_.GetTabbedTextExtent(text, 0, nullptr), CSize(expected));
    const INT stop = 100;
    EXPECT_EQ(dc_.GetTabbedTextExtent("\t" ZHONG, 3, 1, &stop).cx, 100 + dc_.GetTextExtent(ZHONG).cx);

    CRect room(0, 0, 0, 0);
    dc_.DrawText(text, room, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(room.Size(), CSize(expected));
    TEXTMETRIC metrics = {};
    ASSERT_TRUE(dc_.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmHeight, expected.cy);
    ASSERT_TRUE(dc_.GetOutputTextMetrics(&metrics));
}

TEST_F(DcText, CharactersAreMeasuredByTheirGbkCodes)
{
    int widths[3] = {};
    ASSERT_TRUE(dc_.GetCharWidth('a', 'c', widths));
    for (int k = 0; k < 3; ++k) {
        const wchar_t character = static_cast<wchar_t>(L'a' + k);
        EXPECT_EQ(widths[k], dc_.GetTextExtent(&character, 1).cx);
    }
    ASSERT_TRUE(dc_.GetOutputCharWidth(0xD6D0, 0xD6D0, widths));
    EXPECT_EQ(widths[0], dc_.GetTextExtent(ZHONG).cx);
    EXPECT_FALSE(dc_.GetCharWidth('c', 'a', widths));
    ABC abc = {};
    ASSERT_TRUE(dc_.GetCharABCWidths(0xD6D0, 0xD6D0, &abc));
    EXPECT_EQ(abc.abcA + static_cast<int>(abc.abcB) + abc.abcC, dc_.GetTextExtent(ZHONG).cx);
}

TEST_F(DcText, TheFaceIsGbk)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, "\xCB\xCE\xCC\xE5")); // U+5B8B U+4F53
    CFont* const before = dc_.SelectObject(&font);
    CString face;
    EXPECT_EQ(dc_.GetTextFace(face), 4);
    EXPECT_EQ(face, "\xCB\xCE\xCC\xE5");
    char room[4] = "xxx";
    EXPECT_EQ(dc_.GetTextFace(4, room), 3);
    EXPECT_STREQ(room, "\xCB\xCE");
    EXPECT_EQ(dc_.GetTextFace(0, nullptr), 5);

    LOGFONTW narrow = {};
    LOGFONTW wide = {};
    CFont same;
    ASSERT_TRUE(same.CreatePointFont(90, L"\x5B8B\x4F53"));
    font.GetLogFont(&narrow);
    same.GetLogFont(&wide);
    EXPECT_EQ(narrow.lfHeight, wide.lfHeight);
    EXPECT_STREQ(narrow.lfFaceName, wide.lfFaceName);
    EXPECT_EQ(wide.lfHeight, -::MulDiv(90, dc_.GetDeviceCaps(LOGPIXELSY), 720));
    EXPECT_EQ(wide.lfCharSet, DEFAULT_CHARSET);
    dc_.SelectObject(before);

    LOGFONTA indirect = {};
    indirect.lfHeight = 120;
    indirect.lfWeight = FW_BOLD;
    memcpy(indirect.lfFaceName, "\xCB\xCE\xCC\xE5", 5);
    CFont bold;
    ASSERT_TRUE(bold.CreatePointFontIndirect(&indirect, &dc_));
    bold.GetLogFont(&wide);
    EXPECT_EQ(wide.lfWeight, FW_BOLD);
    EXPECT_EQ(wide.lfHeight, -::MulDiv(120, dc_.GetDeviceCaps(LOGPIXELSY), 720));
    CFont anyFace;
    EXPECT_TRUE(anyFace.CreateFont(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, NULL));
}
