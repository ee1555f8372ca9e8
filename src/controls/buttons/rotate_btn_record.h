#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuRotateBtnCL;

// One rotate button of a description file. Angles are degrees. Holds no window.
class PANELKIT_API DVrRotateBtnCL : public DVrCommonBoxCL
{
public:
    DVrRotateBtnCL() = default;
    explicit DVrRotateBtnCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    // Copies the record into a control without a window, which loads the pictures; always 1.
    int InitRotateBtnM(DuRotateBtnCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
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

    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitRotateBtnM(int index, DuRotateBtnCL* control) const;
};
