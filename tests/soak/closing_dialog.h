#pragma once
#include "support/test_dialog.h"
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

// What is done to a dialog from inside one of its messages.
enum ClosingAction
{
    Close,
    DestroyControls,
    DestroyItsWindow,
    Delete,
    Rebuild,
    ClosingActionCount
};
constexpr const char* ClosingActionNames[]
    = { "closed", "DestroyM", "DestroyWindow", "deleted", "built anew" };

enum ClosingPhase
{
    Building,
    Using,
    Changing,
    Ending
};
constexpr const char* ClosingPhaseNames[]
    = { "while it is built", "while it is used", "while it changes", "while it goes" };

constexpr UINT BetweenStepsMsg = WM_APP + 77; // wParam: the number of the step to come, or MessageIsOpen.
constexpr WPARAM MessageIsOpen = 100;

// A message, as far as it says what happens: those of one moment are alike.
struct MomentCL
{
    ClosingPhase phase;
    UINT message;
    UINT detail;
    bool operator==(const MomentCL& other) const
    {
        return phase == other.phase && message == other.message && detail == other.detail;
    }
    std::string TextM() const
    {
        return std::to_string(message) + "/" + std::to_string(detail) + " " + ClosingPhaseNames[phase];
    }
    static constexpr UINT Field = 1; // An edit, a list box or a combo box asks how to paint.
    static UINT DetailOfM(UINT message, WPARAM wParam, LPARAM lParam)
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
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORLISTBOX:
            return isFieldM(reinterpret_cast<HWND>(lParam)) ? Field : 0;
        default:
            return 0;
        }
    }

private:
    static bool isFieldM(HWND control)
    {
        wchar_t name[16] = L"";
        ::RealGetWindowClassW(control, name, 16);
        const std::wstring kind = name;
        return kind == L"Edit" || kind == L"ListBox" || kind == L"ComboBox" || kind == L"ComboLBox";
    }
};

// A dialog on the heap that does something when it gets a certain message, and has a menu for the right mouse
// button. There is one at a time.
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
    static HWND WindowM() { return living != nullptr ? living->m_hWnd : nullptr; } // Null: there is none.
    static HWND ItemM(int id) { return ::GetDlgItem(WindowM(), id); }
    static inline std::vector<MomentCL> seen;
    static inline std::optional<MomentCL> when;
    static inline ClosingAction what = Close;
    static inline ClosingPhase phase = Building;

    void BuildAnewM()
    {
        DestroyM();
        if (WindowM() != nullptr) {
            InitDlgM(this, 1);
        }
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const MomentCL moment { phase, message, MomentCL::DetailOfM(message, wParam, lParam) };
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
        if (message == WM_CONTEXTMENU) {
            showMenu(m_hWnd, lParam);
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
        case ClosingActionCount:
            break;
        }
    }
    static void showMenu(HWND window, LPARAM place)
    {
        const HMENU menu = ::CreatePopupMenu();
        ::AppendMenuW(menu, MF_STRING, 901, L"one");
        ::AppendMenuW(menu, MF_STRING, 902, L"two");
        ::TrackPopupMenu(menu, TPM_LEFTALIGN, static_cast<short>(LOWORD(place)),
            static_cast<short>(HIWORD(place)), 0, window, nullptr);
        ::DestroyMenu(menu);
    }
};
