#include "support/test_dialog.h"
#include <gtest/gtest.h>

namespace {

// Two labels and two group boxes; one of each has the id 12.
const char* Controls = "[标题]\n2\n0\n1 11 0 0 50 20 1\na\n0 -1 0 0\n2 12 0 20 50 20 1\nb\n0 -1 0 0\n"
                       "[成组控件]\n2\n0\n3 12 0 40 50 20\nc\n4 13 0 60 50 20\nd\n";

class ItemDialogCL : public TestDialogCL
{
public:
    explicit ItemDialogCL(const std::string& more = "")
        : TestDialogCL(HeaderSections + (Controls + more))
    {
    }
    int ReadRelationsM() { return initItemRelationM(); }

    DControlCommonCL* CommonM(int id)
    {
        int kind = 0;
        return dynamic_cast<DControlCommonCL*>(GetContrlPtrM(id, &kind));
    }
    std::string RelationsM(int id)
    {
        const Int3DArr& items = CommonM(id)->GetRelationItemsM();
        std::string text;
        for (int i = items.GetFirstIdxM(); i >= 0; i = items.GetNextIdxM(i)) {
            int triple[3] {};
            items.GetItemM(triple, i);
            text += "(" + std::to_string(triple[0]) + " " + std::to_string(triple[1]) + " "
                + std::to_string(triple[2]) + ")";
        }
        return text;
    }
    int CountM(DWORD style)
    {
        int count = 0;
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            count += (styleOf(child) & style) != 0 ? 1 : 0;
        }
        return count;
    }
};

} // namespace

TEST(HostItems, FindsAControlAndItsKindByItsId)
{
    ItemDialogCL dialog;
    int kind = 0;
    auto* label = static_cast<DuLabelCL*>(dialog.GetContrlPtrM(11, &kind));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(kind, 3);
    EXPECT_EQ(label->m_hWnd, dialog.ItemM(11));
    EXPECT_NE(dialog.GetContrlPtrM(13, &kind), nullptr);
    EXPECT_EQ(kind, 17);
}

TEST(HostItems, AnIdOfTwoKindsMeansTheFirstInTheOrderOfSearch)
{
    ItemDialogCL dialog;
    int kind = 0;
    EXPECT_NE(dialog.GetContrlPtrM(12, &kind), nullptr);
    EXPECT_EQ(kind, 3);
}

TEST(HostItems, UnknownIdGivesNothingAndLeavesTheKindAlone)
{
    ItemDialogCL dialog;
    int number = 77;
    EXPECT_EQ(dialog.GetContrlPtrM(99, &number), nullptr);
    EXPECT_EQ(dialog.ShowContrlM(99, 1), 0);
    EXPECT_EQ(dialog.AddItemM(99, 0, "x"), 0);
    EXPECT_EQ(dialog.DelItemM(99), 0);
    EXPECT_EQ(dialog.SetSelM(99), 0);
    EXPECT_EQ(dialog.GetNormalAnimateBmpIdxM(99, &number), 0);
    EXPECT_EQ(dialog.ChangeNormalAnimateM(99, 0), 0);
    EXPECT_EQ(number, 77);
}

TEST(HostItems, ControlsOfOtherKindsAreLeftAlone)
{
    ItemDialogCL dialog;
    int index = 77;
    EXPECT_EQ(dialog.AddItemM(11, 0, "x"), 0);
    EXPECT_EQ(dialog.DelItemM(11), 0);
    EXPECT_EQ(dialog.SetSelM(11), 0);
    EXPECT_EQ(dialog.GetNormalAnimateBmpIdxM(11, &index), 0);
    EXPECT_EQ(dialog.ChangeNormalAnimateM(11, 0), 0);
    EXPECT_EQ(index, 77);
    EXPECT_EQ(textOf(dialog.ItemM(11)), "a");
    EXPECT_EQ(dialog.CountM(WS_VISIBLE), 4);
}

TEST(HostItems, ShowsForOneOnlyAndHidesForEveryOtherValue)
{
    ItemDialogCL dialog;
    for (const int hide : { 2, 0, -1 }) {
        EXPECT_EQ(dialog.ShowContrlM(11, hide), 1);
        EXPECT_FALSE(styleOf(dialog.ItemM(11)) & WS_VISIBLE) << hide;
        EXPECT_EQ(dialog.CountM(WS_VISIBLE), 3);
        EXPECT_EQ(dialog.ShowContrlM(11, 1), 1);
        EXPECT_TRUE(styleOf(dialog.ItemM(11)) & WS_VISIBLE);
    }
}

TEST(HostItems, ShowAllAndEnableAllReachEveryControl)
{
    ItemDialogCL dialog;
    EXPECT_EQ(dialog.ShowAllCtrlM(2), 1);
    EXPECT_EQ(dialog.CountM(WS_VISIBLE), 0);
    EXPECT_EQ(dialog.ShowAllCtrlM(1), 1);
    EXPECT_EQ(dialog.CountM(WS_VISIBLE), 4);
    EXPECT_EQ(dialog.EnableAllCtrlM(0), 1);
    EXPECT_EQ(dialog.CountM(WS_DISABLED), 4);
    EXPECT_EQ(dialog.EnableAllCtrlM(1), 1);
    EXPECT_EQ(dialog.CountM(WS_DISABLED), 0);
}

TEST(HostItems, ShowObjectIgnoresOtherKindsThanRadioButtons)
{
    ItemDialogCL dialog;
    dialog.ShowAllCtrlM(0);
    dialog.ShowObjectM(3, 0, true);
    dialog.ShowObjectM(11, 0, true); // There are none.
    EXPECT_EQ(dialog.CountM(WS_VISIBLE), 0);
}

TEST(HostItems, RelationsAreStoredWithTheControlsTheyNameAndNotByBuilding)
{
    ItemDialogCL dialog("[相关对象信息]\n4\n1\n功能号 甲 乙 丙\n11 1 2 3\n99 4 5 6\n13 7 8 9\n11 -1 -2 -3\n");
    EXPECT_EQ(dialog.RelationsM(11), "");
    EXPECT_EQ(dialog.ReadRelationsM(), 1);
    EXPECT_EQ(dialog.RelationsM(11), "(1 2 3)(-1 -2 -3)");
    EXPECT_EQ(dialog.RelationsM(13), "(7 8 9)");
    EXPECT_EQ(dialog.RelationsM(12), "");
}

TEST(HostItems, WithoutRelationsTheFileHasNone)
{
    ItemDialogCL dialog;
    EXPECT_EQ(dialog.ReadRelationsM(), 0);
    ItemDialogCL empty("[相关对象信息]\n0\n");
    EXPECT_EQ(empty.ReadRelationsM(), 1);
    ItemDialogCL broken("[相关对象信息]\n999999\n0\n11 1 2 3\n");
    EXPECT_EQ(broken.ReadRelationsM(), 0);
}

TEST(HostItems, ManyRelationsTakeTwoBytesForEachOfTheirFourNumbers)
{
    const auto read = [](std::size_t left) {
        ItemDialogCL dialog("[相关对象信息]\n1001\n0" + std::string(left - 2, '\n'));
        return dialog.ReadRelationsM();
    };
    EXPECT_EQ(read(8008), 1);
    EXPECT_EQ(read(8007), 0);
}

namespace {

// A list box with id 1 and three lines: its id is also the index of a line.
std::string listBox(int mode)
{
    return HeaderSections + ("[文本列表框]\n1\n0\n1 1 0 0 80 80 12 " + std::to_string(mode))
        + " 1 255 255 255 0\n[文本列表框初始值]\n3\n0\n1 a\n1 b\n1 c\n";
}

LRESULT countOf(const TestDialogCL& dialog)
{
    return ::SendMessageW(dialog.ItemM(1), LB_GETCOUNT, 0, 0);
}

} // namespace

TEST(HostItems, AddsALineWithItsNumberToAListBox)
{
    TestDialogCL dialog(listBox(1));
    EXPECT_EQ(dialog.AddItemM(1, 42, "d"), 1);
    EXPECT_EQ(countOf(dialog), 4);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(1), LB_GETITEMDATA, 3, 0), 42);
}

TEST(HostItems, OneNumberIsBothTheListAndTheLineToDelete)
{
    TestDialogCL dialog(listBox(1));
    EXPECT_EQ(dialog.DelItemM(1), 1);
    wchar_t text[20] = L"";
    ::SendMessageW(dialog.ItemM(1), LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(text, L"c"); // Line 1, "b", is gone.
    dialog.DelItemM(1);
    EXPECT_EQ(dialog.DelItemM(1), 1); // No line 1 any more, but the list is found.
    EXPECT_EQ(countOf(dialog), 1);
}

TEST(HostItems, OneNumberIsBothTheListAndTheLineToSelect)
{
    TestDialogCL dialog(listBox(2));
    EXPECT_EQ(dialog.SetSelM(1), 1);
    EXPECT_GT(::SendMessageW(dialog.ItemM(1), LB_GETSEL, 1, 0), 0);
    EXPECT_EQ(::SendMessageW(dialog.ItemM(1), LB_GETSELCOUNT, 0, 0), 1);
    TestDialogCL single(listBox(1));
    EXPECT_EQ(single.SetSelM(1), 1); // Found, although a single selection refuses.
    EXPECT_EQ(::SendMessageW(single.ItemM(1), LB_GETCURSEL, 0, 0), LB_ERR);
}
