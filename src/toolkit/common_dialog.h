#pragma once
#include "toolkit/dialog.h"
#include "toolkit/wide_text.h"
#include <commdlg.h>
#include <string>

// A text of an argument that may as well be null and stays so; GBK or wide.
class PANELKIT_API AfxGivenText
{
public:
    // From GBK; null stays null.
    AfxGivenText(LPCSTR text);
    AFX_WIDE_TEXT AfxGivenText(const WideTP* text)
        : isNull_(text == nullptr)
        , wide_(text == nullptr ? L"" : text)
    {
    }
    AfxGivenText(const CString& text)
        : AfxGivenText(text.GetString())
    {
    }
    // Whether it was null; the text, empty then.
    bool IsNull() const { return isNull_; }
    const std::wstring& Wide() const { return wide_; }

private:
    bool isNull_;
    std::wstring wide_;
};

// A dialog of the system's own, shown by DoModal. Meanwhile the object has its window, as a CDialog has: its
// message map and OnInitDialog work; OK and Cancel do what they do there.
class PANELKIT_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* parent) // null: the application's main window
        : parent_(parent)
    {
    }

protected:
    void OnOK() override { Default(); }
    void OnCancel() override { Default(); }
    // The window to own the dialog: the top-level one of the parent, else the last active popup of the
    // application's main window; null: none.
    HWND ownerM() const;
    static FARPROC systemCallM(const char* name); // of the library of these dialogs; null: it has none
    static UINT_PTR adoptM(CCommonDialog* dialog, HWND hWnd); // from the hook, when the window is there

private:
    CWnd* parent_;
};

std::string AfxGbkOf(const std::wstring& wide); // zeros within it stay
