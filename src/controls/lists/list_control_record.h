#pragma once
#include "baselib/gbk_texts.h"
#include "baselib/int2d_arr.h"
#include "controls/lists/record_lists.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuListCtrlCL;

// Texts with two numbers each: pair k, deleted or not, belongs to the k-th alive text.
struct PANELKIT_API PairedTextsCL
{
    int AddM(const int pair[2], const char* text); // 0, and nothing is appended, for null; else 1.
    void DelAllM();
    int CountM() const; // Of the shorter list's alive entries.

    OwnListCL<Int2DArr> pairs;
    TextListCL texts;
};

// One table of a description file with its headings and initial cells. Holds no window.
class PANELKIT_API DVrListCtrlCL : public DVrCommonBoxCL
{
public:
    DVrListCtrlCL() = default;
    explicit DVrListCtrlCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io); // Reads one record; always 1.
    // pair: column index and width in pixels. 0, and nothing is appended, for a null text; else 1.
    int AddTitleStringM(const int pair[2], const char* text);
    int AddItemStringM(const int pair[2], const char* text); // pair: row and column.
    void destroyM();                                         // Empties headings and cells.
    int InitListCtrlM(DuListCtrlCL* control) const;          // Copies the record into a control; always 1.
    int InitListCtrlStrM(DuListCtrlCL* control) const;       // Fills a live control; always 1.
    void EachFieldM(FieldVisitorCL& visitor);

    PairedTextsCL& TitlesM() { return titles_; }
    PairedTextsCL& CellsM() { return cells_; }

private:
    int columnCount_ { 0 };
    int singleSelection_ { 1 };
    PairedTextsCL titles_;
    PairedTextsCL cells_;
};

extern template class PANELKIT_API Arr<DVrListCtrlCL>;

class PANELKIT_API DVrListCtrlArr : public RecordArr<DVrListCtrlCL>
{
public:
    static constexpr const char* KindName = "list_control";
    static constexpr const char* Header = ListCtrlHeader;
    static constexpr std::array<SecondarySectionCL<DVrListCtrlCL>, 2> Secondaries { {
        { ListCtrlTitleHeader, 2, 1, TextSize,
            [](DVrListCtrlCL& record, const SectionEntryCL& entry) {
                return record.AddTitleStringM(entry.numbers, entry.texts[0]);
            } },
        { ListCtrlItemHeader, 2, 1, TextSize,
            [](DVrListCtrlCL& record, const SectionEntryCL& entry) {
                return record.AddItemStringM(entry.numbers, entry.texts[0]);
            } },
    } };

    // For the record at index, if it is alive. Always 1.
    int InitListCtrlM(int index, DuListCtrlCL* control) const;
    int InitListCtrlStrM(int index, DuListCtrlCL* control);
    int AddTitleStringM(int index, const int pair[2], const char* text);
    int AddItemStringM(int index, const int pair[2], const char* text);
};
