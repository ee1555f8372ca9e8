#include "toolkit/object.h"

CRuntimeClass CObject::classCObject
    = { "CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr };

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject == nullptr ? nullptr : m_pfnCreateObject();
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    const CRuntimeClass* at = this;
    while (at != nullptr && at != base) {
        at = at->m_pfnGetBaseClass == nullptr ? nullptr : at->m_pfnGetBaseClass();
    }
    return at != nullptr;
}

CRuntimeClass* CObject::GetThisClass()
{
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}
