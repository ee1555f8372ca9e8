#pragma once
#include "file_reading.h"
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
    // Null for a field that is no text. place: of the value among those of its entry; in little time for a
    // field that was asked for at the same place before.
    const TextCL* FindM(const char* field, std::size_t place) const
    {
        return place < asked_.size() && asked_[place].first == field ? asked_[place].second
                                                                     : searchM(field, place);
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
    const TextCL* searchM(const char* field, std::size_t place) const;

    std::map<std::string, TextCL> texts_;
    mutable std::vector<std::pair<const char*, const TextCL*>> asked_;
};
