// Lengths at other scales: what stays true of rectangles, and which numbers of a record are lengths.
#include "baselib/gbk_texts.h"
#include "records/scaling.h"
#include "records/section.h"
#include "support/description.h"
#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int Scales[] = { 50, 75, 100, 125, 150, 175, 200, 300 };

} // namespace

TEST(Scaling, OneHundredPercentChangesNothing)
{
    for (const int length : { INT_MIN, -7, -1, 0, 1, 7, INT_MAX }) {
        EXPECT_EQ(ScaleCL().PlaceM(length), length);
        EXPECT_EQ(ScaleCL(0).SizeM(length), length);
        EXPECT_EQ(ScaleCL(-150).LengthM(3,
                      length > 9        ? 9
                          : length < -9 ? -9
                                        : length),
            length > 9        ? 9
                : length < -9 ? -9
                              : length);
    }
}

TEST(Scaling, TheNearestPixelIsMeantAndHalvesGoUp)
{
    const ScaleCL half(150);
    EXPECT_EQ(half.PlaceM(1), 2);
    EXPECT_EQ(half.PlaceM(2), 3);
    EXPECT_EQ(half.PlaceM(-1), -1);
    EXPECT_EQ(half.PlaceM(-3), -4);
    EXPECT_EQ(ScaleCL(125).PlaceM(1), 1);
    EXPECT_EQ(ScaleCL(10).SizeM(1), 1);
    EXPECT_EQ(ScaleCL(10).SizeM(-1), -1);
    EXPECT_EQ(ScaleCL(10).SizeM(0), 0);
    EXPECT_EQ(ScaleCL(300).PlaceM(INT_MAX), INT_MAX);
    EXPECT_EQ(ScaleCL(300).PlaceM(INT_MIN), INT_MIN);
}

TEST(Scaling, WhatTouchesTouchesAndEqualGapsDifferByAPixelAtMost)
{
    std::mt19937 random(1);
    const auto number
        = [&random](int most) { return static_cast<int>(random() % 2001) * most / 1000 - most; };
    for (int round = 0; round < 20000; ++round) {
        const ScaleCL scale(Scales[random() % std::size(Scales)]);
        const int begin = number(900);
        const int width = std::abs(number(300));
        const int gap = number(40);
        const int to = scale.PlaceM(begin);
        ASSERT_EQ(to + scale.LengthM(begin, width), scale.PlaceM(begin + width));
        const int other = number(900);
        const int first = scale.PlaceM(begin + gap) - to;
        const int second = scale.PlaceM(other + gap) - scale.PlaceM(other);
        ASSERT_LE(std::abs(first - second), 1);
        // Order is kept: nothing leaves what it stood in.
        ASSERT_EQ(scale.PlaceM(begin) <= scale.PlaceM(other),
            scale.PlaceM(begin) == scale.PlaceM(other) ? true : begin <= other);
    }
}
