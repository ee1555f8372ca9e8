// An edit field holds UTF-16; all that its object tells and is told of positions and lengths counts GBK
// bytes.
#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <gtest/gtest.h>
#include <string>

using namespace testing_support;

namespace {

class Edit : public testing::Test
{
protected:
    void makeM(DWORD style = 0) { ASSERT_TRUE(edit.Create(WS_VISIBLE | style, Place, &parent, 1)); }
    std::string textM() const
    {
        CString text;
        edit.GetWindowText(text);
        return std::string(text);
    }
    std::pair<int, int> selectionM() const
    {
        int first = -2;
        int end = -2;
        edit.GetSel(first, end);
        return { first, end };
    }
    std::pair<int, int> unitsM() const
    {
        DWORD first = 0;
        DWORD end = 0;
        edit.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
        return { first, end };
    }

    ParentWindowCL parent;
    CEdit edit;
};

typedef std::pair<int, int> PairTP;

const char Lines[] = "a\xD6\xD0"
                     "b\r\n\xCE\xC4"
                     "c"; // a中b, 文c

} // namespace

TEST_F(Edit, SelectionCountsBytes)
{
    makeM();
    edit.SetWindowText("a\xD6\xD0"
                       "b\xCE\xC4");
    edit.SetSel(1, 4);
    EXPECT_EQ(unitsM(), PairTP(1, 3));
    EXPECT_EQ(selectionM(), PairTP(1, 4));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 4)));
    edit.SetSel(0, -1);
    EXPECT_EQ(selectionM(), PairTP(0, 6));
    edit.SetSel(99, 99);
    EXPECT_EQ(selectionM(), PairTP(6, 6));
    edit.SetSel(static_cast<DWORD>(MAKELONG(3, 6)));
    EXPECT_EQ(unitsM(), PairTP(2, 4));
}

TEST_F(Edit, PositionWithinACharacterIsItsBeginning)
{
    makeM();
    edit.SetWindowText("a\xD6\xD0"
                       "b\xCE\xC4");
    edit.SetSel(2, 5);
    EXPECT_EQ(selectionM(), PairTP(1, 4));
    edit.SetSel(2, 2);
    EXPECT_EQ(selectionM(), PairTP(1, 1));
}

TEST_F(Edit, WhatGbkCannotSayCountsAsItReads)
{
    makeM();
    const wchar_t wide[] = L"\xD83D\xDE00\x0E01\xE4z";
    ::SetWindowTextW(edit, wide);
    const std::string read = textM();
    edit.SetSel(static_cast<int>(read.size()) - 1, -1);
    EXPECT_EQ(unitsM(), PairTP(4, 5));
    edit.SetSel(0, -1);
    EXPECT_EQ(selectionM(), PairTP(0, static_cast<int>(read.size())));
}

TEST_F(Edit, LinesCountBytes)
{
    makeM(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    edit.SetWindowText(Lines);
    EXPECT_EQ(edit.GetLineCount(), 2);
    EXPECT_EQ(edit.LineIndex(0), 0);
    EXPECT_EQ(edit.LineIndex(1), 6);
    EXPECT_EQ(edit.LineIndex(2), -1);
    EXPECT_EQ(edit.LineLength(0), 4);
    EXPECT_EQ(edit.LineLength(6), 3);
    EXPECT_EQ(edit.LineLength(8), 3);
    EXPECT_EQ(edit.LineFromChar(5), 0);
    EXPECT_EQ(edit.LineFromChar(6), 1);
    EXPECT_EQ(edit.LineFromChar(7), 1);
    edit.SetSel(3, 8);              // From before b to before c.
    EXPECT_EQ(edit.LineIndex(), 6); // Of the caret.
    EXPECT_EQ(edit.LineFromChar(), 0);
    EXPECT_EQ(edit.LineLength(), 4); // a中 and c
}

TEST_F(Edit, LineIsCopiedIntoAsManyBytesAsThereAre)
{
    makeM(ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    edit.SetWindowText(Lines);
    char line[10] = "xxxxxxxxx";
    EXPECT_EQ(edit.GetLine(1, line, 3), 3); // No room for a zero: none.
    EXPECT_EQ(std::string(line, 4),
        "\xCE\xC4"
        "cx");
    EXPECT_EQ(edit.GetLine(1, line, 1), 0); // Never half a character.
    EXPECT_EQ(edit.GetLine(0, line, 9), 4);
    EXPECT_STREQ(line,
        "a\xD6\xD0"
        "b");
    EXPECT_EQ(edit.GetLine(2, line, 9), 0);
}

TEST_F(Edit, LimitCountsTheBytesThatAreTyped)
{
    makeM();
    edit.SetLimitText(5);
    EXPECT_EQ(edit.GetLimitText(), 5u);
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(edit));
    TypeM(L"\u4E2D\u6587\u4E2D");
    EXPECT_EQ(textM(), ChineseText);
    TypeM(L"ab");
    EXPECT_EQ(textM(), std::string(ChineseText) + "a");
    edit.SetSel(0, 2); // What is selected makes room.
    TypeM(L"xyz");
    EXPECT_EQ(textM(),
        "xy\xCE\xC4"
        "a");
    edit.SetWindowText("longer than that"); // The program may.
    EXPECT_EQ(textM(), "longer than that");
    edit.LimitText(); // What the platform allows.
    EXPECT_GT(edit.GetLimitText(), 1000u);
    KeyM(VK_END);
    TypeM(L"\u4E2D");
    EXPECT_EQ(textM(), "longer than that\xD6\xD0");
}

TEST_F(Edit, LimitHoldsForWhatIsPut)
{
    makeM();
    edit.SetLimitText(5);
    edit.ReplaceSel("\xD6\xD0\xCE\xC4\xD6\xD0");
    EXPECT_EQ(textM(), ChineseText);
    edit.SetSel(0, -1);
    edit.ReplaceSel("abcdefg");
    EXPECT_EQ(textM(), "abcde");
}

TEST_F(Edit, LimitOfATemporaryObjectHoldsToo)
{
    const HWND plain = ::CreateWindowExW(
        0, L"Edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent, nullptr, nullptr, nullptr);
    CEdit* temporary = static_cast<CEdit*>(CWnd::FromHandle(plain));
    temporary->SetLimitText(3);
    EXPECT_EQ(temporary->GetLimitText(), 3u);
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(plain));
    TypeM(L"\u4E2D\u6587b");
    CString text;
    temporary->GetWindowText(text);
    EXPECT_EQ(text,
        "\xD6\xD0"
        "b");
    CEdit taken; // The object may come after the limit.
    ASSERT_TRUE(taken.SubclassWindow(plain));
    taken.SetSel(2, 3);
    TypeM(L"\u6587c");
    taken.GetWindowText(text);
    EXPECT_EQ(text,
        "\xD6\xD0"
        "c");
    ::SendMessageW(plain, EM_SETLIMITTEXT, 4, 0);
    EXPECT_EQ(taken.GetLimitText(), 4u); // By the window's own message: characters.
    TypeM(L"\u6587\u6587");
    EXPECT_EQ(taken.GetWindowTextLength(), 7);
}

TEST_F(Edit, PasteIsCutToTheLimit)
{
    makeM();
    edit.SetWindowText("\xD6\xD0\xCE\xC4\xD6\xD0");
    edit.SetSel(0, -1);
    edit.Copy();
    edit.SetWindowText("z");
    edit.SetLimitText(4);
    edit.SetSel(1, 1);
    edit.Paste();
    EXPECT_EQ(textM(), "z\xD6\xD0");
    edit.SetLimitText(1);
    edit.SetWindowText("");
    edit.Paste();
    EXPECT_EQ(textM(), "");
}

TEST_F(Edit, UndoesAndForgets)
{
    makeM();
    EXPECT_FALSE(edit.CanUndo());
    edit.ReplaceSel(L"\u4E2D", TRUE);
    EXPECT_EQ(textM(), "\xD6\xD0");
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(textM(), "");
    edit.EmptyUndoBuffer();
    EXPECT_FALSE(edit.CanUndo());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
    edit.SetModify();
    EXPECT_TRUE(edit.GetModify());
}

TEST_F(Edit, ClipboardTakesTheSelection)
{
    makeM();
    edit.SetWindowText("a\xD6\xD0z");
    edit.SetSel(1, 3);
    edit.Copy();
    edit.Clear();
    EXPECT_EQ(textM(), "az");
    edit.SetSel(0, 1);
    edit.Cut();
    edit.Paste();
    edit.SetSel(0, 0);
    EXPECT_EQ(textM(), "az");
}

TEST_F(Edit, KnowsItsPlaces)
{
    makeM(ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL);
    edit.SetWindowText(Lines);
    const CPoint last = edit.PosFromChar(8); // c
    EXPECT_GT(last.y, 0);
    EXPECT_EQ(edit.CharFromPos(CPoint(last.x + 1, last.y + 1)), MAKELONG(8, 1));
    EXPECT_EQ(edit.PosFromChar(7).x, edit.PosFromChar(6).x); // Within 文.
    const CRect wanted(20, 10, 120, 90);
    CRect seen;
    edit.SetRect(&wanted);
    edit.GetRect(&seen);
    const CRect first = seen; // Within what is asked for, as the border takes some.
    EXPECT_GE(first.left, 20);
    EXPECT_LE(first.right, 120);
    EXPECT_GT(first.right, 100);
    edit.SetRectNP(CRect(15, 10, 110, 90));
    edit.GetRect(&seen);
    EXPECT_EQ(seen.left, first.left - 5);
    edit.SetMargins(7, 9);
    EXPECT_EQ(edit.GetMargins(), static_cast<DWORD>(MAKELONG(7, 9)));
    int stops[] = { 10, 30 };
    EXPECT_TRUE(edit.SetTabStops(2, stops));
    EXPECT_TRUE(edit.SetTabStops(16));
    edit.SetTabStops();
    EXPECT_TRUE(edit.FmtLines(TRUE));
    EXPECT_FALSE(edit.FmtLines(FALSE));
    std::string many;
    for (int i = 0; i < 60; ++i) {
        many += "x\r\n";
    }
    edit.SetWindowText(many.c_str());
    edit.LineScroll(12);
    EXPECT_EQ(edit.GetFirstVisibleLine(), 12);
}

TEST_F(Edit, HidesItsTextAndRefusesKeys)
{
    makeM();
    edit.SetPasswordChar('*');
    EXPECT_EQ(edit.GetPasswordChar(), '*');
    edit.SetPasswordChar('\0');
    EXPECT_EQ(edit.GetPasswordChar(), 0);
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_NE(edit.GetStyle() & ES_READONLY, 0u);
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(edit));
    TypeM(L"a");
    EXPECT_EQ(textM(), "");
    // The text for an empty field: where the platform's edit field has it, it is given back.
    if (edit.SetCueBanner(ChineseText)) {
        EXPECT_EQ(edit.GetCueBanner(), ChineseText);
    } else {
        EXPECT_EQ(edit.GetCueBanner(), "");
    }
}
