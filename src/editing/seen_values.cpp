#include "editing/seen_values.h"
#include <algorithm>

void SeenBlocksCL::MakeRoomM(SeenValuesCL& values)
{
    constexpr std::size_t Step = 64;
    constexpr std::size_t LeastBlock = 1024;
    const bool isLast
        = values.block_ != nullptr && values.block_ == block_ && values.room_.end == block_.get() + used_;
    if (!isLast || used_ == size_) {
        const std::size_t size = values.size();
        const std::size_t wanted = size * 2 + Step;
        if (wanted > size_ - used_) {
            size_ = std::max({ LeastBlock, size_ * 4, wanted });
            block_.reset(new SeenValueCL[size_]); // Not zeroed: what isn't used costs nothing.
            used_ = 0;
        }
        SeenValueCL* const first = block_.get() + used_;
        std::copy_n(values.first_, size, first);
        values.block_ = block_;
        values.first_ = first;
        values.room_.next = first + size;
        values.room_.end = first + size;
        used_ += size;
    }
    const std::size_t more = std::min(Step, size_ - used_);
    values.room_.end += more;
    used_ += more;
}
