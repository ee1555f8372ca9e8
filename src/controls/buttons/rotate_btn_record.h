#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuRotateBtnCL;

// One rotate button of a description file. Angles are degrees.
class PANELKIT_API DVrRotateBtnCL : public RecordCL<DVrRotateBtnCL>
{
public:
    using RecordCL::RecordCL;
    int InitRotateBtnM(DuRotateBtnCL* control) const;
    int GiveLengthsM(
        DuRotateBtnCL* control) const; // The place and centre of its picture, and the region too.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    void giveRegionM(DuRotateBtnCL* control) const;

    int picturePosition_[2] {};
    int centre_[2] {};
    int stepSigns_[2] {};
    int counterIncrements_[2] {};
    float stepAngle_ { 0 };
    int enabled_ { 1 };
    float angleRange_[2] {}; // Upper, lower.
    float initialAngle_ { 0 };
    int initialCounter_ { 0 };
    CharArr background_;
    CharArr rotating_;
    CharArr region_;
};

extern template class PANELKIT_API Arr<DVrRotateBtnCL>;

class PANELKIT_API DVrRotateBtnArr : public RecordArr<DVrRotateBtnCL>
{
public:
    static constexpr const char* KindName = "rotate_button";
    static constexpr const char* Header = RotateBtnHeader;

    int InitRotateBtnM(int index, DuRotateBtnCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitRotateBtnM, control);
    }
};
