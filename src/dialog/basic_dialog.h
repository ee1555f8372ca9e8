#pragma once
#include "controls/buttons/group_box.h"
#include "controls/buttons/label.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "records/bitmap_record.h"

// The dialog host: owns the records and controls of every kind and builds them from a description file.
// Applications derive from it.
class PANELKIT_API DuBasicDialogCL : public CDialog
{
    DECLARE_DYNCREATE(DuBasicDialogCL)

public:
    DuBasicDialogCL();
    DuBasicDialogCL(int templateId, CWnd* parent);
    ~DuBasicDialogCL() override;

    // Takes the path (GBK) of the description file; what is longer than 259 bytes is cut at a character.
    // 0, and the old path stays, for an empty path.
    int SetConfigFileM(const char* path);
    int SetCancelIdM(int id); // The control that takes the focus without a value check. Always 1.

    // Builds every control of the description file in the parent. mode 1: the parent is the dialog itself and
    // is restyled, titled, placed and stacked; otherwise a window that keeps all that. Always 1.
    // Without DestroyM before, a second build uses the records of the first load.
    int InitDlgM(CWnd* parent, int mode);
    void DestroyM(); // Destroys all controls and records and the dialog font.
    BOOL DestroyWindow() override;
    BOOL OnInitDialog() override;

    // Draws the background picture with its corner at (x, y); 0 when there is none.
    int DrawBkGroundM(CDC* dc, int x, int y);

protected:
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    template <class RowTP> struct KindMembersCL
    {
        typename RowTP::Controls controls;
        typename RowTP::Records records;
    };
    template <class TableTP> struct MembersOfCL;
    template <class... RowsTP> struct MembersOfCL<std::tuple<RowsTP...>>
    {
        using Type = std::tuple<KindMembersCL<RowsTP>...>;
    };

    int initM(CWnd* parent, int mode);
    template <class RowTP> int buildKindM(CWnd* parent);
    Int2DArr stackedM();
    int initCtrlZOrderM(CWnd* parent);
    int setItemFontM(CWnd* parent, int fontOption);

    DialogHeaderCL header_;
    int lastLeftId_ { 0 };
    int cancelId_ { 0 };
    char configFile_[TextSize] {};
    CFont font_;
    DVrBitmapCL background_;
    int valueStatus_ { 0 };
    MembersOfCL<KindTable>::Type kinds_;
    UINT_PTR timerId_ { 0 };
};
