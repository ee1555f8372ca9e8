// The bytes that a control of a dialog of 2,000 takes in this process, and what the same windows take by
// plain calls.
#include "measures.h"
#include "raw_dialog.h"
#define PSAPI_VERSION 2 // In kernel32.
#include <psapi.h>

using namespace mixed;

namespace {

constexpr int Controls = 2000;

// What the process has for itself, in whole pages.
double usedBytes()
{
    PROCESS_MEMORY_COUNTERS counters {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PagefileUsage);
}

template <class DialogTP, class... ArgumentsTP> double bytesEach(ArgumentsTP... arguments)
{
    // They stay: what one gives back, the next would take.
    const auto add = [&] { (new DialogTP(arguments...))->BuildM(); };
    add(); // With what stays once it is there.
    const double before = usedBytes();
    add();
    add();
    return (usedBytes() - before) / (2.0 * Controls);
}

} // namespace

int main()
{
    const DescriptionFileCL file(description(Controls));
    const double raw = bytesEach<RawDialogCL>(Controls);
    tell("bytes_per_control", bytesEach<HostCL>(file.path()), "bytes");
    tell("bytes_per_control_raw", raw, "bytes");
    return 0;
}
