#pragma once
#include "toolkit/temporaries.h"
#include "toolkit/wnd_map.h"
#include <memory>
#include <unordered_map>

class CreationHookCL;
class CMenu;
class CWinThread;
class CWnd;
class LifeCL;

// What the window system forces to be kept a thread: which object belongs to a handle, and what is going on.
struct ThreadStateCL
{
    ThreadStateCL();
    static ThreadStateCL& ThisM();
    static ThreadStateCL* KnownM(); // null: none made yet, or the thread is ending
    static void ThreadEndsM();      // the calling thread

    WndMapCL permanent;
    std::unordered_map<HMENU, CMenu*> permanentMenus;
    // Windows whose object has left while another procedure still calls AfxWndProc: what that calls in turn.
    std::unordered_map<HWND, WNDPROC> left;
    TemporariesCL<HWND> wnds;
    TemporariesCL<HGDIOBJ> gdi;
    TemporariesCL<HDC> dcs;
    TemporariesCL<HIMAGELIST> imageLists;
    TemporariesCL<HMENU> menus;
    unsigned long long serial = 0;

    MSG message = {}; // being handled by the innermost window procedure
    int depth = 0;    // of window procedures
    LifeCL* lives = nullptr;
    CreationHookCL* creations = nullptr;
    HWND exchanging = nullptr; // the window that UpdateData is working on
    int waits = 0;             // for the hourglass
    HCURSOR beforeWait = nullptr;
    bool hasLackedMemory = false; // a handler did, since somebody asked

    int loopDepth = 0;                 // depth of window procedures when the innermost message loop began
    unsigned long long loopSerial = 0; // objects up to this one belong to code outside that loop
    CWinThread* thread = nullptr;
    std::unique_ptr<CObject> ownThread; // made on demand where the application made none

    void CleanTemporariesM();
};

// Keeps the temporary objects of the code outside for as long as a loop of its own runs.
class LoopCL
{
public:
    explicit LoopCL(bool isOutermost = false);
    ~LoopCL();
    LoopCL(const LoopCL&) = delete;
    LoopCL& operator=(const LoopCL&) = delete;

private:
    int depth_;
    unsigned long long serial_;
};
