// How controls follow the size of their dialog: what the file says of it, and where they go.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include "support/description_files.h"
#include <gtest/gtest.h>
#include <random>

namespace {

const char* const Section = "[随窗口变化]\n2\n1\n功能号 左 上 右 下\n1001 0 1 2 1\n1002 1 0 1 2\n";

std::string textOf(const BindingCL& binding)
{
    std::string text = std::to_string(binding.control) + ":";
    for (const int edge : { binding.left, binding.top, binding.right, binding.bottom }) {
        text += " " + std::to_string(edge);
    }
    return text + "\n";
}

SectionStatus read(const std::string& utf8, std::string* texts)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(slUtf8ToGbk(utf8)));
    return slReadBindings(io, [texts](const BindingCL& binding) {
        *texts += textOf(binding);
        return 1;
    });
}

std::string placeOf(const EdgesCL& edges)
{
    return std::to_string(edges.left) + " " + std::to_string(edges.top) + " " + std::to_string(edges.right)
        + " " + std::to_string(edges.bottom);
}

// All four edges bound alike.
BindingCL allBound(int binding)
{
    return { 1, binding, binding, binding, binding };
}

const int Dialog[2] = { 400, 300 };

// Every number and text that a reading of the whole file gives, but for the bindings.
std::string valuesOf(const std::string& bytes)
{
    class CollectorCL : public FieldVisitorCL
    {
    public:
        void IntM(const char*, int& value) override { all += std::to_string(value) + " "; }
        void IntsM(const char* name, int* numbers, int count) override
        {
            for (int i = 0; i < count; ++i) {
                IntM(name, numbers[i]);
            }
        }
        void RealM(const char*, float& value) override { all += std::to_string(value) + " "; }
        void TextM(const char*, CharArr& text, const TextFormCL&) override { all += text.TextM(); }
        void ListM(const char*, int rows, const std::function<void(FieldVisitorCL&, int)>& see) override
        {
            for (int row = 0; row < rows; ++row) {
                see(*this, row);
            }
        }
        std::string all;
    } values;
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(bytes));
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
    header.EachFieldM(values);
    slEachKind([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        values.all += std::to_string(static_cast<int>(slReadSection(io, records, &count))) + "\n";
        for (int i = 0; i < count; ++i) {
            records[i].EachCommonFieldM(values);
            records[i].EachFieldM(values);
        }
    });
    slReadRelations(io, [&](RelationCL& relation) { relation.EachFieldM(values); });
    DVrNewRotateBtnArr series;
    series.FmReadInterfaceM(&io);
    for (int i = 0; i < series.GetBoundM(); ++i) {
        series[i].EachCommonFieldM(values, 1);
        series[i].EachFieldM(values);
    }
    return values.all;
}

} // namespace

TEST(Binding, IsReadInTheOrderOfTheFile)
{
    std::string texts;
    EXPECT_EQ(read(Section, &texts), SectionStatus::Read);
    EXPECT_EQ(texts, "1001: 0 1 2 1\n1002: 1 0 1 2\n");
}

TEST(Binding, WhatIsMissingStays)
{
    std::string texts;
    EXPECT_EQ(read("[标题]\n0\n0\n", &texts), SectionStatus::Missing);
    EXPECT_EQ(read("[随窗口变化]\n0\n0\n", &texts), SectionStatus::Empty);
    EXPECT_EQ(read("[随窗口变化]\n1001\n0\n1 2 3\n", &texts), SectionStatus::Broken);
    EXPECT_EQ(texts, "");
    EXPECT_EQ(read("[随窗口变化]\n2\n0\n7 1 x\n", &texts), SectionStatus::Read);
    EXPECT_EQ(texts, "7: 1 0 0 0\n0: 0 0 0 0\n");
}

TEST(Binding, ItsSectionIsNothingToWhoDoesNotKnowIt)
{
    const std::string file = wholeFile(PANELKIT_SAMPLES "/every_kind.dlg");
    const std::string section = slUtf8ToGbk(Section);
    const std::string values = valuesOf(file);
    ASSERT_GT(values.size(), 1000U);
    int places = 0;
    for (std::size_t line = 0; line != std::string::npos; line = file.find("\n[", line + 1)) {
        const std::size_t at = line == 0 ? 0 : line + 1;
        std::string with = file;
        EXPECT_EQ(valuesOf(with.insert(at, section)), values) << "at byte " << at;
        ++places;
    }
    EXPECT_GE(places, 25);
    EXPECT_EQ(valuesOf(file + "\n" + section), values);
}

TEST(Binding, AtTheSizeOfTheFileAndBelowNothingMoves)
{
    std::mt19937 random(17);
    const auto below
        = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int i = 0; i < 2000; ++i) {
        const int left = below(600) - 100;
        const int top = below(500) - 100;
        const EdgesCL edges { left, top, left + below(200), top + below(200) };
        const BindingCL binding { 1, below(5) - 1, below(5) - 1, below(5) - 1, below(5) - 1 };
        const KeptSizeCL kept { below(2) == 1, below(2) == 1 };
        const GrowthCL same(Dialog, Dialog[0] - below(2) * below(300), Dialog[1] - below(2) * below(300));
        EXPECT_EQ(placeOf(slBoundEdges(edges, binding, same, kept)), placeOf(edges)) << textOf(binding);
    }
}

TEST(Binding, BoundEdgesKeepTheirDistances)
{
    const EdgesCL edges { 20, 30, 120, 90 };
    for (const int more : { 1, 7, 100, 2001 }) {
        const GrowthCL growth(Dialog, 400 + more, 300 + 2 * more);
        const auto bound = [&](int left, int top, int right, int bottom) {
            return slBoundEdges(edges, { 1, left, top, right, bottom }, growth);
        };
        EXPECT_EQ(placeOf(bound(0, 0, 0, 0)), placeOf(edges));
        EXPECT_EQ(
            placeOf(bound(1, 1, 1, 1)), placeOf({ 20 + more, 30 + 2 * more, 120 + more, 90 + 2 * more }));
        EXPECT_EQ(placeOf(bound(0, 0, 1, 1)), placeOf({ 20, 30, 120 + more, 90 + 2 * more }));
        EXPECT_EQ(placeOf(bound(7, -1, 1, 0)), placeOf({ 20, 30, 120 + more, 90 }));
    }
}

TEST(Binding, SharedNeighboursFillTheWholeAndNeverOverlap)
{
    std::mt19937 random(4);
    for (int i = 0; i < 200; ++i) {
        // Columns from edge to edge, some of them with gaps between.
        std::vector<EdgesCL> columns;
        for (int at = 0; at < Dialog[0];) {
            const int gap = static_cast<int>(random() % 2) * static_cast<int>(random() % 9);
            const int left = std::min(Dialog[0], at == 0 ? 0 : at + gap);
            at = std::min(Dialog[0], left + 1 + static_cast<int>(random() % 60));
            columns.push_back({ left, 0, at, Dialog[1] });
        }
        const int width = Dialog[0] + static_cast<int>(random() % 1500);
        const GrowthCL growth(Dialog, width, Dialog[1]);
        int end = 0;
        for (std::size_t k = 0; k < columns.size(); ++k) {
            const EdgesCL now = slBoundEdges(columns[k], allBound(EdgeShares), growth);
            const bool touches = k == 0 || columns[k].left == columns[k - 1].right;
            EXPECT_TRUE(touches ? now.left == end : now.left >= end) << now.left << " behind " << end;
            EXPECT_GE(now.right - now.left, columns[k].right - columns[k].left);
            end = now.right;
        }
        EXPECT_EQ(end, width);
    }
}

TEST(Binding, AnEdgeNeverPassesOneThatGoesFurther)
{
    const int order[] = { EdgeStays, EdgeShares, EdgeMoves };
    std::mt19937 random(5);
    for (int i = 0; i < 5000; ++i) {
        const int left = static_cast<int>(random() % 500) - 50;
        const int right = left + static_cast<int>(random() % 200);
        const auto nearer = random() % 3;
        const auto further = nearer + random() % (3 - nearer);
        const BindingCL binding { 1, order[nearer], 0, order[further], 0 };
        const GrowthCL growth(Dialog, Dialog[0] + static_cast<int>(random() % 3000), Dialog[1]);
        const EdgesCL now = slBoundEdges({ left, 0, right, 10 }, binding, growth);
        EXPECT_GE(now.right - now.left, right - left) << textOf(binding) << left << " " << right;
        EXPECT_FALSE(binding.ShrinksM(Along::X));
        EXPECT_EQ(binding.StretchesM(Along::X), nearer < further);
    }
    const BindingCL shrinking { 1, EdgeMoves, EdgeShares, EdgeShares, EdgeStays };
    EXPECT_TRUE(shrinking.ShrinksM(Along::X) && shrinking.ShrinksM(Along::Y));
    const EdgesCL gone = slBoundEdges({ 10, 10, 20, 20 }, shrinking, GrowthCL(Dialog, 2000, 3000));
    EXPECT_EQ(gone.right, gone.left); // Never less than nothing.
}

TEST(Binding, WhatKeepsItsSizeStandsInTheMiddleOfWhatItWouldFill)
{
    const EdgesCL edges { 100, 50, 140, 70 };
    const GrowthCL growth(Dialog, 500, 420);
    const auto placed = [&](int first, int second) {
        return placeOf(slBoundEdges(edges, { 1, first, first, second, second }, growth, { true, true }));
    };
    EXPECT_EQ(placed(EdgeStays, EdgeMoves), "150 110 190 130");
    EXPECT_EQ(placed(EdgeMoves, EdgeMoves), "200 170 240 190");
    EXPECT_EQ(placed(EdgeShares, EdgeShares), "130 74 170 94");
    EXPECT_EQ(placeOf(slBoundEdges(edges, { 1, 0, 0, 1, 1 }, growth, { false, true })), "100 110 240 130");
}

TEST(Binding, NumbersThatCannotBeMeantDoNoHarm)
{
    const int least[2] = { 1, 1 };
    const GrowthCL huge(least, 2147483647, 2147483647);
    const EdgesCL edges { -2147483647 - 1, 5, 2147483647, 2147483647 };
    EXPECT_EQ(placeOf(slBoundEdges(edges, allBound(EdgeMoves), huge)), "-2 2147483647 2147483647 2147483647");
    EXPECT_EQ(placeOf(slBoundEdges(edges, allBound(EdgeShares), huge)),
        "-2147483648 2147483647 2147483647 2147483647");
    const int nothing[2] = { 0, -5 };
    EXPECT_EQ(
        placeOf(slBoundEdges({ 1, 2, 3, 4 }, allBound(EdgeShares), GrowthCL(nothing, 10, 10))), "1 2 3 4");
}
