#pragma once
#include "controls/base/background.h"
#include "controls/base/control_arr.h"
#include "controls/lists/list_box.h"
#include "controls/lists/translated_lines.h"

// A list box of text lines, each with a number of the application. Texts are GBK, heights pixels; lines count
// from 0.
class PANELKIT_API DuTextListBoxCL : public ListBoxCL
{
public:
    using ListBoxCL::ListBoxCL;

    // These take effect when the window is created; the colour at the next colour request.
    int SetScrollM(int scroll) { return slKeep(scroll_, scroll); } // 1: the scroll bar is always shown.
    int SetEdgeM(int edge) { return slKeep(edge_, edge); }         // 1: sunken edge.
    int SetItemInitHeightM(int height);                            // 0, and no change, below 1.
    // The background of the lines, 0xBBGGRR.
    int SetBkColorM(unsigned long colour) { return background_.SetColourM(colour); }

    int AddItemM(int data, const char* text); // -1, or what the platform says of setting the data.
    int InsertItemM(int index, int data, const char* text); // At a place, -1: at the end; 0 when it can't.
    void DelItemM();
    int DelItemM(int index);             // 0 when there is no such line.
    int DelAllItemM();                   // Deletes all lines: 1.
    int GetItemM(int* index, int* data); // The line selected; 0 without one, nothing is written then.
    // Of a multiple selection: always 0 in single selection mode.
    int SetSelM(int index) { return selectM(index, TRUE); }
    // What the line says in the file, also while it shows a translation; none for a line that doesn't exist.
    std::optional<ValueTextCL> LineTextM(int line) const;
    void TranslateM(const TranslatorTP& translate); // Has each line show its translation.
    // Inserts a line by id; false when the platform refuses.
    bool InsertLineM(int line, int data, const char* text) { return InsertItemM(line, data, text) == 1; }
    int SetItemHeightM(int height);                 // Of all lines; 0, and no change, below 1.
    int SetItemHeightM();                           // Applies the height kept, which a new font has changed.
    void destroyM() { background_.DeleteBrushM(); } // Deletes the background brush.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    void catchUpM() override { SetItemHeightM(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT) { return background_.AnswerM(dc); }
    DECLARE_MESSAGE_MAP()

private:
    void followLinesM(UINT message, int index, int result);

    int scroll_ { 0 };
    int edge_ { 1 };
    int itemHeight_ { 12 };
    BackgroundCL background_ { 0xFFFFFF };
    LineOriginalsCL originals_;
};

extern template class PANELKIT_API Arr<DuTextListBoxCL>;

class PANELKIT_API DuTextListBoxArr : public ControlArr<DuTextListBoxCL>
{
public:
    // Applies the heights kept, up to the first failure; 0 for an empty array.
    int SetItemHeightM()
    {
        return untilFailureM([](DuTextListBoxCL& control) { return control.SetItemHeightM(); });
    }
};
