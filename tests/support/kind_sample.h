#pragma once
#include "baselib/char_arr.h"
#include "records/section.h"
#include "support/description_files.h"
#include <gtest/gtest.h>
#include <memory>

// Reads the records of a kind, with their entries, from the sample that has some of every kind.
template <class RecordArrTP> void readSample(RecordArrTP& records)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg")));
    int count = 0;
    ASSERT_EQ(slReadSection(io, records, &count), SectionStatus::Read);
    ASSERT_GT(count, 0);
}

// Gives every file name of a record, and of its entries, another one, and every caption.
class RetextingCL : public FieldVisitorCL
{
public:
    RetextingCL(const char* name, const char* caption)
        : name_(name)
        , caption_(caption)
    {
    }
    void NameM(const char*, CharArr& file, const TextFormCL&) override { file.SetM(name_); }
    void CaptionM(const char*, CharArr& text, const TextFormCL&) override { text.SetM(caption_); }
    void ListM(const char*, int rows, const std::function<void(FieldVisitorCL&, int)>& see) override
    {
        for (int row = 0; row < rows; ++row) {
            see(*this, row);
        }
    }

private:
    const char* name_;
    const char* caption_;
};
