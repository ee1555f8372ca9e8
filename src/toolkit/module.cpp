#include "toolkit/module.h"
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

void AfxLogFailure(LPCSTR call, LPCSTR argument)
{
    char line[160];
    std::snprintf(line, sizeof line, "toolkit: %s(%.60s) failed, error %lu\n", call,
        argument == nullptr ? "" : argument, ::GetLastError());
    ::OutputDebugStringA(line);
}
