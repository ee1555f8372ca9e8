#include "toolkit/module.h"
#include "baselib/gbk.h"
#include <cstdio>

namespace {

HINSTANCE resourceModule = nullptr; // null: the program itself

} // namespace

HINSTANCE AfxGetInstanceHandle()
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    return resourceModule == nullptr ? AfxGetInstanceHandle() : resourceModule;
}

void AfxSetResourceHandle(HINSTANCE module)
{
    resourceModule = module;
}

BOOL AfxRegisterClass(WNDCLASSW* windowClass)
{
    WNDCLASSW known = {};
    if (::GetClassInfoW(windowClass->hInstance, windowClass->lpszClassName, &known)) {
        return TRUE;
    }
    return ::RegisterClassW(windowClass) != 0;
}

LPCSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    static thread_local char name[96];
    std::snprintf(name, sizeof name, "AfxWnd:%x:%p:%p:%p", style, static_cast<void*>(cursor),
        static_cast<void*>(background), static_cast<void*>(icon));
    std::wstring wideName = slGbkToShown(name);
    WNDCLASSW look = {};
    look.style = style;
    look.lpfnWndProc = ::DefWindowProcW;
    look.hInstance = AfxGetInstanceHandle();
    look.hCursor = cursor;
    look.hbrBackground = background;
    look.hIcon = icon;
    look.lpszClassName = wideName.c_str();
    return AfxRegisterClass(&look) ? name : nullptr;
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

void AfxLogFailure(LPCSTR call, LPCSTR argument)
{
    char line[160];
    std::snprintf(line, sizeof line, "toolkit: %s(%.60s) failed, error %lu\n", call,
        argument == nullptr ? "" : argument, ::GetLastError());
    ::OutputDebugStringA(line);
}
