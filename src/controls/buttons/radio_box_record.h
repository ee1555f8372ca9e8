#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuRadioBoxCL;

// One radio button of a description file.
class PANELKIT_API DVrRadioBoxCL : public RecordCL<DVrRadioBoxCL>
{
public:
    using RecordCL::RecordCL;
    int InitRadioBoxM(DuRadioBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int group_ { 0 };
    int check_ { 0 };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrRadioBoxCL>;

class PANELKIT_API DVrRadioBoxArr : public RecordArr<DVrRadioBoxCL>
{
public:
    static constexpr const char* KindName = "radio_button";
    static constexpr const char* Header = RadioBoxHeader;

    int InitRadioBoxM(int index, DuRadioBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitRadioBoxM, control);
    }
};
