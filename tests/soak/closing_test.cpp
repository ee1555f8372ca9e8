// A dialog is closed, destroyed, deleted and built anew from inside the messages that its window gets while
// it is built, while the user works with each kind of control (the mouse held, a list dropped down, a message
// open) and while it goes.
#include "dialog/every_kind_sections.h"
#include "dialog/monitor_scale.h"
#include "soak/guarded_object.h"
#include "soak/soak_numbers.h"
#include "soak/told_step.h"
#include "support/all.h"
#include "support/faults.h"
#include "support/gone.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <functional>
#include <gtest/gtest.h>
#include <optional>

using namespace testing_support;

namespace {

enum Action
{
    Close,
    DestroyControls,
    DestroyItsWindow,
    Delete,
    Rebuild,
    ActionCount
};
constexpr const char* ActionNames[] = { "closed", "DestroyM", "DestroyWindow", "deleted", "built anew" };

enum Phase
{
    Building,
    Using,
    Changing,
    Ending
};
constexpr const char* PhaseNames[]
    = { "while it is built", "while it is used", "while it changes", "while it goes" };

constexpr UINT BetweenStepsMsg = WM_APP + 77; // wParam: the number of the step to come, or MessageIsOpen.
constexpr WPARAM MessageIsOpen = 100;

// A message, as far as it says what happens: those of one moment are alike.
struct MomentCL
{
    Phase phase;
    UINT message;
    UINT detail;
    bool operator==(const MomentCL& other) const
    {
        return phase == other.phase && message == other.message && detail == other.detail;
    }
    std::string TextM() const
    {
        return std::to_string(message) + "/" + std::to_string(detail) + " " + PhaseNames[phase];
    }
};

UINT detailOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_NOTIFY:
        return reinterpret_cast<const NMHDR*>(lParam)->code;
    case WM_COMMAND:
    case WM_PARENTNOTIFY:
    case WM_SHOWWINDOW:
    case WM_ENABLE:
    case BetweenStepsMsg:
        return static_cast<UINT>(wParam);
    default:
        return 0;
    }
}

// A dialog on the heap that does something when it gets a certain message. There is one at a time.
class ClosingDialogCL : public DuBasicDialogCL
{
public:
    explicit ClosingDialogCL(const char* file)
    {
        SetConfigFileM(file);
        SetMessageOwnerM(true);
        living = this;
    }
    ~ClosingDialogCL() override { living = nullptr; }

    static inline ClosingDialogCL* living = nullptr;
    static bool HasWindowM() { return living != nullptr && living->m_hWnd != nullptr; }
    static inline std::vector<MomentCL> seen;
    static inline std::optional<MomentCL> when;
    static inline Action what = Close;
    static inline Phase phase = Building;

    void BuildAnewM()
    {
        DestroyM();
        if (HasWindowM()) {
            InitDlgM(this, 1);
        }
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const MomentCL moment { phase, message, detailOf(message, wParam, lParam) };
        if (std::find(seen.begin(), seen.end(), moment) == seen.end()) {
            seen.push_back(moment);
        }
        if (message == WM_ENABLE
            && wParam == FALSE) { // By a message, whose loop finds this before any answer.
            ::PostMessageW(m_hWnd, BetweenStepsMsg, MessageIsOpen, 0);
        }
        if (when && *when == moment) {
            when.reset();
            actM();
            if (living != this || m_hWnd == nullptr) {
                return 0;
            }
        }
        // Wine's dialogs hand the focus on, and then note that in what they have freed if they were destroyed
        // meanwhile.
        const bool isEntered
            = message == WM_SETFOCUS || (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE);
        if (isEntered) {
            ::SetFocus(::GetNextDlgTabItem(m_hWnd, nullptr, FALSE));
            return 0;
        }
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }

private:
    void actM()
    {
        switch (what) {
        case Close:
            SendMessage(WM_CLOSE);
            break;
        case DestroyControls:
            DestroyM();
            break;
        case DestroyItsWindow:
            DestroyWindow();
            break;
        case Delete:
            delete this;
            break;
        case Rebuild:
            BuildAnewM();
            break;
        case ActionCount:
            break;
        }
    }
};

// A user's steps with the control; each is left out once its window is gone.
std::vector<std::function<void()>> stepsWith(HWND control)
{
    const auto there = [control](std::function<void()> step) {
        return [control, step = std::move(step)] {
            if (::IsWindow(control)) {
                step();
            }
        };
    };
    RECT client {};
    ::GetClientRect(control, &client);
    const int x = std::min<int>(8, client.right / 2);
    const int y = std::min<int>(8, client.bottom / 2);
    return { there([=] { MoveMouseToM(control, x, y); }), there([] { PressM(); }),
        there([=] { MoveMouseToM(control, x + 3, y + 3); }), [] { ReleaseM(); },
        there([=] { DoubleClickM(control, x, y); }), there([] { KeyM(VK_DOWN); }),
        there([] { KeyM(VK_SPACE); }), there([] { TypeM(L"9x"); }), there([] { WheelM(-120); }),
        there([] { KeyM(VK_TAB); }) };
}

class ClosingTest : public testing::TestWithParam<int>
{
protected:
    // A new dialog, the steps with the control of that id (0: none), and the action at its moment.
    void runM(int id, std::optional<MomentCL> when, Action what)
    {
        auto* const dialog = new GuardedCL<ClosingDialogCL>(file_.path());
        ClosingDialogCL::seen.clear();
        ClosingDialogCL::when = when;
        ClosingDialogCL::what = what;
        ClosingDialogCL::phase = Building;
        dialog->SetPainterM(38, [](CDC&, const CSize&) {});
        dialog->CreateM();
        if (ClosingDialogCL::HasWindowM()) {
            dialog->ShowWindow(SW_SHOW);
        }
        ClosingDialogCL::phase = Using;
        if (id != 0) {
            useM(id);
        }
        ClosingDialogCL::phase = Changing;
        if (id == 0) {
            changeM();
        }
        ClosingDialogCL::phase = Ending;
        if (ClosingDialogCL::HasWindowM()) {
            dialog->BuildAnewM();
        }
        if (ClosingDialogCL::HasWindowM()) {
            dialog->DestroyWindow();
        }
        delete ClosingDialogCL::living;
        ClosingDialogCL::when.reset();
        PumpPending();
    }

    // The system's own controls don't bear to be destroyed while they ask how to paint, nor tables and trees
    // by what they tell: Wine's touch what they have freed.
    static bool isBorneM(const MomentCL& moment, Action action)
    {
        const bool asks = (moment.message >= WM_CTLCOLORMSGBOX && moment.message <= WM_CTLCOLORSTATIC)
            || moment.message == WM_DRAWITEM || moment.message == WM_MEASUREITEM
            || moment.message == WM_NOTIFY;
        return action == Close || !asks;
    }
    // Whether it is one of so many; the same in every run, whatever comes before it.
    static bool isPickedM(int id, const std::string& name, unsigned step)
    {
        unsigned hash = static_cast<unsigned>(id) + 2166136261U;
        for (const char character : name) {
            hash = (hash ^ static_cast<unsigned char>(character)) * 16777619U;
        }
        return (hash >> 8) % step == 0;
    }

    // What the system and the application do with the whole dialog.
    static void changeM()
    {
        static constexpr RECT suggested { 40, 40, 700, 600 };
        const std::function<void(ClosingDialogCL&)> changes[] = {
            [](ClosingDialogCL& dialog) { dialog.SetWindowPos(nullptr, 20, 20, 600, 500, SWP_NOZORDER); },
            [](ClosingDialogCL& dialog) { dialog.SetScaleM(150); },
            [](ClosingDialogCL& dialog) { dialog.SetScaleM(DuBasicDialogCL::AutomaticScale); },
            [](ClosingDialogCL& dialog) {
                dialog.SendMessage(DpiChangedMsg, MAKEWPARAM(120, 120), reinterpret_cast<LPARAM>(&suggested));
            },
            [](ClosingDialogCL& dialog) { dialog.ShowAllCtrlM(0); },
            [](ClosingDialogCL& dialog) { dialog.EnableAllCtrlM(0); },
        };
        for (const auto& change : changes) {
            if (ClosingDialogCL::HasWindowM()) {
                change(*ClosingDialogCL::living);
                PumpPending();
            }
        }
    }

    static void useM(int id)
    {
        if (!ClosingDialogCL::HasWindowM()) {
            return;
        }
        const HWND window = ClosingDialogCL::living->m_hWnd;
        ::SetForegroundWindow(window);
        PumpUntil([window] { return !::IsWindowVisible(window) || ::GetForegroundWindow() == window; });
        SettleM();
        pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
        const HWND field = ::GetDlgItem(window, 13);
        ::SetFocus(field);
        if (::GetFocus() == field) {
            TypeM(L"5");
        }
        const HWND control = ::GetDlgItem(window, id);
        WPARAM number = 0;
        for (const auto& step : stepsWith(control)) {
            if (::IsWindow(window)) {
                ::PostMessageW(window, BetweenStepsMsg, number++, 0);
            }
            step();
            PumpPending();
        }
        pumpFilter = nullptr;
    }

    const SmallPictureCL picture_ { 0x0000FF, 20, 20 };
    const DescriptionFileCL file_ { sectionsOfEveryKind(picture_.path(), "text")
        + "[随窗口变化]\n5\n0\n13 0 0 1 0\n15 0 0 1 0\n16 0 0 1 1\n18 1 0 1 0\n24 1 0 1 1\n" };
};

} // namespace

TEST_P(ClosingTest, FromInsideItsMessages)
{
    const int id = GetParam();
    const char* const only = std::getenv("PANELKIT_SOAK_CLOSING"); // One alone, by its name.
    const auto step = static_cast<unsigned>(soakNumber("PANELKIT_SOAK_CLOSINGS", 61));
    const MessageBoxWatcher watcher;
    const ToldStepCL telling;
    ToldStepCL::NoteM(0, 0, "", "");
    runM(id, std::nullopt, Close);
    EXPECT_EQ(ClosingDialogCL::seen.back().message, static_cast<UINT>(WM_NCDESTROY));
    const std::vector<MomentCL> moments = ClosingDialogCL::seen;
    const int windows = LiveWindowsM();
    const GoneCL gone;
    int runs = 0;
    for (const MomentCL& moment : moments) {
        if ((moment.phase == Using) != (id != 0)) {
            continue; // What all have in common is done once.
        }
        for (int action = 0; action < ActionCount; ++action) {
            const std::string name = std::string(ActionNames[action]) + " at " + moment.TextM();
            const bool isWanted = only != nullptr ? name == only : isPickedM(id, name, step);
            if (!isWanted || !isBorneM(moment, static_cast<Action>(action))) {
                continue;
            }
            SCOPED_TRACE(name);
            ToldStepCL::NoteM(0, id, "", name.c_str());
            const FaultsCL faults;
            const GuardedPagesCL pages;
            runM(id, moment, static_cast<Action>(action));
            ++runs;
            EXPECT_EQ(faults.SeenM(), std::vector<std::string>());
            EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
            EXPECT_EQ(GoneCL::WrittenM(), 0);
            EXPECT_EQ(GoneCL::MessagesM(), 0);
            EXPECT_EQ(LiveWindowsM(), windows);
        }
    }
    RecordProperty("runs", runs);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ClosingTest,
    testing::Values(0, 11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 31, 32, 33, 34, 35, 36, 37, 38));
