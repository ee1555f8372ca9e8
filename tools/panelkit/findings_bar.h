#pragma once
#include "findings.h"
#include "popup.h"

// What is wrong with a file, below the dialog that shows its last good state.
class FindingsBarCL : public PopupCL
{
public:
    // The errors, a line each; the first of many. The window's text is what it shows.
    void ShowM(HWND dialog, const FindingsCL& findings, Language language);
    void DockM(HWND dialog); // The dialog has moved.

protected:
    void paintM(HDC dc, const RECT& client) override;
};
