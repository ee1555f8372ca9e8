#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

const RECT Place = { 10, 10, 110, 60 };

// Notes what it is asked for, and asks the base class or not.
class DrawingParentCL : public OwnerCL
{
public:
    std::vector<std::string> seen;
    bool asksBase = false;

protected:
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item)
    {
        seen.push_back("parent draws " + std::to_string(id));
        if (asksBase) {
            OwnerCL::OnDrawItem(id, item);
        }
    }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item)
    {
        seen.push_back("parent measures " + std::to_string(id));
        item->itemHeight = 31;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DrawingParentCL, OwnerCL)
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

// Colours its controls, or leaves that to them by asking the base.
class ColouringParentCL : public OwnerCL
{
public:
    std::vector<std::string> seen;
    HBRUSH brush = nullptr;

protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* child, UINT kind)
    {
        seen.push_back("parent colours " + std::to_string(kind));
        const HBRUSH childs = OwnerCL::OnCtlColor(dc, child, kind);
        return brush != nullptr ? brush : childs;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParentCL, OwnerCL)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class ColouredChildCL : public CStatic
{
public:
    std::vector<std::string>* seen = nullptr;
    HBRUSH brush = nullptr;

protected:
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind)
    {
        if (seen != nullptr && dc->m_hDC != nullptr) {
            seen->push_back("child colours " + std::to_string(kind));
        }
        return brush;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouredChildCL, CStatic)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

// By the number of the message itself.
class NumberParentCL : public OwnerCL
{
public:
    LRESULT answer = 0;

protected:
    afx_msg LRESULT OnStaticColour(WPARAM, LPARAM) { return answer; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NumberParentCL, OwnerCL)
ON_MESSAGE(WM_CTLCOLORSTATIC, &NumberParentCL::OnStaticColour)
END_MESSAGE_MAP()

LRESULT askedColourM(const CWnd& parent, CWnd* child)
{
    CClientDC dc(child);
    return parent.SendMessage(
        WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(child->m_hWnd));
}

LRESULT answerM(const CBrush& brush)
{
    return reinterpret_cast<LRESULT>(brush.m_hObject);
}

// Asks its parent by message what it might answer itself.
class AskingListCL : public CListBox
{
public:
    std::vector<std::string> seen;
    int CompareItem(LPCOMPAREITEMSTRUCT) override
    {
        seen.push_back("child compares");
        return 1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { seen.push_back("child deletes"); }

protected:
    afx_msg void HScroll(UINT, UINT) { seen.push_back("child scrolls"); }
    afx_msg int CharToItem(UINT, UINT)
    {
        seen.push_back("child takes a character");
        return -2;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AskingListCL, CListBox)
ON_WM_HSCROLL_REFLECT()
ON_WM_CHARTOITEM_REFLECT()
END_MESSAGE_MAP()

class AnsweringParentCL : public OwnerCL
{
public:
    std::vector<std::string> seen;
    bool asksBase = false;

protected:
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT items)
    {
        seen.push_back("compare");
        return asksBase ? OwnerCL::OnCompareItem(id, items) : 5;
    }
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item)
    {
        seen.push_back("delete");
        if (asksBase) {
            OwnerCL::OnDeleteItem(id, item);
        }
    }
    afx_msg void OnHScroll(UINT code, UINT at, CScrollBar* bar)
    {
        seen.push_back("scroll");
        if (asksBase) {
            OwnerCL::OnHScroll(code, at, bar);
        }
    }
    afx_msg int OnCharToItem(UINT character, CListBox* list, UINT line)
    {
        seen.push_back("character");
        return asksBase ? OwnerCL::OnCharToItem(character, list, line) : -1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AnsweringParentCL, OwnerCL)
ON_WM_COMPAREITEM()
ON_WM_DELETEITEM()
ON_WM_HSCROLL()
ON_WM_CHARTOITEM()
END_MESSAGE_MAP()

std::vector<LRESULT> askAllM(const CWnd& parent, HWND child)
{
    COMPAREITEMSTRUCT items = {};
    items.hwndItem = child;
    DELETEITEMSTRUCT item = {};
    item.hwndItem = child;
    return { parent.SendMessage(WM_COMPAREITEM, 9, reinterpret_cast<LPARAM>(&items)),
        parent.SendMessage(WM_DELETEITEM, 9, reinterpret_cast<LPARAM>(&item)),
        parent.SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(child)),
        parent.SendMessage(WM_CHARTOITEM, 'a', reinterpret_cast<LPARAM>(child)) };
}

class DrawnButtonCL : public CButton
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

} // namespace

TEST(Reflection, ParentDrawsAPlainButton)
{
    DrawingParentCL parent;
    CButton button;
    ASSERT_TRUE(button.Create("b", WS_VISIBLE | BS_OWNERDRAW, Place, &parent, 4));
    parent.seen.clear();
    button.RedrawWindow();
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "parent draws 4" }));
}

TEST(Reflection, ParentThatAsksItsBaseLeavesTheDrawingToTheChild)
{
    DrawingParentCL parent;
    DrawnButtonCL button;
    ASSERT_TRUE(button.Create("b", WS_VISIBLE | BS_OWNERDRAW, Place, &parent, 4));
    button.RedrawWindow();
    EXPECT_EQ(button.drawn, 0);
    parent.asksBase = true;
    button.RedrawWindow();
    EXPECT_EQ(button.drawn, 1);
}

TEST(Reflection, ParentWithoutAHandlerLeavesTheDrawingToTheChild)
{
    OwnerCL parent;
    DrawnButtonCL button;
    ASSERT_TRUE(button.Create("b", WS_VISIBLE | BS_OWNERDRAW, Place, &parent, 4));
    button.drawn = 0;
    button.RedrawWindow();
    EXPECT_EQ(button.drawn, 1);
}

TEST(Reflection, ParentMeasuresThePlainListBoxThatIsBeingMade)
{
    DrawingParentCL parent;
    CListBox list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED, Place, &parent, 9));
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "parent measures 9" }));
    EXPECT_EQ(list.GetItemHeight(0), 31);
}

TEST(Reflection, ParentDrawsPlainListBoxesComboBoxesAndStatics)
{
    DrawingParentCL parent;
    CListBox list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, Place, &parent, 9));
    list.AddString("x");
    CComboBox combo;
    ASSERT_TRUE(combo.Create(
        WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, Place, &parent, 10));
    CStatic label;
    ASSERT_TRUE(label.Create("x", WS_VISIBLE | SS_OWNERDRAW, Place, &parent, 11));
    for (CWnd* child :
        { static_cast<CWnd*>(&list), static_cast<CWnd*>(&combo), static_cast<CWnd*>(&label) }) {
        parent.seen.clear();
        child->RedrawWindow();
        const std::string wanted = "parent draws " + std::to_string(child->GetDlgCtrlID());
        ASSERT_FALSE(parent.seen.empty()) << wanted;
        EXPECT_EQ(parent.seen[0], wanted);
    }
}

TEST(Reflection, ParentColoursBeforeTheChild)
{
    ColouringParentCL parent;
    ColouredChildCL child;
    ASSERT_TRUE(child.Create("text", 0, Place, &parent, 5));
    const CBrush own(RGB(1, 2, 3));
    const CBrush parents(RGB(4, 5, 6));
    child.seen = &parent.seen;
    child.brush = own;
    EXPECT_EQ(askedColourM(parent, &child), answerM(own)) << "the parent's base asks the child";
    EXPECT_EQ(parent.seen, (std::vector<std::string> { "parent colours 6", "child colours 6" }));
    parent.brush = parents;
    EXPECT_EQ(askedColourM(parent, &child), answerM(parents));
}

TEST(Reflection, ChildOfAParentWithoutAHandlerColoursItself)
{
    OwnerCL parent;
    ColouredChildCL child;
    ASSERT_TRUE(child.Create("text", 0, Place, &parent, 5));
    const CBrush own(RGB(1, 2, 3));
    child.brush = own;
    EXPECT_EQ(askedColourM(parent, &child), answerM(own));
    child.brush = nullptr;
    EXPECT_NE(askedColourM(parent, &child), 0) << "the system's own";
}

TEST(Reflection, ParentMayTakeOneKindOfColourByItsNumber)
{
    NumberParentCL parent;
    ColouredChildCL child;
    ASSERT_TRUE(child.Create("text", 0, Place, &parent, 5));
    const CBrush own(RGB(1, 2, 3));
    const CBrush parents(RGB(4, 5, 6));
    child.brush = own;
    parent.answer = answerM(parents);
    EXPECT_EQ(askedColourM(parent, &child), answerM(parents));
}

TEST(Reflection, ParentAnswersWhatAListAsksBeforeTheList)
{
    AnsweringParentCL parent;
    AskingListCL list;
    ASSERT_TRUE(list.Create(WS_VISIBLE, Place, &parent, 9));
    const std::vector<std::string> askedParent = { "compare", "delete", "scroll", "character" };
    EXPECT_EQ(askAllM(parent, list), (std::vector<LRESULT> { 5, 1, 0, -1 }));
    EXPECT_EQ(parent.seen, askedParent);
    EXPECT_TRUE(list.seen.empty());
    parent.asksBase = true;
    EXPECT_EQ(askAllM(parent, list), (std::vector<LRESULT> { 1, 1, 0, -2 }));
    EXPECT_EQ(list.seen,
        (std::vector<std::string> {
            "child compares", "child deletes", "child scrolls", "child takes a character" }));
}

TEST(Reflection, ListOfAParentWithoutHandlersAnswersItself)
{
    OwnerCL parent;
    AskingListCL list;
    ASSERT_TRUE(list.Create(WS_VISIBLE, Place, &parent, 9));
    EXPECT_EQ(askAllM(parent, list), (std::vector<LRESULT> { 1, 1, 0, -2 }));
    EXPECT_EQ(list.seen.size(), 4U);
}
