#include "toolkit/thread_state.h"

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID atEndOfProgram)
{
    // At the end of the program the system takes all back, and other threads were stopped anywhere.
    if (reason == DLL_THREAD_DETACH || (reason == DLL_PROCESS_DETACH && atEndOfProgram == nullptr)) {
        ThreadStateCL::ThreadEndsM();
    }
    return TRUE;
}
