#include "support/failing_gdi.h"
#include <vector>
#include <windows.h>

#include <commctrl.h>

namespace testing_support {

namespace {

FailingGdiCL::Which failing = FailingGdiCL::None;
int failingNumber = 0;
int requests = 0;

bool isGranted()
{
    ++requests;
    return failing == FailingGdiCL::None || requests < failingNumber
        || (failing == FailingGdiCL::One && requests > failingNumber);
}

// Stands in for one function of the system.
template <auto function> struct StandInCL;
template <class ResultTP, class... ArgumentTP, ResultTP(WINAPI* function)(ArgumentTP...)>
struct StandInCL<function>
{
    static inline ResultTP(WINAPI* original)(ArgumentTP...) = nullptr;
    static ResultTP WINAPI CallM(ArgumentTP... arguments)
    {
        return isGranted() ? original(arguments...) : ResultTP {};
    }
};

template <auto function> ImportHooksCL::HookCL hookOf(const char* name)
{
    using StandInTP = StandInCL<function>;
    return { name, reinterpret_cast<void*>(&StandInTP::CallM),
        reinterpret_cast<void**>(&StandInTP::original) };
}

#define HOOK(name) hookOf<&::name>(#name)
const std::vector<ImportHooksCL::HookCL> hooks = { HOOK(BeginPaint), HOOK(CreateBitmap),
    HOOK(CreateCompatibleBitmap), HOOK(CreateCompatibleDC), HOOK(CreateDCW), HOOK(CreateDIBSection),
    HOOK(CreateDiscardableBitmap), HOOK(CreateEllipticRgn), HOOK(CreateEllipticRgnIndirect),
    HOOK(CreateFontIndirectW), HOOK(CreateFontW), HOOK(CreateHalftonePalette), HOOK(CreateICW),
    HOOK(CreatePatternBrush), HOOK(CreatePen), HOOK(CreatePolygonRgn), HOOK(CreateRectRgn),
    HOOK(CreateRectRgnIndirect), HOOK(CreateSolidBrush), HOOK(ExtCreateRegion), HOOK(GetDC), HOOK(GetDCEx),
    HOOK(GetWindowDC), HOOK(ImageList_Create), HOOK(ImageList_Duplicate), HOOK(LoadImageW) };
#undef HOOK

} // namespace

FailingGdiCL::FailingGdiCL(Which which, int number)
    : hooks_(hooks)
{
    failing = which;
    failingNumber = number;
    requests = 0;
}

int FailingGdiCL::CountM() const
{
    return requests;
}

} // namespace testing_support
