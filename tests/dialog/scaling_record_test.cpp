// Which numbers of all records are lengths.
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "records/scaling.h"
#include "support/description_files.h"
#include "support/random_description.h"
#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <vector>

namespace {

// All numbers of a record by the names of their fields.
class NumbersCL : public FieldVisitorCL
{
public:
    void IntM(const char* name, int& value) override { all[name].push_back(value); }
    void RealM(const char* name, float& value) override { all[name].push_back(value); }
    void IntsM(const char* name, int* values, int count) override
    {
        all[name].insert(all[name].end(), values, values + count);
    }
    void RealsM(const char* name, float* values, int count) override
    {
        all[name].insert(all[name].end(), values, values + count);
    }
    void ColourM(const char* name, ColourTP& colour, int*) override { all[name].push_back(colour); }
    void ListM(
        const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see) override
    {
        for (int i = 0; i < rows; ++i) {
            NumbersCL row;
            see(row, i);
            for (const auto& [field, values] : row.all) {
                std::vector<double>& own = all[std::string(name) + "." + field];
                own.insert(own.end(), values.begin(), values.end());
            }
        }
    }
    std::map<std::string, std::vector<double>> all;
};

struct SeenLengthsCL
{
    std::set<std::string> doubled;
    std::set<std::string> others; // Of those with a number other than 0.
};

template <class SeeTP> void compareScaled(SeenLengthsCL& seen, SeeTP&& see)
{
    NumbersCL before;
    see(before);
    ScalingCL scaling(ScaleCL(200));
    see(scaling);
    NumbersCL after;
    see(after);
    for (const auto& [name, values] : before.all) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const double now = after.all[name][i];
            EXPECT_TRUE(now == values[i] || now == 2 * values[i]) << name << ' ' << values[i] << ' ' << now;
            if (values[i] != 0) {
                (now == values[i] ? seen.others : seen.doubled).insert(name);
            }
        }
    }
}

} // namespace

TEST(Scaling, OfEachKindLengthsGrowAndNothingElse)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg")));
    SeenLengthsCL seen;
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
    compareScaled(seen, [&header](FieldVisitorCL& visitor) { header.EachFieldM(visitor); });
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        EXPECT_GT(count, 0) << std::string(decltype(records)::KindName);
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            compareScaled(seen, [&records, i](FieldVisitorCL& visitor) {
                records.ElementAtM(i).EachCommonFieldM(visitor);
                records.ElementAtM(i).EachFieldM(visitor);
            });
        }
    });
    EXPECT_EQ(seen.doubled,
        (std::set<std::string> { "position", "size", "font_option", "spin_width", "item_height",
            "titles.width", "picture_position", "centre" }));
    for (const std::string& name : seen.doubled) {
        EXPECT_EQ(seen.others.count(name), 0U) << name;
    }
    EXPECT_GT(seen.others.size(), 20U);
}

namespace {

struct RectCL
{
    int edges[2][2]; // Begin and end, of x and y.
    bool operator==(const RectCL& other) const
    {
        return std::equal(&edges[0][0], &edges[0][0] + 4, &other.edges[0][0]);
    }
};

RectCL rectOf(const DVrCommonBoxCL& record)
{
    RectCL rect {};
    for (int i = 0; i < 2; ++i) {
        rect.edges[i][0] = record.GetPositionM()[i];
        rect.edges[i][1] = record.GetPositionM()[i] + record.GetSizeM()[i];
    }
    return rect;
}

bool isMeant(const DVrCommonBoxCL& record)
{
    constexpr int Most = 100000;
    const auto isSmall = [](int length) { return length > -Most && length < Most; };
    return isSmall(record.GetPositionM()[0]) && isSmall(record.GetPositionM()[1])
        && isSmall(record.GetSizeM()[0]) && isSmall(record.GetSizeM()[1]);
}

// The rectangles of all records of a file, and what becomes of them at a scale.
std::vector<std::pair<RectCL, RectCL>> rectsOf(const std::string& file, const ScaleCL& scale)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(file));
    std::vector<std::pair<RectCL, RectCL>> rects;
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            auto& record = records.ElementAtM(i);
            const RectCL before = rectOf(record);
            const bool counts = isMeant(record);
            slScaleRecord(record, scale);
            if (counts) {
                rects.emplace_back(before, rectOf(record));
            }
        }
    });
    return rects;
}

} // namespace

TEST(Scaling, ControlsOfAnyDialogGoOnTouchingAndStayInside)
{
    constexpr int Client = 47; // Of a dialog in which some stand and some don't.
    constexpr int MostGap = 60;
    RandomDescriptionCL descriptions(20);
    int touching = 0;
    int gaps = 0;
    for (int number = 0; number < 300; ++number) {
        const std::string file = descriptions.FileM();
        for (const int percent : { 100, 125, 150, 175, 200, 300 }) {
            const ScaleCL scale(percent);
            const auto rects = rectsOf(file, scale);
            std::vector<std::pair<int, int>> widths(MostGap + 1, { INT_MAX, INT_MIN }); // Of equal gaps.
            bool isGood = true;
            for (const auto& [before, after] : rects) {
                isGood = isGood && (percent != 100 || before == after);
                for (int i = 0; i < 2; ++i) {
                    isGood = isGood && (before.edges[i][0] < 0 || after.edges[i][0] >= 0)
                        && (before.edges[i][1] > Client || after.edges[i][1] <= scale.PlaceM(Client));
                    for (const auto& [other, otherAfter] : rects) {
                        const int gap = other.edges[i][0] - before.edges[i][1];
                        const int now = otherAfter.edges[i][0] - after.edges[i][1];
                        if (gap >= 0 && gap <= MostGap) {
                            std::pair<int, int>& width = widths[static_cast<std::size_t>(gap)];
                            gaps += width.first <= width.second ? 1 : 0;
                            touching += gap == 0 ? 1 : 0;
                            width = { std::min(width.first, now), std::max(width.second, now) };
                        }
                    }
                }
            }
            ASSERT_TRUE(isGood) << number << ' ' << percent;
            for (const auto& [narrowest, widest] : widths) {
                ASSERT_TRUE(narrowest > widest || widest - narrowest <= 1) << number << ' ' << percent;
            }
            ASSERT_TRUE(widths[0].first > widths[0].second || widths[0] == std::make_pair(0, 0)) << number;
        }
    }
    EXPECT_GT(touching, 1000);
    EXPECT_GT(gaps, 10000);
}
