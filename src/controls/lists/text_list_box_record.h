#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"
#include "records/rows.h"

class DuTextListBoxCL;

// One text list box of a description file with its initial lines.
class PANELKIT_API DVrTextListBoxCL : public RecordCL<DVrTextListBoxCL>
{
public:
    using RecordCL::RecordCL;
    int AddStringM(const char* text);                                      // Adds a line; 1. 0 for null.
    void TakeRowM(const RowCL& row) { slTakeText(items_, *row.texts[0]); } // The same, of the file.
    void destroyM();                                                       // Drops the lines.
    int InitTextListBoxM(DuTextListBoxCL* control) const;
    int GiveLengthsM(DuTextListBoxCL* control) const; // The height of the lines too.
    // Adds the lines, numbered from 0, to a control with its window.
    int InitTextListBoxStrM(DuTextListBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int itemHeight_ { 12 };
    int selMode_ { 1 };
    int edge_ { 1 };
    ColourTP bkColour_ { 0xFFFFFF };
    int scroll_ { 0 };
    TextListCL items_;
};

extern template class PANELKIT_API Arr<DVrTextListBoxCL>;

class PANELKIT_API DVrTextListBoxArr : public RecordArr<DVrTextListBoxCL>
{
public:
    static constexpr const char* KindName = "text_list_box";
    static constexpr const char* Header = TextListBoxHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { TextListBoxItemHeader,
        &slTextRow<>, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int InitTextListBoxM(int index, DuTextListBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitTextListBoxM, control);
    }
    int InitTextListBoxStrM(int index, DuTextListBoxCL* control)
    {
        return ifAliveM(index, &RecordTP::InitTextListBoxStrM, control);
    }
    int AddStringM(int index, const char* text) { return addM(index, &RecordTP::AddStringM, text); }
};
