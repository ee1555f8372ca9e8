#pragma once
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "records/read_observer.h"
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// One value as the library's reader met it.
struct SeenValueCL
{
    const char* field;
    std::uint32_t begin;
    std::uint32_t end;
    std::uint8_t part;
    Fate fate;
};

// Of a value that isn't there.
inline bool isAbsent(Fate fate)
{
    return fate == Fate::NotANumber || fate == Fate::Missing || fate == Fate::NotLookedAt;
}

// One section of the file: its head, and the values of its records.
struct SeenSectionCL
{
    SectionSeenCL head {};
    std::vector<SeenValueCL> values;
    std::vector<std::uint32_t> starts; // Where each record's values begin in `values`.
    std::vector<EntryDroppedCL> dropped;
    std::size_t regionEnd { 0 }; // Where the next header stands, or the file ends.
    bool isFaulty { false };     // Its layout is: what it lost can't be missed elsewhere.
    int soundRecords { 0 };      // Records before the first fault of its layout.
    bool IsThereM() const { return head.headerSpan.end > 0; }
    bool IsReadM() const
    {
        return head.status == SectionStatus::Read || head.status == SectionStatus::Incomplete;
    }
    int RecordsM() const { return static_cast<int>(starts.size()); }
    const SeenValueCL* FirstM(int record) const { return values.data() + starts[record]; }
    const SeenValueCL* EndM(int record) const
    {
        return record + 1 < RecordsM() ? FirstM(record + 1) : values.data() + values.size();
    }
    // A record's value by the name of its field; null when there is none.
    const SeenValueCL* FindM(int record, const char* field, int part = 0) const;

    // A section of many records may keep the values of the last one alone.
    bool keepsLast { false };
    bool isRegular { true }; // All values were there, with something between them; only while keepsLast.
    std::uint32_t firstBegin { 0 };
    std::uint32_t lastEnd { 0 };
    // Whether the values that were dropped are not missed: they all lie in the section's region as they
    // should.
    bool IsPlainM() const
    {
        return !keepsLast || values.empty()
            || (isRegular && firstBegin > head.commentCount.end && values.back().begin < regionEnd);
    }
};

// A kind of section: how the library reads it, and what it belongs to.
struct GrammarCL
{
    const char* header;
    const char* owner;           // The main section of a secondary one; else null.
    std::string before;          // What must stand before it for a reading on its own.
    void (*read)(VrIOCL& io);    // Reads it alone.
    RowFieldsTP row { nullptr }; // The fields of a secondary section's entries.
};

// All sections that a file may have, in the order of reading; the first two must be there.
const std::vector<GrammarCL>& allGrammars();
int grammarOf(const char* header); // -1 for an unknown one.
constexpr int VersionGrammar = 0;
constexpr int DialogGrammar = 1;

// Keeps what the reader meets.
class SeenSectionsCL : public ReadObserverCL
{
public:
    SeenSectionsCL()
        : sections_(allGrammars().size())
    {
    }
    void ValueM(const ValueSeenCL& value) override;
    void KeepLastM(int grammar)
    {
        AtM(grammar).keepsLast = true;
    } // Values of the section's last record only.
    void EntryDroppedM(const EntryDroppedCL& entry) override;
    void SectionM(const SectionSeenCL& section) override;
    SeenSectionCL& AtM(int grammar) { return sections_[static_cast<std::size_t>(grammar)]; }
    const SeenSectionCL& AtM(int grammar) const { return sections_[static_cast<std::size_t>(grammar)]; }

private:
    SeenSectionCL& findM(const char* header);
    void beginRecordM(const ValueSeenCL& first);

    std::vector<SeenSectionCL> sections_;
    const char* lastHeader_ { nullptr };
    SeenSectionCL* last_ { nullptr };
    int lastRecord_ { -1 };
};

// A whole file, read by the library: the dialog, its relations and the new rotate buttons at once, each kind
// of control when it is asked for.
class FileReadingCL
{
public:
    explicit FileReadingCL(std::shared_ptr<const FileTextCL> text);
    const FileTextCL& TextM() const { return *text_; }
    const std::shared_ptr<const FileTextCL>& SharedTextM() const { return text_; }

    SeenSectionCL& SectionM(int grammar) { return seen_.AtM(grammar); }
    SeenSectionCL& SectionM(const char* header) { return seen_.AtM(grammarOf(header)); }
    // Headers or text that belong to no section: any kind may lack controls.
    bool HasStrayTextM() const { return hasStrayText_; }
    void SetStrayTextM() { hasStrayText_ = true; }
    bool IsSoundM(const char* header) { return !hasStrayText_ && !SectionM(header).isFaulty; }
    bool HasDialogM() const { return hasDialog_; }
    DialogHeaderCL& DialogM() { return dialog_; }
    DVrNewRotateBtnArr& NewRotateButtonsM() { return newRotateButtons_; }
    // Reads the sections of one kind; see(number, record) is shown each control when its values have been
    // seen, and may take from the record what it likes.
    template <class RecordsTP, class SeeTP> void ReadKindM(SeeTP&& see)
    {
        seen_.KeepLastM(grammarOf(RecordsTP::Header));
        slEachRecordRead<RecordsTP>(io_, see);
    }
    void KeepValuesM(int grammar); // Reads a section again if values of it were dropped.

    std::string CutM(SpanCL span) const { return utf8M(text_->CutM(span)); } // As UTF-8.
    std::string CutM(const SeenValueCL& value) const { return CutM(SpanCL { value.begin, value.end }); }
    std::string_view BytesM(const SeenValueCL& value) const
    {
        return text_->CutM({ value.begin, value.end });
    }
    // An entry's number as the reader took it; 0 where none was read.
    int NumberM(const SeenSectionCL& section, int record, const char* field) const;
    std::size_t LineM(std::size_t offset) const; // From 0.
    std::size_t LineStartM(std::size_t line) const;

private:
    static std::string utf8M(std::string_view text);
    const std::vector<std::size_t>& linesM() const;

    std::shared_ptr<const FileTextCL> text_;
    VrIOCL io_;
    mutable std::vector<std::size_t> lines_; // Where each begins; made when first asked for.
    SeenSectionsCL seen_;
    DVrNewRotateBtnArr newRotateButtons_;
    DialogHeaderCL dialog_;
    bool hasDialog_ { false };
    bool hasStrayText_ { false };
};
