#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuRadioBoxCL;

// One radio button of a description file. Holds no window.
class PANELKIT_API DVrRadioBoxCL : public DVrCommonBoxCL
{
public:
    DVrRadioBoxCL() = default;
    explicit DVrRadioBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    int InitRadioBoxM(
        DuRadioBoxCL* control) const; // Copies the record into a control without a window; always 1.
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

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitRadioBoxM(int index, DuRadioBoxCL* control) const;
};
