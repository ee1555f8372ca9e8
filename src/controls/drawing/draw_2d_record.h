#pragma once
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuDraw2DCL;

// One drawing canvas of a description file. Holds no window.
class PANELKIT_API DVrDraw2DCL : public DVrCommonBoxCL
{
public:
    DVrDraw2DCL() = default;
    explicit DVrDraw2DCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    int InitDraw2DM(
        DuDraw2DCL* control) const; // Copies the record into a control without a window; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    ColourTP bkColor_ { 0 };
};

extern template class PANELKIT_API Arr<DVrDraw2DCL>;

class PANELKIT_API DVrDraw2DArr : public RecordArr<DVrDraw2DCL>
{
public:
    static constexpr const char* KindName = "drawing";
    static constexpr const char* Header = Draw2DHeader;

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitDraw2DM(int index, DuDraw2DCL* control) const;
};
