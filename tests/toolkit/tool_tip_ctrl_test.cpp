#include "parent_window.h"
#include "support/input.h"
#include "support/pump.h"
#include "support/window.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class AskedParentCL : public ParentWindowCL
{
public:
    int asked = 0;
    afx_msg BOOL OnText(UINT, NMHDR* header, LRESULT* result)
    {
        ++asked;
        ::lstrcpynW(reinterpret_cast<NMTTDISPINFOW*>(header)->szText, ChineseWide, 80);
        *result = 0;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AskedParentCL, ParentWindowCL)
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &AskedParentCL::OnText)
END_MESSAGE_MAP()

class ToolTipCtrl : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(button.Create("b", WS_VISIBLE, CRect(100, 100, 200, 130), &parent, 1));
        ASSERT_TRUE(tips.Create(&parent, TTS_ALWAYSTIP));
        tips.Activate(TRUE);
    }
    void TearDown() override { pumpFilter = {}; }
    std::string textM(CWnd* wnd, UINT_PTR id = 0) const
    {
        CString text;
        tips.GetText(text, wnd, id);
        return std::string(text);
    }

    AskedParentCL parent;
    CButton button;
    CToolTipCtrl tips;
};

} // namespace

TEST_F(ToolTipCtrl, KeepsItsTools)
{
    EXPECT_TRUE(tips.AddTool(&button, ChineseText));
    EXPECT_TRUE(tips.AddTool(&parent, L"\u6587", CRect(0, 0, 50, 50), 7));
    EXPECT_EQ(tips.GetToolCount(), 2);
    EXPECT_EQ(textM(&button), ChineseText);
    EXPECT_EQ(textM(&parent, 7), "\xCE\xC4");
    tips.UpdateTipText("other", &button);
    EXPECT_EQ(textM(&button), "other");
    tips.UpdateTipText(ChineseWide, &parent, 7);
    EXPECT_EQ(textM(&parent, 7), ChineseText);
    TOOLINFOW found = {};
    EXPECT_TRUE(tips.HitTest(&parent, CPoint(10, 10), &found));
    EXPECT_EQ(found.uId, 7u);
    tips.SetToolRect(&parent, 7, CRect(60, 60, 70, 70));
    EXPECT_FALSE(tips.HitTest(&parent, CPoint(10, 10), &found));
    EXPECT_TRUE(tips.GetToolInfo(&found, &parent, 7));
    EXPECT_EQ(found.rect.left, 60);
    tips.DelTool(&button);
    tips.DelTool(&parent, 7);
    EXPECT_EQ(tips.GetToolCount(), 0);
}

TEST_F(ToolTipCtrl, KeepsTimesAndColours)
{
    EXPECT_EQ(tips.SetMaxTipWidth(200), -1);
    EXPECT_EQ(tips.GetMaxTipWidth(), 200);
    tips.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(tips.GetDelayTime(TTDT_INITIAL), 123);
    tips.SetDelayTime(100u);
    EXPECT_EQ(tips.GetDelayTime(TTDT_AUTOPOP), 1000);
    tips.SetTipBkColor(0x112233);
    EXPECT_EQ(tips.GetTipBkColor(), 0x112233u);
    tips.SetTipTextColor(0x445566);
    EXPECT_EQ(tips.GetTipTextColor(), 0x445566u);
    const CRect margin(1, 2, 3, 4);
    CRect seen;
    tips.SetMargin(&margin);
    tips.GetMargin(&seen);
    EXPECT_EQ(seen, margin);
    EXPECT_TRUE(tips.SetTitle(1, ChineseText));
}

TEST_F(ToolTipCtrl, AppearsWhereThePointerRestsWithATextThatItAsksFor)
{
    EXPECT_TRUE(tips.AddTool(&button));
    tips.SetDelayTime(TTDT_INITIAL, 10);
    ASSERT_TRUE(ActivateM(parent));
    pumpFilter = [this](MSG* message) {
        tips.RelayEvent(message);
        return false;
    };
    MoveMouseToM(button, 20, 10);
    EXPECT_TRUE(PumpUntil([this] { return tips.IsWindowVisible() != FALSE; }));
    EXPECT_GT(parent.asked, 0);
    tips.Pop();
    EXPECT_FALSE(tips.IsWindowVisible());
}
