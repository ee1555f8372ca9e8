#pragma once
#include "controls/base/messages.h"
#include "form/panelkit_c.h"
#include "toolkit/toolkit.h"

// Which notification of a control becomes which event of the C interface.

// What an event says with its number.
enum class EventNumber
{
    None,
    Given,       // The message's lParam.
    SelectedLine // The control's index.
};
// When the callback is told.
enum class EventTime
{
    AtOnce, // While the notification is handled, behind the library's own handling.
    Once    // Soon, once for all that come until then: the control notifies several times of one thing.
};

struct NotificationRowCL
{
    UINT message;
    UINT code;      // Of WM_COMMAND and WM_NOTIFY, else 0.
    unsigned kinds; // Bits by PANELKIT_KIND_...
    int event;      // PANELKIT_EVENT_...
    EventNumber number { EventNumber::None };
    EventTime time { EventTime::AtOnce };
};

template <class... KindTP> constexpr unsigned slKinds(KindTP... kind)
{
    return (0u | ... | (1u << kind));
}
constexpr unsigned AllKinds = ~0u;
constexpr unsigned Pictures
    = slKinds(PANELKIT_KIND_LABEL, PANELKIT_KIND_SPECIAL_ANIMATION, PANELKIT_KIND_DRAWING);
constexpr unsigned ListBoxes = slKinds(PANELKIT_KIND_TEXT_LIST_BOX, PANELKIT_KIND_BITMAP_LIST_BOX);
constexpr unsigned Edits
    = slKinds(PANELKIT_KIND_SINGLE_EDIT, PANELKIT_KIND_MULTI_EDIT, PANELKIT_KIND_SPIN_EDIT);
constexpr unsigned Combo = slKinds(PANELKIT_KIND_COMBO_BOX);
constexpr unsigned Table = slKinds(PANELKIT_KIND_LIST_CONTROL);
constexpr unsigned TreeBit = slKinds(PANELKIT_KIND_TREE);
constexpr unsigned SilentEdits = slKinds(PANELKIT_KIND_MULTI_EDIT, PANELKIT_KIND_SPIN_EDIT);

constexpr NotificationRowCL NotificationTable[] = {
    { ButtonActionMsg, 0, AllKinds, PANELKIT_EVENT_CLICK, EventNumber::Given },
    { RadioClickedMsg, 0, AllKinds, PANELKIT_EVENT_CLICK },
    { CheckClickedMsg, 0, AllKinds, PANELKIT_EVENT_CLICK },
    { AnimationClickedMsg, 0, AllKinds, PANELKIT_EVENT_CLICK },
    { WM_COMMAND, STN_CLICKED, Pictures, PANELKIT_EVENT_CLICK },
    { WM_COMMAND, STN_DBLCLK, Pictures, PANELKIT_EVENT_DOUBLE_CLICK },
    { WM_COMMAND, LBN_DBLCLK, ListBoxes, PANELKIT_EVENT_DOUBLE_CLICK },
    { WM_NOTIFY, static_cast<UINT>(NM_DBLCLK), Table | TreeBit, PANELKIT_EVENT_DOUBLE_CLICK },
    { ButtonDownMsg, 0, AllKinds, PANELKIT_EVENT_PRESS },
    { WM_COMMAND, EN_CHANGE, Edits, PANELKIT_EVENT_CHANGE },
    { WM_COMMAND, CBN_EDITCHANGE, Combo, PANELKIT_EVENT_CHANGE },
    { SelectionChangedMsg, 0, AllKinds, PANELKIT_EVENT_SELECT, EventNumber::Given },
    { WM_COMMAND, LBN_SELCHANGE, ListBoxes, PANELKIT_EVENT_SELECT, EventNumber::SelectedLine },
    { WM_NOTIFY, static_cast<UINT>(LVN_ITEMCHANGED), Table, PANELKIT_EVENT_SELECT, EventNumber::SelectedLine,
        EventTime::Once },
    { WM_NOTIFY, static_cast<UINT>(TVN_SELCHANGEDA), TreeBit, PANELKIT_EVENT_SELECT },
    { WM_NOTIFY, static_cast<UINT>(TVN_SELCHANGEDW), TreeBit, PANELKIT_EVENT_SELECT },
    { FocusGainedMsg, 0, AllKinds, PANELKIT_EVENT_FOCUS },
    // A single-line edit doesn't say that it was entered; the others not that they were left.
    { WM_COMMAND, EN_SETFOCUS, slKinds(PANELKIT_KIND_SINGLE_EDIT), PANELKIT_EVENT_FOCUS },
    { ValueReportMsg, 0, AllKinds, PANELKIT_EVENT_LEAVE, EventNumber::Given },
    { WM_COMMAND, EN_KILLFOCUS, SilentEdits, PANELKIT_EVENT_LEAVE },
    { WM_COMMAND, CBN_KILLFOCUS, Combo, PANELKIT_EVENT_LEAVE },
};
