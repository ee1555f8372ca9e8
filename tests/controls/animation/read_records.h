#pragma once
#include "records/section.h"
#include "support/printed.h"
#include <gtest/gtest.h>
#include <string>

// The fields of each record of a file (UTF-8), a line a record.
template <class RecordArrTP> std::string read(const std::string& utf8, SectionStatus wanted)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    RecordArrTP records;
    int count = 0;
    EXPECT_EQ(slReadSection(io, records, &count), wanted);
    std::string all;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        all += printedFields(records[i]) + "\n";
    }
    return all;
}
