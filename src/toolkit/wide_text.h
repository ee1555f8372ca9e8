#pragma once
#include <type_traits>

// For members that take a wide text where another of their name takes GBK. Only a wide pointer picks them: a
// null and whatever turns into a const char* mean the other.
template <class C> using AfxIfWide = std::enable_if_t<std::is_same<C, wchar_t>::value, int>;
#define AFX_WIDE_TEXT template <class WideTP, AfxIfWide<WideTP> = 0>
