#pragma once

// Messages between controls, host and application. wParam is the sending control's function id unless stated.
enum PanelkitMessage : unsigned
{
    ButtonDownMsg = 1224,       // Posted. lParam 0; new rotate button: multiplier times step.
    RotateReleasedMsg = 1225,   // Sent. lParam multiplier times step.
    QueryPermissionMsg = 1361,  // Sent to the main window. wParam the address of the legal flag.
    ButtonActionMsg = 1424,     // Sent by the standard button, posted by the picture buttons.
    ValueReportMsg = 1624,      // Sent with lParam -1 (illegal), posted with 0 (legal).
    FocusGainedMsg = 1625,      // Posted.
    CheckValueMsg = 1626,       // Sent by the host to an edit. wParam 0.
    SpinClickMsg = 1725,        // Sent by the arrows to their edit. wParam the position change.
    RadioClickedMsg = 1734,     // Posted.
    CheckClickedMsg = 1739,     // Posted.
    AnimationClickedMsg = 1744, // Posted.
    SelectionChangedMsg = 1749, // Posted. lParam the selected index.
    PointerReportMsg = 3044     // Sent. wParam a PointerReportCL, lParam the description text.
};
