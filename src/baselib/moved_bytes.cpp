#include "baselib/moved_bytes.h"
#include <atomic>

namespace {

std::atomic<slMovedBytesTP> movedBytesListener { nullptr };

} // namespace

void slTellMovedBytes(const void* from, std::size_t size, const void* to)
{
    const slMovedBytesTP listener = movedBytesListener;
    if (listener != nullptr) {
        listener(from, size, to);
    }
}

void slHearMovedBytes(slMovedBytesTP listener)
{
    movedBytesListener = listener;
}
