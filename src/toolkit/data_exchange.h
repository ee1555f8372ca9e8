#pragma once
#include "toolkit/platform.h"

class CWnd;

// One run of DoDataExchange: which way, between which window and its object, and at which control it is.
class PANELKIT_API CDataExchange
{
public:
    // For the dialog whose controls are meant; saveAndValidate: from them to the members.
    CDataExchange(CWnd* window, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate)
        , m_pDlgWnd(window)
    {
    }
    CDataExchange(const CDataExchange&) = delete;
    CDataExchange& operator=(const CDataExchange&) = delete;

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;
    // The control that is next, for Fail and the checks. Throws a CNotSupportedException where there is none.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    // The user has been told: the control gets the focus, an edit field with all its text selected, and a
    // CUserException ends the exchange.
    [[noreturn]] void Fail();

    int m_idLastControl = 0; // the one prepared last
    bool m_bEditLastControl = false;
    HWND m_hWndLastControl = nullptr;
};
