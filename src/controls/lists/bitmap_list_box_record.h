#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"
#include "records/rows.h"

class DuBmpListBoxCL;

// One list box of pictures of a description file with the names of its pictures.
class PANELKIT_API DVrBmpListBoxCL : public RecordCL<DVrBmpListBoxCL>
{
public:
    using RecordCL::RecordCL;
    int AddBmpNameM(const char* name);                                       // Adds a picture; 1. 0 for null.
    void TakeRowM(const RowCL& row) { slTakeText(bitmaps_, *row.texts[0]); } // The same, of the file.
    void destroyM() { bitmaps_.DelAllM(); }                                  // Drops the names.
    int InitBmpListBoxM(DuBmpListBoxCL* control) const;
    // Loads the pictures into a control with its window. Their numbers count the names, so one that can't be
    // loaded leaves a gap.
    int InitBmpListBoxBmpM(DuBmpListBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int rows_ { 0 };
    int columns_ { 0 };
    int scrollMode_ { 2 };
    int selMode_ { 1 };
    TextListCL bitmaps_;
};

extern template class PANELKIT_API Arr<DVrBmpListBoxCL>;

class PANELKIT_API DVrBmpListBoxArr : public RecordArr<DVrBmpListBoxCL>
{
public:
    static constexpr const char* KindName = "bitmap_list_box";
    static constexpr const char* Header = BmpListBoxHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { BmpListBoxBitmapHeader,
        &slPictureRow, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int InitBmpListBoxM(int index, DuBmpListBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitBmpListBoxM, control);
    }
    int InitBmpListBoxBmpM(int index, DuBmpListBoxCL* control)
    {
        return ifAliveM(index, &RecordTP::InitBmpListBoxBmpM, control);
    }
    int AddBmpNameM(int index, const char* name) { return addM(index, &RecordTP::AddBmpNameM, name); }
};
