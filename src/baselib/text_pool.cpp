#include "baselib/text_pool.h"
#include <algorithm>
#include <atomic>
#include <new>

namespace {

using UsersTP = std::atomic<int>;   // What a pool's block begins with: how many texts hold it,
constexpr int PoolsShare = 1 << 30; // and with them its pool, which so counts its texts without any locking.
constexpr std::size_t LeastBlock = 1024;
constexpr std::size_t LargestBlock = 16384;

void letGo(char* block, int users)
{
    UsersTP* const count = reinterpret_cast<UsersTP*>(block);
    if (count->fetch_sub(users, std::memory_order_acq_rel) == users) {
        count->~UsersTP();
        ::operator delete(block);
    }
}

} // namespace

char* slNewText(std::size_t size)
{
    constexpr slTextBackTP Own = 0;
    char* const block = static_cast<char*>(::operator new(sizeof Own + size));
    std::memcpy(block, &Own, sizeof Own);
    return block + sizeof Own;
}

void slDeleteText(char* text)
{
    if (text == nullptr) {
        return;
    }
    slTextBackTP back = 0;
    std::memcpy(&back, text - sizeof back, sizeof back);
    if (back == 0) {
        ::operator delete(text - sizeof back);
    } else {
        letGo(text - back, 1);
    }
}

TextPoolCL::~TextPoolCL()
{
    if (block_ != nullptr) {
        letGo(block_, PoolsShare - texts_);
    }
}

char* TextPoolCL::newElsewhereM(std::size_t size)
{
    if (size > LongText) {
        return slNewText(size);
    }
    const std::size_t next = std::clamp(size_ * 2, LeastBlock, LargestBlock);
    char* const made = static_cast<char*>(::operator new(next));
    ::new (static_cast<void*>(made)) UsersTP(PoolsShare);
    if (block_ != nullptr) {
        letGo(block_, PoolsShare - texts_);
    }
    block_ = made;
    size_ = next;
    used_ = sizeof(UsersTP);
    texts_ = 0;
    return NewM(size);
}
