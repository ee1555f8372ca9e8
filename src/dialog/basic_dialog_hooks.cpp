// What an application adds to what the description file says.
#include "dialog/basic_dialog.h"
#include <oleacc.h>

bool DuBasicDialogCL::hasControlsM()
{
    int count = 0;
    eachControlsM([&count](auto, auto& controls) { count += controls.GetAvailableNumM(); });
    return count > 0;
}

bool DuBasicDialogCL::SetTextColourM(int id, std::optional<COLORREF> colour)
{
    bool isFit = !hasControlsM();
    withControlM(id, [&isFit](auto row, auto&) { isFit = decltype(row)::CanM(ColoursText); });
    if (isFit) {
        looks_[id].textColour = colour;
        showLooksM(id);
    }
    return isFit;
}

bool DuBasicDialogCL::SetAccessibleNameM(int id, const ValueTextCL& name)
{
    const bool isFit = !hasControlsM() || withControlM(id, [](auto, auto&) {});
    if (isFit) {
        looks_[id].name = name;
        showLooksM(id);
    }
    return isFit;
}

// Gives the control what the application wants for its id. Whether there is one.
bool DuBasicDialogCL::showLooksM(int id)
{
    const LooksByIdCL& looks = looks_[id];
    return withControlM(id, [&looks](auto row, auto& control) {
        using RowTP = decltype(row);
        if constexpr (RowTP::CanM(ColoursText)) {
            control.SetTextColourM(looks.textColour);
        }
        control.SetAccessibleNameM(looks.name, RowTP::CanM(ActsAsButton) ? ROLE_SYSTEM_PUSHBUTTON : 0);
    });
}

void DuBasicDialogCL::SetSelectRefusedM(bool select)
{
    refusal_.selects = select;
    showRefusalM();
}

void DuBasicDialogCL::SetMessageOwnerM(bool overDialog)
{
    refusal_.overDialog = overDialog;
    showRefusalM();
}

void DuBasicDialogCL::showRefusalM()
{
    eachControlsM([this](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(TellsRefusals)) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                controls.ControlAtM(i).SetRefusalM(refusal_);
            }
        }
    });
}

// A control that has just been made knows nothing of what its id was given.
void DuBasicDialogCL::showHooksM()
{
    showRefusalM();
    for (const auto& looks : looks_) {
        showLooksM(looks.first);
    }
}

bool DuBasicDialogCL::SetMessageTextM(int message, const ValueTextCL& text)
{
    return slSetMessageTemplate(message, text.IsNoneM() ? nullptr : &text.Utf16M());
}

ValueTextCL DuBasicDialogCL::MessageTextM(int message)
{
    return ValueTextCL(slMessageTemplate(message));
}
