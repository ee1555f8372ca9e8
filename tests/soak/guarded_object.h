#pragma once
#include <cstdint>
#include <string>
#include <vector>
#include <windows.h>

// Objects of a class in pages of their own, which nobody may touch once the object is deleted. Each page that
// is touched all the same is noted and given back, so that the program goes on.
class GuardedPagesCL
{
public:
    // Notes touches as long as it lives; the last one frees the pages.
    GuardedPagesCL()
        : handler_(::AddVectoredExceptionHandler(1, &onFault))
    {
        touches_.clear();
    }
    GuardedPagesCL(const GuardedPagesCL&) = delete;
    GuardedPagesCL& operator=(const GuardedPagesCL&) = delete;
    ~GuardedPagesCL()
    {
        ::RemoveVectoredExceptionHandler(handler_);
        for (const RangeCL& range : freed_) {
            ::VirtualFree(range.begin, 0, MEM_RELEASE);
        }
        freed_.clear();
    }

    // Where in which module the program was at each touch; empty: there was none.
    static std::string TouchesM()
    {
        std::string all;
        for (const std::uintptr_t at : touches_) {
            HMODULE module = nullptr;
            ::GetModuleHandleExW(
                GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                reinterpret_cast<LPCWSTR>(at), &module);
            char name[MAX_PATH] = "";
            ::GetModuleFileNameA(module, name, MAX_PATH);
            const std::string path = name;
            char offset[32];
            std::snprintf(offset, sizeof offset, "+0x%llx",
                static_cast<unsigned long long>(at - reinterpret_cast<std::uintptr_t>(module)));
            all += " " + path.substr(path.rfind('\\') + 1) + offset;
        }
        return all;
    }
    static void ForgetM() { touches_.clear(); }

    static void* AllocateM(std::size_t bytes)
    {
        return ::VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void FreeM(void* object, std::size_t bytes)
    {
        DWORD before = 0;
        freed_.push_back({ static_cast<std::uint8_t*>(object), bytes });
        ::VirtualProtect(object, bytes, PAGE_NOACCESS, &before);
    }

private:
    struct RangeCL
    {
        std::uint8_t* begin;
        std::size_t bytes;
    };

    static LONG CALLBACK onFault(EXCEPTION_POINTERS* fault)
    {
        const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
        if (record.ExceptionCode != EXCEPTION_ACCESS_VIOLATION) {
            return EXCEPTION_CONTINUE_SEARCH;
        }
        auto* const at = reinterpret_cast<std::uint8_t*>(record.ExceptionInformation[1]);
        for (const RangeCL& range : freed_) {
            if (at >= range.begin && at < range.begin + range.bytes) {
                DWORD before = 0;
                ::VirtualProtect(at, 1, PAGE_READWRITE, &before);
                touches_.push_back(reinterpret_cast<std::uintptr_t>(record.ExceptionAddress));
                return EXCEPTION_CONTINUE_EXECUTION;
            }
        }
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline std::vector<RangeCL> freed_;
    static inline std::vector<std::uintptr_t> touches_;
    void* handler_;
};

// The class, its objects made by new in such pages.
template <class ObjectTP> class GuardedCL : public ObjectTP
{
public:
    using ObjectTP::ObjectTP;
    static void* operator new(std::size_t bytes) { return GuardedPagesCL::AllocateM(bytes); }
    static void operator delete(void* object, std::size_t bytes) { GuardedPagesCL::FreeM(object, bytes); }
};
