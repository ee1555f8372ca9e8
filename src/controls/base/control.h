#pragma once
#include "baselib/base.h"
#include "controls/base/control_common.h"
#include "controls/base/control_looks.h"
#include "controls/base/leaving.h"
#include "controls/base/messages.h"
#include <typeinfo>

// Whether a control is of the kind itself, not of a class that an application has derived from it. What the
// window system tells only the window of such a control while it is being made matters to nobody.
template <class KindTP> bool slIsJust(const KindTP& control)
{
    return typeid(control) == typeid(KindTP);
}

// What every kind of control is made of, in this order: a platform control, the common base, the element
// base; with what all kinds do alike. Copying copies the description, never the window.
// Where a kind says nothing of a result it is 1, or 0 when the platform refuses. Whatever it says: null where
// a pointer is wanted is refused, nothing happens, and the result is that of a failure (0; -1 for an index,
// null for an item).
template <class PlatformTP> class ControlCL : public PlatformTP, public DControlCommonCL, public VrBaseCL
{
public:
    ControlCL() = default;
    explicit ControlCL(char tag)
        : VrBaseCL(tag)
    {
    }
    ControlCL(const ControlCL& other)
        : PlatformTP()
        , DControlCommonCL(other)
        , VrBaseCL(other)
        , looks_(other.looks_)
    {
        InitialCommonM(nullptr); // The window is the other's.
    }
    // A window that the target still has is destroyed: it showed what the target was before.
    ControlCL& operator=(const ControlCL& other)
    {
        if (this != &other) {
            PlatformTP::DestroyWindow();
            DControlCommonCL::operator=(other);
            VrBaseCL::operator=(other);
            looks_ = other.looks_;
            InitialCommonM(nullptr);
        }
        return *this;
    }

    using PlatformTP::Create;
    // Creates the child window at the described place; the platform's result.
    int Create(CWnd* parent) { return createM(parent); }

    // Destroys the window and what a kind has for it, such as pictures, and marks the element deleted.
    void DelItemM()
    {
        PlatformTP::DestroyWindow();
        SetDeleteTagM(DeletedTag);
    }

    // 0 and 5 do nothing, 1 enables, 2 disables, 3 shows, 4 hides: 1. Any other command: 0.
    int SetItemCmdM(int command)
    {
        if (command < 0 || command > 5) {
            return 0;
        }
        if (this->GetSafeHwnd() != nullptr) {
            if (command == 1 || command == 2) {
                this->EnableWindow(command == 1);
            } else if (command == 3 || command == 4) {
                this->ShowWindow(command == 3 ? SW_SHOW : SW_HIDE);
            }
        }
        return 1;
    }

    // Stacks the window just behind another, and shows it.
    int SetZOrderM(const CWnd* after)
    {
        this->SetWindowPos(after, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW);
        return 1;
    }

    // The colour of its text, at once; none: the platform's. Only for kinds with a text that the platform
    // lets a program colour; the others ignore it. Its parent must be a window of an object.
    void SetTextColourM(std::optional<COLORREF> colour)
    {
        looks_.SetTextColourM(colour);
        if (this->m_hWnd != nullptr) {
            this->Invalidate();
        }
    }
    // Its window is about to go: what that is told then passes the control by. Only for kinds that would do
    // nothing about it.
    void PassEndByM() { this->passEndByM(); }
    // What screen readers call it, in place of what the system takes for its name; none or the empty text: no
    // such name. role: one of ROLE_SYSTEM_...; 0: the one that the window has. For the role of a push button
    // they can press it, which is a click in its middle.
    void SetAccessibleNameM(const ValueTextCL& name, long role = 0) { looks_.SetNameM(name, role); }

    // DControlCommonCL's report, not the platform's message handler of that name.
    using DControlCommonCL::OnMouseMove;

protected:
    // Creates the window as Create does: with a caption where the platform's class takes one.
    template <class... CaptionTP> int createM(CWnd* parent, CaptionTP... caption)
    {
        return createdM(
            PlatformTP::Create(caption..., 0, describedRectM(), parent, static_cast<UINT>(GetFunctionIDM())));
    }
    // Records the control as its own window once the platform has created it.
    int createdM(BOOL created)
    {
        if (created) {
            InitialCommonM(this);
        }
        return created;
    }

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const bool colours = looks_.ColoursM(message);
        const BOOL isAnswered = PlatformTP::OnChildNotify(message, wParam, lParam, result);
        if (colours) {
            looks_.ColourM(this, isAnswered != FALSE, message, wParam, lParam, result);
        }
        return colours || isAnswered;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return looks_.NamesM(message, lParam) ? looks_.AnswerNameM(this->m_hWnd, wParam)
                                              : PlatformTP::WindowProc(message, wParam, lParam);
    }

    // Posts a message with the control's id to the parent window.
    void postToParentM(unsigned message, LPARAM lParam = 0)
    {
        ::PostMessageW(::GetParent(this->m_hWnd), message, static_cast<WPARAM>(GetFunctionIDM()), lParam);
    }
    // Sends it instead: the parent handles it first, and may destroy this object.
    void sendToParentM(unsigned message, LPARAM lParam = 0)
    {
        ::SendMessageW(::GetParent(this->m_hWnd), message, static_cast<WPARAM>(GetFunctionIDM()), lParam);
    }

    // The shared focus handler of most kinds: default handling, then the report to the parent, unless it
    // is only passing through (leaving.h).
    void reportFocusM(CWnd* oldFocus)
    {
        const HWND window = this->m_hWnd;
        PlatformTP::OnSetFocus(oldFocus);
        // The parent hears of it from the platform too, and may have destroyed this object.
        if (::IsWindow(window) && slIsEntered(window)) {
            postToParentM(FocusGainedMsg);
        }
    }

    ControlLooksCL looks_; // Nothing until the application says otherwise.
};
