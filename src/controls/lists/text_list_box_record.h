#pragma once
#include "baselib/gbk_texts.h"
#include "controls/lists/record_lists.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuTextListBoxCL;

// One text list box of a description file with its initial lines. Holds no window.
class PANELKIT_API DVrTextListBoxCL : public DVrCommonBoxCL
{
public:
    DVrTextListBoxCL() = default;
    explicit DVrTextListBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                     // Reads one record, without lines; always 1.
    int AddStringM(const char* text);                     // Adds a line; 1. 0 for null.
    void destroyM();                                      // Drops the lines.
    int InitTextListBoxM(DuTextListBoxCL* control) const; // Into a control without a window; always 1.
    // Adds the lines, numbered from 0, to a control with its window; always 1.
    int InitTextListBoxStrM(DuTextListBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int itemHeight_ { 12 };
    int selMode_ { 1 };
    int edge_ { 1 };
    ColourTP bkColor_ { 0xFFFFFF };
    int scroll_ { 0 };
    TextListCL items_;
};

extern template class PANELKIT_API Arr<DVrTextListBoxCL>;

class PANELKIT_API DVrTextListBoxArr : public RecordArr<DVrTextListBoxCL>
{
public:
    static constexpr const char* KindName = "text_list_box";
    static constexpr const char* Header = TextListBoxHeader;
    static constexpr std::array<SecondarySectionCL<DVrTextListBoxCL>, 1> Secondaries { {
        { TextListBoxItemHeader, 0, 1, TextSize,
            [](DVrTextListBoxCL& record, const SectionEntryCL& entry) {
                return record.AddStringM(entry.texts[0]);
            } },
    } };

    // These concern the record at index, if it is alive. Always 1.
    int InitTextListBoxM(int index, DuTextListBoxCL* control) const;
    int InitTextListBoxStrM(int index, DuTextListBoxCL* control);
    int AddStringM(int index, const char* text);
};
