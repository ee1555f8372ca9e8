#include "controls/lists/tree.h"
#include "controls/lists/tree_record.h"
#include "support/all.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>
#include <utility>

using namespace testing_support;

namespace {

// Items below one as "text=data(children)".
std::string itemsOf(const CTreeCtrl& tree, HTREEITEM first)
{
    std::string all;
    for (HTREEITEM item = first; item != nullptr; item = tree.GetNextSiblingItem(item)) {
        const HTREEITEM child = tree.GetChildItem(item);
        all += (all.empty() ? "" : " ") + std::string(tree.GetItemText(item)) + "="
            + std::to_string(static_cast<int>(tree.GetItemData(item)))
            + (child != nullptr ? "(" + itemsOf(tree, child) + ")" : "");
    }
    return all;
}

std::string allOf(const CTreeCtrl& tree)
{
    return slGbkToUtf8(itemsOf(tree, tree.GetRootItem()).c_str());
}

std::string imagesOf(const CTreeCtrl& tree, HTREEITEM item)
{
    int normal = -1;
    int selected = -1;
    tree.GetItemImage(item, normal, selected);
    return std::to_string(normal) + " " + std::to_string(selected);
}

// The pixel in the middle of an image on a white ground.
COLORREF colourOf(CImageList& images, int index)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    BITMAPINFO info {};
    info.bmiHeader = BITMAPINFOHEADER { sizeof(BITMAPINFOHEADER), 20, -20, 1, 32, BI_RGB, 0, 0, 0, 0, 0 };
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = ::SelectObject(dc.m_hDC, bitmap);
    ::PatBlt(dc.m_hDC, 0, 0, 20, 20, WHITENESS);
    images.Draw(&dc, index, POINT { 0, 0 }, ILD_TRANSPARENT);
    const COLORREF colour = ::GetPixel(dc.m_hDC, 10, 10);
    ::SelectObject(dc.m_hDC, before);
    ::DeleteObject(bitmap);
    return colour;
}

struct TreeTest : testing::Test
{
    void SetUp() override
    {
        const int size[2] = { 200, 200 };
        tree.SetFunctionIDM(16);
        tree.SetSizeM(size);
        ASSERT_EQ(tree.Create(&parent), 1);
    }
    void AddM(int parentKey, int key, int data, const char* text)
    {
        const int triple[3] = { parentKey, key, data };
        record.AddStringM(triple, text, green.path(), red.path());
    }
    void AddM(int parentKey, int key, int data, const char* text, const char* selected, const char* normal)
    {
        const int triple[3] = { parentKey, key, data };
        record.AddStringM(triple, text, selected, normal);
    }

    SmallPictureCL red { 0xFF0000, 20, 20 };
    SmallPictureCL green { 0x00FF00, 20, 20 };
    SmallPictureCL black { 0x000000, 20, 20 };
    SmallPictureCL wide { 0x0000FF, 40, 20 };
    PlainWindowCL parent;
    DuTreeCL tree;
    DVrTreeCL record { AliveTag };
};

} // namespace

TEST_F(TreeTest, WindowHasItsStyle)
{
    EXPECT_EQ(styleOf(tree.m_hWnd) & 0xFFFF000F, 0x50810007U);
    EXPECT_EQ(exStyleOf(tree.m_hWnd) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(tree.ImagesM(), &width, &height);
    EXPECT_EQ(width * 100 + height, 2020);
    EXPECT_EQ(reinterpret_cast<HIMAGELIST>(::SendMessageW(tree.m_hWnd, TVM_GETIMAGELIST, TVSIL_NORMAL, 0)),
        tree.ImagesM().GetSafeHandle());
}

TEST_F(TreeTest, LinesBecomeAHierarchyAndAreUsedUp)
{
    AddM(0, 1, 10, "A");
    AddM(1, 2, 20, "B");
    AddM(0, 3, 30, "C");
    AddM(2, 4, 40, "D");
    AddM(9, 5, 50, "orphan");
    EXPECT_EQ(record.InitTreeStrM(&tree), 1);
    EXPECT_EQ(allOf(tree), "A=10(B=20(D=40)) C=30");
    EXPECT_EQ(record.InitTreeStrM(&tree), 1);
    EXPECT_EQ(allOf(tree), "A=10(B=20(D=40)) C=30");
}

TEST_F(TreeTest, GenerationBeginsAtAnyKeyAndItem)
{
    AddM(0, 1, 10, "A");
    AddM(7, 2, 20, "B");
    record.genTreeM(0, TVI_ROOT, &tree);
    record.genTreeM(7, tree.GetRootItem(), &tree);
    EXPECT_EQ(allOf(tree), "A=10(B=20)");
}

TEST_F(TreeTest, MissingPictureDropsTheItemAndItsSubtree)
{
    AddM(0, 1, 1, "A", "missing.bmp", red.path());
    AddM(1, 2, 2, "below A");
    AddM(0, 3, 3, "B", green.path(), "missing.bmp");
    AddM(3, 4, 4, "below B");
    AddM(0, 5, 5, "C");
    record.InitTreeStrM(&tree);
    EXPECT_EQ(allOf(tree), "C=5");
    // The selected picture of B had been added before its normal one failed.
    EXPECT_EQ(imagesOf(tree, tree.GetRootItem()), "2 1");
}

TEST_F(TreeTest, PictureCutShortDropsTheItem)
{
    BmpFile picture;
    picture.width = 200;
    picture.height = 200;
    picture.pixels.resize(1000);
    const std::vector<unsigned char> bytes = picture.bytes();
    const TempFile cut(std::string(bytes.begin(), bytes.end()), ".bmp");
    AddM(0, 1, 1, "A", cut.path(), red.path());
    AddM(0, 2, 2, "B");
    record.InitTreeStrM(&tree);
    EXPECT_EQ(allOf(tree), "B=2");
    EXPECT_EQ(tree.InsertItemM(TVI_ROOT, 3, "C", red.path(), cut.path()), nullptr);
}

TEST_F(TreeTest, NothingIsInsertedWithoutAnImageList)
{
    tree.destroyM();
    EXPECT_EQ(tree.InsertItemM(TVI_ROOT, 1, "A", red.path(), red.path()), nullptr);
    AddM(0, 1, 10, "A");
    AddM(1, 2, 20, "B");
    record.InitTreeStrM(&tree);
    EXPECT_EQ(allOf(tree), "");
    EXPECT_EQ(tree.GetRootItem(), nullptr);
}

TEST_F(TreeTest, EachItemAddsTwoImagesTheSelectedOneFirst)
{
    AddM(0, 1, 1, "A");
    AddM(0, 2, 2, "B");
    AddM(0, 3, 3, "C", wide.path(), wide.path());
    AddM(0, 4, 4, "D", wide.path(), red.path());
    record.InitTreeStrM(&tree);
    HTREEITEM item = tree.GetRootItem();
    for (const char* images : { "1 0", "3 2", "6 4", "10 8" }) {
        EXPECT_EQ(imagesOf(tree, item), images);
        item = tree.GetNextSiblingItem(item);
    }
    EXPECT_EQ(tree.ImagesM().GetImageCount(), 11);
    const COLORREF expected[11] = { 0x00FF00, 0x0000FF, 0x00FF00, 0x0000FF, 0xFF0000, 0xFF0000, 0xFF0000,
        0xFF0000, 0xFF0000, 0xFF0000, 0x0000FF };
    for (int i = 0; i < 11; ++i) {
        EXPECT_EQ(colourOf(tree.ImagesM(), i), expected[i]) << i;
    }
}

TEST_F(TreeTest, SharedPicturesGiveTheImagesThatSingleInsertionsGive)
{
    DuTreeCL other;
    other.Create(&parent);
    const TempFile* const files[4] = { &red, &wide, &black, &green };
    for (int i = 0; i < 90; ++i) {
        const char* const selected = files[i % 4]->path();
        const char* const normal = files[i / 4 % 4]->path();
        AddM(0, i + 1, i, "x", selected, normal);
        other.InsertItemM(TVI_ROOT, i, "x", selected, normal);
    }
    record.InitTreeStrM(&tree);
    ASSERT_EQ(tree.ImagesM().GetImageCount(), other.ImagesM().GetImageCount());
    for (int i = 0; i < tree.ImagesM().GetImageCount(); ++i) {
        ASSERT_EQ(colourOf(tree.ImagesM(), i), colourOf(other.ImagesM(), i)) << i;
    }
    HTREEITEM item = tree.GetRootItem();
    for (HTREEITEM same = other.GetRootItem(); same != nullptr; same = other.GetNextSiblingItem(same)) {
        ASSERT_EQ(imagesOf(tree, item), imagesOf(other, same));
        item = tree.GetNextSiblingItem(item);
    }
}

// The file is gone once its first item stands: who read it again would lose the second.
TEST_F(TreeTest, SharedPictureIsReadOnceABuild)
{
    class VanishingTreeCL : public DuTreeCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == TVM_INSERTITEMW) {
                std::remove(file.c_str());
            }
            return DuTreeCL::WindowProc(message, wParam, lParam);
        }
        std::string file;
    };
    VanishingTreeCL own;
    own.file = green.path();
    own.DuTreeCL::Create(&parent);
    AddM(0, 1, 1, "A");
    AddM(0, 2, 2, "B");
    record.InitTreeStrM(&own);
    EXPECT_EQ(allOf(own), "A=1 B=2");
    EXPECT_EQ(own.InsertItemM(TVI_ROOT, 3, "C", green.path(), red.path()), nullptr);
}

TEST_F(TreeTest, SelectionGivesItemAndData)
{
    int data = 77;
    AddM(0, 1, 10, "A");
    AddM(0, 2, 20, "B");
    record.InitTreeStrM(&tree);
    EXPECT_EQ(tree.GetCurSelM(&data), nullptr);
    EXPECT_EQ(data, 77);
    ASSERT_TRUE(ActivateM(parent.m_hWnd));
    SettleM();
    const MessageRecorder messages(parent.m_hWnd, { 1625 });
    const HTREEITEM second = tree.GetNextSiblingItem(tree.GetRootItem());
    ASSERT_TRUE(FocusM(tree.m_hWnd));
    KeyM(VK_DOWN);
    ASSERT_TRUE(PumpUntil([this, second] { return tree.GetSelectedItem() == second; }));
    EXPECT_EQ(tree.GetCurSelM(&data), second);
    EXPECT_EQ(data, 20);
    PumpPending();
    EXPECT_EQ(messages.ListM(), std::vector<std::string> { "posted 1625 w=16 l=0" });
}

TEST_F(TreeTest, ChainOfTenThousandIsBuiltAndDestroyed)
{
    constexpr int Length = 10000;
    for (int i = Length - 1; i >= 0; --i) {
        AddM(i, i + 1, i, "x");
    }
    record.InitTreeStrM(&tree);
    int depth = 0;
    for (HTREEITEM item = tree.GetRootItem(); item != nullptr; item = tree.GetChildItem(item)) {
        ASSERT_EQ(static_cast<int>(tree.GetItemData(item)), depth);
        ++depth;
    }
    EXPECT_EQ(depth, Length);
    tree.DelItemM();
    EXPECT_EQ(tree.m_hWnd, nullptr);
}

TEST_F(TreeTest, NoControlIsNoError)
{
    EXPECT_EQ(record.InitTreeM(nullptr), 1);
}

TEST(TreeInDialog, HasTheLinesOfItsSections)
{
    const SmallPictureCL picture(0xFF0000, 20, 20);
    const std::string pictures = std::string("\n") + picture.path() + "\n" + picture.path() + "\n";
    const TestDialogCL dialog(HeaderSections + std::string("[树形控件]\n1\n0\n1 16 20 30 200 100\n")
        + "[树形控件数据]\n4\n0\n16 0 1 10 根" + pictures + "16 1 2 20 叶 子" + pictures + "16 0 3 30 null"
        + pictures + "16 3 4 40 lost" + pictures);
    auto* tree = dynamic_cast<DuTreeCL*>(CWnd::FromHandlePermanent(dialog.ItemM(16)));
    ASSERT_NE(tree, nullptr);
    EXPECT_EQ(allOf(*tree), "根=10(叶 子=20)");
    EXPECT_EQ(placeOf(tree->m_hWnd), "20 30 200 100");
}
