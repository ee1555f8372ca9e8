#include "controls/lists/tree_lines.h"
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

using Triple = std::array<int, 3>;

// The walk as it reads, with a position in each of the four lists.
class PlainTreeCL
{
public:
    explicit PlainTreeCL(const std::vector<Triple>& keys)
        : keys_(keys)
    {
        alive_.fill(std::vector<bool>(keys.size(), true));
    }

    void DelM(int index)
    {
        for (auto& list : alive_) {
            list[static_cast<size_t>(index)] = false;
        }
    }

    template <class PlaceTP> void GenerateM(int parentKey, int parent, const PlaceTP& place)
    {
        const auto n = std::count(alive_[0].begin(), alive_[0].end(), true);
        std::array<int, 4> at {};
        for (size_t list = 0; list < 4; ++list) {
            at[list] = nextM(list, -1);
        }
        for (long i = 0; i < n; ++i) {
            if (at[0] >= 0 && keys_[static_cast<size_t>(at[0])][0] == parentKey) {
                const Triple line = keys_[static_cast<size_t>(at[0])];
                const int made = place(parent, line);
                for (size_t list = 0; list < 4; ++list) {
                    alive_[list][static_cast<size_t>(at[list])] = false;
                }
                if (made != 0) {
                    GenerateM(line[1], made, place);
                }
            }
            for (size_t list = 0; list < 4; ++list) {
                at[list] = nextM(list, at[list]); // From -1 it starts again.
            }
        }
    }

    std::string LeftM() const
    {
        std::string left;
        for (size_t i = 0; i < keys_.size(); ++i) {
            left += alive_[0][i] ? std::to_string(i) + " " : "";
        }
        return left;
    }

private:
    int nextM(size_t list, int from) const
    {
        for (size_t i = static_cast<size_t>(from + 1); i < keys_.size(); ++i) {
            if (alive_[list][i]) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }

    std::vector<Triple> keys_;
    std::array<std::vector<bool>, 4> alive_;
};

TreeLinesCL linesOf(const std::vector<Triple>& keys)
{
    TreeLinesCL lines;
    for (const Triple& triple : keys) {
        const std::string text = "t" + std::to_string(triple[2]);
        lines.AddM(triple.data(), text.c_str(), ("s" + text).c_str(), ("n" + text).c_str());
    }
    return lines;
}

std::string leftOf(const TreeLinesCL& lines)
{
    std::string left;
    for (int i = lines.GetFirstIdxM(); i >= 0; i = lines.GetNextIdxM(i)) {
        left += std::to_string(i) + " ";
    }
    return left;
}

// What is placed where: lines are (parent, key, number).
std::string generated(const std::vector<Triple>& keys)
{
    TreeLinesCL lines = linesOf(keys);
    std::string log;
    int root = 0;
    std::vector<int> items(keys.size());
    lines.GenerateM(0, &root, [&](void* parent, const TreeLinesCL::LineCL& line) -> void* {
        int* item = &items[static_cast<size_t>(line.data)];
        *item = line.data;
        log += std::string(log.empty() ? "" : " ") + line.text + "<"
            + (parent == &root ? "root" : std::to_string(*static_cast<int*>(parent)));
        return item;
    });
    return log;
}

} // namespace

TEST(TreeLines, ChildrenFollowTheirParentDepthFirst)
{
    EXPECT_EQ(generated({ { 0, 1, 0 }, { 1, 2, 1 }, { 0, 3, 2 }, { 2, 4, 3 } }), "t0<root t1<0 t3<1 t2<root");
}

TEST(TreeLines, OrphansAndCyclesAreNotPlaced)
{
    EXPECT_EQ(generated({ { 9, 1, 0 }, { 2, 3, 1 }, { 3, 2, 2 }, { 4, 4, 3 }, { 0, 5, 4 } }), "t4<root");
}

TEST(TreeLines, ChildrenOfEqualKeysGoUnderTheFirst)
{
    EXPECT_EQ(generated({ { 0, 7, 0 }, { 0, 7, 1 }, { 7, 8, 2 }, { 7, 9, 3 } }), "t0<root t2<0 t3<0 t1<root");
}

TEST(TreeLines, OwnKeyZeroBecomesTheParentOfAllLaterTopLines)
{
    EXPECT_EQ(generated({ { 0, 1, 0 }, { 0, 0, 1 }, { 0, 2, 2 }, { 2, 3, 3 }, { 0, 4, 4 } }),
        "t0<root t1<root t2<1 t3<2 t4<1");
}

TEST(TreeLines, EachLineIsPlacedOnceAndTheUnplacedStay)
{
    TreeLinesCL lines = linesOf({ { 0, 1, 0 }, { 5, 2, 1 }, { 1, 3, 2 } });
    int placed = 0;
    const auto place = [&placed](void*, const TreeLinesCL::LineCL&) -> void* { return &++placed; };
    lines.GenerateM(0, nullptr, place);
    EXPECT_EQ(placed, 2);
    EXPECT_EQ(leftOf(lines), "1 ");
    lines.GenerateM(0, nullptr, place);
    EXPECT_EQ(placed, 2);
}

TEST(TreeLines, FailedLineKeepsItsChildrenOutButIsUsedUp)
{
    TreeLinesCL lines = linesOf({ { 0, 1, 0 }, { 1, 2, 1 }, { 0, 3, 2 } });
    std::string log;
    lines.GenerateM(0, nullptr, [&log](void*, const TreeLinesCL::LineCL& line) -> void* {
        log += line.text;
        return line.data == 0 ? nullptr : &log;
    });
    EXPECT_EQ(log, "t0t2");
    EXPECT_EQ(leftOf(lines), "1 ");
}

TEST(TreeLines, LineGivesAllItsTexts)
{
    const TreeLinesCL lines = linesOf({ { 4, 5, 6 } });
    const TreeLinesCL::LineCL line = lines.LineM(0);
    EXPECT_EQ(line.parentKey * 100 + line.ownKey * 10 + line.data, 456);
    EXPECT_STREQ(line.text, "t6");
    EXPECT_STREQ(line.selectedPicture, "st6");
    EXPECT_STREQ(line.normalPicture, "nt6");
}

TEST(TreeLines, CopiesAreIndependent)
{
    TreeLinesCL lines
        = linesOf({ { 0, 1, 0 }, { 0, 2, 1 }, { 0, 3, 2 }, { 0, 4, 3 }, { 0, 5, 4 }, { 0, 6, 5 } });
    const TreeLinesCL copy(lines);
    lines.DelItemM(2);
    EXPECT_EQ(leftOf(copy), "0 1 2 3 4 5 ");
    EXPECT_STREQ(copy.LineM(2).text, "t2");
}

// Few different keys, so that orphans, cycles, equal keys and keys of 0 all turn up.
TEST(TreeLines, GenerationEqualsThePlainWalkOnRandomLines)
{
    std::mt19937 random(20260105);
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    int placedLines = 0;
    for (int round = 0; round < 500; ++round) {
        const int count = below(61);
        const int keyCount = 1 + below(25);
        std::vector<Triple> keys;
        for (int i = 0; i < count; ++i) {
            keys.push_back({ below(keyCount), below(keyCount), i });
        }
        TreeLinesCL lines = linesOf(keys);
        PlainTreeCL plain(keys);
        for (int i = 0; i < count / 8; ++i) {
            const int index = below(count);
            lines.DelItemM(index);
            plain.DelM(index);
        }
        const int failing = 2 + below(12);
        std::string expected;
        std::string got;
        std::vector<char> items(static_cast<size_t>(count) + 1);
        plain.GenerateM(0, 0, [&](int parent, const Triple& line) {
            expected += std::to_string(parent) + ">" + std::to_string(line[2]) + " ";
            return (line[2] + 1) % failing == 0 ? 0 : line[2] + 1;
        });
        lines.GenerateM(0, items.data(), [&](void* parent, const TreeLinesCL::LineCL& line) -> void* {
            got += std::to_string(static_cast<char*>(parent) - items.data()) + ">" + std::to_string(line.data)
                + " ";
            ++placedLines;
            return (line.data + 1) % failing == 0 ? nullptr : &items[static_cast<size_t>(line.data) + 1];
        });
        ASSERT_EQ(got, expected) << "round " << round;
        ASSERT_EQ(leftOf(lines), plain.LeftM()) << "round " << round;
    }
    EXPECT_GT(placedLines, 2000);
}

// Recursion would overflow the stack, a walk for each line would take minutes.
TEST(TreeLines, LongChainIsWalkedInOnePass)
{
    constexpr int Length = 200000;
    TreeLinesCL lines;
    for (int i = Length - 1; i >= 0; --i) {
        const int triple[3] = { i, i + 1, i };
        lines.AddM(triple, "x", "s", "n");
    }
    int depth = 0;
    lines.GenerateM(0, nullptr, [&depth](void*, const TreeLinesCL::LineCL& line) -> void* {
        EXPECT_EQ(line.data, depth);
        return &++depth;
    });
    EXPECT_EQ(depth, Length);
}
