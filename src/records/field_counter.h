#pragma once
#include "records/fields.h"

// Counts the values, numbers and texts, that a record or entry takes in a file at least: each number it sees
// becomes 0, a data type among them that says that nothing more follows.
class PANELKIT_API FieldCounterCL : public FieldVisitorCL
{
public:
    // How many it has seen.
    int ValuesM() const { return count_; }
    // Count; see FieldVisitorCL.
    void IntM(const char*, int& value) override
    {
        value = 0;
        addM(1);
    }
    void RealM(const char*, float&) override { addM(1); }
    void IntsM(const char*, int*, int count) override { addM(count); }
    void RealsM(const char*, float*, int count) override { addM(count); }
    void ColourM(const char*, ColourTP&, int*) override { addM(3); }
    void TextM(const char*, CharArr&, const TextFormCL&) override { addM(1); }
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
