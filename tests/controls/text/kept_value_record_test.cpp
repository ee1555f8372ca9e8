#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include "controls/text/typed_value.h"
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

std::string bytes(const simpleValD& value)
{
    return { value.text, sizeof value.text };
}

} // namespace

TEST(KeptValue, HoldsByteForByteWhatTheUnionHolds)
{
    std::mt19937 random(7);
    const auto upTo
        = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    for (int round = 0; round < 200; ++round) {
        KeptValueCL kept;
        simpleValD whole;
        for (int step = 0; step < 20; ++step) {
            const int length = upTo(3) == 0 ? 250 + upTo(15) : upTo(20);
            const int zeros = upTo(1) * 0x01000000; // Also numbers of which no byte ends a text.
            const int number = 0x41424344 - zeros * upTo(0x41);
            const std::string text(static_cast<std::size_t>(length), static_cast<char>('a' + upTo(25)));
            switch (upTo(3)) {
            case 0:
                kept.NumberM() = whole.number = number;
                break;
            case 1:
                kept.RealM() = whole.real = static_cast<float>(number);
                break;
            case 2:
                kept.SetTextM(text.c_str());
                slCopyText(whole.text, TextSize, text.c_str());
                break;
            default: {
                const KeptValueCL copy(kept);
                kept.SetTextM("another");
                EXPECT_EQ(bytes(copy.WholeM()), bytes(whole));
                kept = copy;
            }
            }
            ASSERT_EQ(bytes(kept.WholeM()), bytes(whole)) << round << ' ' << step;
            ASSERT_EQ(kept.NumberM(), whole.number);
            ASSERT_STREQ(kept.TextM(), whole.text);
        }
    }
}

TEST(KeptValue, ShortTextsAreNotAllocated)
{
    KeptValueCL kept;
    kept.SetTextM("fifteen letters");
    EXPECT_EQ(static_cast<const void*>(kept.TextM()), static_cast<const void*>(&kept));
    kept.SetTextM("and now sixteen.");
    EXPECT_STREQ(kept.TextM(), "and now sixteen.");
    kept.SetTextM(kept.TextM() + 4);
    EXPECT_STREQ(kept.TextM(), "now sixteen.");
    kept.SetTextM(nullptr);
    EXPECT_STREQ(kept.TextM(), "");
}
