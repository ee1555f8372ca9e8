#pragma once
#include "toolkit/common_dialog.h"

// Asks for a colour.
class PANELKIT_API CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)
public:
    // initial: what is selected at first. flags: CC_ numbers.
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);

    CHOOSECOLOR m_cc;           // may be changed before DoModal; holds the outcome after it
    INT_PTR DoModal() override; // IDOK or IDCANCEL

    // The colour chosen, after IDOK.
    COLORREF GetColor() const { return m_cc.rgbResult; }
    void SetCurrentColor(COLORREF color);    // while the dialog is there
    static COLORREF* GetSavedCustomColors(); // the sixteen that the user mixes, as long as the program runs

protected:
    virtual BOOL OnColorOK() { return FALSE; } // TRUE: the dialog stays

private:
    static UINT_PTR CALLBACK hookM(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};
