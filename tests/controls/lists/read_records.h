#pragma once
#include "support/read_records.h"
#include <gtest/gtest.h>

// Each record of a file (UTF-8) as its function id and fields.
template <class RecordArrTP> std::string read(const std::string& utf8, SectionStatus* status = nullptr)
{
    SectionStatus result {};
    return readRecords<RecordArrTP>(utf8, status != nullptr ? status : &result,
        [](auto& record) { return std::to_string(record.GetFuncIDM()) + ": " + printedFields(record); });
}

inline std::string repeated(const std::string& what, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += what;
    }
    return all;
}
