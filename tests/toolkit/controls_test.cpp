#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <memory>

namespace {

const char ChineseText[] = "\xD6\xD0\xCE\xC4"; // 中文
const RECT Place = { 10, 10, 210, 160 };

// Refuses every second step of its arrows and notes what it is told.
class SpinCL : public CSpinButtonCtrl
{
public:
    int steps = 0;
    afx_msg void OnDelta(NMHDR* header, LRESULT* result)
    {
        EXPECT_EQ(header->hwndFrom, m_hWnd);
        *result = ++steps % 2 == 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SpinCL, CSpinButtonCtrl)
ON_NOTIFY_REFLECT(UDN_DELTAPOS, &SpinCL::OnDelta)
END_MESSAGE_MAP()

class ParentCL : public CWnd
{
public:
    int notified = 0;
    ParentCL() { CreateEx(0, nullptr, "parent", WS_POPUP, 0, 0, 300, 300, nullptr, nullptr); }
    afx_msg void OnDelta(NMHDR*, LRESULT* result)
    {
        ++notified;
        *result = 5;
    }
    afx_msg LRESULT OnOwn(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) - lParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ParentCL, CWnd)
ON_NOTIFY(UDN_DELTAPOS, 3, &ParentCL::OnDelta)
ON_MESSAGE(WM_USER + 600, &ParentCL::OnOwn)
END_MESSAGE_MAP()

class MadeCL : public CWnd
{
    DECLARE_DYNCREATE(MadeCL)
};

IMPLEMENT_DYNCREATE(MadeCL, CWnd)

} // namespace

TEST(Controls, NotificationGoesToTheChildElseToTheParent)
{
    ParentCL parent;
    SpinCL spin;
    CSpinButtonCtrl plain;
    ASSERT_TRUE(spin.Create(WS_VISIBLE, Place, &parent, 3));
    ASSERT_TRUE(plain.Create(WS_VISIBLE, Place, &parent, 3));
    NMUPDOWN step = {};
    step.hdr = { spin, 3, static_cast<UINT>(UDN_DELTAPOS) };
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 0);
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 1);
    EXPECT_EQ(spin.steps, 2);
    EXPECT_EQ(parent.notified, 0);
    step.hdr.hwndFrom = plain;
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 5);
    EXPECT_EQ(parent.notified, 1);
}

TEST(Controls, OwnMessagesCarryAllOfTheirParameters)
{
    ParentCL parent;
    WPARAM big = static_cast<WPARAM>(1) << (sizeof(WPARAM) * 8 - 24); // Beyond 32 bits where there are more.
    EXPECT_EQ(parent.SendMessage(WM_USER + 600, big, 2), static_cast<LRESULT>(big) - 2);
}

TEST(Object, ClassKnowsItsBaseAndMakesObjects)
{
    std::unique_ptr<CObject> made(RUNTIME_CLASS(MadeCL)->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(made->IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "MadeCL");
    EXPECT_EQ(RUNTIME_CLASS(CWnd)->CreateObject(), nullptr);
}
