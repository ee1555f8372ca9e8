#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"

// A table with headings. Rows and columns count from 0; texts are GBK. Results are 1 or 0 unless stated.
class PANELKIT_API DuListCtrlCL : public ControlCL<CListCtrl>
{
public:
    using ControlCL::ControlCL;

    using CListCtrl::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.

    int SetColNumM(int columns); // Only kept. Always 1.
    int GetColNumM() const { return columns_; }
    int SetSelModeM(int single); // 1: one row at most can be selected. Counts at creation. Always 1.

    int InsertColumnM(int column, int width, const char* text); // Width in pixels.
    int InsertItemM(int row, int data, const char* text);       // A new row with its column-0 text.
    int SetItemTextM(int row, int column, const char* text);    // 0 for a row that doesn't exist.
    int DeleteItemM(int row);
    int DelAllM();

    int GetRowNumM(int* count) const; // Always 1.
    int GetSelNumM(int* count) const; // Always 1.
    // The first selected row; the next one behind `from`. 0 when there is none: then GetNextSelM makes the
    // row -1, and everything else stays.
    int GetFirstSelM(int* row, int* data) const;
    int GetNextSelM(int from, int* row, int* data) const;
    int GetCurSelM(int* row, int* data) const; // Without a selection the row is -1, data stays, and it is 1.
    int SetSelM(int row); // Leaves no other row selected; below 0: none at all. Always 1.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* oldFocus);
    DECLARE_MESSAGE_MAP()

private:
    int columns_ { 0 };
    int singleSelection_ { 1 };
};

extern template class PANELKIT_API Arr<DuListCtrlCL>;

class PANELKIT_API DuListCtrlArr : public ControlArr<DuListCtrlCL>
{
};
