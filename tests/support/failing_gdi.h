#pragma once
#include "support/import_hooks.h"

namespace testing_support {

// While it lives, requests of the library and of the test for GDI objects and device contexts are counted,
// and some fail as they do when the system has no more. What the system does for itself is left alone. One at
// a time.
class FailingGdiCL
{
public:
    enum Which
    {
        None,    // All are granted.
        One,     // The one of that number fails; the first is 1.
        AllSince // That one and all behind it.
    };
    explicit FailingGdiCL(Which which, int number = 0);
    FailingGdiCL(const FailingGdiCL&) = delete;
    FailingGdiCL& operator=(const FailingGdiCL&) = delete;
    ~FailingGdiCL() = default;

    int CountM() const; // Requests so far.

private:
    ImportHooksCL hooks_;
};

} // namespace testing_support
