// Which numbers of all records are lengths.
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "records/scaling.h"
#include "support/description_files.h"
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
