#pragma once
#include "file_reading.h"
#include <algorithm>
#include <map>

// What the texts of a secondary section's entries are, by the names of their fields.
class RowShapeCL : public FieldVisitorCL
{
public:
    explicit RowShapeCL(const GrammarCL& grammar);

    struct TextCL
    {
        int size; // With its terminator.
        bool isPicture;
    };
    // Null for a field that is no text. In little time for a name that was asked for before: entries repeat
    // theirs.
    const TextCL* FindM(const char* field) const
    {
        const auto asked = std::find_if(
            asked_.begin(), asked_.end(), [field](const auto& one) { return one.first == field; });
        return asked != asked_.end() ? asked->second : searchM(field);
    }
    void CaptionM(const char* name, CharArr&, const TextFormCL& form) override
    {
        texts_[name] = { form.size, false };
    }
    void NameM(const char* name, CharArr&, const TextFormCL& form) override
    {
        texts_[name] = { form.size, true };
    }

private:
    const TextCL* searchM(const char* field) const;

    std::map<std::string, TextCL> texts_;
    mutable std::vector<std::pair<const char*, const TextCL*>> asked_;
};
