#include "controls/lists/text_list_box.h"
#include "controls/lists/text_list_box_record.h"
#include "support/shown_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// One list box of id 12 with the given own fields and lines.
std::string description(const std::string& own, const std::string& lines = "0\n0\n")
{
    return HeaderSections
        + ("[文本列表框]\n1\n0\n1 12 10 20 150 100 " + own + "\n[文本列表框初始值]\n" + lines);
}

std::string itemsOf(HWND window)
{
    std::string text;
    const auto count = ::SendMessageW(window, LB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
        wchar_t line[300] = L"";
        const auto length = ::SendMessageW(window, LB_GETTEXT, i, reinterpret_cast<LPARAM>(line));
        text += std::to_string(::SendMessageW(window, LB_GETITEMDATA, i, 0)) + "="
            + slGbkToUtf8(slWideToGbk(std::wstring(line, static_cast<size_t>(length))).c_str()) + " ";
    }
    return text;
}

DuTextListBoxCL& listOf(const TestDialogCL& dialog, int id = 12)
{
    return *static_cast<DuTextListBoxCL*>(CWnd::FromHandlePermanent(dialog.ItemM(id)));
}

// A list box without a description, with three lines.
struct PlainListCL
{
    explicit PlainListCL(int mode = 1)
    {
        const int size[2] = { 150, 100 };
        list.SetSizeM(size);
        list.SetSelModeM(mode);
        list.Create(&parent);
        for (int i = 0; i < 3; ++i) {
            list.AddItemM(10 + i, std::string(1, static_cast<char>('a' + i)).c_str());
        }
    }
    std::string ItemsM() const { return itemsOf(list.m_hWnd); }
    PlainWindowCL parent;
    DuTextListBoxCL list;
};

} // namespace

TEST(TextListBox, StyleFollowsEdgeScrollAndSelectionMode)
{
    constexpr DWORD Base = 0x50210101;
    // The window system turns a border into the edge's own bits, and keeps no scroll bar that nothing needs.
    const auto style = [](const std::string& own) {
        return styleOf(TestDialogCL(description(own)).ItemM(12)) | WS_VSCROLL;
    };
    EXPECT_EQ(style("12 1 1 255 255 255 0"), Base);
    EXPECT_EQ(style("12 2 1 255 255 255 0"), Base | LBS_MULTIPLESEL);
    EXPECT_EQ(style("12 3 1 255 255 255 0") & ~static_cast<DWORD>(LBS_MULTIPLESEL), Base | LBS_EXTENDEDSEL);
    EXPECT_EQ(style("12 4 1 255 255 255 0"), Base | LBS_NOSEL);
    EXPECT_EQ(style("12 5 1 255 255 255 0"), Base);
    EXPECT_EQ(style("12 0 1 255 255 255 1"), Base | LBS_DISABLENOSCROLL);
    EXPECT_EQ(style("12 1 1 255 255 255 2"), Base);
    const auto exStyle
        = [](const std::string& own) { return exStyleOf(TestDialogCL(description(own)).ItemM(12)); };
    EXPECT_TRUE(exStyle("12 1 1 255 255 255 0") & WS_EX_CLIENTEDGE);
    EXPECT_FALSE(exStyle("12 1 2 255 255 255 0") & WS_EX_CLIENTEDGE);
    const TestDialogCL dialog(description("12 1 1 255 255 255 0"));
    EXPECT_EQ(placeOf(dialog.ItemM(12)), "10 20 150 100");
}

TEST(TextListBox, InitialLinesAreNumberedFromZeroInFileOrder)
{
    const TestDialogCL dialog(
        description("12 1 1 255 255 255 0", "5\n0\n12 丙\n12 NULL\n12 甲\n99 x\n12 Null\n"));
    EXPECT_EQ(itemsOf(dialog.ItemM(12)), "0=丙 1=甲 2=Null ");
}

TEST(TextListBox, OfTwoWithOneIdTheFirstGetsAllLines)
{
    const TestDialogCL dialog(HeaderSections
        + std::string(
            "[文本列表框]\n2\n0\n1 12 10 20 50 100 12 1 1 1 1 1 0\n2 12 70 20 50 100 12 1 1 1 1 1 0\n"
            "[文本列表框初始值]\n2\n0\n12 a\n12 b\n"));
    const HWND first = ::GetWindow(dialog.m_hWnd, GW_CHILD);
    const HWND second = ::GetWindow(first, GW_HWNDNEXT);
    const bool inOrder = placeOf(first) == "10 20 50 100";
    EXPECT_EQ(itemsOf(inOrder ? first : second), "0=a 1=b ");
    EXPECT_EQ(itemsOf(inOrder ? second : first), "");
}

TEST(TextListBox, CountZeroAndAMissingSectionOfLinesBuildNoControl)
{
    const TestDialogCL none(HeaderSections + std::string("[文本列表框]\n0\n"));
    EXPECT_EQ(none.StackM(), "");
    const TestDialogCL noLines(
        HeaderSections + std::string("[文本列表框]\n1\n0\n1 12 10 20 50 100 12 1 1 1 1 1 0\n"));
    EXPECT_EQ(noLines.StackM(), "");
    const TestDialogCL zeroLines(description("12 1 1 255 255 255 0"));
    EXPECT_EQ(zeroLines.StackM(), "12");
}

TEST(TextListBox, ItemHeightSurvivesTheFontOfTheDialog)
{
    const TestDialogCL dialog(description("31 1 1 255 255 255 0"));
    ASSERT_NE(::SendMessageW(dialog.ItemM(12), WM_GETFONT, 0, 0), 0);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(12), LB_GETITEMHEIGHT, 0, 0), 31);
    ::SendMessageW(dialog.ItemM(12), WM_SETFONT, ::SendMessageW(dialog.ItemM(12), WM_GETFONT, 0, 0), 0);
    EXPECT_NE(::SendMessageW(dialog.ItemM(12), LB_GETITEMHEIGHT, 0, 0), 31); // Why it is applied again.
}

TEST(TextListBox, ItemHeightIsSetAtCreation)
{
    PlainWindowCL parent;
    DuTextListBoxCL list;
    EXPECT_EQ(list.SetItemHeightM(), 0); // No window yet.
    EXPECT_EQ(list.SetItemInitHeightM(27), 1);
    EXPECT_EQ(list.SetItemInitHeightM(0), 0);
    EXPECT_EQ(list.SetItemInitHeightM(-5), 0);
    EXPECT_EQ(list.Create(&parent), 1);
    EXPECT_EQ(list.GetItemHeight(0), 27);
}

TEST(TextListBox, ItemHeightBelowOneIsRefusedAndChangesNothing)
{
    PlainListCL plain;
    EXPECT_EQ(plain.list.SetItemHeightM(20), 1);
    EXPECT_EQ(plain.list.GetItemHeight(0), 20);
    EXPECT_EQ(plain.list.SetItemHeightM(0), 0);
    EXPECT_EQ(plain.list.SetItemHeightM(-1), 0);
    EXPECT_EQ(plain.list.GetItemHeight(0), 20);
    plain.list.SetItemHeight(0, 9);
    EXPECT_EQ(plain.list.SetItemHeightM(), 1); // The height kept.
    EXPECT_EQ(plain.list.GetItemHeight(0), 20);
}

TEST(TextListBox, ArrayAppliesTheHeightsOfAllAndStopsAtTheFirstFailure)
{
    DuTextListBoxArr lists;
    EXPECT_EQ(lists.SetItemHeightM(), 0);
    PlainWindowCL parent;
    lists.InitialSizeM(3);
    for (int i = 0; i < 3; ++i) {
        lists.SetItemM(DuTextListBoxCL(AliveTag), i);
        lists[i].SetItemInitHeightM(20 + i);
    }
    EXPECT_EQ(lists.Create(&parent), 1);
    for (int i = 0; i < 3; ++i) {
        lists[i].SetItemHeight(0, 9);
    }
    EXPECT_EQ(lists.SetItemHeightM(), 1);
    EXPECT_EQ(lists[2].GetItemHeight(0), 22);
    lists[2].SetItemHeight(0, 9);
    lists[1].DestroyWindow();
    EXPECT_EQ(lists.SetItemHeightM(), 0);
    EXPECT_EQ(lists[2].GetItemHeight(0), 9);
}

TEST(TextListBox, AddsInsertsAndDeletesLinesWithTheirNumbers)
{
    PlainListCL plain;
    EXPECT_EQ(plain.ItemsM(), "10=a 11=b 12=c ");
    EXPECT_EQ(plain.list.InsertItemM(1, -7, slUtf8ToGbk("中").c_str()), 1);
    EXPECT_EQ(plain.ItemsM(), "10=a -7=中 11=b 12=c ");
    EXPECT_EQ(plain.list.InsertItemM(9, 1, "x"), 0);
    EXPECT_EQ(plain.list.InsertItemM(-1, 13, "d"), 1);
    EXPECT_EQ(plain.list.DelItemM(1), 1);
    EXPECT_EQ(plain.list.DelItemM(4), 0);
    EXPECT_EQ(plain.list.DelItemM(-1), 0);
    EXPECT_EQ(plain.ItemsM(), "10=a 11=b 12=c 13=d ");
    EXPECT_EQ(plain.list.DelAllItemM(), 1);
    EXPECT_EQ(plain.ItemsM(), "");
    EXPECT_EQ(plain.list.DelAllItemM(), 1);
}

TEST(TextListBox, AddingGivesWhatThePlatformSaysOfTheDataAndMinusOneOnFailure)
{
    class FullListCL : public DuTextListBoxCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == LB_ADDSTRING && answer != 0) {
                return answer;
            }
            if (message == LB_SETITEMDATA) {
                return 77;
            }
            return DuTextListBoxCL::WindowProc(message, wParam, lParam);
        }
        LRESULT answer { 0 };
    };
    PlainWindowCL parent;
    FullListCL list;
    list.Create(&parent);
    EXPECT_EQ(list.AddItemM(1, "x"), 77);
    list.answer = LB_ERRSPACE;
    EXPECT_EQ(list.AddItemM(1, "x"), -1);
    list.answer = LB_ERR;
    EXPECT_EQ(list.AddItemM(1, "x"), -1);
    EXPECT_EQ(list.GetCount(), 1);
}

TEST(TextListBox, SelectedLineGivesItsIndexAndNumber)
{
    PlainListCL plain;
    int index = 55;
    int data = 66;
    EXPECT_EQ(plain.list.GetItemM(&index, &data), 0);
    EXPECT_EQ(index, 55);
    plain.list.SetCurSel(2);
    EXPECT_EQ(plain.list.GetItemM(&index, &data), 1);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(data, 12);
}

TEST(TextListBox, SetSelWorksInMultipleSelectionOnly)
{
    for (const int mode : { 2, 3 }) {
        PlainListCL plain(mode);
        EXPECT_EQ(plain.list.SetSelM(1), 1) << mode;
        EXPECT_GT(plain.list.GetSel(1), 0);
        EXPECT_EQ(plain.list.SetSelM(7), 0);
    }
    PlainListCL single;
    EXPECT_EQ(single.list.SetSelM(1), 0);
    EXPECT_EQ(single.list.GetCurSel(), LB_ERR);
}

TEST(TextListBox, NumberOfSelectedLines)
{
    PlainListCL single;
    int count = 9;
    EXPECT_EQ(single.list.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 0);
    single.list.SetCurSel(0);
    EXPECT_EQ(single.list.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 1);
    PlainListCL multiple(2);
    multiple.list.SetSelM(0);
    multiple.list.SetSelM(2);
    EXPECT_EQ(multiple.list.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 2);
    PlainListCL other(7); // A single selection for the platform, but not mode 1.
    count = 9;
    EXPECT_EQ(other.list.GetSelNumM(&count), 0);
    EXPECT_EQ(count, 9);
}

TEST(TextListBox, KeysAndClicksSelectLines)
{
    const std::string lines = "3\n0\n12 a\n12 b\n12 c\n";
    ShownDialogCL dialog(description("20 1 1 255 255 255 0", lines));
    dialog.StartAtM(12);
    ClickM(dialog.ItemM(12), 20, 30);
    int index = 0;
    int data = 0;
    EXPECT_EQ(listOf(dialog).GetItemM(&index, &data), 1);
    EXPECT_EQ(index, 1);
    KeyM(VK_DOWN);
    listOf(dialog).GetItemM(&index, &data);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(dialog.StoryM(), ""); // List boxes report nothing.
    ShownDialogCL many(description("20 2 1 255 255 255 0", lines));
    ClickM(many.ItemM(12), 20, 10);
    ClickM(many.ItemM(12), 20, 50);
    EXPECT_EQ(listOf(many).GetSelNumM(&index), 1);
    EXPECT_EQ(index, 2);
}

TEST(TextListBox, NothingCanBeSelectedInModeFour)
{
    ShownDialogCL dialog(description("20 4 1 255 255 255 0", "2\n0\n12 a\n12 b\n"));
    dialog.StartAtM(12);
    const Pixels before(dialog.ItemM(12));
    ClickM(dialog.ItemM(12), 20, 30);
    int count = 9;
    EXPECT_EQ(listOf(dialog).SetSelM(1), 0);
    EXPECT_LE(listOf(dialog).GetSelNumM(&count) == 1 ? count : 0, 0);
    int index = 9;
    EXPECT_EQ(listOf(dialog).GetItemM(&index, &count), 0);
    EXPECT_EQ(index, 9);
    EXPECT_EQ(Pixels(dialog.ItemM(12)).CountM(::GetSysColor(COLOR_HIGHLIGHT)),
        before.CountM(::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST(TextListBox, WithoutAWindowThereIsNoLine)
{
    DuTextListBoxCL list;
    int index = 9;
    int data = 9;
    EXPECT_EQ(list.GetItemM(&index, &data), 0);
    EXPECT_EQ(list.GetSelNumM(&data), 1);
    EXPECT_EQ(data, 0);
    EXPECT_EQ(list.AddItemM(1, "a"), -1);
    EXPECT_EQ(list.InsertItemM(0, 1, "a"), 0);
    EXPECT_EQ(list.DelItemM(0), 0);
    EXPECT_EQ(list.DelAllItemM(), 1);
}

TEST(TextListBox, BackgroundColourFillsTheList)
{
    ShownDialogCL dialog(description("20 1 1 255 200 100 0"));
    PumpPending();
    EXPECT_EQ(Pixels(dialog.ItemM(12)).AtM(60, 50), RGB(255, 200, 100));
}

TEST(TextListBox, EachColourRequestReplacesTheBrush)
{
    PlainListCL plain;
    plain.list.SetBkColorM(RGB(1, 2, 3));
    const HDC dc = ::GetDC(plain.list.m_hWnd);
    const auto request = [&] {
        return reinterpret_cast<HGDIOBJ>(::SendMessageW(plain.parent.m_hWnd, WM_CTLCOLORLISTBOX,
            reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(plain.list.m_hWnd)));
    };
    request();
    const int before = LiveGdiObjectsM();
    HGDIOBJ brush = nullptr;
    for (int i = 0; i < 100; ++i) {
        brush = request();
    }
    EXPECT_EQ(LiveGdiObjectsM(), before);
    LOGBRUSH description {};
    ASSERT_NE(::GetObjectW(brush, sizeof description, &description), 0);
    EXPECT_EQ(description.lbColor, RGB(1, 2, 3));
    EXPECT_EQ(::GetBkColor(dc), RGB(1, 2, 3));
    plain.list.destroyM();
    EXPECT_EQ(LiveGdiObjectsM(), before - 1);
    ::ReleaseDC(plain.list.m_hWnd, dc);
}

TEST(TextListBox, RedrawingIsOffWhileTheLinesAreAddedAndOnAfterwards)
{
    class WatchedListCL : public DuTextListBoxCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SETREDRAW) {
                seen += wParam != 0 ? "on " : "off ";
            } else if (message == LB_ADDSTRING) {
                seen += "add ";
            }
            return DuTextListBoxCL::WindowProc(message, wParam, lParam);
        }
        std::string seen;
    };
    DVrTextListBoxCL record(AliveTag);
    record.AddStringM("a");
    record.AddStringM("b");
    PlainWindowCL parent;
    WatchedListCL list;
    const int size[2] = { 150, 100 };
    list.SetSizeM(size);
    list.Create(&parent);
    list.UpdateWindow();
    const DWORD style = styleOf(list.m_hWnd);
    EXPECT_EQ(record.InitTextListBoxStrM(&list), 1);
    EXPECT_EQ(list.seen, "off add add on ");
    EXPECT_EQ(styleOf(list.m_hWnd), style);
    EXPECT_TRUE(::GetUpdateRect(list.m_hWnd, nullptr, FALSE));
    list.ShowWindow(SW_HIDE);
    record.InitTextListBoxStrM(&list);
    EXPECT_FALSE(styleOf(list.m_hWnd) & WS_VISIBLE); // A hidden one stays hidden.
    EXPECT_EQ(itemsOf(list.m_hWnd), "0=a 1=b 0=a 1=b ");
}
