#include "toolkit/message_box.h"
#include "baselib/gbk.h"
#include "baselib/message_texts.h"
#include "toolkit/app.h"
#include "toolkit/exceptions.h"
#include "toolkit/module.h"
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

int AfxShowMessage(LPCWSTR text, UINT type, HWND owner, LPCWSTR caption)
{
    const std::wstring title
        = caption != nullptr && *caption != L'\0' ? caption : slGbkToShown(AfxGetAppName());
    return ::MessageBoxW(owner != nullptr ? owner : messageBoxOwnerM(), text, title.c_str(), type);
}

int AfxMessageBox(LPCSTR text, UINT type, UINT)
{
    return AfxShowMessage(slGbkToShown(text).c_str(), type);
}

int AfxMessageBox(UINT textId, UINT type, UINT)
{
    const wchar_t* text = nullptr;
    int length = ::LoadStringW(AfxGetResourceHandle(), textId, reinterpret_cast<LPWSTR>(&text), 0);
    return AfxShowMessage(std::wstring(text, static_cast<size_t>(length)).c_str(), type);
}

// Here, not with the others of its class: the windows know exceptions, so those must not know windows.
int CException::ReportError(UINT type, UINT textId)
{
    char text[512];
    if (GetErrorMessage(text, sizeof text)) {
        return AfxMessageBox(text, type);
    }
    if (textId != 0) {
        return AfxMessageBox(textId, type);
    }
    return AfxMessageBox(slWideMessageText(FailedMessage).c_str(), type);
}
