#pragma once
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <optional>

// Requests for memory, with operator new and with malloc as the library calls it, may fail here. For programs
// that link failing_memory.cpp; their linker puts its malloc and free in the place of the system's.
namespace testing_support {

// While it lives, the request of that number fails, the first is 1; all others are granted. One at a time.
class FailingRequestCL
{
public:
    explicit FailingRequestCL(std::size_t number);
    FailingRequestCL(const FailingRequestCL&) = delete;
    FailingRequestCL& operator=(const FailingRequestCL&) = delete;
    ~FailingRequestCL() { EndM(); }
    bool EndM(); // From now on all are granted. Whether one has failed.
};

std::size_t LiveBlocksM(); // Allocated and not yet freed.

// What an action gives; none when it finds no memory.
template <class ActionTP> auto UnlessMemoryEndsM(ActionTP&& action) -> std::optional<decltype(action())>
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

// Calls run(number) for 1, 1 + step, ... as long as it tells that a request has failed. How often that was.
// Each call must free what it has allocated, but for the first one, in which things may be made that stay.
inline std::size_t EachRequestFailsM(const std::function<bool(std::size_t)>& run, std::size_t step = 1)
{
    run(SIZE_MAX);
    std::size_t failed = 0;
    for (std::size_t number = 1;; number += step, ++failed) {
        SCOPED_TRACE(number);
        const std::size_t live = LiveBlocksM();
        const bool hasFailed = run(number);
        EXPECT_EQ(LiveBlocksM(), live);
        if (!hasFailed || testing::Test::HasFailure()) {
            return failed;
        }
    }
}

} // namespace testing_support
