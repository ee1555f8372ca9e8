#pragma once

// The one place where the window system's own headers come in.
#if defined(_INC_WINDOWS) && !defined(UNICODE)
#error "Define UNICODE: the member names of the toolkit follow the wide names of the window system."
#endif
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <cassert>
#include <utility>
#include <windows.h>

#include <commctrl.h>

#include "baselib/api.h"

#ifndef ASSERT
#define ASSERT(condition) assert(condition)
#endif
#ifndef VERIFY
#ifdef NDEBUG
#define VERIFY(condition) static_cast<void>(condition)
#else
#define VERIFY(condition) assert(condition)
#endif
#endif
#define afx_msg

// A macro of two arguments there, which hides the member function of that name.
#undef GetNextWindow
inline HWND GetNextWindow(HWND hWnd, UINT which)
{
    return ::GetWindow(hWnd, which);
}
