#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuGroupBoxCL;

// One group box of a description file. Holds no window.
class PANELKIT_API DVrGroupBoxCL : public DVrCommonBoxCL
{
public:
    DVrGroupBoxCL() = default;
    explicit DVrGroupBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);               // Reads one record; always 1.
    int InitGroupBoxM(DuGroupBoxCL* control) const; // Copies the record into a control; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrGroupBoxCL>;

class PANELKIT_API DVrGroupBoxArr : public RecordArr<DVrGroupBoxCL>
{
public:
    static constexpr const char* KindName = "group_box";
    static constexpr const char* Header = GroupBoxHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitGroupBoxM(int index, DuGroupBoxCL* control) const;
};
