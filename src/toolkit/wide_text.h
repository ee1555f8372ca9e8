#pragma once
#include <type_traits>

// Stands before a member that takes a wide text where another of its name takes GBK. Only a wide pointer
// picks it: a null and whatever turns into a const char* mean the other.
#define AFX_WIDE_TEXT template <class WideTP, std::enable_if_t<std::is_same<WideTP, wchar_t>::value, int> = 0>
