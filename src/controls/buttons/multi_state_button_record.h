#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk_texts.h"
#include "baselib/int_arr.h"
#include "records/common_box_record.h"
#include "records/own_list.h"
#include "records/record_arr.h"

class DuMultiStateButtonCL;

// One multi-state button of a description file. Holds no window.
class PANELKIT_API DVrMultiStateButtonCL : public DVrCommonBoxCL
{
public:
    DVrMultiStateButtonCL() = default;
    explicit DVrMultiStateButtonCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    // Appends a status value and its picture. The index of the name; -1, and no status, when there is no
    // memory.
    int AddStringM(int status, const char* file);
    // Copies the record into a control without a window, which loads the pictures; always 1.
    int InitMultiStateButtonM(DuMultiStateButtonCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int initialStatus_ { 0 };
    CharArr region_;
    OwnListCL<IntArr> statuses_; // In step with files_.
    TextListCL files_;
};

extern template class PANELKIT_API Arr<DVrMultiStateButtonCL>;

class PANELKIT_API DVrMultiStateButtonArr : public RecordArr<DVrMultiStateButtonCL>
{
public:
    static constexpr const char* KindName = "multi_state_button";
    static constexpr const char* Header = MultiStateButtonHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { MultiStateButtonDataHeader,
        1, 1, TextSize, [](RecordTP& record, const SectionEntryCL& entry) {
            return record.AddStringM(entry.numbers[0], entry.texts[0]);
        } } } };

    // Appends a status to the record at index; nothing where none is alive. Always 1.
    int AddStringM(int index, int status, const char* file);
    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitMultiStateButtonM(int index, DuMultiStateButtonCL* control) const;
};
