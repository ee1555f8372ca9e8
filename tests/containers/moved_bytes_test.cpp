#include "baselib/moved_bytes.h"
#include "containers/arr_elements.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <map>

// Whoever keeps addresses of what lies in an array learns where it lies now.

namespace {

std::map<std::uintptr_t, int>* kept = nullptr; // value by address

void movedM(const void* from, std::size_t size, const void* to)
{
    const auto begin = reinterpret_cast<std::uintptr_t>(from);
    const auto first = kept->lower_bound(begin);
    const auto last = kept->lower_bound(begin + size);
    const std::map<std::uintptr_t, int> moved(first, last);
    kept->erase(first, last);
    for (const auto& one : moved) {
        if (to != nullptr) {
            (*kept)[one.first - begin + reinterpret_cast<std::uintptr_t>(to)] = one.second;
        }
    }
}

class MovedBytes : public testing::Test
{
protected:
    void SetUp() override
    {
        kept = &kept_;
        slHearMovedBytes(&movedM);
        fill(&arr_, { 1, 2, 3, 4, 5, 6 });
        for (int k = 0; k < 6; ++k) {
            kept_[addressOf(k)] = k + 1;
        }
    }
    void TearDown() override { slHearMovedBytes(nullptr); }
    std::uintptr_t addressOf(int slot) { return reinterpret_cast<std::uintptr_t>(&arr_[slot]); }

    std::map<std::uintptr_t, int> kept_;
    Arr<CountedCL> arr_;
};

} // namespace

TEST_F(MovedBytes, GrowthMovesAll)
{
    arr_.AddSizeM(100);
    ASSERT_EQ(kept_.size(), 6u);
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(kept_[addressOf(k)], k + 1);
    }
}

TEST_F(MovedBytes, InsertionMovesThoseBehind)
{
    arr_.InsertItemM(CountedCL(9), 2);
    EXPECT_EQ(kept_[addressOf(1)], 2);
    EXPECT_EQ(kept_.count(addressOf(2)), 0u);
    for (int k = 3; k < 7; ++k) {
        EXPECT_EQ(kept_[addressOf(k)], k);
    }
}

TEST_F(MovedBytes, AStoreThatIsFreedTakesAllWithIt)
{
    for (int k = 2; k < 6; ++k) {
        arr_.DelItemM(k);
    }
    arr_.PurgeAllM(nullptr);
    EXPECT_TRUE(kept_.empty());
}
