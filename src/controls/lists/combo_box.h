#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/lists/translated_lines.h"
#include "records/fields.h"

// A drop-down list, with or without an edit field. Indexes count from 0; texts are GBK.
class PANELKIT_API DuComboBoxCL : public ControlCL<CComboBox>
{
public:
    using ControlCL::ControlCL;

    // 0: no edit field, 1: with one. Takes effect when the window is created.
    int SetEditAvailableM(int available) { return slKeep(editAvailable_, available); }

    int AddItemM(int data, const char* text); // -1 when it can't be added, else the platform's result.
    int InsertItemM(int index, int data, const char* text); // At a place, -1: at the end; 0 when it can't.
    int DelItemM(int index);                                // Deletes an item; 0 when there is none.
    using ControlCL::DelItemM;
    // Deletes index 0, 1, 2, ... in turn: as later items move up, every second one stays.
    int DelAllItemM();

    // The selected item; its text is copied into a buffer of 260 bytes. Without a selection the typed text
    // with index and data -1; 0, and nothing is written, if that is empty too.
    int GetCurItemM(int* index, int* data, char* text);
    int SetSelM(int index); // 0 also for -1, which clears the selection.
    // Selects the first item with that data. Clears the selection and reports 0 when there is none.
    int SetDataSelM(int data);

    void SetTextColourM(std::optional<COLORREF> colour); // Of its field and its lines (ControlCL).

    // The value by id: the selected line and the text, which is its own or what stands in the edit field. A
    // text selects the first line that has exactly this text; else it goes to the edit field, if there is
    // one, and no line is selected. Line and text together: the line if it still has that text, else the
    // text alone. Sends no 1749.
    unsigned ValuePartsM() const { return editAvailable_ == 1 ? LinesPart | TextPart : LinesPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);

    // Its lines by id.
    int LineCountM() const { return GetCount(); }
    // What the line says in the file, also while it shows a translation; none for a line that doesn't exist.
    std::optional<ValueTextCL> LineTextM(int line) const;
    void TranslateM(const TranslatorTP& translate); // Has each line show its translation.
    // Change its lines by id; false when the platform refuses.
    bool InsertLineM(int line, int data, const char* text) { return InsertItemM(line, data, text) == 1; }
    bool DeleteLineM(int line) { return DelItemM(line) == 1; }
    void ClearLinesM() { ResetContent(); }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    void catchUpM() override { currentSel_ = -1; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    afx_msg void OnSelchange();
    afx_msg void OnKillfocus();
    DECLARE_MESSAGE_MAP()

private:
    void followSelectionM(UINT message, int index, int result);
    void takeTypedTextM();
    bool typeM(const ValueTextCL& text);
    bool showsTranslationM(int line) const;
    int lineWithM(const ValueTextCL& text) const;
    void replaceItemM(int item, const char* text);

    int editAvailable_ { 0 };
    // The item last selected by anybody: the list itself forgets it when something is typed. It goes along
    // when lines before it come and go; -1 once it is cleared or gone.
    int currentSel_ { -1 };
    LineOriginalsCL originals_;
};

extern template class PANELKIT_API Arr<DuComboBoxCL>;

class PANELKIT_API DuComboBoxArr : public ControlArr<DuComboBoxCL>
{
public:
    // Creates the first alive control, then, up to the first failure, those of the slots from 1 up to the
    // number of alive controls, deleted or not. 0 when none is alive, else the last result.
    int Create(CWnd* parent);
};
