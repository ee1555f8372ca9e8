#include "controls/base/control_looks.h"
#include "controls/base/accessible.h"

// Here, once for all kinds.
ControlLooksCL::ControlLooksCL() = default;
ControlLooksCL::ControlLooksCL(const ControlLooksCL& other)
    : given_(other.given_ != nullptr ? std::make_unique<GivenCL>(*other.given_) : nullptr)
{
}
ControlLooksCL& ControlLooksCL::operator=(const ControlLooksCL& other)
{
    ControlLooksCL copy(other);
    given_.swap(copy.given_);
    return *this;
}
ControlLooksCL::~ControlLooksCL() = default;

ControlLooksCL::GivenCL& ControlLooksCL::givenM()
{
    if (given_ == nullptr) {
        given_ = std::make_unique<GivenCL>();
    }
    return *given_;
}

void ControlLooksCL::SetTextColourM(std::optional<COLORREF> colour)
{
    if (colour || given_ != nullptr) {
        givenM().textColour = colour;
    }
}

std::optional<COLORREF> ControlLooksCL::TextColourM() const
{
    return given_ != nullptr ? given_->textColour : std::nullopt;
}

void ControlLooksCL::SetNameM(const ValueTextCL& name, long role)
{
    givenM().name = name.WideM();
    givenM().role = role;
}

void ControlLooksCL::ColourM(
    CWnd* control, bool isAnswered, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* answer) const
{
    CWnd* const parent = control->GetParent();
    if (!isAnswered && parent != nullptr) {
        *answer = parent->DefWindowProc(message, wParam, lParam);
    }
    ::SetTextColor(reinterpret_cast<HDC>(wParam), *given_->textColour);
}

bool ControlLooksCL::NamesM(UINT message, LPARAM lParam) const
{
    // Of the number the lower half counts.
    return message == WM_GETOBJECT && given_ != nullptr && !given_->name.empty()
        && static_cast<LONG>(lParam) == OBJID_CLIENT;
}

LRESULT ControlLooksCL::AnswerNameM(HWND control, WPARAM wParam) const
{
    return slAnswerAccessible(control, wParam, given_->name, given_->role);
}
