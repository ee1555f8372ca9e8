#include "support/test_dialog.h"
#include <gtest/gtest.h>

// Controls are found by id: the first in member order of the kinds, then in order of the file, that is alive.

namespace {

// Labels 11 and 12, a standard button 12 and a group box 13.
const char* Controls = "[标题]\n2\n0\n1 11 0 0 50 20 1\na\n0 -1 0 0\n2 12 0 20 50 20 1\nb\n0 -1 0 0\n"
                       "[标准按钮]\n1\n0\n3 12 0 40 50 20\nc\n0\n"
                       "[成组控件]\n1\n0\n4 13 0 60 50 20\nd\n";

class SearchDialogCL : public TestDialogCL
{
public:
    SearchDialogCL()
        : TestDialogCL(HeaderSections + std::string(Controls))
    {
    }
    // "kind:text" of what the id finds, "" for none.
    std::string FoundM(int id)
    {
        int kind = 0;
        CWnd* const found = GetContrlPtrM(id, &kind);
        return found == nullptr ? "" : std::to_string(kind) + ":" + textOf(found->m_hWnd);
    }
    template <class ControlTP> ControlTP& ControlM(int id)
    {
        int kind = 0;
        return static_cast<ControlTP&>(*GetContrlPtrM(id, &kind));
    }
};

} // namespace

TEST(HostSearch, FindsAControlByTheIdThatItWasGivenLast)
{
    SearchDialogCL dialog;
    dialog.ControlM<DuLabelCL>(11).SetFunctionIDM(30);
    EXPECT_EQ(dialog.FoundM(11), "");
    EXPECT_EQ(dialog.FoundM(30), "3:a");
}

TEST(HostSearch, AControlGivenTheIdOfALaterOneIsFoundBeforeIt)
{
    SearchDialogCL dialog;
    EXPECT_EQ(dialog.FoundM(13), "17:d");
    dialog.ControlM<DuLabelCL>(11).SetBaseInfoM(1, 0, 13);
    EXPECT_EQ(dialog.FoundM(13), "3:a");
}

TEST(HostSearch, ADeletedControlLeavesItsIdToTheNext)
{
    SearchDialogCL dialog;
    EXPECT_EQ(dialog.FoundM(12), "3:b");
    dialog.ControlM<DuLabelCL>(12).DelItemM();
    EXPECT_EQ(dialog.FoundM(12), "13:c");
    dialog.ControlM<DuStandardButtonCL>(12).DelItemM();
    EXPECT_EQ(dialog.FoundM(12), "");
}

TEST(HostSearch, AnotherBuildIsSearchedAnew)
{
    SearchDialogCL dialog;
    EXPECT_EQ(dialog.FoundM(11), "3:a");
    dialog.DestroyM();
    EXPECT_EQ(dialog.FoundM(11), "");
    dialog.InitDlgM(&dialog, 1);
    EXPECT_EQ(dialog.FoundM(11), "3:a");
    EXPECT_EQ(dialog.FoundM(13), "17:d");
}

TEST(HostSearch, ACopyOfAControlMayOutliveItsHost)
{
    DuLabelCL copy;
    {
        SearchDialogCL dialog;
        const DuLabelCL own(dialog.ControlM<DuLabelCL>(11));
        copy = own;
        EXPECT_EQ(dialog.FoundM(11), "3:a");
    }
    copy.SetFunctionIDM(5);
    EXPECT_EQ(copy.GetFunctionIDM(), 5);
}
