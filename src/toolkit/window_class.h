#pragma once
#include "toolkit/gbk_string.h"

// The name of a window class as any text of a creation takes it, CREATESTRUCT's too: GBK or wide. The
// characters live as long as the program.
class PANELKIT_API AfxClassName : public CString
{
public:
    explicit AfxClassName(const std::string& name);
    operator LPCSTR() const { return gbk_; }
    operator LPCWSTR() const { return wide_; }

private:
    LPCSTR gbk_;
    LPCWSTR wide_;
};

// A class name given in GBK, made wide; an atom stays one and null stays null.
class PANELKIT_API WindowClassNameCL
{
public:
    explicit WindowClassNameCL(LPCSTR name);
    operator LPCWSTR() const { return isText_ ? wide_.c_str() : reinterpret_cast<LPCWSTR>(atom_); }

private:
    bool isText_;
    ULONG_PTR atom_;
    std::wstring wide_;
};

// As an application describes a class: with names in GBK. The window procedure is that of a wide window.
#undef WNDCLASS
#define WNDCLASS WNDCLASSA
#undef GetClassInfo
inline BOOL GetClassInfo(HINSTANCE module, LPCWSTR name, WNDCLASSW* to)
{
    return ::GetClassInfoW(module, name, to);
}
PANELKIT_API BOOL GetClassInfo(
    HINSTANCE module, LPCSTR name, WNDCLASSA* to); // the names in *to stay the caller's

PANELKIT_API BOOL AfxRegisterClass(WNDCLASSW* windowClass); // TRUE also when it is registered already
PANELKIT_API BOOL AfxRegisterClass(WNDCLASSA* windowClass);
// Registers a class by what it looks like. Throws a CResourceException where the system refuses.
PANELKIT_API AfxClassName AfxRegisterWndClass(
    UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);
LPCWSTR AfxDefaultWndClass(); // for windows made without a class name
