#pragma once
#include "toolkit/object.h"

// Objects that threads wait for. A name in GBK (null: none) makes one object of all processes' that have it.
// A handle that the system refuses is null, and every wait for it fails.
class PANELKIT_API CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)
public:
    ~CSyncObject() override;
    operator HANDLE() const { return m_hObject; }
    virtual BOOL Lock(DWORD timeoutMs = INFINITE); // FALSE: the time is over, or there is no such object
    // Lets the object go; FALSE: it was not held.
    virtual BOOL Unlock() = 0;
    // The same so many times; *previous (may be null): how many before. Only a semaphore counts.
    virtual BOOL Unlock(LONG count, LPLONG previous = nullptr);

    HANDLE m_hObject; // closed with the object

protected:
    // Takes the handle over.
    explicit CSyncObject(HANDLE object)
        : m_hObject(object)
    {
    }
};

// An event: set, or not. Waiting for it takes it back unless it is manual.
class PANELKIT_API CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)
public:
    // isManual: only ResetEvent takes it back.
    explicit CEvent(BOOL isSet = FALSE, BOOL isManual = FALSE, LPCSTR name = nullptr,
        LPSECURITY_ATTRIBUTES security = nullptr);
    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }

    using CSyncObject::Unlock;
    BOOL Unlock() override { return TRUE; }
};

// What one thread holds at a time; it may lock it again, and unlocks it as often.
class PANELKIT_API CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)
public:
    // isOwned: the calling thread holds it from the start.
    explicit CMutex(BOOL isOwned = FALSE, LPCSTR name = nullptr, LPSECURITY_ATTRIBUTES security = nullptr);
    using CSyncObject::Unlock;
    BOOL Unlock() override { return ::ReleaseMutex(m_hObject); }
};

// Lets so many in at a time.
class PANELKIT_API CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)
public:
    // count: how many may come in now, of most.
    explicit CSemaphore(
        LONG count = 1, LONG most = 1, LPCSTR name = nullptr, LPSECURITY_ATTRIBUTES security = nullptr);

    // Lets one more in.
    BOOL Unlock() override { return Unlock(1); }
    BOOL Unlock(LONG count, LPLONG previous = nullptr) override
    {
        return ::ReleaseSemaphore(m_hObject, count, previous);
    }
};

// Of one process; it has no handle, and waiting for it knows no end.
class PANELKIT_API CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)
public:
    CCriticalSection();
    ~CCriticalSection() override;
    // The system's structure, which stays the object's.
    operator CRITICAL_SECTION*() { return &m_sect; }
    // Waits until it is free: TRUE. The same thread may lock it again.
    BOOL Lock() { return Lock(INFINITE); }
    BOOL Lock(DWORD timeoutMs) override;
    using CSyncObject::Unlock;

    // Lets it go: TRUE.
    BOOL Unlock() override;

    CRITICAL_SECTION m_sect; // the system's structure
};

// Holds an object as long as it lives: what it has locked it unlocks.
class PANELKIT_API CSingleLock
{
public:
    // For that object, which must not be null and must live as long. locks: at once, however long it takes.
    explicit CSingleLock(CSyncObject* object, BOOL locks = FALSE)
        : object_(object)
    {
        if (locks) {
            Lock();
        }
    }
    ~CSingleLock() { Unlock(); }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;
    // Waits for it, so many milliseconds; FALSE: in vain.
    BOOL Lock(DWORD timeoutMs = INFINITE) { return isLocked_ = object_->Lock(timeoutMs); }
    // Lets it go; TRUE: this holds it no longer.
    BOOL Unlock()
    {
        if (isLocked_) {
            isLocked_ = !object_->Unlock();
        }
        return !isLocked_;
    }
    // Whether this holds it.
    BOOL IsLocked() const { return isLocked_; }

private:
    CSyncObject* object_;
    BOOL isLocked_ = FALSE;
};
