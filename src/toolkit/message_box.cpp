#include "toolkit/message_box.h"
#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include "toolkit/wnd.h"

namespace {

HWND messageBoxOwnerM()
{
    CWnd* mainWnd = AfxGetMainWnd();
    HWND owner = mainWnd != nullptr && mainWnd->m_hWnd != nullptr ? mainWnd->m_hWnd : ::GetActiveWindow();
    // The box must be modal to the popup in front, such as an open dialog.
    return owner == nullptr ? nullptr : ::GetLastActivePopup(::GetAncestor(owner, GA_ROOT));
}

} // namespace

int AfxMessageBox(LPCSTR text, UINT type, UINT)
{
    return ::MessageBoxW(
        messageBoxOwnerM(), slGbkToShown(text).c_str(), slGbkToShown(AfxGetAppName()).c_str(), type);
}

int AfxMessageBox(UINT textId, UINT type, UINT helpId)
{
    const wchar_t* text = nullptr;
    int length = ::LoadStringW(AfxGetResourceHandle(), textId, reinterpret_cast<LPWSTR>(&text), 0);
    return AfxMessageBox(WideToGbk(text, length).c_str(), type, helpId);
}
