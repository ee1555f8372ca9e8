#include "support/handles.h"
#include <windows.h>
#include <winternl.h>

namespace testing_support {

namespace {

using Names = std::vector<std::wstring>;

BOOL CALLBACK nameOne(HWND window, LPARAM data)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    const std::wstring text = name;
    // These are the system's, made with a thread's first window.
    if (text != L"IME" && text != L"MSCTFIME UI" && text != L"OleMainThreadWndClass") {
        reinterpret_cast<Names*>(data)->push_back(text);
    }
    return TRUE;
}

BOOL CALLBACK nameFamily(HWND window, LPARAM data)
{
    nameOne(window, data);
    EnumChildWindows(window, nameOne, data);
    return TRUE;
}

// An entry of the table of GDI handles, which the system keeps readable in each process (64 bit).
struct GdiEntry
{
    ULONG64 object;
    ULONG owner;
    USHORT unique;
    UCHAR type; // 0: the entry is free.
    UCHAR flags;
    ULONG64 user;
};

} // namespace

std::vector<std::wstring> LiveWindowClassesM()
{
    Names names;
    EnumThreadWindows(GetCurrentThreadId(), nameFamily, reinterpret_cast<LPARAM>(&names));
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) {
            nameFamily(window, reinterpret_cast<LPARAM>(&names));
        }
    }
    return names;
}

int LiveWindowsM()
{
    return static_cast<int>(LiveWindowClassesM().size());
}

int LiveGdiObjectsM()
{
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (counted > 0) {
        return static_cast<int>(counted);
    }
    // Wine counts nothing, but has the table: the process block's member GdiSharedHandleTable.
    PROCESS_BASIC_INFORMATION process = {};
    NtQueryInformationProcess(
        GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr);
    const auto* block = reinterpret_cast<const BYTE*>(process.PebBaseAddress);
    const auto* table = *reinterpret_cast<const GdiEntry* const*>(block + 0xf8);
    int count = 0;
    for (int i = 0; table && i < 0x10000; ++i) {
        count += table[i].type != 0;
    }
    return count;
}

HeapUse LiveHeapM()
{
    HANDLE heaps[256];
    const DWORD count = GetProcessHeaps(256, heaps);
    HeapUse use = {};
    for (DWORD i = 0; i < count && i < 256; ++i) {
        HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heaps[i], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                use.bytes += entry.cbData;
                ++use.blocks;
            }
        }
        HeapUnlock(heaps[i]);
    }
    return use;
}

} // namespace testing_support
