#pragma once
#include "support/import_hooks.h"

namespace testing_support {

// While it lives, what the library and the test free is overwritten, so that who reads it shows, and messages
// to windows that are gone are counted.
class GoneCL
{
public:
    GoneCL();

    // Messages sent or posted to windows that don't exist (any more), or posted to none.
    static int MessagesM();

private:
    ImportHooksCL hooks_;
};

} // namespace testing_support
