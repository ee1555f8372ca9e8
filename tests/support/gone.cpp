#include "support/gone.h"
#include <algorithm>
#include <cstring>
#include <malloc.h>
#include <mutex>
#include <utility>
#include <windows.h>

namespace testing_support {

namespace {

constexpr unsigned char Gone = 0xDD;

int messages = 0;
DWORD thread = 0; // Whose messages count.

// Freed blocks, not given back yet.
struct BlockCL
{
    unsigned char* begin;
    std::size_t bytes;
};
BlockCL blocks[200000]; // Who frees must not ask for memory.
std::size_t blockCount = 0;
std::mutex blocksMutex;

void (*originalFree)(void*) = nullptr;
void keepGone(void* block)
{
    if (block == nullptr) {
        return;
    }
    const std::lock_guard<std::mutex> lock(blocksMutex);
    const std::size_t bytes = ::_msize(block);
    std::memset(block, Gone, bytes);
    if (blockCount < std::size(blocks)) {
        blocks[blockCount++] = { static_cast<unsigned char*>(block), bytes };
    } else {
        originalFree(block);
    }
}

// Stands in for a function that sends a message.
template <auto function, bool refusesNone> struct SenderCL;
template <class ResultTP, ResultTP(WINAPI* function)(HWND, UINT, WPARAM, LPARAM), bool refusesNone>
struct SenderCL<function, refusesNone>
{
    static inline ResultTP(WINAPI* original)(HWND, UINT, WPARAM, LPARAM) = nullptr;
    static ResultTP WINAPI CallM(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const bool isThere
            = window == HWND_BROADCAST || (window == nullptr && refusesNone) || ::IsWindow(window);
        messages += isThere || ::GetCurrentThreadId() != thread ? 0 : 1;
        return original(window, message, wParam, lParam);
    }
};

template <auto function, bool refusesNone> ImportHooksCL::HookCL senderOf(const char* name)
{
    using SenderTP = SenderCL<function, refusesNone>;
    return { name, reinterpret_cast<void*>(&SenderTP::CallM), reinterpret_cast<void**>(&SenderTP::original) };
}

} // namespace

GoneCL::GoneCL()
    : hooks_({ { "free", reinterpret_cast<void*>(&keepGone), reinterpret_cast<void**>(&originalFree) },
        senderOf<&::SendMessageW, true>("SendMessageW"), senderOf<&::PostMessageW, false>("PostMessageW") })
{
    messages = 0;
    thread = ::GetCurrentThreadId();
}

GoneCL::~GoneCL()
{
    WrittenM();
}

int GoneCL::MessagesM()
{
    return std::exchange(messages, 0);
}

int GoneCL::WrittenM()
{
    const std::lock_guard<std::mutex> lock(blocksMutex);
    int written = 0;
    for (; blockCount > 0; --blockCount) {
        const BlockCL& block = blocks[blockCount - 1];
        const bool isWhole = std::all_of(
            block.begin, block.begin + block.bytes, [](unsigned char byte) { return byte == Gone; });
        written += isWhole ? 0 : 1;
        originalFree(block.begin);
    }
    return written;
}

} // namespace testing_support
