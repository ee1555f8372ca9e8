#include "support/failing_gdi.h"
#include <cstdint>
#include <cstring>
#include <windows.h>

#include <commctrl.h>

namespace testing_support {

namespace {

FailingGdiCL::Which failing = FailingGdiCL::None;
int failingNumber = 0;
int requests = 0;

bool isGranted()
{
    ++requests;
    return failing == FailingGdiCL::None || requests < failingNumber
        || (failing == FailingGdiCL::One && requests > failingNumber);
}

// Stands in for one function of the system.
template <auto function> struct StandInCL;
template <class ResultTP, class... ArgumentTP, ResultTP(WINAPI* function)(ArgumentTP...)>
struct StandInCL<function>
{
    static inline ResultTP(WINAPI* original)(ArgumentTP...) = nullptr;
    static ResultTP WINAPI CallM(ArgumentTP... arguments)
    {
        return isGranted() ? original(arguments...) : ResultTP {};
    }
};

struct HookCL
{
    const char* name;
    void* standIn;
    void** original;
};
template <auto function> HookCL hookOf(const char* name)
{
    using StandInTP = StandInCL<function>;
    return { name, reinterpret_cast<void*>(&StandInTP::CallM),
        reinterpret_cast<void**>(&StandInTP::original) };
}

#define HOOK(name) hookOf<&::name>(#name)
const HookCL hooks[] = { HOOK(BeginPaint), HOOK(CreateBitmap), HOOK(CreateCompatibleBitmap),
    HOOK(CreateCompatibleDC), HOOK(CreateDIBSection), HOOK(CreateFontIndirectW), HOOK(CreateFontW),
    HOOK(CreatePatternBrush), HOOK(CreatePen), HOOK(CreatePolygonRgn), HOOK(CreateRectRgn),
    HOOK(CreateRectRgnIndirect), HOOK(CreateSolidBrush), HOOK(ExtCreateRegion), HOOK(GetDC), HOOK(GetDCEx),
    HOOK(GetWindowDC), HOOK(ImageList_Create) };
#undef HOOK

template <class TP> TP* at(HMODULE module, std::uintptr_t offset)
{
    return reinterpret_cast<TP*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

void put(IMAGE_THUNK_DATA* slot, void* function)
{
    DWORD before = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
    slot->u1.Function = reinterpret_cast<std::uintptr_t>(function);
    ::VirtualProtect(slot, sizeof *slot, before, &before);
}

// In the table of what a module takes from others, each function for its stand-in, or back.
void exchange(HMODULE module, bool isFailing)
{
    const auto* const head = at<IMAGE_NT_HEADERS>(module, at<IMAGE_DOS_HEADER>(module, 0)->e_lfanew);
    const DWORD imports = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* from = at<IMAGE_IMPORT_DESCRIPTOR>(module, imports); from->Name != 0; ++from) {
        const auto* names = at<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
        auto* slot = at<IMAGE_THUNK_DATA>(module, from->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) {
                continue;
            }
            const char* const name = reinterpret_cast<const char*>(
                at<IMAGE_IMPORT_BY_NAME>(module, names->u1.AddressOfData)->Name);
            for (const HookCL& hook : hooks) {
                if (std::strcmp(name, hook.name) == 0) {
                    if (isFailing) {
                        *hook.original = reinterpret_cast<void*>(slot->u1.Function);
                    }
                    put(slot, isFailing ? hook.standIn : *hook.original);
                }
            }
        }
    }
}

void exchangeAll(bool isFailing)
{
    exchange(::GetModuleHandleW(L"panelkit.dll"), isFailing);
    exchange(::GetModuleHandleW(nullptr), isFailing);
}

} // namespace

FailingGdiCL::FailingGdiCL(Which which, int number)
{
    failing = which;
    failingNumber = number;
    requests = 0;
    exchangeAll(true);
}

FailingGdiCL::~FailingGdiCL()
{
    exchangeAll(false);
}

int FailingGdiCL::CountM() const
{
    return requests;
}

} // namespace testing_support
