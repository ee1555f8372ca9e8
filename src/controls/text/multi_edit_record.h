#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuMultiEditCL;

// One multi-line edit of a description file. Holds no window.
class PANELKIT_API DVrMultiEditCL : public DVrCommonBoxCL
{
public:
    DVrMultiEditCL() = default;
    explicit DVrMultiEditCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                 // Reads one record; always 1.
    int InitMultiEditM(DuMultiEditCL* control) const; // Copies the record into a control; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int maxNum_ { 0 };
    int alignMode_ { 1 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    ColourTP bkColor_ { 0xFFFFFF };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrMultiEditCL>;

class PANELKIT_API DVrMultiEditArr : public RecordArr<DVrMultiEditCL>
{
public:
    static constexpr const char* KindName = "multi_edit";
    static constexpr const char* Header = MultiEditHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitMultiEditM(int index, DuMultiEditCL* control) const;
};
