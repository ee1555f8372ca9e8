#pragma once
#include "support/import_hooks.h"

namespace testing_support {

// While it lives, what the library and the test free is overwritten and kept from use, so that who reads or
// writes it shows, and messages of this thread to windows that are gone are counted (those of one that
// answers message boxes may come too late). One at a time.
class GoneCL
{
public:
    GoneCL();
    GoneCL(const GoneCL&) = delete;
    GoneCL& operator=(const GoneCL&) = delete;
    ~GoneCL();

    // Messages sent or posted to windows that are gone, or posted to none, since the last call.
    static int MessagesM();
    // Freed blocks that somebody wrote into since the last call; all those until now are given back.
    static int WrittenM();

private:
    ImportHooksCL hooks_;
};

} // namespace testing_support
