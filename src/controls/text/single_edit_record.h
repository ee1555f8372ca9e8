#pragma once
#include "baselib/gbk_texts.h"
#include "controls/text/typed_value.h"
#include "records/record_arr.h"

class DuSingleEditCL;

// One single-line edit of a description file.
class PANELKIT_API DVrSingleEditCL : public RecordCL<DVrSingleEditCL>
{
public:
    using RecordCL::RecordCL;
    // Copies all but the colour.
    int InitSingleEditM(DuSingleEditCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
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

    int InitSingleEditM(int index, DuSingleEditCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitSingleEditM, control);
    }
};
