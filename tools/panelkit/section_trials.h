#pragma once
#include "section_layout.h"

// One section read on its own, perhaps with a change.
struct TrialCL
{
    SeenSectionCL section;
    SectionLayoutCL layout;
    bool IsCleanM() const { return layout.isClean; }
};

// Reads a section with small changes, as often as its size allows.
class SectionTrialsCL
{
public:
    SectionTrialsCL(FileReadingCL& file, int grammar);
    // The section with some bytes of the file replaced; not clean when there have been trials enough.
    TrialCL TryM(SpanCL replaced, const std::string& by);
    int OddTextsM() const { return oddTexts_; } // Of the last trial: texts that are rows of numbers.

private:
    std::string_view bytes_;
    int number_;
    SpanCL region_;
    int left_;
    int oddTexts_ { 0 };
};
