#pragma once
#include "baselib/number_text.h"
#include "records/read_observer.h"
#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

// All that the reading of one file told its observer.
class SeenFileCL : public ReadObserverCL
{
public:
    void ValueM(const ValueSeenCL& value) override
    {
        values[{ value.section, value.record }].push_back(value);
    }
    void EntryDroppedM(const EntryDroppedCL& entry) override { dropped.push_back(entry); }
    void SectionM(const SectionSeenCL& section) override { sections.push_back(section); }

    std::map<std::pair<std::string, int>, std::vector<ValueSeenCL>> values; // By section and record.
    std::vector<EntryDroppedCL> dropped;
    std::vector<SectionSeenCL> sections;

    // The numbers of the entries of a section that records took, by the function id that they begin with.
    std::map<int, std::vector<int>> EntriesM(const FileTextCL& file, const std::string& section) const
    {
        std::map<int, std::vector<int>> entries;
        for (const auto& [place, seen] : values) {
            if (place.first != section || IsDroppedM(section, place.second)) {
                continue;
            }
            int id = 0;
            const std::string_view text = file.CutM(seen.front().span);
            slReadInt(text.data(), text.data() + text.size(), &id);
            entries[id].push_back(place.second);
        }
        return entries;
    }

    bool IsDroppedM(const std::string& section, int entry) const
    {
        return std::any_of(dropped.begin(), dropped.end(),
            [&](const EntryDroppedCL& one) { return one.section == section && one.entry == entry; });
    }
};
