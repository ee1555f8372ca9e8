// A dialog is closed, destroyed, deleted and built anew from inside each message that it gets while the user
// works with each kind of control, and between his steps: with the mouse held, a list dropped down, a message
// open.
#include "dialog/every_kind_sections.h"
#include "support/gone.h"
#include "support/handles.h"
#include "support/shown_dialog.h"
#include "support/small_picture.h"
#include <map>
#include <set>

using namespace testing_support;

namespace {

enum Action
{
    Close,
    DestroyControls,
    DestroyWindow,
    Delete,
    Rebuild,
    ActionCount
};
constexpr const char* ActionNames[] = { "close", "DestroyM", "DestroyWindow", "delete", "rebuild" };

constexpr UINT BetweenStepsMsg = WM_APP + 77;

// A message, as far as it says what happens: those of one key are alike.
using KeyTP = std::pair<UINT, UINT>;
KeyTP keyOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
        return { message, HIWORD(wParam) };
    case WM_NOTIFY:
        return { message, reinterpret_cast<const NMHDR*>(lParam)->code };
    case WM_PARENTNOTIFY:
        return { message, LOWORD(wParam) };
    case BetweenStepsMsg:
        return { message, static_cast<UINT>(wParam) };
    default:
        return { message, 0 };
    }
}

// A dialog on the heap that does something when it gets a certain message.
class ClosingDialogCL : public DuBasicDialogCL
{
public:
    explicit ClosingDialogCL(const char* file)
    {
        SetConfigFileM(file);
        SetMessageOwnerM(true);
    }

    static inline ClosingDialogCL* living = nullptr;
    static inline std::vector<KeyTP> seen;
    static inline std::optional<KeyTP> when;
    static inline Action what = Close;

    void ActM()
    {
        switch (what) {
        case Close:
            SendMessage(WM_CLOSE);
            break;
        case DestroyControls:
            DestroyM();
            break;
        case Action::DestroyWindow:
            DuBasicDialogCL::DestroyWindow();
            break;
        case Delete:
            living = nullptr;
            delete this;
            break;
        case Rebuild:
            DestroyM();
            InitDlgM(this, 1);
            ShowWindow(SW_SHOW);
            break;
        case ActionCount:
            break;
        }
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const KeyTP key = keyOf(message, wParam, lParam);
        if (std::find(seen.begin(), seen.end(), key) == seen.end()) {
            seen.push_back(key);
        }
        if (when == key) {
            when.reset();
            ActM();
            if (living != this || m_hWnd == nullptr) {
                return 0;
            }
        }
        return DuBasicDialogCL::WindowProc(message, wParam, lParam);
    }
};

// A user's steps with the control of that id; each is left out once its window is gone.
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
    // One run: a new dialog, the steps, and the action at its message. Whether that came.
    bool runM(int id, std::optional<KeyTP> when, Action what)
    {
        auto* const dialog = new ClosingDialogCL(file_.path());
        ClosingDialogCL::living = dialog;
        ClosingDialogCL::seen.clear();
        ClosingDialogCL::when.reset();
        dialog->CreateM();
        dialog->ShowWindow(SW_SHOW);
        ActivateM(dialog->m_hWnd);
        pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
        dialog->SetPainterM(38, [](CDC&, const CSize&) {});
        FocusM(dialog->GetDlgItem(13)->m_hWnd);
        TypeM(L"5");
        PumpPending();
        ClosingDialogCL::when = when;
        ClosingDialogCL::what = what;
        WPARAM number = 0;
        for (const auto& step : stepsWith(::GetDlgItem(dialog->m_hWnd, id))) {
            if (ClosingDialogCL::living != nullptr && dialog->m_hWnd != nullptr) {
                ::PostMessageW(dialog->m_hWnd, BetweenStepsMsg, number++, 0);
            }
            step();
            PumpPending();
        }
        const bool hasCome = !ClosingDialogCL::when;
        ClosingDialogCL::when.reset();
        if (ClosingDialogCL::living != nullptr) {
            delete ClosingDialogCL::living;
        }
        pumpFilter = nullptr;
        PumpPending();
        return hasCome;
    }

    const SmallPictureCL picture_ { 0x0000FF, 20, 20 };
    const DescriptionFileCL file_ { sectionsOfEveryKind(picture_.path(), "text") };
};

} // namespace

TEST_P(ClosingTest, FromInsideEachMessage)
{
    const int id = GetParam();
    const MessageBoxWatcher watcher;
    runM(id, std::nullopt, Close);
    const std::vector<KeyTP> keys = ClosingDialogCL::seen;
    const int windows = LiveWindowsM();
    const GoneCL gone;
    int runs = 0;
    for (const KeyTP& key : keys) {
        for (int action = 0; action < ActionCount && !HasFailure(); ++action) {
            SCOPED_TRACE(
                std::to_string(key.first) + "/" + std::to_string(key.second) + " " + ActionNames[action]);
            runM(id, key, static_cast<Action>(action));
            ++runs;
            EXPECT_EQ(GoneCL::MessagesM(), 0);
            EXPECT_EQ(LiveWindowsM(), windows);
        }
    }
    EXPECT_GT(runs, 50);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ClosingTest,
    testing::Values(11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 31, 32, 33, 34, 35, 36, 37, 38));
