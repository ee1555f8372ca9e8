#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuDraw2DCL;

// One drawing canvas of a description file.
class PANELKIT_API DVrDraw2DCL : public RecordCL<DVrDraw2DCL>
{
public:
    using RecordCL::RecordCL;
    int InitDraw2DM(DuDraw2DCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    ColourTP bkColour_ { 0 };
};

extern template class PANELKIT_API Arr<DVrDraw2DCL>;

class PANELKIT_API DVrDraw2DArr : public RecordArr<DVrDraw2DCL>
{
public:
    static constexpr const char* KindName = "drawing";
    static constexpr const char* Header = Draw2DHeader;

    int InitDraw2DM(int index, DuDraw2DCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitDraw2DM, control);
    }
};
