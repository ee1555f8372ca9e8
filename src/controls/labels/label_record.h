#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuLabelCL;

// One label of a description file.
class PANELKIT_API DVrLabelCL : public RecordCL<DVrLabelCL>
{
public:
    using RecordCL::RecordCL;
    int InitLabelM(DuLabelCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int alignMode_ { 1 };
    CharArr text_;
    int edge_ { 0 };
    ColourTP bkColour_ { 0xBFBFBF };
    int bkColourFlag_ { 0 };
};

extern template class PANELKIT_API Arr<DVrLabelCL>;

class PANELKIT_API DVrLabelArr : public RecordArr<DVrLabelCL>
{
public:
    static constexpr const char* KindName = "label";
    static constexpr const char* Header = LabelHeader;

    int InitLabelM(int index, DuLabelCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitLabelM, control);
    }
};
