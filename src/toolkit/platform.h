#pragma once

// The one place where the window system's own headers come in.
#if defined(_INC_WINDOWS) && !defined(UNICODE)
#error "Define UNICODE: the member names of the toolkit follow the wide names of the window system."
#endif
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE // as UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX // no macros min and max
#endif
#include <cassert>
#include <type_traits>
#include <utility>
#include <windows.h>

#include <commctrl.h>

#include "baselib/api.h"
#ifdef PANELKIT_NARROW_NAMES
#include "toolkit/narrow_names.h"
#endif

// The character of the classes is char, in GBK, and so are TCHAR and the text macros of <tchar.h>, although
// the window system's own names stand for its wide functions. An application may include that header itself,
// before or after this one.
#ifndef _INC_TCHAR
#undef _UNICODE
#include <tchar.h>
#define _UNICODE // as it was
#endif
#undef _T
#undef _TEXT
// A text of the character of the classes, and the types of such texts.
#define _T(text) text
#define _TEXT(text) text
#define TCHAR char
#define LPTSTR LPSTR
#define LPCTSTR LPCSTR
#define PTSTR PSTR
#define PCTSTR PCSTR

// The window system has them as macros, which would hide those of the standard library; numbers of different
// types go together as they do there.
template <class A, class B,
    std::enable_if_t<std::is_arithmetic<A>::value && std::is_arithmetic<B>::value, int> = 0>
constexpr std::common_type_t<A, B> min(A a, B b)
{
    return a < b ? a : b;
}
template <class A, class B,
    std::enable_if_t<std::is_arithmetic<A>::value && std::is_arithmetic<B>::value, int> = 0>
constexpr std::common_type_t<A, B> max(A a, B b)
{
    return a > b ? a : b;
}

#ifndef ASSERT
// As assert: nothing with NDEBUG.
#define ASSERT(condition) assert(condition)
#endif
#ifndef VERIFY
#ifdef NDEBUG
#define VERIFY(condition) static_cast<void>(condition)
#else
#define VERIFY(condition) assert(condition)
#endif
#endif
// Marks a message handler; means nothing.
#define afx_msg

// A macro of two arguments there, which hides the member function of that name.
#undef GetNextWindow
inline HWND GetNextWindow(HWND hWnd, UINT which)
{
    return ::GetWindow(hWnd, which);
}
