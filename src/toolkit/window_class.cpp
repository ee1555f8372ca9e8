#include "toolkit/window_class.h"
#include "baselib/gbk.h"
#include "toolkit/exceptions.h"
#include "toolkit/module.h"
#include <cstdio>
#include <map>
#include <mutex>

AfxClassName::AfxClassName(const std::string& name)
    : CString(name.c_str())
{
    // Each registered class once: what is kept here never goes, as CREATESTRUCT only points to it.
    static std::mutex mutex;
    static auto* const names = new std::map<std::string, std::wstring>;
    const std::lock_guard<std::mutex> lock(mutex);
    const auto kept = names->try_emplace(name, slGbkToShown(name.c_str())).first;
    gbk_ = kept->first.c_str();
    wide_ = kept->second.c_str();
}

WindowClassNameCL::WindowClassNameCL(LPCSTR name)
    : isText_(!IS_INTRESOURCE(name))
    , atom_(reinterpret_cast<ULONG_PTR>(name))
    , wide_(isText_ ? slGbkToShown(name) : std::wstring())
{
}

BOOL AfxRegisterClass(WNDCLASSW* windowClass)
{
    WNDCLASSW known = {};
    if (::GetClassInfoW(windowClass->hInstance, windowClass->lpszClassName, &known)) {
        return TRUE;
    }
    return ::RegisterClassW(windowClass) != 0;
}

AfxGivenName::operator LPCWSTR() const
{
    if (!isGbk_ || IS_INTRESOURCE(name_)) {
        return static_cast<LPCWSTR>(name_);
    }
    return AfxClassName(static_cast<LPCSTR>(name_));
}

AfxWndClass::operator WNDCLASSW() const
{
    return { style, lpfnWndProc, cbClsExtra, cbWndExtra, hInstance, hIcon, hCursor, hbrBackground,
        lpszMenuName, lpszClassName };
}

AfxWndClass& AfxWndClass::operator=(const WNDCLASSW& known)
{
    return *this
        = AfxWndClass { known.style, known.lpfnWndProc, known.cbClsExtra, known.cbWndExtra, known.hInstance,
              known.hIcon, known.hCursor, known.hbrBackground, known.lpszMenuName, known.lpszClassName };
}

BOOL GetClassInfoW(HINSTANCE module, const AfxGivenName& name, AfxWndClass* to)
{
    WNDCLASSW known = {};
    if (!::GetClassInfoW(module, static_cast<LPCWSTR>(name), &known)) {
        return FALSE;
    }
    *to = known;
    to->lpszClassName = name;
    return TRUE;
}

BOOL AfxRegisterClass(AfxWndClass* windowClass)
{
    WNDCLASSW wide = *windowClass;
    return AfxRegisterClass(&wide);
}

AfxClassName AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    char text[96];
    std::snprintf(text, sizeof text, "AfxWnd:%x:%p:%p:%p", style, static_cast<void*>(cursor),
        static_cast<void*>(background), static_cast<void*>(icon));
    const AfxClassName name(text);
    WNDCLASSW look = {};
    look.style = style;
    look.lpfnWndProc = ::DefWindowProcW;
    look.hInstance = AfxGetInstanceHandle();
    look.hCursor = cursor;
    look.hbrBackground = background;
    look.hIcon = icon;
    look.lpszClassName = name;
    if (!AfxRegisterClass(&look)) {
        AfxLogFailure("RegisterClass", name);
        AfxThrowResourceException();
    }
    return name;
}

LPCWSTR AfxDefaultWndClass()
{
    static const wchar_t* const name = L"AfxWnd";
    WNDCLASSW plain = {};
    plain.style = CS_DBLCLKS;
    plain.lpfnWndProc = ::DefWindowProcW;
    plain.hInstance = AfxGetInstanceHandle();
    plain.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    plain.lpszClassName = name;
    AfxRegisterClass(&plain);
    return name;
}
