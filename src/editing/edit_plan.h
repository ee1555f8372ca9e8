#pragma once
#include "editing/record_lines.h"
#include "editing/value_forms.h"
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// A value as the reader is to meet it.
struct MeantValueCL
{
    std::string field;
    int part;
    std::string text;
};
using MeantRecordTP = std::vector<MeantValueCL>;

// A record that is to be written, and what it is to be read as.
struct NewRecordCL
{
    RecordTextCL text;
    MeantRecordTP meant;
};

// What is to become of a file: collects what one edit means, makes the changes of it, and holds what is read
// afterwards against it. Records are named by their places in the file as it is.
class EditPlanCL
{
public:
    // Both must live as long.
    EditPlanCL(const FileTextCL& text, const SeenSectionsCL& seen);

    // Whether each byte of a section can be told what it is; only then it may be planned for.
    bool IsSoundM(int grammar) const;
    // Another text for one value of a record; value: its number in the record.
    void SetM(int grammar, int record, std::size_t value, const std::string& text);
    // Other values: some of the record's text becomes another one.
    void RewriteM(int grammar, int record, const TextChangesTP& changes, MeantRecordTP meant);
    void DeleteM(int grammar, int record) { of_[grammar].deleted.insert(record); }
    void InsertM(int grammar, int before, NewRecordCL record)
    {
        of_[grammar].inserted[before].push_back(std::move(record));
    }
    // A section that isn't there, with its records.
    void AddSectionM(int grammar, TextChangeCL change, std::vector<MeantRecordTP> records);

    // A record's values as they are, and its text with other ones for some of them, by their numbers.
    MeantRecordTP MeantM(int grammar, int record) const;
    NewRecordCL CopyM(int grammar, int record, const std::map<std::size_t, std::string>& others) const;
    std::string_view TextOfM(const SeenValueCL& value) const { return text_.CutM(value.SpanM()); }
    // The number that a record has in a field; 0 for none.
    int NumberM(int grammar, int record, const char* field) const;
    const SeenSectionCL& SectionM(int grammar) const { return seen_.AtM(grammar); }

    // All changes, in order.
    TextChangesTP ChangesM() const;
    // Whether the file with them is read as it is meant.
    bool IsMetM(const FileTextCL& after, const SeenSectionsCL& seen) const;

private:
    struct SectionPlanCL
    {
        std::map<int, MeantRecordTP> meant; // Records with other values.
        TextChangesTP changes;              // Of those.
        std::set<int> deleted;
        std::map<int, std::vector<NewRecordCL>> inserted; // By the records that they stand before.
        bool isNew { false };
    };
    std::string_view bytesM() const { return text_.CutM({ 0, text_.SizeM() }); }
    bool isNumberM(SpanCL span, std::size_t regionEnd) const;
    void addRecordChangesM(int grammar, const SectionPlanCL& plan, TextChangesTP& changes) const;
    bool areSameM(const SeenSectionCL& section, int record, const FileTextCL& after,
        const SeenSectionCL& other, int otherRecord) const;
    bool isSectionMetM(
        int grammar, const SectionPlanCL& plan, const FileTextCL& after, const SeenSectionCL& section) const;

    const FileTextCL& text_;
    const SeenSectionsCL& seen_;
    std::map<int, SectionPlanCL> of_;
};
