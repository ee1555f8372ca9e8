#pragma once
#include "baselib/gbk_texts.h"
#include "controls/text/typed_value.h"
#include "records/record_arr.h"

class DuSpinEditCL;

// One spin edit of a description file.
class PANELKIT_API DVrSpinEditCL : public RecordCL<DVrSpinEditCL>
{
public:
    using RecordCL::RecordCL;
    int InitSpinEditM(DuSpinEditCL* control) const;
    int GiveLengthsM(DuSpinEditCL* control) const; // The width of the arrows too.
    void EachFieldM(FieldVisitorCL& visitor);

private:
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

    int InitSpinEditM(int index, DuSpinEditCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitSpinEditM, control);
    }
};
