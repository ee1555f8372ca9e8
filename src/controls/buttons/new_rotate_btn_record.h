#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "containers/string_arr.h"
#include "records/record_arr.h"
#include <vector>

class DuNewRotateBtnCL;

// One new rotate button of a description file.
class PANELKIT_API DVrNewRotateBtnCL : public DVrCommonBoxCL
{
public:
    using DVrCommonBoxCL::DVrCommonBoxCL;

    // Reads one record. It is alive then. 1.
    int FmReadInterfaceM(VrIOCL* io, int withShowCondition, int withDescription);
    void ReadM(FieldReaderCL& reader, int withShowCondition, int withDescription); // The same.
    // Names the picture of a slot, anew if it has one. 0 for a negative slot.
    int SetPictureM(int slot, const char* file);
    int SlotCountM() const { return slotCount_; } // Up to the last named one.
    VrStringArr PicturesM() const; // A name for each slot up to the last named one; "" for the others.

    // Copies the record into a control, which loads the pictures; always 1.
    int InitNewRotateBtnM(DuNewRotateBtnCL* control) const;
    // The columns that may be absent from a file only where withX is nonzero.
    void EachFieldM(FieldVisitorCL& visitor, int withShowCondition = 1, int withDescription = 1);

private:
    struct PictureCL
    {
        int slot;
        CharArr file;
    };
    void visitPicturesM(FieldVisitorCL& visitor);

    int steps_[2] {}; // Left, right.
    int initialIndex_ { 0 };
    CharArr description_;
    std::vector<PictureCL> pictures_; // As named: slots may be far apart, but cost nothing here.
    int slotCount_ { 0 };
};

extern template class PANELKIT_API Arr<DVrNewRotateBtnCL>;

// One entry of the section of pictures.
struct SlotPictureCL
{
    int number { 0 }; // Of no use.
    int button { 0 }; // The place of its button among the records, from 0.
    int slot { 0 };   // Which of the button's pictures, from 0.
    CharArr picture;  // A .bmp file.

    // Shows the visitor those values.
    PANELKIT_API void EachFieldM(FieldVisitorCL& visitor);
};

class PANELKIT_API DVrNewRotateBtnArr : public RecordArr<DVrNewRotateBtnCL>
{
public:
    // Reads both sections from an open file, appending. 1; 0 when one of them is missing or its count can't
    // be meant, the records read before that stay. Pictures of slots far beyond what the file can fill are
    // passed over. Without the memory for all of it std::bad_alloc is thrown, and the array is what it was.
    int FmReadInterfaceM(VrIOCL* io);
    int InitNewRotateBtnM(int index, DuNewRotateBtnCL* control) const; // 0 for an index outside, else 1.

private:
    int readPicturesM(VrIOCL* io);
    bool takesSlotM(int button, int slot, std::size_t fileSize, std::size_t* slots);
};
