#pragma once
#include <string>
#include <vector>
#include <windows.h>

namespace testing_support {

// While it lives, memory faults and the like are noted, also those of the system's controls that the system
// passes over: the message is then not done, and what the fault left behind goes on. One at a time.
class FaultsCL
{
public:
    // onFault: called at each; it runs in the midst of it, and the system must not be asked for much.
    explicit FaultsCL(void (*onFault)(const EXCEPTION_POINTERS& fault) = nullptr);
    FaultsCL(const FaultsCL&) = delete;
    FaultsCL& operator=(const FaultsCL&) = delete;
    ~FaultsCL();

    std::vector<std::string> SeenM() const; // "c0000005 at comctl32.dll+1a2b", the first few.
};

// Writes to stderr where a thread stands that is stopped there, and who called.
void WriteStackM(const CONTEXT& context);

} // namespace testing_support
