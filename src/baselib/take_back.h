#pragma once
#include <utility>

// Takes back what has been begun when a scope is left before its end, by an exception: the function is called
// unless KeepM was. It must not throw.
template <class FunctionTP> class TakeBackCL
{
public:
    // Keeps `takeBack` for the end of the scope.
    explicit TakeBackCL(FunctionTP takeBack)
        : takeBack_(std::move(takeBack))
    {
    }
    TakeBackCL(const TakeBackCL&) = delete;
    TakeBackCL& operator=(const TakeBackCL&) = delete;
    ~TakeBackCL()
    {
        if (!isKept_) {
            takeBack_();
        }
    }

    void KeepM() { isKept_ = true; } // What has been begun is done.

private:
    FunctionTP takeBack_;
    bool isKept_ { false };
};
