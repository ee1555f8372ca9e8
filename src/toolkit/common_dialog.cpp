#include "toolkit/common_dialog.h"
#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/module.h"
#include "toolkit/text.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

AfxGivenText::AfxGivenText(LPCSTR text)
    : isNull_(text == nullptr)
    , wide_(slGbkToShown(text))
{
}

std::string AfxGbkOf(const std::wstring& wide)
{
    return WideToGbk(wide.c_str(), static_cast<int>(wide.size()));
}

HWND CCommonDialog::ownerM() const
{
    const CWnd* wanted = parent_ == nullptr ? AfxGetMainWnd() : parent_;
    if (wanted == nullptr || wanted->m_hWnd == nullptr) {
        return nullptr;
    }
    const HWND owner = ::GetAncestor(wanted->m_hWnd, GA_ROOT);
    return parent_ == nullptr ? ::GetLastActivePopup(owner) : owner;
}

FARPROC CCommonDialog::systemCallM(const char* name)
{
    // Loaded when it is wanted first: it brings much along that most programs never need.
    static const HMODULE library = ::LoadLibraryW(L"comdlg32.dll");
    const FARPROC found = library == nullptr ? nullptr : ::GetProcAddress(library, name);
    if (found == nullptr) {
        AfxLogFailure("GetProcAddress", name);
    }
    return found;
}

UINT_PTR CCommonDialog::adoptM(CCommonDialog* dialog, HWND hWnd)
{
    try {
        dialog->SubclassWindow(hWnd);
        return static_cast<UINT_PTR>(dialog->OnInitDialog());
    } catch (...) {
        AfxLogFailure("OnInitDialog threw an exception", nullptr);
        return TRUE;
    }
}
