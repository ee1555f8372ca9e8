#pragma once
#include "records/section.h"
#include "support/printed.h"
#include <string>

// What shown(record) makes of each record of a file (UTF-8), a line a record.
template <class RecordArrTP, class ShownTP>
std::string readRecords(const std::string& utf8, SectionStatus* status, ShownTP&& shown)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    RecordArrTP records;
    int count = 0;
    *status = slReadSection(io, records, &count);
    std::string all;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        all += shown(records.ElementAtM(i)) + "\n";
    }
    return all;
}

// The fields of each, when the section became what is wanted.
template <class RecordArrTP> std::string readFields(const std::string& utf8, SectionStatus wanted)
{
    SectionStatus status {};
    const std::string all
        = readRecords<RecordArrTP>(utf8, &status, [](auto& record) { return printedFields(record); });
    return status == wanted ? all : "another status";
}
