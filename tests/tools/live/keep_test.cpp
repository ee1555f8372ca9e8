// What the user has done stays when the preview is built anew.
#include "tools/live/live_preview.h"

using namespace testing_support;

namespace {

std::string editOf(const std::string& value, int id = 11, int y = 20)
{
    return "[单行文本]\n1\n0\n5 " + std::to_string(id) + " 20 " + std::to_string(y) + " 60 20 1 0 9999 0 0 2 "
        + value + " 0 1 255 255 255\n";
}
const std::string TwoEdits = "[单行文本]\n2\n0\n5 11 20 20 60 20 1 0 9999 0 0 2 42 0 1 255 255 255\n"
                             "6 12 20 50 60 20 1 0 9999 0 0 2 43 0 1 255 255 255\n";
const std::string Checks = "[多选按钮]\n2\n0\n17 21 90 20 80 20 0\n甲\n18 22 90 50 80 20 1\n乙\n";
const std::string Radios = "[单选按钮]\n3\n0\n15 31 180 20 80 20 1 1\n甲\n16 32 180 40 80 20 1 0\n乙\n"
                           "17 33 180 60 80 20 1 0\n丙\n";
const std::string Combo
    = "[下拉列表框]\n1\n0\n13 41 20 90 90 90 0\n[下拉列表框初始值]\n3\n0\n41 one\n41 two\n41 three\n";
const std::string List = "[文本列表框]\n1\n0\n11 51 120 90 90 60 16 1 1 255 255 255 1\n[文本列表框初始值]\n";

void typeInto(HWND edit, const wchar_t* text)
{
    EXPECT_TRUE(FocusM(edit));
    ChordM(VK_CONTROL, VK_HOME);
    ChordM(VK_SHIFT, VK_END);
    TypeM(text);
}

std::string selectionOf(HWND edit)
{
    DWORD start = 0;
    DWORD end = 0;
    ::SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return std::to_string(start) + ".." + std::to_string(end);
}

LRESULT ask(HWND window, UINT message, WPARAM wParam = 0)
{
    return ::SendMessageW(window, message, wParam, 0);
}

} // namespace

TEST(Keep, TypedTextWithCaretAndFocus)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    typeInto(dialog.ItemM(12), L"5678");
    KeyM(VK_LEFT);
    KeyDownM(VK_SHIFT);
    KeyM(VK_LEFT);
    KeyUpM(VK_SHIFT);
    ASSERT_EQ(selectionOf(dialog.ItemM(12)), "2..3");
    const HWND before = dialog.ItemM(12);
    dialog.ChangeToM(TwoEdits);
    ASSERT_NE(dialog.ItemM(12), before);
    EXPECT_EQ(dialog.TextM(11), "42");
    EXPECT_EQ(dialog.TextM(12), "5678");
    EXPECT_EQ(::GetFocus(), dialog.ItemM(12));
    EXPECT_EQ(selectionOf(dialog.ItemM(12)), "2..3");
    TypeM(L"9"); // The user goes on typing.
    EXPECT_EQ(dialog.TextM(12), "5698");
    dialog.ChangeToM(TwoEdits);
    EXPECT_EQ(dialog.TextM(12), "5698");
}

TEST(Keep, WhatTheUserLeftAloneFollowsTheFile)
{
    const WorkFolderCL folder;
    writeDescription(editOf("42") + Checks);
    LivePreviewCL dialog;
    ClickM(dialog.ItemM(21), 5, 10);
    EXPECT_EQ(ask(dialog.ItemM(21), BM_GETCHECK), BST_CHECKED);
    dialog.ChangeToM(editOf("77") + "[多选按钮]\n2\n0\n17 21 90 20 80 20 0\n甲\n18 22 90 50 80 20 0\n乙\n");
    EXPECT_EQ(dialog.TextM(11), "77");
    EXPECT_EQ(ask(dialog.ItemM(21), BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(ask(dialog.ItemM(22), BM_GETCHECK), BST_UNCHECKED);
}

TEST(Keep, RadioButtonsKeepOneChoice)
{
    const WorkFolderCL folder;
    writeDescription(Radios);
    LivePreviewCL dialog;
    ClickM(dialog.ItemM(32), 5, 10);
    std::string third = Radios;
    third.replace(third.find("1 1\n甲"), 3, "1 0");
    third.replace(third.find("1 0\n丙"), 3, "1 1");
    dialog.ChangeToM(third);
    EXPECT_EQ(ask(dialog.ItemM(31), BM_GETCHECK), BST_UNCHECKED);
    EXPECT_EQ(ask(dialog.ItemM(32), BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(ask(dialog.ItemM(33), BM_GETCHECK), BST_UNCHECKED);
}

TEST(Keep, ChosenLinesAreFoundAgain)
{
    const WorkFolderCL folder;
    writeDescription(Combo + List + "3\n0\n51 one\n51 two\n51 three\n");
    LivePreviewCL dialog;
    ASSERT_TRUE(FocusM(dialog.ItemM(41)));
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    ASSERT_EQ(ask(dialog.ItemM(41), CB_GETCURSEL), 1);
    ClickM(dialog.ItemM(51), 20, 24);
    ASSERT_EQ(ask(dialog.ItemM(51), LB_GETCURSEL), 1);
    // A line before, and another text in its place.
    std::string combo = Combo;
    combo.replace(combo.find("3\n0\n41 one"), 10, "4\n0\n41 zero\n41 one");
    dialog.ChangeToM(combo + List + "3\n0\n51 one\n51 TWO\n51 three\n");
    EXPECT_EQ(ask(dialog.ItemM(41), CB_GETCURSEL), 2);
    EXPECT_EQ(dialog.TextM(41), "two");
    EXPECT_EQ(ask(dialog.ItemM(51), LB_GETCURSEL), 1);
    EXPECT_EQ(::GetFocus(), dialog.ItemM(51));
    // Gone.
    dialog.ChangeToM(combo + List + "1\n0\n51 one\n");
    EXPECT_EQ(ask(dialog.ItemM(51), LB_GETCURSEL), LB_ERR);
}

TEST(Keep, RowsAndBranches)
{
    const WorkFolderCL folder;
    const SmallPictureCL picture(0x02C020, 16, 16);
    writeBytes("p.bmp", picture.bytes());
    const std::string sections
        = "[列表控件]\n1\n0\n14 61 200 30 200 90 2 0\n[列表控件列标题]\n2\n0\n61 0 80 名称\n61 1 80 数值\n"
          "[列表控件初始值]\n4\n0\n61 0 0 转速\n61 0 1 1200\n61 1 0 温度\n61 1 1 36\n"
          "[树形控件]\n1\n0\n23 71 20 30 160 120\n[树形控件数据]\n3\n0\n71 0 1 501 图纸\np.bmp\np.bmp\n"
          "71 1 2 502 第一页\np.bmp\np.bmp\n71 1 3 503 第二页\np.bmp\np.bmp\n";
    writeDescription(sections);
    LivePreviewCL dialog;
    ASSERT_TRUE(FocusM(dialog.ItemM(61)));
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    ASSERT_EQ(ask(dialog.ItemM(61), LVM_GETNEXTITEM, static_cast<WPARAM>(-1)), 0); // Any row is first.
    const auto selectedRow = [&dialog] {
        return ::SendMessageW(dialog.ItemM(61), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    };
    const LRESULT row = selectedRow();
    ASSERT_GE(row, 0);
    ASSERT_TRUE(FocusM(dialog.ItemM(71)));
    KeyM(VK_HOME);
    KeyM(VK_RIGHT); // Opens the branch,
    KeyM(VK_DOWN);  // and goes to its items.
    KeyM(VK_DOWN);
    const auto selectedItem = [&dialog] {
        wchar_t text[100] = L"";
        TVITEMW item {};
        item.mask = TVIF_TEXT;
        item.hItem = reinterpret_cast<HTREEITEM>(ask(dialog.ItemM(71), TVM_GETNEXTITEM, TVGN_CARET));
        item.pszText = text;
        item.cchTextMax = 100;
        ::SendMessageW(dialog.ItemM(71), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return slGbkToUtf8(slWideToGbk(text).c_str());
    };
    ASSERT_EQ(selectedItem(), "第二页");
    dialog.ChangeToM(sections);
    EXPECT_EQ(selectedRow(), row);
    EXPECT_EQ(selectedItem(), "第二页");
    EXPECT_EQ(::GetFocus(), dialog.ItemM(71));
    KeyM(VK_UP);
    EXPECT_EQ(selectedItem(), "第一页"); // The branch is open.
}

TEST(Keep, ControlThatIsGoneTakesItsValueAlongQuietly)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    typeInto(dialog.ItemM(12), L"5678");
    dialog.ChangeToM(editOf("42"));
    EXPECT_EQ(dialog.ItemM(12), nullptr);
    EXPECT_EQ(::GetFocus(), dialog.ItemM(11)); // Where a new dialog has it.
    dialog.ChangeToM(TwoEdits);
    EXPECT_EQ(dialog.TextM(12), "43");
}

TEST(Keep, AnotherKindWithTheIdStartsAfresh)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    typeInto(dialog.ItemM(12), L"5678");
    dialog.ChangeToM(editOf("42") + "[多行文本]\n1\n0\n10 12 140 50 90 60 1 200\nnew\n0 1 240 240 255\n");
    EXPECT_EQ(dialog.TextM(12), "new");
}

TEST(Keep, BadValueIsKeptWithoutAWord)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    const MessageBoxWatcher boxes;
    typeInto(dialog.ItemM(11), L"-");
    dialog.ChangeToM(TwoEdits);
    EXPECT_EQ(dialog.TextM(11), "-");
    EXPECT_TRUE(boxes.SeenM().empty());
}

TEST(Keep, UserWhoIsElsewhereFindsTheFieldAgain)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    typeInto(dialog.ItemM(12), L"5678");
    const PlainWindow editor(200, 100, 700, 500);
    ASSERT_TRUE(ActivateM(editor.HandleM()));
    dialog.ChangeToM(TwoEdits);
    EXPECT_EQ(::GetForegroundWindow(), editor.HandleM());
    dialog.ChangeToM(TwoEdits);
    EXPECT_EQ(::GetActiveWindow(), editor.HandleM());
    ASSERT_TRUE(ActivateM(dialog.m_hWnd));
    EXPECT_EQ(::GetFocus(), dialog.ItemM(12));
    EXPECT_EQ(dialog.TextM(12), "5678");
    // Or the first one, when it is gone.
    ASSERT_TRUE(ActivateM(editor.HandleM()));
    dialog.ChangeToM(editOf("42"));
    ASSERT_TRUE(ActivateM(dialog.m_hWnd));
    EXPECT_EQ(::GetFocus(), dialog.ItemM(11));
}

TEST(Keep, PicturesThatWereClickedOn)
{
    const WorkFolderCL folder;
    const SmallPictureCL red(0xC01001, 40, 40);
    const SmallPictureCL green(0x02C020, 40, 40);
    writeBytes("red.bmp", red.bytes());
    writeBytes("green.bmp", green.bytes());
    const std::string sections = "[多态按钮]\n1\n0\n20 120 20 30 40 40 7\nNULL\n[多态按钮数据]\n2\n0\n"
                                 "120 7 green.bmp\n120 9 red.bmp\n";
    writeDescription(sections);
    LivePreviewCL dialog;
    const auto reds = [&dialog] { return Pixels(dialog.m_hWnd).CountM(RGB(0xC0, 0x10, 0x01)); };
    EXPECT_EQ(reds(), 0);
    ClickM(dialog.ItemM(120), 20, 20);
    ASSERT_TRUE(PumpUntil([&] { return reds() == 1600; }));
    dialog.ChangeToM(sections);
    EXPECT_EQ(reds(), 1600);
}

TEST(Keep, ListThatIsOpenIsWaitedFor)
{
    const WorkFolderCL folder;
    writeDescription(Combo);
    LivePreviewCL dialog;
    const HWND before = dialog.ItemM(41);
    ClickM(before, 80, 10);
    ASSERT_NE(ask(before, CB_GETDROPPEDSTATE), 0);
    writeDescription(Combo + editOf("7"));
    const ULONGLONG start = ::GetTickCount64();
    PumpUntil([start] { return ::GetTickCount64() - start > 700; });
    EXPECT_EQ(dialog.ItemM(41), before);
    EXPECT_NE(ask(before, CB_GETDROPPEDSTATE), 0);
    KeyM(VK_DOWN);
    KeyM(VK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "7"); }));
    EXPECT_EQ(ask(dialog.ItemM(41), CB_GETCURSEL), 0);
}

TEST(Keep, PressedButtonIsWaitedFor)
{
    const WorkFolderCL folder;
    writeDescription(Checks);
    LivePreviewCL dialog;
    const HWND before = dialog.ItemM(21);
    ASSERT_TRUE(MoveMouseToM(before, 5, 10));
    PressM();
    writeDescription(Checks + editOf("7"));
    const ULONGLONG start = ::GetTickCount64();
    PumpUntil([start] { return ::GetTickCount64() - start > 700; });
    EXPECT_EQ(dialog.ItemM(21), before);
    ReleaseM();
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(11, "7"); }));
    EXPECT_EQ(ask(dialog.ItemM(21), BM_GETCHECK), BST_CHECKED); // The click counted.
}

TEST(Keep, MessageIsWaitedFor)
{
    const WorkFolderCL folder;
    writeDescription(TwoEdits);
    LivePreviewCL dialog;
    typeInto(dialog.ItemM(11), L"-");
    const HWND before = dialog.ItemM(11);
    const auto box = [&dialog] {
        const HWND last = ::GetLastActivePopup(dialog.m_hWnd);
        return last != dialog.m_hWnd && ::IsWindowVisible(last) ? last : nullptr;
    };
    ULONGLONG since = 0;
    bool wasThere = false;
    Script script;
    script.WaitM([&] { return box() != nullptr; }, "the message about the value")
        .DoM([&] {
            writeDescription(TwoEdits + "[标题]\n1\n0\n90 901 300 200 90 20 2\nlate\n0 -1 0 0\n");
            since = ::GetTickCount64();
        })
        .WaitM([&] { return ::GetTickCount64() - since > 700; }, "the watch")
        .DoM([&] {
            wasThere = dialog.ItemM(11) == before;
            ::PostMessageW(box(), WM_COMMAND, IDOK, 0);
        });
    KeyM(VK_TAB); // Leaves the field with its bad value.
    EXPECT_TRUE(PumpUntil([&] { return script.DoneM(); }, 20000));
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(PumpUntil([&] { return dialog.ShowsM(901, "late"); }));
    EXPECT_EQ(dialog.TextM(11), "-");
    EXPECT_EQ(::GetFocus(), dialog.ItemM(11));
}
