#include "records/section.h"
#include <climits>

bool slCanHold(std::size_t bytes, int count, int values)
{
    constexpr int smallCount = 1000;
    constexpr std::size_t valueSize = 2; // A digit and a blank.
    const std::size_t most
        = count > smallCount ? bytes / (valueSize * static_cast<std::size_t>(values)) : bytes;
    return count <= 0 || static_cast<std::size_t>(count) <= most;
}

SectionStatus slOpenSection(VrIOCL& io, const char* header, int values, int* count)
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
    if (!slCanHold(io.BytesLeftM(), records, values)) {
        return SectionStatus::Broken;
    }
    io.SkipLineM();
    int comments = 0;
    io.InputDM(&comments);
    io.SkipSomeLinesM(comments < INT_MAX ? comments + 1 : INT_MAX);
    *count = records;
    return SectionStatus::Read;
}

SectionStatus slOpenEntries(VrIOCL& io, const char* header, int numberCount, int textCount, int* count)
{
    return slOpenSection(io, header, 1 + numberCount + textCount, count);
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
