#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/module.h"
#include "toolkit/thread.h"
#include "toolkit/wide_text.h"

// The program, and its first thread. One object, usually a global one; the program then needs no WinMain.
class PANELKIT_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCSTR name = nullptr); // null: named after the program file
    ~CWinApp() override;

    // Texts in GBK, on the heap of malloc, freed with this object.
    LPCSTR m_pszAppName;               // title of message boxes
    LPCSTR m_pszProfileName;           // of the .ini file; with a registry key, of the key below it
    LPCSTR m_pszRegistryKey = nullptr; // null: settings are kept in the .ini file
    HINSTANCE m_hInstance;
    LPSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    BOOL InitInstance() override { return TRUE; }
    HICON LoadIcon(UINT id) const;
    HICON LoadIcon(LPCSTR name) const;
    AFX_WIDE_TEXT HICON LoadIcon(const WideTP* name) const // MAKEINTRESOURCE too
    {
        return ::LoadIconW(AfxGetResourceHandle(), name);
    }
    HICON LoadStandardIcon(LPCWSTR id) const { return ::LoadIconW(nullptr, id); }
    HCURSOR LoadCursor(UINT id) const;
    HCURSOR LoadCursor(LPCSTR name) const;
    AFX_WIDE_TEXT HCURSOR LoadCursor(const WideTP* name) const
    {
        return ::LoadCursorW(AfxGetResourceHandle(), name);
    }
    HCURSOR LoadStandardCursor(LPCWSTR id) const { return ::LoadCursorW(nullptr, id); }
    virtual void DoWaitCursor(
        int change); // 1: shows the hourglass, -1: takes one away, 0: shows it again if due

    // Settings, by section and entry, in GBK: below HKEY_CURRENT_USER\Software\<key>\<application>, or in the
    // .ini file of the application in the folder of the system.
    void SetRegistryKey(LPCSTR company); // before the first use
    void SetRegistryKey(UINT textId);
    UINT GetProfileInt(LPCSTR section, LPCSTR entry, int otherwise);
    BOOL WriteProfileInt(LPCSTR section, LPCSTR entry, int value);
    CString GetProfileString(LPCSTR section, LPCSTR entry, LPCSTR otherwise = nullptr);
    // A null value deletes the entry, a null entry the section.
    BOOL WriteProfileString(LPCSTR section, LPCSTR entry, LPCSTR value);
    // *data becomes new[] memory, the caller's. FALSE: no such entry, *data is null.
    BOOL GetProfileBinary(LPCSTR section, LPCSTR entry, LPBYTE* data, UINT* bytes);
    BOOL WriteProfileBinary(LPCSTR section, LPCSTR entry, LPBYTE data, UINT bytes);
    HKEY GetAppRegistryKey();           // the caller closes it; null: no key is set
    HKEY GetSectionKey(LPCSTR section); // the same
};

PANELKIT_API CWinApp* AfxGetApp(); // null: the program has none
// The name of the application object, in GBK; it keeps the text.
PANELKIT_API LPCSTR AfxGetAppName();

// The body of WinMain for an application object.
PANELKIT_API int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);

// Shows the hourglass as long as it lives, or until a message is waited for.
class PANELKIT_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    void Restore(); // after a message box or such has changed it
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

#ifndef PANELKIT_BUILDING
// Lies in the import library and brings WinMain to a program that has none.
extern "C" const int AfxNeedsWinMain;
[[gnu::used]] static const int* const afxNeedsWinMain = &AfxNeedsWinMain;
#endif
