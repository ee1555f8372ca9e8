#include "section_oddity.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <map>

namespace {

class OddityFinderCL
{
public:
    OddityFinderCL(const FileReadingCL& file, const SeenSectionCL& section, const SectionLayoutCL& layout)
        : file_(file)
        , section_(section)
        , layout_(layout)
        , bytes_(file.TextM().CutM({ 0, file.TextM().SizeM() }))
        , stop_(layout.bad != nullptr ? layout.bad : section.values.data() + section.values.size())
        , usual_(usualBreaksM())
    {
    }
    OddityCL FindM() const
    {
        for (int record = 0; record < section_.RecordsM() && section_.FirstM(record) <= stop_; ++record) {
            for (const SeenValueCL* value = section_.FirstM(record); value < section_.EndM(record); ++value) {
                if (value > stop_ || value->begin >= section_.regionEnd) {
                    return {};
                }
                const OddityCL oddity = oddityOfM(value, record);
                if (oddity.value != nullptr) {
                    return oddity;
                }
            }
        }
        return {};
    }

private:
    bool beginsLineM(const SeenValueCL& value) const
    {
        return nextText(bytes_, file_.LineStartM(file_.LineM(value.begin)), value.begin) == value.begin;
    }
    // For each value of a record, whether most records begin a line with it.
    std::vector<bool> usualBreaksM() const
    {
        std::vector<int> votes;
        for (int record = 0; record < layout_.wholeRecords; ++record) {
            const SeenValueCL* const first = section_.FirstM(record);
            for (const SeenValueCL* value = first; value < section_.EndM(record); ++value) {
                const auto i = static_cast<std::size_t>(value - first);
                votes.resize(std::max(votes.size(), i + 1));
                votes[i] += beginsLineM(*value) ? 1 : -1;
            }
        }
        std::vector<bool> breaks(votes.size());
        std::transform(votes.begin(), votes.end(), breaks.begin(), [](int vote) { return vote > 0; });
        return breaks;
    }
    OddityCL oddityOfM(const SeenValueCL* value, int record) const
    {
        constexpr int EnoughRecords = 3;
        const auto i = static_cast<std::size_t>(value - section_.FirstM(record));
        if (value->fate == Fate::NotLookedAt) {
            return { section_.FindM(record, "data_type"), record, Says::BadDataType };
        }
        const bool begins = beginsLineM(*value);
        if (i == 0 && !begins) {
            return { value, record, Says::RecordInLine };
        }
        if (value < stop_ && isRowOfNumbers(file_.BytesM(*value), 3)) {
            return { value, record, Says::NumbersForText };
        }
        // Records may differ; only where something goes wrong soon does it tell anything.
        const bool isClose = layout_.bad == nullptr || record >= layout_.badRecord - 1;
        if (isClose && layout_.wholeRecords >= EnoughRecords && i < usual_.size() && begins != usual_[i]) {
            return { value, record, Says::OtherLines };
        }
        if (value->part > 0 && begins && value->fate == Fate::NotANumber && i > 0) {
            return { value - value->part, record, Says::OtherLines };
        }
        return {};
    }

    const FileReadingCL& file_;
    const SeenSectionCL& section_;
    const SectionLayoutCL& layout_;
    std::string_view bytes_;
    const SeenValueCL* stop_;
    std::vector<bool> usual_;
};

int numberIn(std::string_view text)
{
    int number = 0;
    slReadInt(text.data(), text.data() + text.size(), &number);
    return number;
}

// The one place where a value doesn't follow the one before as that value's other followers do, or where
// numbers step twice as far as everywhere else; -1 for none or several.
int gapInColumn(const std::vector<std::string_view>& values)
{
    std::map<std::string_view, std::map<std::string_view, int>> followers;
    std::map<std::string_view, int> uses;
    std::map<long, int> steps;
    const auto stepTo = [&values](std::size_t i) {
        return static_cast<long>(numberIn(values[i])) - numberIn(values[i - 1]);
    };
    for (std::size_t i = 1; i < values.size(); ++i) {
        ++followers[values[i - 1]][values[i]];
        ++uses[values[i - 1]];
        ++steps[stepTo(i)];
    }
    constexpr int Enough = 3;
    int found = -1;
    for (std::size_t i = 1; i < values.size(); ++i) {
        const auto& others = followers[values[i - 1]];
        const long step = stepTo(i);
        // Usually something stands between the two.
        const auto usual = std::max_element(
            others.begin(), others.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
        const bool isRare = others.size() == 2 && uses[values[i - 1]] >= Enough && others.at(values[i]) == 1
            && usual->first != values[i] && usual->first != values[i - 1]
            && followers[usual->first].count(values[i]) > 0;
        const bool isJump = step != 0 && steps.size() == 2 && steps[step] == 1 && step % 2 == 0
            && steps.count(step / 2) > 0;
        if (isRare || isJump) {
            if (found > 0) {
                return -1;
            }
            found = static_cast<int>(i);
        }
    }
    return found;
}

} // namespace

OddityCL findOddity(const FileReadingCL& file, const SeenSectionCL& section, const SectionLayoutCL& layout)
{
    return OddityFinderCL(file, section, layout).FindM();
}

const SeenValueCL* findGap(
    const FileReadingCL& file, const SeenSectionCL& section, const SectionLayoutCL& layout)
{
    constexpr int Enough = 4;
    if (section.head.count != layout.wholeRecords + 1 || layout.wholeRecords < Enough) {
        return nullptr;
    }
    std::vector<int> votes(static_cast<std::size_t>(layout.wholeRecords));
    for (std::ptrdiff_t column = 0; column < section.EndM(0) - section.FirstM(0); ++column) {
        std::vector<std::string_view> values;
        for (int record = 0; record < layout.wholeRecords; ++record) {
            const SeenValueCL* const value = section.FirstM(record) + column;
            values.push_back(value < section.EndM(record) ? file.BytesM(*value) : std::string_view());
        }
        const int gap = gapInColumn(values);
        votes[static_cast<std::size_t>(std::max(gap, 0))] += gap > 0 ? 1 : 0;
    }
    const auto most = std::max_element(votes.begin(), votes.end());
    return *most > 0 ? section.FirstM(static_cast<int>(most - votes.begin())) : nullptr;
}
