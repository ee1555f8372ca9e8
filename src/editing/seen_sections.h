#pragma once
#include "editing/grammars.h"
#include "editing/seen_values.h"
#include <memory>
#include <vector>

// One section of the file: its head, and the values of its records.
struct SeenSectionCL
{
    SectionSeenCL head {};               // All zero while the section isn't there.
    SeenValuesCL values;                 // Of all records, in the order of the file.
    std::vector<std::uint32_t> starts;   // Where each record's values begin in `values`.
    std::vector<EntryDroppedCL> dropped; // Its entries that belong to no record.
    std::size_t regionEnd { 0 };         // Where the next header stands, or the file ends.
    bool isFaulty { false };             // Its layout is: what it lost can't be missed elsewhere.
    int soundRecords { 0 };              // Records before the first fault of its layout.
    bool keepsLast { false };            // Only the values of its last record are kept.
    bool isRegular { true };        // While keepsLast: all values were there, with something between them,
    std::uint32_t firstBegin { 0 }; // where the first one began,
    std::uint32_t lastEnd { 0 };    // and where the last one ended.

    // Whether the file has its header, and whether records were read.
    bool IsThereM() const { return head.headerSpan.end > 0; }
    bool IsReadM() const
    {
        return head.status == SectionStatus::Read || head.status == SectionStatus::Incomplete;
    }
    // How many records there are, and the values of one: record counts from 0 and must be below that.
    int RecordsM() const { return static_cast<int>(starts.size()); }
    const SeenValueCL* FirstM(int record) const
    {
        return values.data() + starts[static_cast<std::size_t>(record)];
    }
    const SeenValueCL* EndM(int record) const
    {
        return record + 1 < RecordsM() ? FirstM(record + 1) : values.data() + values.size();
    }
    // A record's value by the name of its field; null when there is none.
    PANELKIT_API const SeenValueCL* FindM(int record, const char* field, int part = 0) const;
    PANELKIT_API void JudgeLastM(); // While keepsLast: when all values of the last record are there.
    // Whether values that were dropped are not missed: all lie in the section's region as they should.
    bool IsPlainM() const
    {
        return !keepsLast || values.empty()
            || (isRegular && firstBegin > head.commentCount.end && values.back().begin < regionEnd);
    }
};

// Keeps what the reader meets, by the places of the sections in slGrammars.
class PANELKIT_API SeenSectionsCL : public ReadObserverCL
{
public:
    SeenSectionsCL();
    // See ReadObserverCL.
    SeenRoomCL* BeginRecordM(const char* section, int record) override;
    void ValueM(const ValueSeenCL& value) override;
    void EntryDroppedM(const EntryDroppedCL& entry) override;
    void SectionM(const SectionSeenCL& section) override;
    // From now on only the values of the last record of a section are kept. grammar: as with AtM.
    void KeepLastM(int grammar) { AtM(grammar).keepsLast = true; }
    // The section of a grammar: 0 up to the number of grammars - 1.
    SeenSectionCL& AtM(int grammar) { return sections_[static_cast<std::size_t>(grammar)]; }
    const SeenSectionCL& AtM(int grammar) const { return sections_[static_cast<std::size_t>(grammar)]; }

private:
    SeenSectionCL& findM(const char* header);

    std::vector<SeenSectionCL> sections_;
    SeenBlocksCL blocks_;
    const char* lastHeader_ { nullptr };
    SeenSectionCL* last_ { nullptr };
};

// Reads every section of a file, each on its own: entries too whose owner is missing, and none is dropped.
// Each section's region ends at the next header that the reader finds. text: not null.
PANELKIT_API SeenSectionsCL slReadSections(const std::shared_ptr<const FileTextCL>& text);

// What follows the count of an empty section may be the usual rest of a head, which nobody reads then: where
// its lines end, or the line of the count if there is none. At most the region's end. hasComments: whether it
// is there; may be null.
PANELKIT_API std::size_t slEndOfEmptyHead(
    const SeenSectionCL& section, std::string_view bytes, bool* hasComments = nullptr);
