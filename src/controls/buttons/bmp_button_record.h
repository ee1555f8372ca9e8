#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuBmpButtonCL;

// One bitmap button of a description file. Holds no window.
class PANELKIT_API DVrBmpButtonCL : public DVrCommonBoxCL
{
public:
    DVrBmpButtonCL() = default;
    explicit DVrBmpButtonCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    // Copies the record into a control without a window, which loads the pictures; always 1.
    int InitBmpButtonM(DuBmpButtonCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    CharArr normal_;
    CharArr pressed_;
    CharArr released_;
    CharArr disabled_;
    CharArr region_;
};

extern template class PANELKIT_API Arr<DVrBmpButtonCL>;

class PANELKIT_API DVrBmpButtonArr : public RecordArr<DVrBmpButtonCL>
{
public:
    static constexpr const char* KindName = "bitmap_button";
    static constexpr const char* Header = BmpButtonHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitBmpButtonM(int index, DuBmpButtonCL* control) const;
};
