// The application deletes the host from inside any message that its window gets while it calls the host:
// nothing of the host is touched any more.
#include "dialog/every_kind_sections.h"
#include "soak/guarded_object.h"
#include "soak/soak_numbers.h"
#include "soak/told_step.h"
#include "support/all.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <climits>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

using namespace testing_support;

namespace {

// Deletes what it is told to at the message of that number since it was armed.
class TriggerCL
{
public:
    void ArmM(int number, std::function<void()> act)
    {
        left_ = number;
        seen_ = 0;
        act_ = std::move(act);
        isArmed_ = true;
    }
    void ArmAtM(UINT message, std::function<void()> act) // At the first of that message.
    {
        ArmM(0, std::move(act));
        wanted_ = message;
    }
    int DisarmM() // How many messages came.
    {
        isArmed_ = false;
        return seen_;
    }
    // Those that a window is asked to help paint with, and those of tables and trees, don't count: the window
    // system itself does not bear it when a control goes that sends one.
    void SeeM(UINT message)
    {
        const bool tells = message == WM_COMMAND || message == WM_PARENTNOTIFY || message == WM_SETFOCUS
            || message == WM_KILLFOCUS || message >= WM_USER;
        if (isArmed_ && tells) {
            ++seen_;
            if (--left_ == 0 || (wanted_ == message && act_)) {
                at_ = message;
                std::exchange(act_, nullptr)();
            }
        }
    }
    UINT AtM() const { return at_; } // The message that it acted at.

private:
    bool isArmed_ { false };
    int left_ { 0 };
    int seen_ { 0 };
    UINT at_ { 0 };
    UINT wanted_ { 0 };
    std::function<void()> act_;
};

// The application's window.
class OwnWindowCL : public CWnd
{
public:
    OwnWindowCL() { CreateEx(0, "Static", "own", WS_POPUP | WS_VISIBLE, 50, 40, 480, 300, nullptr, nullptr); }
    TriggerCL trigger;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        trigger.SeeM(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

// A host whose reports come from the window that has its controls.
class HostCL : public DuBasicDialogCL
{
public:
    void RelateM() { initItemRelationM(); }
};

struct OperationCL
{
    const char* name;
    std::function<void(HostCL& host)> run;
    bool isBad { false }; // With a bad value in the field that has the focus.
};

constexpr int FocusedId = 51; // A field with an integer.

std::vector<OperationCL> operations()
{
    std::vector<OperationCL> list {
        { "CheckValueLegalM", [](HostCL& host) { host.CheckValueLegalM(); }, true },
        { "CheckValueLegalM, a good value", [](HostCL& host) { host.CheckValueLegalM(); } },
        { "FocusM", [](HostCL& host) { host.ValuesM().FocusM(14); }, true },
        { "FocusM, a good value", [](HostCL& host) { host.ValuesM().FocusM(15); } },
        { "ShowContrlM", [](HostCL& host) { host.ShowContrlM(FocusedId, 0); } },
        { "ShowAllCtrlM", [](HostCL& host) { host.ShowAllCtrlM(0); } },
        { "EnableAllCtrlM", [](HostCL& host) { host.EnableAllCtrlM(0); } },
        { "EnableSingleEditM", [](HostCL& host) { host.EnableSingleEditM(-1, 0); } },
        { "EnableM", [](HostCL& host) { host.ValuesM().EnableM(FocusedId, false); } },
        { "ShowM of a spin edit", [](HostCL& host) { host.ValuesM().ShowM(15, false); } },
        { "SetSingleEditValM", [](HostCL& host) { host.SetSingleEditValM(FocusedId, 7); } },
        { "SetSingleEditValM, a text", [](HostCL& host) { host.SetSingleEditValM(13, "other"); } },
        { "SetAllM",
            [](HostCL& host) {
                host.ValuesM().SetAllM({ { 51, "3" }, { 13, "x" }, { 15, "4" }, { 16, "many" }, { 18, "0" },
                    { 20, "0" }, { 21, "1" }, { 22, "1" }, { 17, "0" } });
            } },
        { "AddItemM", [](HostCL& host) { host.AddItemM(17, 1, "line"); } },
        { "ClearLinesM", [](HostCL& host) { host.ValuesM().ClearLinesM(20); } },
        { "SetCaptionM", [](HostCL& host) { host.ValuesM().SetCaptionM(22, "caption"); } },
        { "SetTextColourM", [](HostCL& host) { host.SetTextColourM(20, RGB(1, 2, 3)); } },
        { "SetAccessibleNameM", [](HostCL& host) { host.SetAccessibleNameM(31, "name"); } },
        { "SetPictureKeyboardM", [](HostCL& host) { host.SetPictureKeyboardM(true); } },
        { "SetMessageOwnerM", [](HostCL& host) { host.SetMessageOwnerM(true); } },
        { "SetSelectRefusedM", [](HostCL& host) { host.SetSelectRefusedM(true); } },
        { "SetPainterM", [](HostCL& host) { host.SetPainterM(38, [](CDC&, CSize) {}); } },
        { "ShowFrameM", [](HostCL& host) { host.ShowFrameM(36, 0); } },
        { "ChangeNormalAnimateM", [](HostCL& host) { host.ChangeNormalAnimateM(36, 0); } },
        { "ShowObjectM", [](HostCL& host) { host.ShowObjectM(RadioBoxCode, 0, false); } },
        { "initItemRelationM", [](HostCL& host) { host.RelateM(); } },
        { "ResizeM", [](HostCL& host) { host.ResizeM(700, 500); } },
        { "SetScaleM", [](HostCL& host) { host.SetScaleM(150); } },
    };
    static const std::pair<int, const char*> values[] = { { 51, "9" }, { 13, "x" }, { 15, "5" }, { 16, "x" },
        { 17, "0" }, { 18, "1=text" }, { 19, "-1=typed" }, { 20, "0" }, { 21, "1" }, { 22, "1" },
        { 24, "text" }, { 33, "9" }, { 34, "30 3" }, { 35, "0" } };
    for (const auto& [id, value] : values) {
        list.push_back(
            { "RestoreM", [id = id, saved = value](HostCL& host) { host.ValuesM().RestoreM(id, saved); } });
    }
    return list;
}

// Fields, of which one takes integers, and a list box.
std::string fewSections()
{
    return HeaderSections
        + std::string("[单行文本]\n3\n0\n1 13 10 10 90 22 3 0 20 0 0 2\ntext\n0 1 255 255 255\n"
                      "2 14 10 40 90 22 3 0 20 0 0 2\ntext\n0 1 255 255 255\n"
                      "3 51 10 70 90 22 1 0 100 0 0 1 5 0 1 255 255 255\n"
                      "[带spin的文本]\n1\n0\n4 15 10 100 90 24 1 0 100 0 1 2 88 12 1015 16\n"
                      "[文本列表框]\n1\n0\n5 17 110 10 90 40 14 1 1 255 255 255 0\n");
}

std::string sections(const std::string& picture)
{
    std::string all = sectionsOfEveryKind(picture, "text");
    const std::string begin = "[单行文本]\n2\n0\n";
    return all.replace(all.find(begin), begin.size(),
               "[单行文本]\n3\n0\n3 51 10 240 90 22 1 0 100 0 0 1 5 0 1 255 255 255\n")
        + "[随窗口变化]\n4\n0\n51 0 0 1 0\n16 0 0 1 1\n24 1 0 1 1\n15 0 0 1 0\n";
}

// A host that has built into a window of the application, the focus in its field.
struct FocusedHostCL
{
    FocusedHostCL(const char* file, bool isBad)
    {
        host->SetConfigFileM(file);
        host->InitDlgM(&window, 0);
        const HWND field = ::GetDlgItem(window.m_hWnd, FocusedId);
        ::SetFocus(field);
        EXPECT_EQ(::GetFocus(), field);
        if (isBad) {
            ::SetWindowTextW(field, L"999");
        }
    }
    FocusedHostCL(const FocusedHostCL&) = delete;
    FocusedHostCL& operator=(const FocusedHostCL&) = delete;
    ~FocusedHostCL() { DeleteM(); }
    void DeleteM() { delete std::exchange(host, nullptr); }

    OwnWindowCL window;
    GuardedCL<HostCL>* host = new GuardedCL<HostCL>;
};

} // namespace

TEST(DeletedHost, NothingOfItIsTouchedAfterTheReportOfABadValue)
{
    const DescriptionFileCL file(fewSections());
    const MessageBoxWatcher watcher;
    const GuardedPagesCL pages;
    FocusedHostCL built(file.path(), true);
    built.window.trigger.ArmAtM(ValueReportMsg, [&built] { built.DeleteM(); });
    EXPECT_EQ(built.host->CheckValueLegalM(), 0);
    EXPECT_EQ(built.host, nullptr);
    EXPECT_TRUE(::IsWindow(built.window.m_hWnd));
    EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
}

TEST(DeletedHost, NothingOfItIsTouchedInAWindowOfTheApplication)
{
    const int most = soakNumber("PANELKIT_SOAK_DELETIONS", 0);
    const bool isShort
        = most == 0; // Few controls, the operations that most reach the application, one message.
    const SmallPictureCL picture(0x0000FF, 20, 20);
    const DescriptionFileCL file(isShort ? fewSections() : sections(picture.path()));
    const MessageBoxWatcher watcher;
    const ToldStepCL telling;
    int left = isShort ? 13 : INT_MAX;
    for (const OperationCL& operation : operations()) {
        // The message at which the host goes; 0: it stays, they are counted.
        const auto run = [&](int number) {
            ToldStepCL::NoteM(0, number, "", operation.name);
            const GuardedPagesCL pages;
            FocusedHostCL built(file.path(), operation.isBad);
            built.window.trigger.ArmM(number, [&built] { built.DeleteM(); });
            operation.run(*built.host);
            const int seen = built.window.trigger.DisarmM();
            const bool isGone = built.host == nullptr;
            EXPECT_EQ(isGone, number > 0) << operation.name;
            EXPECT_EQ(GuardedPagesCL::TouchesM(), "") << operation.name << ", deleted at message "
                                                      << built.window.trigger.AtM() << ", " << number << ".";
            return seen;
        };
        if (left-- <= 0) {
            break;
        }
        const int count = run(0);
        const int step = isShort ? std::max(1, count) : std::max(1, count / most);
        for (int number = 1; number <= count && !HasFatalFailure(); number += step) {
            run(number);
        }
    }
}
