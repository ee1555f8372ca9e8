#pragma once
#include "records/fields.h"

// Counts the values, numbers and texts, that a record or entry takes in a file at least: each number it sees
// becomes 0, a data type among them that says that nothing more follows.
class PANELKIT_API FieldCounterCL : public FieldVisitorCL
{
public:
    int ValuesM() const { return count_; }
    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntsM(const char* name, int* values, int count) override;
    void RealsM(const char* name, float* values, int count) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override;
    void StopReadingM() override { isCounting_ = false; }

private:
    void addM(int values) { count_ += isCounting_ ? values : 0; }

    int count_ { 0 };
    bool isCounting_ { true };
};

// The values of the shortest record of a main section.
template <class RecordTP> int slFewestValues()
{
    RecordTP record;
    FieldCounterCL counter;
    record.EachCommonFieldM(counter);
    record.EachFieldM(counter);
    return counter.ValuesM();
}
