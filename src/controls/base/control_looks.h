#pragma once
#include "controls/base/value_text.h"
#include "toolkit/toolkit.h"
#include <memory>
#include <optional>
#include <string>

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
    void SetTextColourM(std::optional<COLORREF> colour);
    // What was set.
    std::optional<COLORREF> TextColourM() const;
    // None or the empty text: no name. role: one of ROLE_SYSTEM_...; 0: the role that the window has.
    // A push button can be pressed through it.
    void SetNameM(const ValueTextCL& name, long role);

    // Whether it colours what this message of a control to its parent asks for.
    bool ColoursM(UINT message) const
    {
        return given_ != nullptr && message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC
            && TextColourM().has_value();
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
    struct GivenCL
    {
        std::optional<COLORREF> textColour;
        std::wstring name; // Empty: none.
        long role { 0 };
    };
    GivenCL& givenM();

    std::unique_ptr<GivenCL> given_; // Null: nothing.
};
