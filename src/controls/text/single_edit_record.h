#pragma once
#include "baselib/gbk_texts.h"
#include "controls/text/typed_value.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuSingleEditCL;

// One single-line edit of a description file. Holds no window.
class PANELKIT_API DVrSingleEditCL : public DVrCommonBoxCL
{
public:
    DVrSingleEditCL() = default;
    explicit DVrSingleEditCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    // Reads one record: 1. 0 for an unknown data type, behind which nothing is read.
    int FmReadInterfaceM(VrIOCL* io);
    // Copies the record, but not its colour, into a control without a window. Always 1.
    int InitSingleEditM(DuSingleEditCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    bool isTypeKnownM() const { return dataType_ >= IntegerType && dataType_ <= TextType; }

    int dataType_ { IntegerType };
    int alignMode_ { 2 };
    int password_ { 0 };
    int decimals_ { 0 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    ColourTP colour_ { 0xFFFFFF };
    simpleValD range_;
    simpleValD initial_;
};

extern template class PANELKIT_API Arr<DVrSingleEditCL>;

class PANELKIT_API DVrSingleEditArr : public RecordArr<DVrSingleEditCL>
{
public:
    static constexpr const char* KindName = "single_edit";
    static constexpr const char* Header = SingleEditHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitSingleEditM(int index, DuSingleEditCL* control) const;
};
