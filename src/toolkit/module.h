#pragma once
#include "toolkit/platform.h"

// What the window system knows of the program: its modules and its window classes.
PANELKIT_API HINSTANCE AfxGetInstanceHandle(); // of the program, not of this library
PANELKIT_API HINSTANCE AfxGetResourceHandle(); // where templates, icons and bitmaps are looked up
PANELKIT_API void AfxSetResourceHandle(HINSTANCE module);

PANELKIT_API BOOL AfxRegisterClass(WNDCLASSW* windowClass); // TRUE also when it is registered already
// Registers a class by what it looks like; the name is valid until the thread's next call.
PANELKIT_API LPCSTR AfxRegisterWndClass(
    UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);
LPCWSTR AfxDefaultWndClass();                     // for windows made without a class name
void AfxLogFailure(LPCSTR call, LPCSTR argument); // to the debugger, with the system's last error
