#pragma once
#include "toolkit/gbk_string.h"

// The name of a window class as any text of a creation takes it, CREATESTRUCT's too: GBK or wide. The
// characters live as long as the program.
class PANELKIT_API AfxClassName : public CString
{
public:
    // From GBK.
    explicit AfxClassName(const std::string& name);
    // Valid as long as the program.
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
    // GBK, an atom or null.
    explicit WindowClassNameCL(LPCSTR name);
    // Valid as long as the object.
    operator LPCWSTR() const { return isText_ ? wide_.c_str() : reinterpret_cast<LPCWSTR>(atom_); }

private:
    bool isText_;
    ULONG_PTR atom_;
    std::wstring wide_;
};

// The name in a description of a window class, as the application wrote it: GBK or wide, or an atom.
class PANELKIT_API AfxGivenName
{
public:
    AfxGivenName() = default;
    AfxGivenName(std::nullptr_t)
        : AfxGivenName(static_cast<LPCWSTR>(nullptr))
    {
    }
    AfxGivenName(LPCSTR name)
        : name_(name)
        , isGbk_(true)
    {
    }
    AfxGivenName(LPCWSTR name)
        : name_(name)
        , isGbk_(false)
    {
    }
    operator LPCWSTR() const; // of a name in GBK the characters live as long as the program

private:
    const void* name_;
    bool isGbk_; // false where all bytes are zeroed: then there is no name
};

// As an application describes a class, by names of either kind. The window procedure is that of a wide
// window.
struct PANELKIT_API AfxWndClass
{
    // As the members of the system's WNDCLASS.
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    AfxGivenName lpszMenuName;
    AfxGivenName lpszClassName;

    // To the system's structure and back.
    operator WNDCLASSW() const;
    AfxWndClass& operator=(const WNDCLASSW& known);
};
#undef WNDCLASS
// The structure above under the name that applications know.
#define WNDCLASS AfxWndClass

// What the names RegisterClass and GetClassInfo stand for, for such descriptions and names.
inline ATOM RegisterClassW(const AfxWndClass* windowClass)
{
    const WNDCLASSW wide = *windowClass;
    return ::RegisterClassW(&wide);
}
PANELKIT_API BOOL GetClassInfoW(HINSTANCE module, const AfxGivenName& name, AfxWndClass* to);

PANELKIT_API BOOL AfxRegisterClass(WNDCLASSW* windowClass); // TRUE also when it is registered already
PANELKIT_API BOOL AfxRegisterClass(AfxWndClass* windowClass);
// Registers a class by what it looks like. Throws a CResourceException where the system refuses.
PANELKIT_API AfxClassName AfxRegisterWndClass(
    UINT style, HCURSOR cursor = nullptr, HBRUSH background = nullptr, HICON icon = nullptr);
LPCWSTR AfxDefaultWndClass(); // for windows made without a class name
