#include "support/faults.h"
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <psapi.h>

namespace testing_support {

namespace {

constexpr size_t MostKept = 16;

struct Kept
{
    DWORD code;
    const void* place;
};
std::atomic<size_t> count { 0 };
Kept kept[MostKept];
void (*toTell)(const EXCEPTION_POINTERS&) { nullptr };
PVOID handler { nullptr };

bool isFault(DWORD code)
{
    switch (code) {
    case static_cast<DWORD>(EXCEPTION_ACCESS_VIOLATION):
    case static_cast<DWORD>(EXCEPTION_ARRAY_BOUNDS_EXCEEDED):
    case static_cast<DWORD>(EXCEPTION_DATATYPE_MISALIGNMENT):
    case static_cast<DWORD>(EXCEPTION_ILLEGAL_INSTRUCTION):
    case static_cast<DWORD>(EXCEPTION_INT_DIVIDE_BY_ZERO):
    case static_cast<DWORD>(EXCEPTION_INT_OVERFLOW):
    case static_cast<DWORD>(EXCEPTION_IN_PAGE_ERROR):
    case static_cast<DWORD>(EXCEPTION_PRIV_INSTRUCTION):
    case static_cast<DWORD>(EXCEPTION_STACK_OVERFLOW):
        return true;
    default:
        return false;
    }
}

LONG CALLBACK note(EXCEPTION_POINTERS* fault)
{
    if (isFault(fault->ExceptionRecord->ExceptionCode)) {
        const size_t at = count++;
        if (at < MostKept) {
            kept[at] = { fault->ExceptionRecord->ExceptionCode, fault->ExceptionRecord->ExceptionAddress };
        }
        if (toTell != nullptr) {
            toTell(*fault);
        }
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

// "comctl32.dll+1a2b"; "" for what is no code of a module.
std::string placeName(const void* place)
{
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<LPCWSTR>(place), &module)) {
        return "";
    }
    char path[MAX_PATH] = "";
    GetModuleFileNameA(module, path, MAX_PATH);
    const std::string name = path;
    char offset[32];
    std::snprintf(offset, sizeof offset, "+%llx",
        static_cast<unsigned long long>(
            static_cast<const BYTE*>(place) - reinterpret_cast<const BYTE*>(module)));
    return name.substr(name.find_last_of("\\/") + 1) + offset;
}

bool isCode(const void* place)
{
    MEMORY_BASIC_INFORMATION memory {};
    constexpr DWORD Executable = PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE;
    return VirtualQuery(place, &memory, sizeof memory) != 0 && memory.Type == MEM_IMAGE
        && (memory.Protect & Executable) != 0;
}

void writePlace(const char* how, DWORD64 place)
{
    std::fprintf(stderr, "  %s %s\n", how, placeName(reinterpret_cast<const void*>(place)).c_str());
}

} // namespace

FaultsCL::FaultsCL(void (*onFault)(const EXCEPTION_POINTERS&))
{
    count = 0;
    toTell = onFault;
    handler = AddVectoredExceptionHandler(1, note);
}

FaultsCL::~FaultsCL()
{
    RemoveVectoredExceptionHandler(handler);
    toTell = nullptr;
}

std::vector<std::string> FaultsCL::SeenM() const
{
    std::vector<std::string> seen;
    for (size_t i = 0; i < count && i < MostKept; ++i) {
        char code[16];
        std::snprintf(code, sizeof code, "%08lx at ", kept[i].code);
        const std::string name = placeName(kept[i].place);
        seen.push_back(code + (name.empty() ? "no module" : name));
    }
    return seen;
}

void WriteStackM(const CONTEXT& context)
{
    constexpr int MostWords = 700;
    CONTEXT at = context;
    while (isCode(reinterpret_cast<const void*>(at.Rip))) {
        writePlace("in", at.Rip);
        DWORD64 base = 0;
        if (PRUNTIME_FUNCTION function = RtlLookupFunctionEntry(at.Rip, &base, nullptr)) {
            void* data = nullptr;
            DWORD64 frame = 0;
            RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, at.Rip, function, &at, &data, &frame, nullptr);
        } else { // A function that calls none: where it returns to lies on top.
            at.Rip = *reinterpret_cast<const DWORD64*>(at.Rsp);
            at.Rsp += sizeof(DWORD64);
        }
    }
    // The system's other half called back: what stands on the stack before that may have been called.
    MEMORY_BASIC_INFORMATION memory {};
    VirtualQuery(reinterpret_cast<const void*>(at.Rsp), &memory, sizeof memory);
    const DWORD64 end = reinterpret_cast<DWORD64>(memory.BaseAddress) + memory.RegionSize;
    for (int words = 0; at.Rsp < end && words < MostWords; ++words, at.Rsp += sizeof(DWORD64)) {
        const DWORD64 place = *reinterpret_cast<const DWORD64*>(at.Rsp);
        if (isCode(reinterpret_cast<const void*>(place))) {
            writePlace("perhaps", place);
        }
    }
    std::fflush(stderr);
}

} // namespace testing_support
