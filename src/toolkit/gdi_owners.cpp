#include "toolkit/gdi_owners.h"
#include "baselib/moved_bytes.h"
#include <functional>
#include <map>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace {

struct GdiOwnerTP
{
    CObject* object;
    DWORD thread;
};

// One for all threads: an object may go on another one than that which made it. It outlives all objects of
// static storage.
struct GdiOwnersTP
{
    std::mutex lock;
    std::unordered_map<HGDIOBJ, GdiOwnerTP> byHandle;
    std::map<const CObject*, HGDIOBJ, std::less<const CObject*>> byAddress;

    void EraseM(const CObject* owner)
    {
        auto at = byAddress.find(owner);
        if (at != byAddress.end()) {
            auto found = byHandle.find(at->second);
            if (found != byHandle.end() && found->second.object == owner) {
                byHandle.erase(found);
            }
            byAddress.erase(at);
        }
    }
};

void movedM(const void* from, size_t size, const void* to);

GdiOwnersTP& gdiOwnersM()
{
    static GdiOwnersTP* const owners = [] {
        slHearMovedBytes(&movedM);
        return new GdiOwnersTP;
    }();
    return *owners;
}

void movedM(const void* from, size_t size, const void* to)
{
    GdiOwnersTP& owners = gdiOwnersM();
    std::lock_guard<std::mutex> guard(owners.lock);
    auto first = owners.byAddress.lower_bound(static_cast<const CObject*>(from));
    auto last = owners.byAddress.lower_bound(
        reinterpret_cast<const CObject*>(static_cast<const char*>(from) + size));
    struct MovedTP
    {
        const CObject* from;
        HGDIOBJ handle;
        DWORD thread; // 0: another object has taken the handle since
    };
    std::vector<MovedTP> moved;
    for (auto at = first; at != last; ++at) {
        auto found = owners.byHandle.find(at->second);
        const bool owns = found != owners.byHandle.end() && found->second.object == at->first;
        moved.push_back({ at->first, at->second, owns ? found->second.thread : 0 });
    }
    // All go before any comes: the ranges may overlap.
    for (const MovedTP& one : moved) {
        owners.EraseM(one.from);
    }
    for (const MovedTP& one : moved) {
        if (to != nullptr && one.thread != 0) {
            const auto distance = reinterpret_cast<UINT_PTR>(one.from) - reinterpret_cast<UINT_PTR>(from);
            auto* now = reinterpret_cast<CObject*>(reinterpret_cast<UINT_PTR>(to) + distance);
            owners.byHandle[one.handle] = { now, one.thread };
            owners.byAddress[now] = one.handle;
        }
    }
}

} // namespace

void GdiOwnersCL::AddM(HGDIOBJ handle, CObject* owner)
{
    GdiOwnersTP& owners = gdiOwnersM();
    std::lock_guard<std::mutex> guard(owners.lock);
    owners.EraseM(owner);
    owners.byHandle[handle] = { owner, ::GetCurrentThreadId() };
    owners.byAddress[owner] = handle;
}

void GdiOwnersCL::RemoveM(const CObject* owner)
{
    GdiOwnersTP& owners = gdiOwnersM();
    std::lock_guard<std::mutex> guard(owners.lock);
    owners.EraseM(owner);
}

CObject* GdiOwnersCL::FindM(HGDIOBJ handle)
{
    GdiOwnersTP& owners = gdiOwnersM();
    std::lock_guard<std::mutex> guard(owners.lock);
    auto found = owners.byHandle.find(handle);
    const bool isOwn = found != owners.byHandle.end() && found->second.thread == ::GetCurrentThreadId();
    return isOwn ? found->second.object : nullptr;
}
