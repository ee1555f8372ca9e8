#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuCheckBoxCL;

// One check box of a description file. Holds no window.
class PANELKIT_API DVrCheckBoxCL : public DVrCommonBoxCL
{
public:
    DVrCheckBoxCL() = default;
    explicit DVrCheckBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    int InitCheckBoxM(
        DuCheckBoxCL* control) const; // Copies the record into a control without a window; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int check_ { 0 };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrCheckBoxCL>;

class PANELKIT_API DVrCheckBoxArr : public RecordArr<DVrCheckBoxCL>
{
public:
    static constexpr const char* KindName = "check_box";
    static constexpr const char* Header = CheckBoxHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitCheckBoxM(int index, DuCheckBoxCL* control) const;
};
