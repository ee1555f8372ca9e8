#pragma once
#include "baselib/api.h"
#include <cstddef>
#include <cstdint>
#include <cstring>

// Where the bytes of a CharArr lie: in a block of their own, or with others in a block of a pool. In front of
// the bytes stands how far in front of them that block begins, so that either kind is deleted alike.

// What stands in front of a text: how far its block begins in front of it; 0 when the block is its own.
using slTextBackTP = std::uint32_t;

// Room for `size` bytes in a block of its own.
char* slNewText(std::size_t size);
// Of either kind; null is harmless. Texts of one pool may be deleted by several threads.
PANELKIT_API void slDeleteText(char* text);

// Makes room for the many short texts that reading a file leaves behind: one block for many of them takes far
// less time than a block for each. A block lives until the last of its texts is deleted. A pool may go before
// its texts.
class PANELKIT_API TextPoolCL
{
public:
    TextPoolCL() = default; // Takes no memory before the first text.
    TextPoolCL(const TextPoolCL&) = delete;
    TextPoolCL& operator=(const TextPoolCL&) = delete;
    ~TextPoolCL();
    // Room for `size` bytes, to be deleted by slDeleteText. What is long gets a block of its own.
    char* NewM(std::size_t size)
    {
        const std::size_t taken = sizeof(slTextBackTP) + size;
        if (taken > size_ - used_ || size > LongText) {
            return newElsewhereM(size);
        }
        const std::size_t at = used_ + sizeof(slTextBackTP);
        const auto back = static_cast<slTextBackTP>(at);
        char* const text = block_ + at;
        std::memcpy(text - sizeof back, &back, sizeof back);
        used_ += taken;
        ++texts_;
        return text;
    }

private:
    enum
    {
        LongText = 512
    };

    char* newElsewhereM(std::size_t size); // What the last block has no room for.

    char* block_ { nullptr }; // The last one; the others are left to their texts.
    std::size_t used_ { 0 };  // Its first bytes.
    std::size_t size_ { 0 };
    int texts_ { 0 }; // That were put into it.
};
