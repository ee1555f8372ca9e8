#include "controls/base/control_looks.h"
#include "controls/base/accessible.h"

// Here, once for all kinds.
ControlLooksCL::ControlLooksCL() = default;
ControlLooksCL::ControlLooksCL(const ControlLooksCL& other) = default;
ControlLooksCL& ControlLooksCL::operator=(const ControlLooksCL& other) = default;
ControlLooksCL::~ControlLooksCL() = default;

void ControlLooksCL::SetNameM(const ValueTextCL& name, long role)
{
    const std::wstring text = name.WideM();
    name_ = text.empty() ? nullptr : std::make_shared<const std::wstring>(text);
    role_ = role;
}

void ControlLooksCL::ColourM(
    CWnd* control, bool isAnswered, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* answer) const
{
    CWnd* const parent = control->GetParent();
    if (!isAnswered && parent != nullptr) {
        *answer = parent->DefWindowProc(message, wParam, lParam);
    }
    ::SetTextColor(reinterpret_cast<HDC>(wParam), *textColour_);
}

bool ControlLooksCL::NamesM(UINT message, LPARAM lParam) const
{
    // Of the number the lower half counts.
    return message == WM_GETOBJECT && name_ != nullptr && static_cast<LONG>(lParam) == OBJID_CLIENT;
}

LRESULT ControlLooksCL::AnswerNameM(HWND control, WPARAM wParam) const
{
    return slAnswerAccessible(control, wParam, *name_, role_);
}
