#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"
#include "records/string_arr.h"
#include <vector>

class DuNewRotateBtnCL;

// One new rotate button of a description file. Holds no window.
class PANELKIT_API DVrNewRotateBtnCL : public DVrCommonBoxCL
{
public:
    DVrNewRotateBtnCL() = default;
    explicit DVrNewRotateBtnCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    // Reads one record, the columns that may be absent where withX is nonzero. The record is alive then. 1.
    int FmReadInterfaceM(VrIOCL* io, int withShowCondition, int withDescription);
    // Names the picture of a slot, anew if it has one. 0 for a negative slot.
    int SetPictureM(int slot, const char* file);
    int SlotCountM() const { return slotCount_; } // Up to the last named one.
    VrStringArr PicturesM() const; // A name for each slot up to the last named one; "" for the others.

    // Copies the record into a control, which loads the pictures; always 1.
    int InitNewRotateBtnM(DuNewRotateBtnCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);
    // The fields that stand in the file behind the common ones, the columns that may be absent where withX is
    // nonzero.
    void EachColumnM(FieldVisitorCL& visitor, int withShowCondition, int withDescription);

private:
    struct PictureCL
    {
        int slot;
        CharArr file;
    };

    int steps_[2] {}; // Left, right.
    int initialIndex_ { 0 };
    CharArr description_;
    std::vector<PictureCL> pictures_; // As named: slots may be far apart, but cost nothing here.
    int slotCount_ { 0 };
};

extern template class PANELKIT_API Arr<DVrNewRotateBtnCL>;

class PANELKIT_API DVrNewRotateBtnArr : public RecordArr<DVrNewRotateBtnCL>
{
public:
    // Reads both sections from an open file, appending. 1; 0 when one of them is missing or its count can't
    // be meant, the records read before that stay. Pictures of slots far beyond what the file can fill are
    // passed over.
    int FmReadInterfaceM(VrIOCL* io);
    int InitNewRotateBtnM(int index, DuNewRotateBtnCL* control) const; // 0 for an index outside, else 1.

private:
    int readPicturesM(VrIOCL* io);
};
