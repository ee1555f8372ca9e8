// The bytes that a control of a dialog of 4,000 takes in this process, and what the same windows take by
// plain calls.
#include "measures.h"
#include "raw_dialog.h"
#include <memory>
#include <psapi.h>

using namespace mixed;

namespace {

constexpr int Controls = 4000;

double usedBytes()
{
    double bytes = 0;
    const HANDLE heap = ::GetProcessHeap();
    PROCESS_HEAP_ENTRY entry {};
    ::HeapLock(heap);
    while (::HeapWalk(heap, &entry)) {
        bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData + entry.cbOverhead : 0;
    }
    ::HeapUnlock(heap);
    return bytes;
}

template <class DialogTP, class... ArgumentsTP> double bytesEach(ArgumentsTP... arguments)
{
    std::vector<std::unique_ptr<DialogTP>> dialogs;
    dialogs.push_back(std::make_unique<DialogTP>(arguments...));
    dialogs.back()->BuildM(); // What stays once it is there.
    const double before = usedBytes();
    dialogs.push_back(std::make_unique<DialogTP>(arguments...));
    dialogs.back()->BuildM();
    return (usedBytes() - before) / Controls;
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
