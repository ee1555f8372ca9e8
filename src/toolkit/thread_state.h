#pragma once
#include "toolkit/app.h"
#include "toolkit/common_controls.h"
#include "toolkit/dc.h"
#include "toolkit/wnd.h"
#include <algorithm>
#include <map>
#include <memory>
#include <unordered_map>

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

    template <class ObjectTP> ObjectTP* GetM(HandleTP handle)
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
        std::unique_ptr<CObject, LetGoTP> object(new ObjectTP, &letGoM<ObjectTP>);
        ObjectTP* made = static_cast<ObjectTP*>(object.get());
        setHandleM(made, handle);
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

    template <class ObjectTP> static void letGoM(CObject* object)
    {
        setHandleM(static_cast<ObjectTP*>(object), nullptr); // the handle is not the temporary object's own
        delete object;
    }
    static void setHandleM(CWnd* object, HWND handle) { object->m_hWnd = handle; }
    static void setHandleM(CGdiObject* object, HGDIOBJ handle) { object->m_hObject = handle; }
    static void setHandleM(CImageList* object, HIMAGELIST handle) { object->m_hImageList = handle; }
    static void setHandleM(CDC* object, HDC handle) { object->m_hDC = object->m_hAttribDC = handle; }

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

// Tells whether a window object still lives after code that may have destroyed it.
class LifeCL
{
public:
    explicit LifeCL(CWnd* wnd);
    ~LifeCL();
    LifeCL(const LifeCL&) = delete;
    LifeCL& operator=(const LifeCL&) = delete;
    bool IsAliveM() const { return wnd_ != nullptr; }
    CWnd* WndM() const { return wnd_; }

private:
    friend struct ThreadStateCL;
    CWnd* wnd_;
    LifeCL* outer_;
};

// Gives the next window created by this thread to wnd, before that window gets its first message.
class CreationHookCL
{
public:
    explicit CreationHookCL(CWnd* wnd, HWND parent = nullptr, UINT id = 0);
    ~CreationHookCL();
    CreationHookCL(const CreationHookCL&) = delete;
    CreationHookCL& operator=(const CreationHookCL&) = delete;
    bool HasCaughtM() const { return hasCaught_; }

private:
    friend struct ThreadStateCL;
    friend class CWnd;
    static LRESULT CALLBACK procM(int code, WPARAM wParam, LPARAM lParam);
    LRESULT catchM(WPARAM wParam, LPARAM lParam); // The hook's answer.
    CWnd* wnd_;
    HWND parent_;
    UINT id_;
    HHOOK hook_;
    bool hasCaught_ = false;
    CreationHookCL* outer_;
};

// What the window system forces to be kept a thread: which object belongs to a handle, and what is going on.
struct ThreadStateCL
{
    ThreadStateCL();
    static ThreadStateCL& ThisM();

    std::unordered_map<HWND, CWnd*> permanent;
    TemporariesCL<HWND> wnds;
    TemporariesCL<HGDIOBJ> gdi;
    TemporariesCL<HDC> dcs;
    TemporariesCL<HIMAGELIST> imageLists;
    unsigned long long serial = 0;

    MSG message = {}; // being handled by the innermost window procedure
    int depth = 0;    // of window procedures
    LifeCL* lives = nullptr;
    CreationHookCL* creations = nullptr;

    int loopDepth = 0;                 // depth of window procedures when the innermost message loop began
    unsigned long long loopSerial = 0; // objects up to this one belong to code outside that loop
    CWinThread* thread = nullptr;
    std::unique_ptr<CWinThread> ownThread; // made on demand where the application made none

    static void ForgetM(CWnd* wnd); // the object is gone
    void CleanTemporariesM();
};

// Keeps the temporary objects of the code outside for as long as a loop of its own runs.
class LoopCL
{
public:
    explicit LoopCL(bool isOutermost = false);
    ~LoopCL();
    LoopCL(const LoopCL&) = delete;
    LoopCL& operator=(const LoopCL&) = delete;

private:
    int depth_;
    unsigned long long serial_;
};
