#pragma once
#include "baselib/gbk_texts.h"
#include "controls/text/typed_value.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuSpinEditCL;

// One spin edit of a description file. Holds no window.
class PANELKIT_API DVrSpinEditCL : public DVrCommonBoxCL
{
public:
    DVrSpinEditCL() = default;
    explicit DVrSpinEditCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    // Reads one record: 1. 0 for an unknown data type, behind which nothing is read.
    int FmReadInterfaceM(VrIOCL* io);
    int InitSpinEditM(DuSpinEditCL* control) const; // Copies the record into a control; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    bool isTypeKnownM() const { return dataType_ == IntegerType || dataType_ == RealType; }

    int editWindowIndex_ { 0 }; // Replaces the common window index: the edit is stacked by it.
    int spinFunctionId_ { 0 };
    int spinWidth_ { 0 };
    int dataType_ { IntegerType };
    int alignMode_ { 2 };
    int decimals_ { 0 };
    simpleValD range_;
    simpleValD step_;
    simpleValD initial_;
};

extern template class PANELKIT_API Arr<DVrSpinEditCL>;

class PANELKIT_API DVrSpinEditArr : public RecordArr<DVrSpinEditCL>
{
public:
    static constexpr const char* KindName = "spin_edit";
    static constexpr const char* Header = SpinEditHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitSpinEditM(int index, DuSpinEditCL* control) const;
};
