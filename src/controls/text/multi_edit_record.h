#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuMultiEditCL;

// One multi-line edit of a description file.
class PANELKIT_API DVrMultiEditCL : public RecordCL<DVrMultiEditCL>
{
public:
    using RecordCL::RecordCL;
    int InitMultiEditM(DuMultiEditCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int maxNum_ { 0 };
    int alignMode_ { 1 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    ColourTP bkColour_ { 0xFFFFFF };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrMultiEditCL>;

class PANELKIT_API DVrMultiEditArr : public RecordArr<DVrMultiEditCL>
{
public:
    static constexpr const char* KindName = "multi_edit";
    static constexpr const char* Header = MultiEditHeader;

    int InitMultiEditM(int index, DuMultiEditCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitMultiEditM, control);
    }
};
