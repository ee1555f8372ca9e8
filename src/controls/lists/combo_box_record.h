#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"
#include "records/rows.h"

class DuComboBoxCL;

// One combo box of a description file with its initial items.
class PANELKIT_API DVrComboBoxCL : public RecordCL<DVrComboBoxCL>
{
public:
    using RecordCL::RecordCL;
    int AddStringM(const char* text); // Appends an item; 0 for null, else 1.
    void TakeRowM(const RowCL& row) { slTakeText(items_, *row.texts[0]); } // The same, of the file.
    void destroyM() { items_.DelAllM(); }                                  // Empties the items.
    int InitComboBoxM(DuComboBoxCL* control) const;
    int InitComboBoxStrM(DuComboBoxCL* control) const; // Adds the items to a live control.
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int editAvailable_ { 0 };
    TextListCL items_;
};

extern template class PANELKIT_API Arr<DVrComboBoxCL>;

class PANELKIT_API DVrComboBoxArr : public RecordArr<DVrComboBoxCL>
{
public:
    static constexpr const char* KindName = "combo_box";
    static constexpr const char* Header = ComboBoxHeader;
    static constexpr int ItemSize = 255; // Bytes of an item with its terminator.
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { ComboBoxItemHeader,
        &slTextRow<ItemSize>, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int InitComboBoxM(int index, DuComboBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitComboBoxM, control);
    }
    int InitComboBoxStrM(int index, DuComboBoxCL* control)
    {
        return ifAliveM(index, &RecordTP::InitComboBoxStrM, control);
    }
    int AddStringM(int index, const char* text) { return addM(index, &RecordTP::AddStringM, text); }
};
