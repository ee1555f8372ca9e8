#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuLabelCL;

// One label of a description file. Holds no window.
class PANELKIT_API DVrLabelCL : public DVrCommonBoxCL
{
public:
    DVrLabelCL() = default;
    explicit DVrLabelCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);         // Reads one record; always 1.
    int InitLabelM(DuLabelCL* control) const; // Copies the record into a control without a window; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int alignMode_ { 1 };
    CharArr text_;
    int edge_ { 0 };
    ColourTP bkColor_ { 0xBFBFBF };
    int bkColorFlag_ { 0 };
};

extern template class PANELKIT_API Arr<DVrLabelCL>;

class PANELKIT_API DVrLabelArr : public RecordArr<DVrLabelCL>
{
public:
    static constexpr const char* KindName = "label";
    static constexpr const char* Header = LabelHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitLabelM(int index, DuLabelCL* control) const;
};
