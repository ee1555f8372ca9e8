#include "toolkit/thread_state.h"
#include <utility>

namespace {

bool isGdiObject(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}
bool isImageList(HIMAGELIST list)
{
    int width = 0;
    int height = 0;
    return ::ImageList_GetIconSize(list, &width, &height) != FALSE;
}
bool isDc(HDC dc)
{
    return ::GetObjectType(dc) != 0;
}
bool isMenu(HMENU menu)
{
    return ::IsMenu(menu) != FALSE;
}
bool isWindow(HWND hWnd)
{
    return ::IsWindow(hWnd) != FALSE;
}

// The window system's own storage: that of the language may be gone when the thread's last objects go.
DWORD slotM()
{
    static const DWORD slot = ::TlsAlloc();
    return slot;
}

} // namespace

ThreadStateCL::ThreadStateCL()
    : wnds(&isWindow)
    , gdi(&isGdiObject)
    , dcs(&isDc)
    , imageLists(&isImageList)
    , menus(&isMenu)
{
    menus.UseSerialM(&serial);
    imageLists.UseSerialM(&serial);
    wnds.UseSerialM(&serial);
    gdi.UseSerialM(&serial);
    dcs.UseSerialM(&serial);
}

ThreadStateCL& ThreadStateCL::ThisM()
{
    ThreadStateCL* state = KnownM();
    if (state == nullptr) {
        state = new ThreadStateCL;
        ::TlsSetValue(slotM(), state);
    }
    return *state;
}

ThreadStateCL* ThreadStateCL::KnownM()
{
    // Asking the system for it resets the last error, which belongs to the caller.
    const DWORD error = ::GetLastError();
    auto* const state = static_cast<ThreadStateCL*>(::TlsGetValue(slotM()));
    ::SetLastError(error);
    return state;
}

void ThreadStateCL::ThreadEndsM()
{
    ThreadStateCL* const state = KnownM();
    if (state == nullptr) {
        return;
    }
    // Objects that go ask for the state once more.
    state->loopDepth = state->depth;
    state->loopSerial = 0;
    state->CleanTemporariesM();
    state->ownThread.reset();
    ::TlsSetValue(slotM(), nullptr);
    delete state;
}

void ThreadStateCL::CleanTemporariesM()
{
    // Called by a handler, not by the loop: the objects may be in use further up.
    if (depth != loopDepth) {
        return;
    }
    wnds.CleanM(loopSerial);
    gdi.CleanM(loopSerial);
    dcs.CleanM(loopSerial);
    imageLists.CleanM(loopSerial);
    menus.CleanM(loopSerial);
}

LoopCL::LoopCL(bool isOutermost)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    depth_ = std::exchange(state.loopDepth, state.depth);
    serial_ = std::exchange(state.loopSerial, isOutermost ? 0 : state.serial);
}

LoopCL::~LoopCL()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    state.loopDepth = depth_;
    state.loopSerial = serial_;
}
