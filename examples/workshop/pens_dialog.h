// Pens and layers: a dialog in class style, with a message map.
#pragma once
#include "dialog/basic_dialog.h"
#include "settings.h"
#include <functional>

// The table has a row for each pen, and what stands in it is all that the program knows of pens; the fields
// below show the chosen row, and change it while the user types. Each layer of the tree has one of the pens.
class PensDialogCL : public DuBasicDialogCL
{
public:
    explicit PensDialogCL(const SettingsCL& settings);
    BOOL OnInitDialog() override;
    static std::string SummaryM(const SettingsCL& settings); // Of what was kept (UTF-8).

protected:
    afx_msg LRESULT onButtonM(WPARAM id, LPARAM);
    afx_msg void onPenChangingM(NMHDR* header, LRESULT* refused);
    afx_msg void onPenChosenM(NMHDR* header, LRESULT*);
    afx_msg void onLayerChangingM(NMHDR*, LRESULT* refused);
    afx_msg void onLayerChosenM(NMHDR*, LRESULT*);
    afx_msg void onFieldChangedM();
    DECLARE_MESSAGE_MAP()

private:
    int penM() { return ValuesM().IndexM(PensId).value_or(-1); } // The chosen row; -1: none.
    std::string cellM(int pen, int column) const;                // GBK.
    void showPenM();
    void showLayerM();
    void useForLayerM();
    void eachLayerM(HTREEITEM first, const std::function<void(HTREEITEM)>& see);
    bool areFieldsLegalM();
    bool keepM();
    void restoreM();

    enum ControlId : int // Of pens.dlg.
    {
        OkId = 1,
        CancelId = 2,
        UseForLayerId = 21,
        LayerPenId = 901,
        NameId = 1101,
        WidthId = 1102,
        SpeedId = 1103,
        NibsId = 3001,
        ColoursId = 3002,
        PensId = 4001,
        LayersId = 5001
    };

    enum Column : int // Of the table.
    {
        NumberColumn,
        NameColumn,
        WidthColumn,
        SpeedColumn,
        NibColumn
    };

    const SettingsCL& settings_;
    DuListCtrlCL* pens_ { nullptr };
    DuTreeCL* layers_ { nullptr };
    bool isShowing_ { false }; // The fields get the values of a pen: no change of the user's.
};
