#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/base/translator.h"

// A table with headings. Rows and columns count from 0; texts are GBK.
class PANELKIT_API DuListCtrlCL : public ControlCL<CListCtrl>
{
public:
    using ControlCL::ControlCL;

    // How many columns the file has named; only kept, InsertColumnM makes them.
    int SetColNumM(int columns) { return slKeep(columns_, columns); }
    int GetColNumM() const { return columns_; }
    // 1: one row at most can be selected. Counts at creation.
    int SetSelModeM(int single) { return slKeep(singleSelection_, single); }

    int InsertColumnM(int column, int width, const char* text); // A heading; width in pixels.
    int InsertItemM(int row, int data, const char* text);       // A new row with its column-0 text.
    int SetItemTextM(int row, int column, const char* text);    // 0 for a row that doesn't exist.
    // Has each heading show its translation. Cells are what the application reads and writes: they stay.
    void TranslateM(const TranslatorTP& translate);
    // Deletes a row, or all. 0 for a row that doesn't exist.
    int DeleteItemM(int row) { return row >= 0 && DeleteItem(row) ? 1 : 0; }
    int DelAllM() { return DeleteAllItems() ? 1 : 0; }

    // How many rows there are, how many are selected: 1.
    int GetRowNumM(int* count) const;
    int GetSelNumM(int* count) const;
    // The first selected row; the next one behind `from`. 0 when there is none: then GetNextSelM makes the
    // row -1, and everything else stays.
    int GetFirstSelM(int* row, int* data) const;
    int GetNextSelM(int from, int* row, int* data) const;
    int GetCurSelM(int* row, int* data) const; // Without a selection the row is -1, data stays, and it is 1.
    int SetSelM(int row);                      // Leaves no other row selected; below 0: none at all.

    // The colour of the rows' texts (ControlCL).
    void SetTextColourM(std::optional<COLORREF> colour);

    // The value by id: the rows selected. The platform tells the parent of rows whose selection changes.
    unsigned ValuePartsM() const { return LinesPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);

    // Its rows by id, with their column-0 texts.
    int LineCountM() const { return GetItemCount(); }
    std::optional<ValueTextCL> LineTextM(int row) const; // None for a row that doesn't exist.
    // Change its rows by id; false when the platform refuses.
    bool InsertLineM(int row, int data, const char* text) { return InsertItemM(row, data, text) == 1; }
    bool DeleteLineM(int row) { return DeleteItemM(row) == 1; }
    void ClearLinesM() { DelAllM(); }

    void RescaledM(int from, int to); // The columns follow as the user has made them.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    DECLARE_MESSAGE_MAP()

private:
    void deselectM(int row);
    void showTextColourM();

    int columns_ { 0 };
    int singleSelection_ { 1 };
    COLORREF platformColour_ { CLR_DEFAULT }; // Of the window to begin with.
};

extern template class PANELKIT_API Arr<DuListCtrlCL>;

class PANELKIT_API DuListCtrlArr : public ControlArr<DuListCtrlCL>
{
};
