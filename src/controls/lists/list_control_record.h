#pragma once
#include "baselib/gbk_texts.h"
#include "containers/int2d_arr.h"
#include "records/record_arr.h"
#include "records/rows.h"

class DuListCtrlCL;

// A heading.
inline void slTitleRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.IndexM("column", row.numbers[0]);
    visitor.LengthM("width", row.numbers[1], Along::X);
    visitor.CaptionM("text", *row.texts[0], NullWord::SkipsEntry);
}

// A cell.
inline void slCellRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.IndexM("row", row.numbers[0]);
    visitor.IndexM("column", row.numbers[1]);
    visitor.CaptionM("text", *row.texts[0], NullWord::SkipsEntry);
}

// Texts with two numbers each: pair k, deleted or not, belongs to the k-th alive text.
struct PANELKIT_API PairedTextsCL
{
    int AddM(const int pair[2], const char* text); // 0, and nothing is appended, for null; else 1.
    void TakeM(const RowCL& row);                  // The same, of the file: takes its text.
    void DelAllM();                                // Empties both lists.
    int CountM() const;                            // Of the shorter list's alive entries.
    void VisitM(FieldVisitorCL& visitor, const char* name, RowFieldsTP fields); // Shows those as rows.

    OwnListCL<Int2DArr> pairs; // The numbers.
    TextListCL texts;          // The texts, GBK.
};

// One table of a description file with its headings and initial cells.
class PANELKIT_API DVrListCtrlCL : public RecordCL<DVrListCtrlCL>
{
public:
    using RecordCL::RecordCL;
    // pair: column index and width in pixels. 0, and nothing is appended, for a null text; else 1.
    int AddTitleStringM(const int pair[2], const char* text);
    int AddItemStringM(const int pair[2], const char* text); // The same; pair: row and column.
    void destroyM();                                         // Empties headings and cells.
    int InitListCtrlM(DuListCtrlCL* control) const;
    int InitListCtrlStrM(DuListCtrlCL* control) const; // Fills a live control.
    void EachFieldM(FieldVisitorCL& visitor);

    // Column and width with each heading; row and column with each cell. The record keeps them.
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
    static constexpr std::array<SecondarySectionCL<RecordTP>, 2> Secondaries { {
        { ListCtrlTitleHeader, &slTitleRow,
            [](RecordTP& record, const RowCL& row) { record.TitlesM().TakeM(row); } },
        { ListCtrlItemHeader, &slCellRow,
            [](RecordTP& record, const RowCL& row) { record.CellsM().TakeM(row); } },
    } };

    int InitListCtrlM(int index, DuListCtrlCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitListCtrlM, control);
    }
    int InitListCtrlStrM(int index, DuListCtrlCL* control)
    {
        return ifAliveM(index, &RecordTP::InitListCtrlStrM, control);
    }
    int AddTitleStringM(int index, const int pair[2], const char* text)
    {
        return addM(index, &RecordTP::AddTitleStringM, pair, text);
    }
    int AddItemStringM(int index, const int pair[2], const char* text)
    {
        return addM(index, &RecordTP::AddItemStringM, pair, text);
    }
};
