#pragma once
#include "toolkit/platform.h"
#include "toolkit/wide_text.h"

// Owned by the main window or its last active popup, titled with the application's name; no icon of its own.
// The text is GBK, or wide.
PANELKIT_API int AfxMessageBox(LPCSTR text, UINT type = MB_OK, UINT helpId = 0);
PANELKIT_API int AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = 0);
// owner: null: as above. caption: null or empty: as above.
PANELKIT_API int AfxShowMessage(LPCWSTR text, UINT type, HWND owner = nullptr, LPCWSTR caption = nullptr);
AFX_WIDE_TEXT int AfxMessageBox(const WideTP* text, UINT type = MB_OK, UINT = 0)
{
    return AfxShowMessage(text, type);
}
