#include "support/gone.h"
#include <cstring>
#include <malloc.h>
#include <windows.h>

namespace testing_support {

namespace {

int messages = 0;

void (*originalFree)(void*) = nullptr;
void overwriteAndFree(void* block)
{
    if (block != nullptr) {
        std::memset(block, 0xDD, _msize(block));
    }
    originalFree(block);
}

// Stands in for a function that sends a message.
template <auto function> struct SenderCL;
template <class ResultTP, ResultTP(WINAPI* function)(HWND, UINT, WPARAM, LPARAM)> struct SenderCL<function>
{
    static inline ResultTP(WINAPI* original)(HWND, UINT, WPARAM, LPARAM) = nullptr;
    static ResultTP WINAPI CallM(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        messages += window == HWND_BROADCAST || ::IsWindow(window) ? 0 : 1;
        return original(window, message, wParam, lParam);
    }
};

template <auto function> ImportHooksCL::HookCL senderOf(const char* name)
{
    return { name, reinterpret_cast<void*>(&SenderCL<function>::CallM),
        reinterpret_cast<void**>(&SenderCL<function>::original) };
}

} // namespace

GoneCL::GoneCL()
    : hooks_(
        { { "free", reinterpret_cast<void*>(&overwriteAndFree), reinterpret_cast<void**>(&originalFree) },
            senderOf<&::SendMessageW>("SendMessageW"), senderOf<&::PostMessageW>("PostMessageW") })
{
    messages = 0;
}

int GoneCL::MessagesM()
{
    return messages;
}

} // namespace testing_support
