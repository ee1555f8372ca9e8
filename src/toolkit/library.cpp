#include "toolkit/thread_state.h"
#include <cstdio>
#include <cstdlib>
#include <exception>

#ifdef __GLIBCXX__
#include <cxxabi.h>
#include <typeinfo>

// What the compiler's runtime says before it ends a program for an exception that nobody catches. With its
// own words it would bring along the whole reader of C++ names, 45 kB; here the type has its name as it is
// coded.
void __gnu_cxx::__verbose_terminate_handler()
{
    const std::type_info* const type = abi::__cxa_current_exception_type();
    std::fprintf(stderr, "terminate called after throwing an instance of '%s'\n",
        type != nullptr ? type->name() : "nothing");
    std::abort();
}
#endif

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID atEndOfProgram)
{
    // At the end of the program the system takes all back, and other threads were stopped anywhere.
    if (reason == DLL_THREAD_DETACH || (reason == DLL_PROCESS_DETACH && atEndOfProgram == nullptr)) {
        ThreadStateCL::ThreadEndsM();
    }
    return TRUE;
}
