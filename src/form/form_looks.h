#pragma once
#include "form/panelkit_c.h"
#include <optional>
#include <string>

namespace panelkit {

// What a form adds to its description file; FormTP is Form. Texts are UTF-8; false as with Form.
template <class FormTP> class FormLooksCL
{
public:
    // The colour of a control's text, 0xRRGGBB; nullopt: that of the system again. False for a control
    // without a text or whose text the system paints in its own colour.
    bool SetTextColour(int id, std::optional<int> colour)
    {
        return isDone(panelkit_set_text_colour(handle(), id, colour.value_or(PANELKIT_COLOUR_OF_SYSTEM)));
    }
    // What screen readers call a control; empty: what the system takes for its name.
    bool SetAccessibleName(int id, const std::string& name)
    {
        return isDone(panelkit_set_accessible_name(handle(), id, name.c_str()));
    }
    // Whether the text of a refused value is selected, so that typing replaces it.
    bool SetSelectRefused(bool select) { return isDone(panelkit_set_select_refused(handle(), select)); }
    // Whether messages about fields stand over the form and disable it.
    bool SetMessageOwner(bool over) { return isDone(panelkit_set_message_owner(handle(), over)); }
    // The scale in percent, 50 to 800; what the user has done stays. False for another number.
    bool SetScale(int percent)
    {
        return percent != PANELKIT_SCALE_AUTOMATIC && isDone(panelkit_set_scale(handle(), percent));
    }
    // That of the monitor, also when the user takes the form to another one.
    bool AutoScale() { return isDone(panelkit_set_scale(handle(), PANELKIT_SCALE_AUTOMATIC)); }
    // The scale that it has; 100 to begin with and without a dialog.
    int Scale() const
    {
        int32_t percent = 100;
        panelkit_get_scale(handle(), &percent);
        return percent;
    }
    // Replaces a text of the library's message boxes (PANELKIT_MESSAGE_...), for the whole process; null: the
    // library's own again. False for a number that is none.
    static bool SetMessageText(int message, const char* text)
    {
        return isDone(panelkit_set_message_text(message, text));
    }
    static bool SetMessageText(int message, const std::string& text)
    {
        return SetMessageText(message, text.c_str());
    }

private:
    panelkit_dialog* handle() const { return static_cast<const FormTP*>(this)->Handle(); }
    static bool isDone(panelkit_status status) { return status == PANELKIT_OK; }
};

} // namespace panelkit
