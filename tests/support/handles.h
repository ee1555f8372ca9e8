#pragma once
#include <cstddef>
#include <string>
#include <vector>

// What this process holds now; tests compare before and after.
namespace testing_support {

std::vector<std::wstring> LiveWindowClassesM(); // Names of LiveWindowsM, to say which ones are left.
int LiveWindowsM();    // Windows of this thread, children and message-only ones included, not the system's.
int LiveGdiObjectsM(); // GDI objects of this process, device contexts included.

struct HeapUse
{
    std::size_t bytes;
    std::size_t blocks;
};
HeapUse LiveHeapM(); // Allocated blocks of all heaps.

} // namespace testing_support
