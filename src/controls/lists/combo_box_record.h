#pragma once
#include "baselib/gbk_texts.h"
#include "controls/lists/record_lists.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuComboBoxCL;

// One combo box of a description file with its initial items. Holds no window.
class PANELKIT_API DVrComboBoxCL : public DVrCommonBoxCL
{
public:
    DVrComboBoxCL() = default;
    explicit DVrComboBoxCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                  // Reads one record; always 1.
    int AddStringM(const char* text);                  // Appends an item; 0 for null, else 1.
    void destroyM() { items_.DelAllM(); }              // Empties the items.
    int InitComboBoxM(DuComboBoxCL* control) const;    // Copies the record into a control; always 1.
    int InitComboBoxStrM(DuComboBoxCL* control) const; // Adds the items to a live control; always 1.
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
    static constexpr std::array<SecondarySectionCL<DVrComboBoxCL>, 1> Secondaries { {
        { ComboBoxItemHeader, 0, 1, ItemSize,
            [](DVrComboBoxCL& record, const SectionEntryCL& entry) {
                return record.AddStringM(entry.texts[0]);
            } },
    } };

    // For the record at index, if it is alive. Always 1.
    int InitComboBoxM(int index, DuComboBoxCL* control) const;
    int InitComboBoxStrM(int index, DuComboBoxCL* control);
    int AddStringM(int index, const char* text);
};
