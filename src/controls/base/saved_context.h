#pragma once
#include "toolkit/toolkit.h"

// Leaves a context as it was: what is selected into it, and how it is set.
class SavedContextCL
{
public:
    explicit SavedContextCL(CDC& dc)
        : dc_(dc)
        , saved_(dc.SaveDC())
    {
    }
    SavedContextCL(const SavedContextCL&) = delete;
    SavedContextCL& operator=(const SavedContextCL&) = delete;
    ~SavedContextCL() { dc_.RestoreDC(saved_); }

private:
    CDC& dc_;
    const int saved_;
};
