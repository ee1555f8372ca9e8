#pragma once
#include "toolkit/platform.h"
#include <string>

// The answer to WM_GETOBJECT for the client area of a window: what the system says of it, but for the name
// and, unless it is 0, the role (ROLE_SYSTEM_...); a push button gets a default action, a click in its
// middle. 0 where the system has no accessibility. wParam: the message's.
LRESULT slAnswerAccessible(HWND window, WPARAM wParam, const std::wstring& name, long role);
