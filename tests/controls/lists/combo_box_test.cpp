#include "controls/lists/combo_box.h"
#include "controls/lists/combo_box_record.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <algorithm>
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

std::string itemsOf(CComboBox& combo)
{
    std::string all;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        all += std::string(all.empty() ? "" : " ") + static_cast<const char*>(text) + "="
            + std::to_string(static_cast<int>(combo.GetItemData(i)));
    }
    return all;
}

// A combo box of its own with some items numbered from 0.
struct ComboCL
{
    explicit ComboCL(int editAvailable, std::initializer_list<const char*> texts = {})
    {
        const int position[2] = { 10, 20 };
        const int size[2] = { 120, 150 };
        combo.SetPositionM(position);
        combo.SetSizeM(size);
        combo.SetFunctionIDM(12);
        combo.SetEditAvailableM(editAvailable);
        combo.Create(&parent);
        int number = 0;
        for (const char* text : texts) {
            combo.AddItemM(number++, text);
        }
    }
    PlainWindowCL parent;
    DuComboBoxCL combo;
};

// A shown dialog with an editable combo box 12 of four items and a fixed one 13 of three.
struct ComboDialogTest : testing::Test
{
    TestDialogCL dialog { HeaderSections
        + std::string(
            "[下拉列表框]\n2\n0\n1 12 20 30 120 150 1\n2 13 160 30 120 150 0\n"
            "[下拉列表框初始值]\n8\n0\n12 one\n12 two\n12 null\n12 three\n12 four\n13 甲\n13 乙\n13 丙\n") };
    DuComboBoxCL& ComboM(int id)
    {
        return *dynamic_cast<DuComboBoxCL*>(CWnd::FromHandlePermanent(dialog.ItemM(id)));
    }
    HWND EditM() { return ::GetWindow(dialog.ItemM(12), GW_CHILD); }
    // Selects an item of the editable one as the user does.
    void SelectM(int item)
    {
        ASSERT_TRUE(FocusM(EditM()));
        ComboM(12).SetSelM(-1);
        for (int step = 0; step < 9 && ComboM(12).GetCurSel() != item; ++step) {
            KeyM(ComboM(12).GetCurSel() > item ? VK_UP : VK_DOWN);
            PumpPending();
        }
        ASSERT_EQ(ComboM(12).GetCurSel(), item);
    }
    // Types over the whole text of the editable one and leaves it.
    void LeaveWithM(const wchar_t* text)
    {
        ASSERT_TRUE(FocusM(EditM()));
        ::SendMessageW(EditM(), EM_SETSEL, 0, -1);
        TypeM(text);
        KeyM(VK_TAB);
        PumpPending();
    }
    void SetUp() override
    {
        dialog.ShowWindow(SW_SHOW);
        ASSERT_TRUE(ActivateM(dialog.m_hWnd));
        pumpFilter = [this](MSG* message) { return ::IsDialogMessageW(dialog.m_hWnd, message) != 0; };
        PumpPending();
    }
    void TearDown() override { pumpFilter = nullptr; }
};

} // namespace

TEST(ComboBox, StyleFollowsEditAvailable)
{
    // As asked for: the window itself hands its scroll bar over to the list that drops down.
    class OpenComboCL : public DuComboBoxCL
    {
    public:
        using DuComboBoxCL::PreCreateWindow;
    };
    const auto style = [](int available) {
        OpenComboCL combo;
        EXPECT_EQ(combo.SetEditAvailableM(available), 1);
        CREATESTRUCT create {};
        combo.PreCreateWindow(create);
        return static_cast<DWORD>(create.style);
    };
    EXPECT_EQ(style(0), 0x50210003U);
    EXPECT_EQ(style(1), 0x50210002U);
    EXPECT_EQ(style(2), 0x50210000U);
    EXPECT_EQ(styleOf(ComboCL(0).combo.m_hWnd) & 3, static_cast<DWORD>(CBS_DROPDOWNLIST));
    EXPECT_EQ(styleOf(ComboCL(1).combo.m_hWnd) & 3, static_cast<DWORD>(CBS_DROPDOWN));
}

TEST(ComboBox, ItemsAreAddedInsertedAndDeleted)
{
    ComboCL own(0, { "a", "b" });
    EXPECT_EQ(own.combo.InsertItemM(1, 9, "c"), 1);
    EXPECT_EQ(own.combo.InsertItemM(7, 9, "d"), 0);
    EXPECT_EQ(itemsOf(own.combo), "a=0 c=9 b=1");
    EXPECT_EQ(own.combo.DelItemM(1), 1);
    EXPECT_EQ(own.combo.DelItemM(2), 0);
    EXPECT_EQ(itemsOf(own.combo), "a=0 b=1");
}

TEST(ComboBox, DeletingAllLeavesEverySecondItem)
{
    ComboCL own(0, { "a", "b", "c", "d", "e" });
    EXPECT_EQ(own.combo.DelAllItemM(), 1);
    EXPECT_EQ(itemsOf(own.combo), "b=1 d=3");
    ComboCL empty(0);
    EXPECT_EQ(empty.combo.DelAllItemM(), 1);
}

TEST(ComboBox, CurrentItemIsTheSelectedOne)
{
    ComboCL own(0, { "a", "b" });
    int index = 7;
    int data = 7;
    char text[TextSize] = "old";
    EXPECT_EQ(own.combo.GetCurItemM(&index, &data, text), 0);
    EXPECT_EQ(std::to_string(index) + std::to_string(data) + text, "77old");
    own.combo.InsertItemM(0, 40, "z");
    own.combo.SetSelM(0);
    EXPECT_EQ(own.combo.GetCurItemM(&index, &data, text), 1);
    EXPECT_EQ(std::to_string(index) + " " + std::to_string(data) + " " + text, "0 40 z");
}

TEST(ComboBox, CurrentItemTextIsCutToItsBuffer)
{
    ComboCL own(0);
    own.combo.AddItemM(1, (std::string(258, 'x') + "\xD6\xD0yyy").c_str());
    own.combo.SetSelM(0);
    int index = 0;
    int data = 0;
    char text[TextSize];
    EXPECT_EQ(own.combo.GetCurItemM(&index, &data, text), 1);
    EXPECT_EQ(text, std::string(258, 'x'));
}

TEST(ComboBox, WithoutSelectionTheTypedTextIsCurrent)
{
    ComboCL own(1, { "a", "b" });
    int index = 7;
    int data = 7;
    char text[TextSize] = "old";
    EXPECT_EQ(own.combo.GetCurItemM(&index, &data, text), 0);
    own.combo.SetWindowText("typed");
    EXPECT_EQ(own.combo.GetCurItemM(&index, &data, text), 1);
    EXPECT_EQ(std::to_string(index) + " " + std::to_string(data) + " " + text, "-1 -1 typed");
}

TEST(ComboBox, SelectingByIndexReportsWhatThePlatformSays)
{
    ComboCL own(0, { "a", "b" });
    EXPECT_EQ(own.combo.SetSelM(1), 1);
    EXPECT_EQ(own.combo.GetCurSel(), 1);
    EXPECT_EQ(own.combo.SetSelM(5), 0);
    EXPECT_EQ(own.combo.SetSelM(1), 1);
    EXPECT_EQ(own.combo.SetSelM(-1), 0); // Yet it clears the selection.
    EXPECT_EQ(own.combo.GetCurSel(), -1);
}

TEST(ComboBox, SelectingInAnEmptyOneSendsNothingForAnIndexBelowTheCount)
{
    ComboCL own(0);
    const MessageRecorder messages(own.combo.m_hWnd, { CB_SETCURSEL });
    EXPECT_EQ(own.combo.SetSelM(-1), 0);
    EXPECT_TRUE(messages.ListM().empty());
    EXPECT_EQ(own.combo.SetSelM(0), 0);
    EXPECT_EQ(messages.ListM().size(), 1U);
}

TEST(ComboBox, SelectingByDataTakesTheFirstMatchAndElseClears)
{
    ComboCL own(0, { "a", "b" });
    own.combo.AddItemM(1, "c");
    EXPECT_EQ(own.combo.SetDataSelM(1), 1);
    EXPECT_EQ(own.combo.GetCurSel(), 1);
    EXPECT_EQ(own.combo.SetDataSelM(5), 0);
    EXPECT_EQ(own.combo.GetCurSel(), -1);
    EXPECT_EQ(ComboCL(0).combo.SetDataSelM(0), 0);
}

TEST(ComboBox, SelectingByDataStopsAtAnItemWithTheErrorNumber)
{
    ComboCL own(0, { "a" });
    own.combo.AddItemM(-1, "b");
    own.combo.AddItemM(2, "c");
    own.combo.SetSelM(0);
    EXPECT_EQ(own.combo.SetDataSelM(2), 0);
    EXPECT_EQ(own.combo.GetCurSel(), 0);
}

TEST(ComboBox, WithoutAWindowThereIsNoItem)
{
    DuComboBoxCL combo;
    int index = 9;
    int data = 9;
    char text[260] = "before";
    EXPECT_EQ(combo.GetCurItemM(&index, &data, text), 0);
    EXPECT_EQ(index, 9);
    EXPECT_EQ(combo.AddItemM(0, "a"), -1);
    EXPECT_EQ(combo.DelItemM(0), 0);
}

TEST(ComboBoxArray, CreatesByTheFirstAliveThenBySlots)
{
    PlainWindowCL parent;
    DuComboBoxArr combos;
    EXPECT_EQ(combos.Create(&parent), 0);
    combos.InitialSizeM(4);
    for (int i = 0; i < 4; ++i) {
        combos.SetItemM(DuComboBoxCL(AliveTag), i);
        combos[i].SetFunctionIDM(20 + i);
    }
    combos.DelItemM(1);
    EXPECT_EQ(combos.Create(&parent), 1);
    // Three are alive: slots 0, 1 and 2 get windows, the deleted one too, the last alive one does not.
    EXPECT_NE(combos[0].m_hWnd, nullptr);
    EXPECT_NE(combos[1].m_hWnd, nullptr);
    EXPECT_NE(combos[2].m_hWnd, nullptr);
    EXPECT_EQ(combos[3].m_hWnd, nullptr);
    combos[1].DestroyWindow();
}

TEST(ComboBoxArray, FirstAliveControlBehindADeletedOneKeepsOneWindow)
{
    PlainWindowCL parent;
    DuComboBoxArr combos;
    combos.InitialSizeM(3);
    for (int i = 0; i < 3; ++i) {
        combos.SetItemM(DuComboBoxCL(AliveTag), i);
        combos[i].SetFunctionIDM(20 + i);
    }
    combos.DelItemM(0);
    EXPECT_EQ(combos.Create(&parent), 1);
    EXPECT_EQ(combos[0].m_hWnd, nullptr);
    EXPECT_EQ(::GetDlgItem(parent.m_hWnd, 21), combos[1].m_hWnd);
    EXPECT_EQ(combos[2].m_hWnd, nullptr);
    combos[1].DestroyWindow();
    EXPECT_EQ(::GetDlgItem(parent.m_hWnd, 21), nullptr);
}

TEST_F(ComboDialogTest, HasItsInitialItemsNumberedWithoutGaps)
{
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 three=2 four=3");
    EXPECT_EQ(slGbkToUtf8(itemsOf(ComboM(13)).c_str()), "甲=0 乙=1 丙=2");
}

namespace {

// Counts the lines that it is told to add.
class CountingComboCL : public DuComboBoxCL
{
public:
    inline static int added = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        added += message == CB_ADDSTRING ? 1 : 0;
        return DuComboBoxCL::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST(ComboBox, ManyInitialItemsAreThoseAddedOneByOne)
{
    constexpr int Lines = 300;
    std::string text = "[下拉列表框]\n2\n0\n1 12 10 10 200 200 0\n2 13 10 50 200 200 1\n[下拉列表框初始值]\n"
        + std::to_string(2 * Lines) + "\n0\n";
    ComboCL plain(0);
    for (int i = 0; i < Lines; ++i) {
        const std::string line = (i % 3 == 0 ? "行 " : "line ") + std::to_string(i * 7919 % Lines);
        text += "12 " + line + "\n13 " + line + "\n";
        plain.combo.AddItemM(i, slUtf8ToGbk(line.c_str()).c_str());
    }
    TestDialogCL dialog(HeaderSections + text);
    for (const int id : { 12, 13 }) {
        auto* const combo = static_cast<DuComboBoxCL*>(CWnd::FromHandlePermanent(dialog.ItemM(id)));
        EXPECT_EQ(itemsOf(*combo), itemsOf(plain.combo));
        EXPECT_EQ(combo->GetCurSel(), -1);
        EXPECT_EQ(textOf(*combo), "");
    }
    CountingComboCL::added = 0;
    DuBasicDialogCL hosting;
    hosting.SetFactoryM<DuComboBoxCL>([](int) { return std::make_unique<CountingComboCL>(); });
    hosting.SetConfigFileM(dialog.PathM());
    PlainWindowCL parent;
    hosting.InitDlgM(&parent, 0);
    EXPECT_EQ(CountingComboCL::added, 2 * Lines); // A class of the application hears of each.
}

TEST_F(ComboDialogTest, DropsDownAndSelectsByMouse)
{
    const MessageRecorder messages(dialog.m_hWnd, { 1749 });
    ClickM(dialog.ItemM(13), 110, 8);
    ASSERT_TRUE(ComboM(13).GetDroppedState());
    COMBOBOXINFO info {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(dialog.ItemM(13), &info));
    RECT line {};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&line));
    ClickM(info.hwndList, 20, (line.top + line.bottom) / 2);
    ASSERT_TRUE(PumpUntil([&messages] { return !messages.ListM().empty(); }));
    EXPECT_FALSE(ComboM(13).GetDroppedState());
    EXPECT_EQ(messages.ListM()[0], "posted 1749 w=13 l=1");
    EXPECT_EQ(textOf(dialog.ItemM(13)), "乙");
}

TEST_F(ComboDialogTest, SelectionAndFocusAreReportedClearingTheSelectionIsNot)
{
    const MessageRecorder messages(dialog.m_hWnd, { 1625, 1749 });
    ASSERT_TRUE(FocusM(dialog.ItemM(13)));
    KeyM(VK_DOWN);
    ASSERT_TRUE(PumpUntil([&messages] { return messages.ListM().size() >= 2; }));
    ComboM(13).SetSelM(-1);
    ComboM(13).SetDataSelM(77);
    PumpPending();
    EXPECT_EQ(
        messages.ListM(), (std::vector<std::string> { "posted 1625 w=13 l=0", "posted 1749 w=13 l=0" }));
}

TEST_F(ComboDialogTest, TypedTextReplacesTheSelectedItemAndKeepsItsData)
{
    const MessageRecorder messages(dialog.m_hWnd, { WM_KILLFOCUS });
    ASSERT_TRUE(FocusM(EditM()));
    for (int i = 0; i < 3; ++i) {
        KeyM(VK_DOWN);
    }
    PumpPending();
    EXPECT_EQ(ComboM(12).GetCurSel(), 2);
    ChordM(VK_CONTROL, 'A');
    ::SendMessageW(EditM(), EM_SETSEL, 0, -1);
    TypeM(L"third");
    KeyM(VK_TAB);
    ASSERT_TRUE(PumpUntil([&messages] { return !messages.ListM().empty(); }));
    EXPECT_EQ(messages.ListM()[0], "posted 8 w=12 l=0");
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 third=2 four=3");
    EXPECT_EQ(textOf(dialog.ItemM(12)), "third");
}

TEST_F(ComboDialogTest, VisitWithoutTypingKeepsTheSelection)
{
    FocusM(EditM());
    KeyM(VK_DOWN);
    KeyM(VK_DOWN);
    KeyM(VK_TAB);
    PumpPending();
    int index = 0;
    int data = 0;
    char text[260];
    EXPECT_EQ(ComboM(12).GetCurItemM(&index, &data, text), 1);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(data, 1);
    EXPECT_STREQ(text, "two");
}

TEST_F(ComboDialogTest, FocusThatOnlyPassesThroughIsNotLeaving)
{
    FocusM(EditM());
    KeyM(VK_DOWN);
    TypeM(L"x");
    PumpPending();
    const MessageRecorder messages(dialog.m_hWnd, { WM_KILLFOCUS });
    {
        const ValidationPauseCL telling;
        ::SetFocus(dialog.m_hWnd);
        PumpPending();
    }
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 three=2 four=3");
    EXPECT_EQ(std::count(messages.ListM().begin(), messages.ListM().end(), "posted 8 w=12 l=0"), 0);
    FocusM(EditM());
    PumpPending();
    dialog.SetFocus(); // Now it is.
    PumpPending();
    EXPECT_EQ(std::count(messages.ListM().begin(), messages.ListM().end(), "posted 8 w=12 l=0"), 1);
}

TEST_F(ComboDialogTest, TypedTextWithoutASelectedItemChangesNoItem)
{
    ASSERT_TRUE(FocusM(EditM()));
    TypeM(L"new");
    KeyM(VK_TAB);
    PumpPending();
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 three=2 four=3");
    EXPECT_EQ(textOf(dialog.ItemM(12)), "new");
}

TEST_F(ComboDialogTest, ItemsThatAreGoneAreNotReplaced)
{
    ASSERT_TRUE(FocusM(EditM()));
    for (int i = 0; i < 3; ++i) {
        KeyM(VK_DOWN);
    }
    PumpPending();
    ComboM(12).DelItemM(3);
    ComboM(12).DelItemM(2);
    KeyM(VK_TAB);
    PumpPending();
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1");
}

TEST_F(ComboDialogTest, ItemSelectedByTheProgramIsReplaced)
{
    EXPECT_EQ(ComboM(12).SetSelM(2), 1);
    LeaveWithM(L"c");
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 c=2 four=3");
    EXPECT_EQ(ComboM(12).GetCurSel(), 2);
    EXPECT_EQ(ComboM(12).SetDataSelM(3), 1);
    LeaveWithM(L"d");
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 c=2 d=3");
    ComboM(12).SendMessage(CB_SETCURSEL, 0, 0);
    LeaveWithM(L"a");
    EXPECT_EQ(itemsOf(ComboM(12)), "a=0 two=1 c=2 d=3");
    EXPECT_EQ(ComboM(12).SelectString(-1, "tw"), 1);
    EXPECT_EQ(ComboM(12).SelectString(-1, "nothing"), CB_ERR); // The selection stays.
    LeaveWithM(L"b");
    EXPECT_EQ(itemsOf(ComboM(12)), "a=0 b=1 c=2 d=3");
}

TEST_F(ComboDialogTest, SelectedItemIsFoundAgainWhenLinesComeAndGo)
{
    ComboM(12).SetSelM(2);
    ComboM(12).InsertItemM(0, 9, "first");
    ComboM(12).InsertItemM(3, 9, "before"); // Just before it.
    ComboM(12).InsertItemM(5, 9, "after");
    ComboM(12).AddItemM(9, "last");
    EXPECT_EQ(ComboM(12).DelItemM(1), 1);
    EXPECT_EQ(ComboM(12).DelItemM(5), 1);
    EXPECT_EQ(ComboM(12).DelItemM(77), 0);
    EXPECT_EQ(itemsOf(ComboM(12)), "first=9 two=1 before=9 three=2 after=9 last=9");
    LeaveWithM(L"c");
    EXPECT_EQ(itemsOf(ComboM(12)), "first=9 two=1 before=9 c=2 after=9 last=9");
    EXPECT_EQ(ComboM(12).GetCurSel(), 3);
}

TEST_F(ComboDialogTest, DeletingAllKeepsTheSelectedItemThatItLeaves)
{
    ComboM(12).SetSelM(3);
    ComboM(12).DelAllItemM();
    ASSERT_EQ(itemsOf(ComboM(12)), "two=1 four=3");
    LeaveWithM(L"d");
    EXPECT_EQ(itemsOf(ComboM(12)), "two=1 d=3");
}

TEST_F(ComboDialogTest, NoItemIsReplacedOnceTheSelectedOneIsGone)
{
    const std::string all = "one=0 two=1 three=2 four=3";
    const auto expectKept = [this](const char* what, const std::string& items) {
        LeaveWithM(L"x");
        EXPECT_EQ(itemsOf(ComboM(12)), items) << what;
    };
    SelectM(1);
    ComboM(12).SetSelM(-1);
    expectKept("cleared by index", all);
    SelectM(1);
    ComboM(12).SetDataSelM(77);
    expectKept("cleared by data", all);
    SelectM(2);
    ComboM(12).DelItemM(2);
    expectKept("deleted", "one=0 two=1 four=3");
    SelectM(0);
    ComboM(12).DelAllItemM();
    expectKept("deleted with every second one", "two=1");
    SelectM(0);
    ComboM(12).ResetContent();
    ComboM(12).AddItemM(5, "new");
    expectKept("emptied", "new=5");
    SelectM(0);
    ComboM(12).Create(&dialog);
    ComboM(12).AddItemM(6, "newer");
    expectKept("created anew", "newer=6");
}

TEST(ComboBox, ItemOfASortedOneIsFoundAgainBehindLinesAdded)
{
    PlainWindowCL parent;
    DuComboBoxCL combo;
    combo.SetEditAvailableM(1);
    ASSERT_TRUE(combo.Create(CBS_SORT, CRect(10, 20, 130, 170), &parent, 12));
    combo.AddItemM(1, "m");
    combo.SetSelM(0);
    combo.AddItemM(2, "a");
    combo.AddItemM(3, "z");
    ASSERT_TRUE(ActivateM(parent.m_hWnd));
    ASSERT_TRUE(FocusM(::GetWindow(combo.m_hWnd, GW_CHILD)));
    combo.SetWindowText("n");
    ::SetFocus(parent.m_hWnd);
    EXPECT_EQ(itemsOf(combo), "a=2 n=1 z=3");
}

TEST_F(ComboDialogTest, PassingThroughSendsNothingThatChangesItems)
{
    const std::set<UINT> changes { CB_INSERTSTRING, CB_DELETESTRING, CB_SETITEMDATA, CB_SETCURSEL };
    for (const int selected : { -1, 1 }) {
        SelectM(selected);
        const MessageRecorder messages(dialog.ItemM(12), changes);
        ASSERT_TRUE(FocusM(EditM()));
        KeyM(VK_TAB);
        PumpPending();
        EXPECT_EQ(messages.ListM(), std::vector<std::string>()) << selected;
        EXPECT_EQ(ComboM(12).GetCurSel(), selected);
    }
}

TEST_F(ComboDialogTest, TextTypedAsTheItemHasItInsertsNothingAndSelectsTheItem)
{
    ComboM(12).SetSelM(1);
    const MessageRecorder messages(dialog.ItemM(12), { CB_INSERTSTRING, CB_DELETESTRING });
    LeaveWithM(L"two");
    EXPECT_EQ(messages.ListM(), std::vector<std::string>());
    EXPECT_EQ(itemsOf(ComboM(12)), "one=0 two=1 three=2 four=3");
    EXPECT_EQ(ComboM(12).GetCurSel(), 1);
    EXPECT_EQ(textOf(dialog.ItemM(12)), "two");
}

TEST_F(ComboDialogTest, FixedOneKeepsItsItemsAndReportsTheLostFocus)
{
    ASSERT_TRUE(FocusM(dialog.ItemM(13)));
    PumpPending();
    const MessageRecorder messages(dialog.m_hWnd, { WM_KILLFOCUS });
    KeyM(VK_DOWN);
    KeyM(VK_TAB);
    ASSERT_TRUE(PumpUntil([&messages] { return !messages.ListM().empty(); }));
    EXPECT_EQ(messages.ListM()[0], "posted 8 w=13 l=0");
    EXPECT_EQ(slGbkToUtf8(itemsOf(ComboM(13)).c_str()), "甲=0 乙=1 丙=2");
}
