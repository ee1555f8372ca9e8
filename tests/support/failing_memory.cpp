#include "support/failing_memory.h"
#include <cstdlib>
#include <new>

namespace {

std::size_t failing = 0;
std::size_t requests = 0;
std::size_t live = 0;

} // namespace

extern "C" {
void* __real_malloc(std::size_t size);
void __real_free(void* block);

// The linker puts these in the place of malloc and free wherever this program itself calls them.
void* __wrap_malloc(std::size_t size)
{
    if (++requests == failing) {
        return nullptr;
    }
    void* const block = __real_malloc(size);
    live += block != nullptr ? 1 : 0;
    return block;
}
void __wrap_free(void* block)
{
    live -= block != nullptr ? 1 : 0;
    __real_free(block);
}
}

void* operator new(std::size_t size)
{
    void* const block = __wrap_malloc(size > 0 ? size : 1);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return __wrap_malloc(size > 0 ? size : 1);
}
void* operator new[](std::size_t size)
{
    return ::operator new(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& none) noexcept
{
    return ::operator new(size, none);
}
void operator delete(void* block) noexcept
{
    __wrap_free(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    __wrap_free(block);
}
void operator delete[](void* block) noexcept
{
    __wrap_free(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    __wrap_free(block);
}

namespace testing_support {

FailingRequestCL::FailingRequestCL(std::size_t number)
{
    failing = number;
    requests = 0;
}

bool FailingRequestCL::EndM()
{
    const bool hasFailed = failing > 0 && requests >= failing;
    failing = 0;
    return hasFailed;
}

std::size_t LiveBlocksM()
{
    return live;
}

} // namespace testing_support
