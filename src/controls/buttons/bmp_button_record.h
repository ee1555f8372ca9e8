#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuBmpButtonCL;

// One bitmap button of a description file.
class PANELKIT_API DVrBmpButtonCL : public RecordCL<DVrBmpButtonCL>
{
public:
    using RecordCL::RecordCL;
    int InitBmpButtonM(DuBmpButtonCL* control) const;
    int GiveLengthsM(DuBmpButtonCL* control) const; // The region too.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    void giveRegionM(DuBmpButtonCL* control) const;

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

    int InitBmpButtonM(int index, DuBmpButtonCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitBmpButtonM, control);
    }
};
