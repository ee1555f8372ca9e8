#include "toolkit/dialog_template.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

const UINT Registered = ::RegisterWindowMessageW(L"toolkit test message");

class MappedCL : public OwnerCL
{
public:
    std::vector<std::string> seen;
    BOOL isKept = TRUE;

protected:
    afx_msg BOOL OnCommandEx(UINT id) { return noteM("command ex", id); }
    afx_msg BOOL OnCommandRange(UINT id) { return noteM("range", id); }
    afx_msg BOOL OnNotifyEx(UINT id, NMHDR* header, LRESULT* result)
    {
        *result = 5;
        return noteM("notify ex", id + header->code);
    }
    afx_msg void OnVoid() { noteM("void", 0); }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    DECLARE_MESSAGE_MAP()

private:
    BOOL noteM(const char* what, UINT id)
    {
        seen.push_back(what + (id == 0 ? std::string() : " " + std::to_string(id)));
        return isKept;
    }
};

BEGIN_MESSAGE_MAP(MappedCL, OwnerCL)
ON_COMMAND_EX(7, &MappedCL::OnCommandEx)
ON_COMMAND_EX_RANGE(20, 29, &MappedCL::OnCommandRange)
ON_NOTIFY_EX(100, 8, &MappedCL::OnNotifyEx)
ON_MESSAGE_VOID(WM_USER + 1, &MappedCL::OnVoid)
ON_REGISTERED_MESSAGE(Registered, &MappedCL::OnRegistered)
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, CommandHandlerThatKnowsItsIdMayLetTheCommandGoOn)
{
    MappedCL wnd;
    EXPECT_TRUE(wnd.OnCmdMsg(7, 0, nullptr, nullptr));
    EXPECT_TRUE(wnd.OnCmdMsg(29, 0, nullptr, nullptr));
    EXPECT_FALSE(wnd.OnCmdMsg(30, 0, nullptr, nullptr));
    wnd.isKept = FALSE;
    EXPECT_FALSE(wnd.OnCmdMsg(7, 0, nullptr, nullptr));
    EXPECT_EQ(wnd.seen, (std::vector<std::string> { "command ex 7", "range 29", "command ex 7" }));
}

TEST(MessageMap, NotificationHandlerThatKnowsItsIdMayLetItGoOn)
{
    MappedCL wnd;
    NMHDR header = { nullptr, 8, 100 };
    EXPECT_EQ(wnd.SendMessage(WM_NOTIFY, 8, reinterpret_cast<LPARAM>(&header)), 5);
    EXPECT_EQ(wnd.seen, (std::vector<std::string> { "notify ex 108" }));
}

TEST(MessageMap, MessagesWithoutArgumentsAndRegisteredOnes)
{
    MappedCL wnd;
    EXPECT_EQ(wnd.SendMessage(WM_USER + 1), 0);
    EXPECT_EQ(wnd.seen, (std::vector<std::string> { "void" }));
    EXPECT_EQ(wnd.SendMessage(Registered, 41), 42);
}
