#include "parent_window.h"
#include <gtest/gtest.h>

namespace {

class DrawnStaticCL : public CStatic
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        EXPECT_EQ(draw->hwndItem, m_hWnd);
        ++drawn;
    }
};

} // namespace

TEST(Static, ShowsGbkAndWideTexts)
{
    ParentWindowCL parent;
    CStatic gbk;
    CStatic wide;
    ASSERT_TRUE(gbk.Create(ChineseText, WS_VISIBLE, Place, &parent));
    ASSERT_TRUE(wide.Create(L"\u4E2D\xE4", WS_VISIBLE, Place, &parent, 5)); // ä: GBK has none.
    wchar_t shown[10] = {};
    ::GetWindowTextW(gbk, shown, 10);
    EXPECT_STREQ(shown, ChineseWide);
    ::GetWindowTextW(wide, shown, 10);
    EXPECT_STREQ(shown, L"\u4E2D\xE4");
    EXPECT_EQ(gbk.GetDlgCtrlID(), 0xFFFF);
    EXPECT_EQ(wide.GetDlgCtrlID(), 5);
}

TEST(Static, KeepsPicturesAndGivesTheOneBefore)
{
    ParentWindowCL parent;
    CStatic bitmaps;
    CStatic icons;
    CStatic files;
    ASSERT_TRUE(bitmaps.Create("", WS_VISIBLE | SS_BITMAP, Place, &parent));
    ASSERT_TRUE(icons.Create("", WS_VISIBLE | SS_ICON, Place, &parent));
    ASSERT_TRUE(files.Create("", WS_VISIBLE | SS_ENHMETAFILE, Place, &parent));
    CBitmap one;
    one.CreateBitmap(4, 4, 1, 32, nullptr);
    EXPECT_EQ(bitmaps.SetBitmap(one), nullptr);
    EXPECT_EQ(bitmaps.GetBitmap(), static_cast<HBITMAP>(one));
    EXPECT_EQ(bitmaps.SetBitmap(nullptr), static_cast<HBITMAP>(one));
    const HICON icon = ::LoadIconW(nullptr, MAKEINTRESOURCEW(32512));
    const HCURSOR cursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    EXPECT_EQ(icons.SetIcon(icon), nullptr);
    EXPECT_EQ(icons.GetIcon(), icon);
    EXPECT_EQ(icons.SetCursor(cursor), icon);
    EXPECT_EQ(icons.GetCursor(), cursor);
    const HDC recorder = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    const HENHMETAFILE file = ::CloseEnhMetaFile(recorder);
    files.SetEnhMetaFile(file);
    EXPECT_EQ(files.GetEnhMetaFile(), file);
    files.DestroyWindow();
    ::DeleteEnhMetaFile(file);
}

TEST(Static, DrawsItselfWhereItsOwnerIsToDraw)
{
    ParentWindowCL parent;
    DrawnStaticCL drawn;
    ASSERT_TRUE(drawn.Create("", WS_VISIBLE | SS_OWNERDRAW, Place, &parent));
    drawn.RedrawWindow();
    EXPECT_GT(drawn.drawn, 0);
}
