#include "support/import_hooks.h"
#include <cstdint>
#include <cstring>
#include <utility>
#include <windows.h>

namespace testing_support {

namespace {

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
void exchange(HMODULE module, const std::vector<ImportHooksCL::HookCL>& hooks, bool isHooking)
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
            for (const ImportHooksCL::HookCL& hook : hooks) {
                if (std::strcmp(name, hook.name) == 0) {
                    if (isHooking) {
                        *hook.original = reinterpret_cast<void*>(slot->u1.Function);
                    }
                    put(slot, isHooking ? hook.standIn : *hook.original);
                }
            }
        }
    }
}

} // namespace

ImportHooksCL::ImportHooksCL(std::vector<HookCL> hooks)
    : hooks_(std::move(hooks))
{
    exchangeM(true);
}

ImportHooksCL::~ImportHooksCL()
{
    exchangeM(false);
}

void ImportHooksCL::exchangeM(bool isHooking)
{
    exchange(::GetModuleHandleW(L"panelkit.dll"), hooks_, isHooking);
    exchange(::GetModuleHandleW(nullptr), hooks_, isHooking);
}

} // namespace testing_support
