#pragma once
#include <vector>

namespace testing_support {

// While it lives, functions of the test stand in for those that the library and the test itself take from
// other modules. What the system does for itself is left alone.
class ImportHooksCL
{
public:
    struct HookCL
    {
        const char* name;
        void* standIn;
        void** original; // Where the stand-in finds the function itself.
    };
    explicit ImportHooksCL(std::vector<HookCL> hooks);
    ImportHooksCL(const ImportHooksCL&) = delete;
    ImportHooksCL& operator=(const ImportHooksCL&) = delete;
    ~ImportHooksCL();

private:
    void exchangeM(bool isHooking);

    std::vector<HookCL> hooks_;
};

} // namespace testing_support
