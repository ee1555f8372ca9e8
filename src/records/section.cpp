#include "records/section.h"
#include <climits>

SectionStatus slOpenSection(VrIOCL& io, const char* header, int* count)
{
    *count = 0;
    if (io.SearchStrM(header) == 0) {
        return SectionStatus::Missing;
    }
    int records = 0;
    io.InputDM(&records);
    if (records <= 0) {
        return SectionStatus::Empty;
    }
    if (static_cast<size_t>(records) > io.BytesLeftM()) {
        return SectionStatus::Broken;
    }
    io.SkipLineM();
    int comments = 0;
    io.InputDM(&comments);
    io.SkipSomeLinesM(comments < INT_MAX ? comments + 1 : INT_MAX);
    *count = records;
    return SectionStatus::Read;
}

void slReadEntry(VrIOCL& io, SectionEntryCL& entry, int numberCount, int textCount, int textSize)
{
    entry.functionId = 0;
    io.InputDM(&entry.functionId);
    for (int i = 0; i < numberCount; ++i) {
        entry.numbers[i] = 0;
        io.InputDM(&entry.numbers[i]);
    }
    for (int i = 0; i < textCount; ++i) {
        io.InputGetsM(entry.texts[i], textSize);
    }
}
