#pragma once
#include "controls/base/value_text.h"
#include "toolkit/toolkit.h"
#include <memory>
#include <optional>

// What an application may give a control besides its description: the colour of its text, and what screen
// readers call it. Nothing to begin with. Copying copies it.
class PANELKIT_API ControlLooksCL
{
public:
    ControlLooksCL();
    ControlLooksCL(const ControlLooksCL& other);
    ControlLooksCL& operator=(const ControlLooksCL& other);
    ~ControlLooksCL();

    // For the next colour request; none: that of the system.
    void SetTextColourM(std::optional<COLORREF> colour) { textColour_ = colour; }
    // What was set.
    const std::optional<COLORREF>& TextColourM() const { return textColour_; }
    // None or the empty text: no name. role: one of ROLE_SYSTEM_...; 0: the role that the window has.
    // A push button can be pressed through it.
    void SetNameM(const ValueTextCL& name, long role);

    // Whether it colours what this message of a control to its parent asks for.
    bool ColoursM(UINT message) const
    {
        return textColour_ && message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    }
    // Colours it, wParam being the message's. isAnswered: whether *answer is a brush already; else the parent
    // of the control gives one.
    void ColourM(
        CWnd* control, bool isAnswered, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* answer) const;

    // Whether it answers this question of a screen reader.
    bool NamesM(UINT message, LPARAM lParam) const;
    // The answer; 0, as of a window that has none, where the system has no accessibility.
    LRESULT AnswerNameM(HWND control, WPARAM wParam) const;

private:
    std::optional<COLORREF> textColour_;
    std::shared_ptr<const std::wstring> name_; // A control is moved by its bytes.
    long role_ { 0 };
};
