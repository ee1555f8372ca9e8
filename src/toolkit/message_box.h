#pragma once
#include "toolkit/platform.h"

// Owned by the main window or its last active popup, titled with the application's name; no icon of its own.
PANELKIT_API int AfxMessageBox(LPCSTR text, UINT type = MB_OK, UINT helpId = 0);
PANELKIT_API int AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = 0);
