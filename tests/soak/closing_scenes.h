#pragma once
#include "dialog/monitor_scale.h"
#include "soak/closing_dialog.h"
#include "support/all.h"
#include <functional>
#include <utility>
#include <vector>

// What a user does with the dialog that lives (ClosingDialogCL), step by step. It may be gone at any step.
namespace closing_scenes {

using namespace testing_support;
using StepsTP = std::vector<std::function<void()>>;

// Before each step a message is posted, which the loop of a menu or of a drag finds too.
inline void doStep(WPARAM number, const std::function<void()>& step)
{
    if (const HWND window = ClosingDialogCL::WindowM()) {
        ::PostMessageW(window, BetweenStepsMsg, number, 0);
    }
    step();
}

inline int loops = 0; // How many loops of the system began.

// What begins such a loop, and what the user does while that runs.
inline void playInLoop(const std::function<void()>& begin, const StepsTP& steps)
{
    bool hasBegun = false;
    bool isOver = false;
    Script script;
    script.WaitM([&hasBegun] { return hasBegun; }, "the beginning");
    script.DoM([] { loops += ::GetCapture() != nullptr ? 1 : 0; });
    for (std::size_t i = 0; i < steps.size(); ++i) {
        script.DoM([i, step = steps[i]] { doStep(i, step); });
    }
    // Wine's loops go on when their window goes, until they see the button let go or a key that ends them.
    const auto end = [&isOver] {
        if (!isOver) {
            ::PostThreadMessageW(::GetCurrentThreadId(), WM_LBUTTONUP, 0, 0);
            ::PostThreadMessageW(::GetCurrentThreadId(), WM_KEYDOWN, VK_ESCAPE, 1);
        }
        return isOver;
    };
    script.WaitM(end, "the end of the loop");
    hasBegun = true;
    begin();
    isOver = true;
    PumpUntil([&script] { return script.DoneM(); });
    PumpPending();
}

inline std::function<void()> key(WORD virtualKey)
{
    return [virtualKey] { KeyM(virtualKey); };
}
inline std::function<void()> moveOnScreen(int x, int y)
{
    return [x, y] { MoveMouseToM(::GetDesktopWindow(), x, y); };
}
// Nothing once the control is gone.
inline std::function<void()> moveTo(int id, int x, int y)
{
    return [id, x, y] {
        if (const HWND control = ClosingDialogCL::ItemM(id)) {
            MoveMouseToM(control, x, y);
        }
    };
}
inline void press()
{
    if (ClosingDialogCL::WindowM() != nullptr) {
        PressM();
    }
}
inline void release()
{
    ReleaseM();
}

// In front, with something typed into a field.
inline void begin()
{
    const HWND window = ClosingDialogCL::WindowM();
    ::SetForegroundWindow(window);
    PumpUntil([window] { return !::IsWindowVisible(window) || ::GetForegroundWindow() == window; });
    SettleM();
    pumpFilter = [](MSG* message) { return AfxPreTranslateMessage(message) != FALSE; };
    const HWND field = ClosingDialogCL::ItemM(13);
    ::SetFocus(field);
    if (::GetFocus() == field && field != nullptr) {
        TypeM(L"5");
    }
}

// Each is left out once the control is gone.
inline void useControl(int id)
{
    const HWND control = ClosingDialogCL::ItemM(id);
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
    const StepsTP steps = { there([=] { MoveMouseToM(control, x, y); }), there([] { PressM(); }),
        there([=] { MoveMouseToM(control, x + 3, y + 3); }), release,
        there([=] { DoubleClickM(control, x, y); }), there(key(VK_DOWN)), there(key(VK_SPACE)),
        there([] { TypeM(L"9x"); }), there([] { WheelM(-120); }), there(key(VK_TAB)) };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        doStep(i, steps[i]);
        PumpPending();
    }
}

// By its corner, then by its title.
inline void dragFrame()
{
    for (const bool bySize : { true, false }) {
        RECT frame {};
        if (::GetWindowRect(ClosingDialogCL::WindowM(), &frame) == FALSE) {
            return;
        }
        const int x = bySize ? frame.right - 1 : frame.left + 60;
        const int y = bySize ? frame.bottom - 1 : frame.top + 10;
        moveOnScreen(x, y)();
        playInLoop(press, { moveOnScreen(x + 20, y + 15), moveOnScreen(x + 40, y + 30), release });
    }
}

inline void openSystemMenu()
{
    playInLoop(
        [] { ChordM(VK_MENU, VK_SPACE); }, { key(VK_DOWN), key(VK_DOWN), key(VK_ESCAPE), key(VK_ESCAPE) });
}

// The menu that a right click opens; id: of the control that has it, 0: the dialog. last: ends it.
inline void openMenu(int id, WORD last)
{
    const HWND there = id != 0 ? ClosingDialogCL::ItemM(id) : ClosingDialogCL::WindowM();
    if (there != nullptr) {
        playInLoop(
            [there] { ClickM(there, 4, 4, Button::Right); }, { key(VK_DOWN), key(VK_DOWN), key(last) });
    }
}

// The arrow below a list stays pressed.
inline void holdScrollBar(int id)
{
    const HWND list = ClosingDialogCL::ItemM(id);
    RECT client {};
    if (::GetClientRect(list, &client) != FALSE) {
        const int x = client.right + 6;
        const int y = client.bottom - 6;
        MoveMouseToM(list, x, y);
        playInLoop(press, { [] {}, moveTo(id, x, y - 4), moveTo(id, x, y), release });
    }
}

// A modal dialog, from its first message to its last, with a field, a button, a list and a key that ends it.
inline void playModal(ClosingDialogCL& dialog)
{
    const auto isShown = [] {
        const HWND window = ClosingDialogCL::WindowM();
        return window == nullptr || ::IsWindowVisible(window) != FALSE;
    };
    const StepsTP steps = { [] { ClosingDialogCL::phase = Using; }, moveTo(13, 8, 8), press, release,
        [] { TypeM(L"5"); }, key(VK_TAB), moveTo(31, 8, 8), press, release, moveTo(17, 8, 8), press, release,
        [] { ClosingDialogCL::phase = Ending; }, key(VK_ESCAPE),
        [] {
            if (ClosingDialogCL::WindowM() != nullptr) {
                ClosingDialogCL::living->EndDialog(IDABORT);
            }
        } };
    Script script;
    script.WaitM(isShown, "the dialog to show itself");
    for (std::size_t i = 0; i < steps.size(); ++i) {
        script.DoM([i, step = steps[i]] { doStep(i, step); });
    }
    dialog.DoModalM();
    PumpUntil([&script] { return script.DoneM(); });
}

// What the system and the application do with the whole dialog.
inline void change()
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
    for (const auto& one : changes) {
        if (ClosingDialogCL::WindowM() != nullptr) {
            one(*ClosingDialogCL::living);
            PumpPending();
        }
    }
}

} // namespace closing_scenes
