#pragma once
#include "file_reading.h"
#include "findings.h"

// How the values of one section's records lie in its region: from its header to the next one.
struct SectionLayoutCL
{
    const SeenValueCL* bad { nullptr }; // The first value that isn't there or is no number.
    int badRecord { -1 };
    bool runsOver { false };    // That one would stand behind the region.
    int wholeRecords { 0 };     // Before that.
    std::size_t goodEnd { 0 };  // Behind the last value before that.
    std::size_t leftover { 0 }; // What no record takes begins here; the region's end when there is nothing.
    bool isHeadSound { false };
    bool isClean { false };
    bool EndsBetweenRecordsM(const SeenSectionCL& section) const
    {
        return runsOver && bad != nullptr && bad == section.FirstM(badRecord);
    }
};

SectionLayoutCL layoutOf(const SeenSectionCL& section, std::string_view bytes, bool hasCount);
// Of a section of the file. Where not all is in order, its values are kept from then on.
SectionLayoutCL layoutOf(FileReadingCL& file, int grammar);

// The offset of the first byte in [begin, end) that is no blank; end when there is none.
std::size_t nextText(std::string_view bytes, std::size_t begin, std::size_t end);
// All of the word that a byte belongs to.
SpanCL wordAt(std::string_view bytes, std::size_t offset);
// Whether a text is two or more numbers and nothing else.
bool isRowOfNumbers(std::string_view text, int least);

// Says what is wrong with a section that doesn't read whole: one finding, at the cause where that can be told
// by trying which small change would mend the section.
void explainSection(FileReadingCL& file, int grammar, const SectionLayoutCL& layout, FindingsCL& findings);
