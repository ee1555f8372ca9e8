#pragma once
#include "toolkit/platform.h"

class CDumpContext;
class CObject;

// What a class knows of itself at run time: its name, its base and, where it can, how to make an object.
struct PANELKIT_API CRuntimeClass
{
    LPCSTR m_lpszClassName;                // as it is written
    int m_nObjectSize;                     // bytes
    UINT m_wSchema;                        // not used: 0xFFFF
    CObject* (*m_pfnCreateObject)();       // null: not dynamically creatable
    CRuntimeClass* (*m_pfnGetBaseClass)(); // null: the root

    CObject* CreateObject() const;                       // on the heap, the caller's; null where it cannot
    BOOL IsDerivedFrom(const CRuntimeClass* base) const; // a class derives from itself too
};

// What knows its class at run time (DECLARE_DYNAMIC). Not copied.
class PANELKIT_API CObject
{
public:
    virtual ~CObject() = default;
    // The class of the object.
    virtual CRuntimeClass* GetRuntimeClass() const;
    // Whether it is of that class or one derived from it.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const
    {
        return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
    }
    // What RUNTIME_CLASS(CObject) gives; it lives as long as the program.
    static CRuntimeClass* GetThisClass();
    static CRuntimeClass classCObject;
    virtual void AssertValid() const { }            // asserts that the object is in order; for ASSERT_VALID
    virtual void Dump(CDumpContext& context) const; // tells what the object holds

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

protected:
    CObject() = default;
};

// The CRuntimeClass* of a class that is declared dynamic.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// Before and behind what the macros declare: an application's classes may mark what they override or not, and
// clang would warn of those who do both.
#ifdef __clang__
#define AFX_DECLARED_BEGIN                                                                                   \
    _Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Winconsistent-missing-override\"")
#define AFX_DECLARED_END _Pragma("clang diagnostic pop")
#else
// Nothing for other compilers.
#define AFX_DECLARED_BEGIN
#define AFX_DECLARED_END
#endif

// In a class: it knows itself at run time. IMPLEMENT_DYNAMIC goes with it.
#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    static CRuntimeClass* GetThisClass();                                                                    \
    AFX_DECLARED_BEGIN virtual CRuntimeClass* GetRuntimeClass() const;                                       \
    AFX_DECLARED_END

// The same, and CRuntimeClass::CreateObject can make an object. IMPLEMENT_DYNCREATE goes with it.
#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

// What both have in common.
#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, create)                                      \
    CRuntimeClass class_name::class##class_name = { #class_name, static_cast<int>(sizeof(class_name)),       \
        0xFFFF, create, &base_class_name::GetThisClass };                                                    \
    CRuntimeClass* class_name::GetThisClass()                                                                \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                       \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }

// In the source of a class that has DECLARE_DYNAMIC.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

// In the source of a class that has DECLARE_DYNCREATE.
#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject()                                                                      \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)

// The object as the class asked for, or null where it is none.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

// What DYNAMIC_DOWNCAST calls.
inline CObject* AfxDynamicDownCast(const CRuntimeClass* runtimeClass, CObject* object)
{
    return object != nullptr && object->IsKindOf(runtimeClass) ? object : nullptr;
}

// The object as the class that it is known to be of; asserted.
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))

// What STATIC_DOWNCAST calls.
inline CObject* AfxStaticDownCast([[maybe_unused]] const CRuntimeClass* runtimeClass, CObject* object)
{
    ASSERT(object == nullptr || object->IsKindOf(runtimeClass));
    return object;
}

// Asserts that an object is of a class.
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
