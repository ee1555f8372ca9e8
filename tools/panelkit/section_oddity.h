#pragma once
#include "section_layout.h"

// The first value that lies oddly among those of its record: behind something that is missing or too much.
struct OddityCL
{
    const SeenValueCL* value { nullptr }; // Null when all lie as they should, up to the first bad one.
    int record { -1 };
    Says says { Says::OtherLines };
};
OddityCL findOddity(const FileReadingCL& file, const SeenSectionCL& section, const SectionLayoutCL& layout);

// In a section that has one record too few, the first value of the record that another should stand before:
// where the values of neighbours are further apart than everywhere else. Null where nothing tells.
const SeenValueCL* findGap(
    const FileReadingCL& file, const SeenSectionCL& section, const SectionLayoutCL& layout);
