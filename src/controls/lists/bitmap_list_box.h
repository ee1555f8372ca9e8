#pragma once
#include "controls/base/control_arr.h"
#include "controls/lists/list_box.h"
#include "pictures/bitmap_record.h"

// The pictures of a list box's lines. They go with the window: a copy of the control starts without.
class PANELKIT_API LinePicturesCL : public DVrBitmapArr
{
public:
    LinePicturesCL() = default;
    LinePicturesCL(const LinePicturesCL&)
        : DVrBitmapArr()
    {
    }
    LinePicturesCL& operator=(const LinePicturesCL& other)
    {
        if (this != &other) {
            DelAllM();
        }
        return *this;
    }
    int SlotOfLineM(int line) const; // The slot of the line-th alive picture, -1 when there is none.
};

// A list box of pictures in a grid, each framed blue while it is selected, else white. Each line has a number
// of the application; lines count from 0.
class PANELKIT_API DuBmpListBoxCL : public ListBoxCL
{
public:
    using ListBoxCL::ListBoxCL;

    // These take effect when the window is created.
    int SetRowColNumM(const int rowsColumns[2]); // Lines visible; below 1 counts as 1.
    // 1 horizontal, 2 vertical, 4 both, else none.
    int SetScrollModeM(int mode) { return slKeep(scrollMode_, mode); }
    int SetInitBmpNumM(int count); // Makes room for pictures.

    // Adds a line with its .bmp file, a name with extension. The picture's slot; 0 when the name is empty or
    // the line can't be added, -1, and no line stays, when the picture can't be loaded.
    int AddItemM(int data, const char* file);
    // Inserts a line and, at the same place, its picture; ".bmp" is added to a name without an extension. A
    // picture that can't be loaded leaves the line. index -1: at the end.
    int InsertItemM(int index, int data, const char* file);
    void DelItemM();
    void RescaledM(int from, int to);
    // Deletes a line and its picture; 0 when there is none.
    int DelItemM(int index);
    // Deletes line 0, 1, 2, ... in turn: as later lines move up, every second one stays.
    int DelAllItemM();

    std::optional<ValueTextCL> LineTextM(int) const { return std::nullopt; } // Its lines are pictures.
    // Inserts a line by id; at the end only with a picture that can be loaded.
    bool InsertLineM(int line, int data, const char* file);

    // select 0 takes it back, except for a single selection. 0 in modes other than 1, 2 and 3.
    int SetSelM(int index, int select = 1);
    // The first selected line; the next one behind `from`. 0, and nothing is written, when there is none.
    int GetFirstItemM(int* index, int* data) { return GetNextItemM(-1, index, data); }
    int GetNextItemM(int from, int* index, int* data);
    void destroyM() { pictures_.DelAllM(); } // Deletes the pictures.

    void MeasureItem(LPMEASUREITEMSTRUCT measure) override;
    void DrawItem(LPDRAWITEMSTRUCT draw) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    DECLARE_MESSAGE_MAP()

private:
    static void drawFrameM(CDC* dc, const RECT& item, COLORREF colour);
    int columnWidthM() const;
    int lineHeightM() const;

    int rows_ { 0 };
    int columns_ { 0 };
    int scrollMode_ { 2 };
    LinePicturesCL pictures_;
};

extern template class PANELKIT_API Arr<DuBmpListBoxCL>;

class PANELKIT_API DuBmpListBoxArr : public ControlArr<DuBmpListBoxCL>
{
};
