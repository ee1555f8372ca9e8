#pragma once
#include "baselib/gbk_texts.h"
#include "containers/int_arr.h"
#include "containers/own_list.h"
#include "records/record_arr.h"

class DuMultiStateButtonCL;

// A status of a button and its picture.
inline void slStateRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.IntM("status", row.numbers[0]);
    visitor.NameM("bitmap", *row.texts[0], NullWord::SkipsEntry);
}

// One multi-state button of a description file.
class PANELKIT_API DVrMultiStateButtonCL : public RecordCL<DVrMultiStateButtonCL>
{
public:
    using RecordCL::RecordCL;
    // Appends a status value and its picture. The index of the name; -1, and no status, when there is no
    // memory.
    int AddStringM(int status, const char* file);
    void TakeRowM(const RowCL& row)
    {
        if (addM(row.numbers[0], std::move(*row.texts[0])) < 0) {
            throw std::bad_alloc();
        }
    } // The same, of the file.
    int InitMultiStateButtonM(DuMultiStateButtonCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int addM(int status, CharArr&& file);

    int initialStatus_ { 0 };
    CharArr region_;
    OwnListCL<IntArr> statuses_; // In step with files_.
    TextListCL files_;
};

extern template class PANELKIT_API Arr<DVrMultiStateButtonCL>;

class PANELKIT_API DVrMultiStateButtonArr : public RecordArr<DVrMultiStateButtonCL>
{
public:
    static constexpr const char* KindName = "multi_state_button";
    static constexpr const char* Header = MultiStateButtonHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { MultiStateButtonDataHeader,
        &slStateRow, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int AddStringM(int index, int status, const char* file)
    {
        return addM(index, &RecordTP::AddStringM, status, file);
    }
    int InitMultiStateButtonM(int index, DuMultiStateButtonCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitMultiStateButtonM, control);
    }
};
