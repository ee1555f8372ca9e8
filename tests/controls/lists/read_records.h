#pragma once
#include "support/printed.h"
#include <gtest/gtest.h>
#include <string>

// Each record of a file (UTF-8) as its function id and fields.
template <class RecordArrTP> std::string read(const std::string& utf8, SectionStatus* status = nullptr)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    RecordArrTP records;
    int count = 0;
    const SectionStatus result = slReadSection(io, records, &count);
    if (status != nullptr) {
        *status = result;
    }
    std::string all;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        all += std::to_string(records.ElementAtM(i).GetFuncIDM()) + ": "
            + printedFields(records.ElementAtM(i)) + "\n";
    }
    return all;
}

inline std::string repeated(const std::string& what, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += what;
    }
    return all;
}
