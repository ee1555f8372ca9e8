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
    void CaptionM(const char* name, CharArr&, const TextFormCL& form) override
    {
        texts[name] = { form.size, false };
    }
    void NameM(const char* name, CharArr&, const TextFormCL& form) override
    {
        texts[name] = { form.size, true };
    }
    std::map<std::string, TextCL> texts;
};
