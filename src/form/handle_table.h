#pragma once
#include "form/panelkit_c.h"
#include "toolkit/toolkit.h"
#include <map>
#include <mutex>

// What the handles of the C interface lead to. They are numbers, never given twice, so that an old one is
// known for what it is; each belongs to the thread that keeps it.
template <class HandleTP, class ObjectTP> class HandleTableCL
{
public:
    HandleTP* NewM()
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        return reinterpret_cast<HandleTP*>(++last_);
    }
    void KeepM(const HandleTP* handle, ObjectTP* object)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        entries_[handle] = { object, ::GetCurrentThreadId() };
    }
    void DropM(const HandleTP* handle)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        entries_.erase(handle);
    }
    // PANELKIT_OK, or why there is no object for the caller.
    panelkit_status FindM(const HandleTP* handle, ObjectTP** object)
    {
        if (handle == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const std::lock_guard<std::mutex> lock(mutex_);
        const auto found = entries_.find(handle);
        if (found == entries_.end()) {
            return PANELKIT_ERROR_HANDLE;
        }
        if (found->second.thread != ::GetCurrentThreadId()) {
            return PANELKIT_ERROR_THREAD;
        }
        *object = found->second.object;
        return PANELKIT_OK;
    }
    // Whether the test says yes to one of the calling thread's.
    template <class TestTP> bool HasM(TestTP&& test)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        for (const auto& [handle, entry] : entries_) {
            if (entry.thread == ::GetCurrentThreadId() && test(*entry.object)) {
                return true;
            }
        }
        return false;
    }

private:
    struct EntryCL
    {
        ObjectTP* object;
        DWORD thread;
    };
    std::mutex mutex_;
    std::map<const HandleTP*, EntryCL> entries_;
    std::uintptr_t last_ { 0 };
};
