#include "toolkit/sync.h"
#include "toolkit/window_class.h"

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::~CSyncObject()
{
    if (m_hObject != nullptr) {
        ::CloseHandle(m_hObject);
    }
}

BOOL CSyncObject::Lock(DWORD timeoutMs)
{
    const DWORD end = ::WaitForSingleObject(m_hObject, timeoutMs);
    return end == WAIT_OBJECT_0 || end == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG)
{
    return TRUE;
}

CEvent::CEvent(BOOL isSet, BOOL isManual, LPCSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(::CreateEventW(security, isManual, isSet, WindowClassNameCL(name)))
{
}

CMutex::CMutex(BOOL isOwned, LPCSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(::CreateMutexW(security, isOwned, WindowClassNameCL(name)))
{
}

CSemaphore::CSemaphore(LONG count, LONG most, LPCSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(::CreateSemaphoreW(security, count, most, WindowClassNameCL(name)))
{
}

CCriticalSection::CCriticalSection()
    : CSyncObject(nullptr)
{
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection()
{
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock(DWORD)
{
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}
