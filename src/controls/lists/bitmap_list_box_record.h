#pragma once
#include "baselib/gbk_texts.h"
#include "controls/lists/record_lists.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuBmpListBoxCL;

// One list box of pictures of a description file with the names of its pictures. Holds no window.
class PANELKIT_API DVrBmpListBoxCL : public DVrCommonBoxCL
{
public:
    DVrBmpListBoxCL() = default;
    explicit DVrBmpListBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                   // Reads one record, without names; always 1.
    int AddBmpNameM(const char* name);                  // Adds a picture; 1. 0 for null.
    void destroyM() { bitmaps_.DelAllM(); }             // Drops the names.
    int InitBmpListBoxM(DuBmpListBoxCL* control) const; // Into a control without a window; always 1.
    // Loads the pictures into a control with its window. Their numbers count the names, so one that can't be
    // loaded leaves a gap. Always 1.
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
    static constexpr std::array<SecondarySectionCL<DVrBmpListBoxCL>, 1> Secondaries { {
        { BmpListBoxBitmapHeader, 0, 1, TextSize,
            [](DVrBmpListBoxCL& record, const SectionEntryCL& entry) {
                return record.AddBmpNameM(entry.texts[0]);
            } },
    } };

    // These concern the record at index, if it is alive. Always 1.
    int InitBmpListBoxM(int index, DuBmpListBoxCL* control) const;
    int InitBmpListBoxBmpM(int index, DuBmpListBoxCL* control);
    int AddBmpNameM(int index, const char* name);
};
