#pragma once
#include "toolkit/object.h"
#include <algorithm>
#include <map>
#include <memory>

// Objects that FromHandle made for handles without one of their own, by handle and class. The serial number
// tells which are younger than a message loop, as only those may go while it idles: older ones may still be
// in use by the code that started the loop.
template <class HandleTP> class TemporariesCL
{
public:
    explicit TemporariesCL(bool (*isAlive)(HandleTP))
        : isAlive_(isAlive)
    {
    }

    // handles: the members of the class in which its objects hold their handle.
    template <class ObjectTP, auto... handles> ObjectTP* GetM(HandleTP handle)
    {
        if (handle == nullptr) {
            return nullptr;
        }
        KeyTP key(handle, RUNTIME_CLASS(ObjectTP));
        auto found = kept_.find(key);
        if (found != kept_.end()) {
            return static_cast<ObjectTP*>(found->second.object.get());
        }
        dropDeadM();
        std::unique_ptr<CObject, LetGoTP> object(new ObjectTP, &letGoM<ObjectTP, handles...>);
        ObjectTP* made = static_cast<ObjectTP*>(object.get());
        ((made->*handles = handle), ...);
        kept_.emplace(key, KeptTP { std::move(object), ++*serial_ });
        return made;
    }

    void UseSerialM(unsigned long long* serial) { serial_ = serial; }
    void CleanM(unsigned long long after)
    {
        for (auto at = kept_.begin(); at != kept_.end();) {
            at = at->second.serial > after ? kept_.erase(at) : std::next(at);
        }
    }
    size_t CountM() const { return kept_.size(); }

private:
    typedef std::pair<HandleTP, const CRuntimeClass*> KeyTP;
    typedef void (*LetGoTP)(CObject*);
    struct KeptTP
    {
        std::unique_ptr<CObject, LetGoTP> object;
        unsigned long long serial;
    };

    template <class ObjectTP, auto... handles> static void letGoM(CObject* object)
    {
        // The handle is not the temporary object's own.
        ((static_cast<ObjectTP*>(object)->*handles = nullptr), ...);
        delete object;
    }

    // A host with a message loop of its own never idles here; this keeps the number of objects bounded.
    void dropDeadM()
    {
        if (kept_.size() < limit_) {
            return;
        }
        for (auto at = kept_.begin(); at != kept_.end();) {
            at = isAlive_(at->first.first) ? std::next(at) : kept_.erase(at);
        }
        limit_ = std::max<size_t>(256, 2 * kept_.size());
    }

    std::map<KeyTP, KeptTP> kept_;
    bool (*isAlive_)(HandleTP);
    unsigned long long* serial_ = nullptr;
    size_t limit_ = 256;
};
