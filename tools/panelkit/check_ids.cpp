// Function ids: those of controls, and those that entries and relations name.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "control_list.h"
#include "sort_rows.h"
#include <algorithm>
#include <map>
#include <unordered_set>

namespace {

class IdsCheckerCL
{
public:
    IdsCheckerCL(FileReadingCL& file, const CheckedControlsTP& controls, const std::vector<ArrowsCL>& arrows,
        FindingsCL& findings)
        : file_(file)
        , controls_(controls)
        , arrows_(arrows)
        , findings_(findings)
    {
    }
    void CheckM()
    {
        findDuplicatesM();
        bool isWhole = true;
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            const SeenSectionCL& section = file_.SectionM(static_cast<int>(i));
            isWhole = isWhole && !file_.HasStrayTextM() && !section.isFaulty;
            if (slGrammars()[i].owner != nullptr) {
                findUnknownM(static_cast<int>(i));
            }
        }
        if (isWhole) {
            checkRelationsM();
        }
    }

private:
    // An id where the file has it.
    struct UseCL
    {
        int id;
        std::uint32_t at;
        std::uint32_t control;
        bool operator<(const UseCL& other) const { return id != other.id ? id < other.id : at < other.at; }
    };

    std::string lineM(const CheckedControlCL& control) const
    {
        return std::to_string(file_.LineM(control.idAt) + 1);
    }

    // Ids mostly rise within a section: whether this one alone is out of step with its neighbours.
    bool isOddM(std::size_t i) const
    {
        const auto isSame
            = [&](std::size_t other) { return controls_[other].grammar == controls_[i].grammar; };
        const bool hasBefore = i > 0 && isSame(i - 1);
        const bool hasNext = i + 1 < controls_.size() && isSame(i + 1);
        const int id = controls_[i].id;
        if (hasBefore && hasNext && controls_[i - 1].id < controls_[i + 1].id) {
            return id <= controls_[i - 1].id || id >= controls_[i + 1].id;
        }
        if (hasNext && !hasBefore && i + 2 < controls_.size() && isSame(i + 2)) {
            return controls_[i + 1].id < controls_[i + 2].id && id >= controls_[i + 1].id;
        }
        return hasBefore && !hasNext && i > 1 && isSame(i - 2) && controls_[i - 2].id < controls_[i - 1].id
            && id <= controls_[i - 1].id;
    }

    void sayReservedM(const CheckedControlCL& control)
    {
        if ((control.id == 1 || control.id == 2)
            && !control.IsM({ StandardButtonCode, BmpButtonCode, MultiStateButtonCode })) {
            findings_.AddM(Says::ReservedId, control.idAt,
                { std::to_string(control.id), control.id == 1 ? "OK" : "Cancel" });
        }
    }
    // As nearly all files have them: each id above the one before.
    bool riseM() const
    {
        return std::adjacent_find(controls_.begin(), controls_.end(),
                   [](const CheckedControlCL& one, const CheckedControlCL& next) {
                       return one.id >= next.id;
                   })
            == controls_.end();
    }

    void findDuplicatesM()
    {
        if (arrows_.empty() && riseM()) {
            std::for_each(controls_.begin(), controls_.end(),
                [this](const CheckedControlCL& control) { sayReservedM(control); });
            return;
        }
        std::vector<UseCL> uses;
        uses.reserve(controls_.size());
        for (std::size_t i = 0; i < controls_.size(); ++i) {
            uses.push_back({ controls_[i].id, controls_[i].idAt, static_cast<std::uint32_t>(i) });
        }
        sortRows(uses);
        std::size_t ids = 0; // Where in `uses` those end that are the first of their id.
        for (std::size_t i = 0; i < uses.size(); ++i) {
            const UseCL use = uses[i];
            const CheckedControlCL& control = controls_[use.control];
            if (ids > 0 && uses[ids - 1].id == use.id) {
                UseCL& first = uses[ids - 1];
                const bool isFirstOdd = isOddM(first.control) && !isOddM(use.control);
                const CheckedControlCL& odd = isFirstOdd ? controls_[first.control] : control;
                const CheckedControlCL& other = isFirstOdd ? control : controls_[first.control];
                findings_.AddM(Says::DuplicateId, odd.idAt, { std::to_string(odd.id), lineM(other) });
                first.control = isFirstOdd ? use.control : first.control;
                continue;
            }
            uses[ids++] = use;
            sayReservedM(control);
        }
        uses.resize(ids);
        for (const ArrowsCL& arrows : arrows_) {
            const auto other = std::lower_bound(uses.begin(), uses.end(), UseCL { arrows.id, 0, 0 });
            if (other != uses.end() && other->id == arrows.id) {
                findings_.AddM(Says::DuplicateId, arrows.at,
                    { std::to_string(arrows.id), lineM(controls_[other->control]) });
            }
        }
    }

    struct UnknownCL
    {
        std::size_t first;
        int count;
    };
    void findUnknownM(int grammar)
    {
        const SeenSectionCL& section = file_.SectionM(grammar);
        const char* const owner = slGrammars()[static_cast<std::size_t>(grammar)].owner;
        const int ownerGrammar = slGrammarOf(owner);
        const SeenSectionCL& main = file_.SectionM(ownerGrammar);
        if (!section.IsThereM() || main.isFaulty) {
            return;
        }
        const bool isByPlace = slGrammars()[static_cast<std::size_t>(grammar)].row == nullptr;
        const char* const key = isByPlace ? "button" : "function_id";
        std::map<int, UnknownCL> unknown;
        for (const EntryDroppedCL& entry : section.dropped) {
            if (entry.entry >= section.soundRecords || entry.fault == EntryFault::NullWord) {
                continue;
            }
            const char* const field = entry.fault == EntryFault::BadSlot ? "slot" : key;
            const std::size_t at = section.FindM(entry.entry, field)->begin;
            const int number = file_.NumberM(section, entry.entry, field);
            if (entry.fault == EntryFault::BadSlot) {
                findings_.AddM(Says::UnknownSlot, at, { std::to_string(number) });
            } else {
                ++unknown.emplace(number, UnknownCL { at, 0 }).first->second.count;
            }
        }
        const std::string name = slGbkToUtf8(owner);
        for (const auto& [id, seen] : unknown) {
            const CheckedControlCL* const nameless
                = seen.count > 1 && !isByPlace ? withoutEntriesM(ownerGrammar, section) : nullptr;
            if (nameless != nullptr) {
                findings_.AddM(Says::NothingForId, nameless->idAt,
                    { slGbkToUtf8(slGrammars()[static_cast<std::size_t>(grammar)].header),
                        std::to_string(nameless->id), std::to_string(id) });
            } else if (seen.count > 1) {
                findings_.AddM(Says::UnknownIds, seen.first,
                    { name, std::to_string(id), std::to_string(seen.count - 1) });
            } else {
                findings_.AddM(Says::UnknownId, seen.first, { name, std::to_string(id) });
            }
        }
    }
    // The one control of a section whose id looks wrong, as no entry or another control has it.
    const CheckedControlCL* withoutEntriesM(int ownerGrammar, const SeenSectionCL& entries) const
    {
        std::unordered_set<int> named;
        for (int i = 0; i < entries.RecordsM(); ++i) {
            named.insert(file_.NumberM(entries, i, "function_id"));
        }
        std::vector<std::size_t> candidates;
        std::unordered_set<int> ids;
        std::vector<std::size_t> odd;
        for (std::size_t i = 0; i < controls_.size(); ++i) {
            if (controls_[i].grammar == ownerGrammar
                && (!ids.insert(controls_[i].id).second || named.count(controls_[i].id) == 0)) {
                candidates.push_back(i);
                if (isOddM(i)) {
                    odd.push_back(i);
                }
            }
        }
        return candidates.size() == 1 ? &controls_[candidates[0]]
            : odd.size() == 1         ? &controls_[odd[0]]
                                      : nullptr;
    }

    void checkRelationsM()
    {
        const SeenSectionCL& section = file_.SectionM(RelationHeader);
        if (section.soundRecords == 0) {
            return;
        }
        std::unordered_set<int> ids;
        for (const CheckedControlCL& control : controls_) {
            ids.insert(control.id);
        }
        for (int i = 0; i < section.soundRecords; ++i) {
            const int id = file_.NumberM(section, i, "control");
            if (ids.count(id) == 0) {
                findings_.AddM(
                    Says::UnknownControl, section.FindM(i, "control")->begin, { std::to_string(id) });
            }
        }
    }

    FileReadingCL& file_;
    const CheckedControlsTP& controls_;
    const std::vector<ArrowsCL>& arrows_;
    FindingsCL& findings_;
};

} // namespace

void checkIds(FileReadingCL& file, const CheckedControlsTP& controls, const std::vector<ArrowsCL>& arrows,
    FindingsCL& findings)
{
    IdsCheckerCL(file, controls, arrows, findings).CheckM();
}
