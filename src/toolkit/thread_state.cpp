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
bool isWindow(HWND hWnd)
{
    return ::IsWindow(hWnd) != FALSE;
}

struct HolderCL
{
    ThreadStateCL* state = nullptr;
    ~HolderCL()
    {
        if (state != nullptr) {
            // Objects that go ask for the state once more.
            state->loopDepth = state->depth;
            state->loopSerial = 0;
            state->CleanTemporariesM();
            state->ownThread.reset();
            delete std::exchange(state, nullptr);
        }
    }
};

HolderCL& holderM()
{
    static thread_local HolderCL holder;
    return holder;
}

} // namespace

ThreadStateCL::ThreadStateCL()
    : wnds(&isWindow)
    , gdi(&isGdiObject)
    , dcs(&isDc)
    , imageLists(&isImageList)
{
    imageLists.UseSerialM(&serial);
    wnds.UseSerialM(&serial);
    gdi.UseSerialM(&serial);
    dcs.UseSerialM(&serial);
}

ThreadStateCL& ThreadStateCL::ThisM()
{
    HolderCL& holder = holderM();
    if (holder.state == nullptr) {
        holder.state = new ThreadStateCL;
    }
    return *holder.state;
}

ThreadStateCL* ThreadStateCL::KnownM()
{
    return holderM().state;
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
