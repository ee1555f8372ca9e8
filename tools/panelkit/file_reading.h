#pragma once
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "editing/seen_sections.h"
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A whole file, read by the library: the dialog, its relations, its bindings and the new rotate buttons at
// once, each kind of control when it is asked for.
class FileReadingCL
{
public:
    // keepsAll: the values of all controls, not only what tells something of them.
    explicit FileReadingCL(std::shared_ptr<const FileTextCL> text, bool keepsAll = false);
    const FileTextCL& TextM() const { return *text_; }
    const std::shared_ptr<const FileTextCL>& SharedTextM() const { return text_; }

    SeenSectionCL& SectionM(int grammar) { return seen_.AtM(grammar); }
    SeenSectionCL& SectionM(const char* header) { return seen_.AtM(slGrammarOf(header)); }
    // Headers or text that belong to no section: any kind may lack controls.
    bool HasStrayTextM() const { return hasStrayText_; }
    void SetStrayTextM() { hasStrayText_ = true; }
    bool IsSoundM(const char* header) { return !hasStrayText_ && !SectionM(header).isFaulty; }
    bool HasDialogM() const { return hasDialog_; }
    DialogHeaderCL& DialogM() { return dialog_; }
    DVrNewRotateBtnArr& NewRotateButtonsM() { return newRotateButtons_; }
    std::vector<BindingCL>& BindingsM() { return bindings_; }
    // Reads the sections of one kind; see(number, record) is shown each control when its values have been
    // seen, all in the same record, and may take from it what it likes.
    template <class RecordsTP, class SeeTP> void ReadKindM(SeeTP&& see)
    {
        if (!keepsAll_) {
            seen_.KeepLastM(slGrammarOf(RecordsTP::Header));
        }
        slEachRecordRead<RecordsTP>(io_, see);
    }
    void ReadKindsM();             // All of them, for their values.
    void KeepValuesM(int grammar); // Reads a section again if values of it were dropped.

    std::string CutM(SpanCL span) const { return utf8M(text_->CutM(span)); } // As UTF-8.
    std::string CutM(const SeenValueCL& value) const { return CutM(SpanCL { value.begin, value.end }); }
    std::string_view BytesM(const SeenValueCL& value) const
    {
        return text_->CutM({ value.begin, value.end });
    }
    // An entry's number as the reader took it; 0 where none was read.
    int NumberM(const SeenSectionCL& section, int record, const char* field) const
    {
        return NumberM(section.FindM(record, field));
    }
    int NumberM(const SeenValueCL* value) const; // The same of one, or of null.
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
    std::vector<BindingCL> bindings_;
    DialogHeaderCL dialog_;
    bool keepsAll_;
    bool hasDialog_ { false };
    bool hasStrayText_ { false };
};

// One field of all entries of a section: looked for where the entry before has it.
class EntryColumnCL
{
public:
    EntryColumnCL(const FileReadingCL& file, const SeenSectionCL& section, const char* field)
        : file_(file)
        , section_(section)
        , field_(field)
    {
    }
    const SeenValueCL* FindM(int record) // Null when there is none.
    {
        const SeenValueCL* const first = section_.FirstM(record);
        if (name_ != nullptr && section_.EndM(record) - first > place_ && first[place_].field == name_) {
            return first + place_;
        }
        const SeenValueCL* const found = section_.FindM(record, field_);
        name_ = found != nullptr ? found->field : nullptr;
        place_ = found != nullptr ? found - first : 0;
        return found;
    }
    int NumberM(int record) { return file_.NumberM(FindM(record)); } // See FileReadingCL.

private:
    const FileReadingCL& file_;
    const SeenSectionCL& section_;
    const char* field_;
    const char* name_ { nullptr };
    std::ptrdiff_t place_ { 0 };
};
