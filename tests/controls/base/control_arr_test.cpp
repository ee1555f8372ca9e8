#include "controls/labels/label.h"
#include <gtest/gtest.h>
#include <random>

// An array of controls finds them by id whatever is done to it between two look-ups.

namespace {

DuLabelCL label(int id)
{
    DuLabelCL made(AliveTag);
    made.SetFunctionIDM(id);
    return made;
}

// The slot of the first alive control with that id, by a walk; -1 when there is none.
int walkedSlot(DuLabelArr& labels, int id)
{
    for (int i = 0; i < labels.GetBoundM(); ++i) {
        if (labels.CheckAvailableM(i) == 1 && labels.ElementAtM(i).GetFunctionIDM() == id) {
            return i;
        }
    }
    return -1;
}

int foundSlot(DuLabelArr& labels, int id)
{
    const DuLabelCL* const found = labels.GetControlPtrM(id);
    return found == nullptr ? -1 : static_cast<int>(found - &labels.ElementAtM(0));
}

// Asks more than once, as an answer may be kept.
void expectFound(DuLabelArr& labels, const std::string& after)
{
    for (int round = 0; round < 3; ++round) {
        for (int id = 0; id < 12; ++id) {
            ASSERT_EQ(foundSlot(labels, id), walkedSlot(labels, id)) << "id " << id << " after " << after;
        }
    }
}

} // namespace

TEST(ControlArr, FindsTheFirstOfEqualIds)
{
    DuLabelArr labels;
    for (const int id : { 5, 7, 5, 7 }) {
        labels.AddItemM(label(id));
    }
    EXPECT_EQ(foundSlot(labels, 5), 0);
    EXPECT_EQ(foundSlot(labels, 7), 1);
    EXPECT_EQ(foundSlot(labels, 6), -1);
    labels.DelItemM(0);
    EXPECT_EQ(foundSlot(labels, 5), 2);
    labels.ElementAtM(1).SetFunctionIDM(5);
    EXPECT_EQ(foundSlot(labels, 5), 1);
}

TEST(ControlArr, FindsAControlThatStandsInForAnElement)
{
    DuLabelArr labels;
    labels.AddItemM(label(1));
    EXPECT_EQ(foundSlot(labels, 1), 0);
    EXPECT_EQ(foundSlot(labels, 1), 0);
    auto other = std::make_unique<DuLabelCL>();
    other->SetFunctionIDM(2);
    DuLabelCL* const stand = other.get();
    EXPECT_EQ(labels.GetControlPtrM(2), nullptr);
    EXPECT_EQ(labels.GetControlPtrM(2), nullptr);
    labels.StandInM(0, std::move(other));
    EXPECT_EQ(labels.GetControlPtrM(2), stand);
    EXPECT_EQ(labels.GetControlPtrM(1), nullptr);
    EXPECT_EQ(labels.GetControlPtrM(1), nullptr);
}

TEST(ControlArr, FindsAsAWalkDoesWhateverIsDoneToIt)
{
    std::mt19937 random(20260); // NOLINT: the same steps each time.
    const auto number
        = [&random](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    DuLabelArr labels;
    for (int i = 0; i < 20; ++i) {
        labels.AddItemM(label(number(12)));
    }
    const std::vector<std::pair<std::string, std::function<void(int)>>> deeds {
        { "an id", [&](int i) { labels.ElementAtM(i).SetFunctionIDM(number(12)); } },
        { "base data", [&](int i) { labels.ElementAtM(i).SetBaseInfoM(1, 2, number(12)); } },
        { "deleting", [&](int i) { labels.DelItemM(i); } },
        { "deleting it itself", [&](int i) { labels.ElementAtM(i).DelItemM(); } },
        { "reviving", [&](int i) { labels.ElementAtM(i).SetDeleteTagM(AliveTag); } },
        { "assigning", [&](int i) { labels.ElementAtM(i) = label(number(12)); } },
        { "setting", [&](int i) { labels.SetItemM(label(number(12)), i); } },
        { "adding", [&](int) { labels.AddItemM(label(number(12))); } },
        { "inserting", [&](int i) { labels.InsertItemM(label(number(12)), i); } },
        { "swapping", [&](int i) { labels.SwapM(i, number(labels.GetBoundM())); } },
        { "purging", [&](int) { labels.PurgeDeletedItemM(); } },
        { "purging all", [&](int) { labels.PurgeAllM(nullptr); } },
    };
    for (int step = 0; step < 2000; ++step) {
        const auto& [name, deed] = deeds[static_cast<std::size_t>(number(static_cast<int>(deeds.size())))];
        if (labels.GetBoundM() < 8) {
            labels.AddItemM(label(number(12)));
        }
        deed(number(labels.GetBoundM()));
        expectFound(labels, name);
    }
}

TEST(ControlArr, ACopyFindsItsOwnControls)
{
    DuLabelArr labels;
    labels.AddItemM(label(1));
    EXPECT_EQ(foundSlot(labels, 1), 0);
    EXPECT_EQ(foundSlot(labels, 1), 0);
    DuLabelArr copy;
    copy = labels;
    copy.ElementAtM(0).SetFunctionIDM(3);
    EXPECT_EQ(foundSlot(copy, 3), 0);
    EXPECT_EQ(foundSlot(copy, 1), -1);
    EXPECT_EQ(foundSlot(labels, 1), 0);
}

TEST(ControlArr, WhatStandsInGoesWithTheElementsThatAnotherArrayReplaces)
{
    class ToldCL : public DuLabelCL
    {
    public:
        explicit ToldCL(bool* isGone)
            : isGone_(isGone)
        {
        }
        ~ToldCL() override { *isGone_ = true; }

    private:
        bool* isGone_;
    };
    bool isGone = false;
    DuLabelArr labels;
    labels.AddItemM(label(1));
    labels.StandInM(0, std::make_unique<ToldCL>(&isGone));
    DuLabelArr& same = labels;
    labels = same;
    EXPECT_FALSE(isGone);
    EXPECT_NE(&labels.ControlAtM(0), &labels.ElementAtM(0));
    DuLabelArr other;
    other.AddItemM(label(2));
    labels = other;
    EXPECT_TRUE(isGone);
    EXPECT_EQ(&labels.ControlAtM(0), &labels.ElementAtM(0));
    EXPECT_EQ(foundSlot(labels, 2), 0);
}
