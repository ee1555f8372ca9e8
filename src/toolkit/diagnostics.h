#pragma once
#include "toolkit/exceptions.h"

// Writes to the debugger what an object holds. Texts are GBK.
class PANELKIT_API CDumpContext
{
public:
    // Write a value.
    CDumpContext& operator<<(LPCSTR text);
    CDumpContext& operator<<(LPCWSTR text);
    CDumpContext& operator<<(int value);
    CDumpContext& operator<<(UINT value);
    CDumpContext& operator<<(long value);
    CDumpContext& operator<<(DWORD value);
    CDumpContext& operator<<(double value);
    CDumpContext& operator<<(const void* address);
    CDumpContext& operator<<(const CObject* object); // dumps it
    CDumpContext& operator<<(const CObject& object) { return *this << &object; }
    void SetDepth(int depth) { depth_ = depth; } // 0: of objects that it holds only where they are
    // What SetDepth said; 0 at first.
    int GetDepth() const { return depth_; }

private:
    int depth_ = 0;
};

// The one that writes to the debugger.
PANELKIT_API extern CDumpContext afxDump;

// A line for the debugger, as printf makes it. Texts are GBK, or all wide.
PANELKIT_API void AfxTrace(LPCSTR format, ...);
PANELKIT_API void AfxTrace(LPCWSTR format, ...);

// Asserts that the object is not null and calls its AssertValid.
PANELKIT_API void AfxAssertValidObject(const CObject* object);

// Without effect, arguments included, in programs made with NDEBUG.
#ifdef NDEBUG
#define TRACE(...) static_cast<void>(0)
#define ASSERT_VALID(object) static_cast<void>(0)
#else
// A line for the debugger, as AfxTrace writes it.
#define TRACE(...) AfxTrace(__VA_ARGS__)
// As AfxAssertValidObject.
#define ASSERT_VALID(object) AfxAssertValidObject(object)
#endif
// The same as TRACE, by the number of values.
#define TRACE0(text) TRACE("%s", text)
#define TRACE1(format, one) TRACE(format, one)
#define TRACE2(format, one, two) TRACE(format, one, two)
#define TRACE3(format, one, two, three) TRACE(format, one, two, three)

// In every program: a CInvalidArgException where the condition fails.
#define ENSURE(condition)                                                                                    \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            AfxThrowInvalidArgException();                                                                   \
        }                                                                                                    \
    } while (false)
#define ENSURE_ARG(condition) ENSURE(condition)
#define ENSURE_VALID(object) ENSURE((object) != nullptr)
