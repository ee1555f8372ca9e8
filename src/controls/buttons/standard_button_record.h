#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuStandardButtonCL;

// One push button of a description file. Holds no window.
class PANELKIT_API DVrStandardButtonCL : public DVrCommonBoxCL
{
public:
    DVrStandardButtonCL() = default;
    explicit DVrStandardButtonCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    int InitStandardButtonM(
        DuStandardButtonCL* control) const; // Copies the record into a control without a window; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    CharArr text_;
    int default_ { 0 };
};

extern template class PANELKIT_API Arr<DVrStandardButtonCL>;

class PANELKIT_API DVrStandardButtonArr : public RecordArr<DVrStandardButtonCL>
{
public:
    static constexpr const char* KindName = "standard_button";
    static constexpr const char* Header = StandardButtonHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitStandardButtonM(int index, DuStandardButtonCL* control) const;
};
