#pragma once
#include "controls/animation/normal_animate.h"
#include "controls/animation/spec_animate.h"
#include "controls/buttons/bmp_button.h"
#include "controls/buttons/check_box.h"
#include "controls/buttons/multi_state_button.h"
#include "controls/buttons/radio_box.h"
#include "controls/buttons/rotate_btn.h"
#include "controls/buttons/standard_button.h"
#include "controls/drawing/draw_2d.h"
#include "controls/labels/group_box.h"
#include "controls/labels/label.h"
#include "controls/lists/bitmap_list_box.h"
#include "controls/lists/combo_box.h"
#include "controls/lists/list_control.h"
#include "controls/lists/text_list_box.h"
#include "controls/lists/tree.h"
#include "controls/text/multi_edit.h"
#include "controls/text/single_edit.h"
#include "controls/text/spin_edit.h"
#include "dialog/bound_windows.h"
#include "dialog/control_index.h"
#include "dialog/diagnostics.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/translation.h"
#include "dialog/values.h"
#include "pictures/bitmap_record.h"
#include "records/scaling.h"
#include <map>
#include <memory>
#include <optional>
#include <vector>

class ReadingDiagnosticsCL;
class VrIOCL;

// The dialog host: owns the records and controls of every kind and builds them from a description file.
// Applications derive from it. Null where a pointer is wanted is refused: nothing happens, the result is 0.
// Where nothing else is said the result is 1.
class PANELKIT_API DuBasicDialogCL : public CDialog
{
    DECLARE_DYNCREATE(DuBasicDialogCL)

public:
    DuBasicDialogCL();
    // With a dialog template of the application's resources, for DoModal and Create of the base class.
    // parent: the owner, not kept; null: the application's main window.
    DuBasicDialogCL(int templateId, CWnd* parent);
    ~DuBasicDialogCL() override;

    // Takes the path (GBK) of the description file; what is longer than 259 bytes is cut at a character.
    // 0, and the old path stays, for an empty path.
    int SetConfigFileM(const char* path);
    // The control that takes the focus without a value check.
    int SetCancelIdM(int id) { return slKeep(cancelId_, id); }

    // The scale at which the dialog is built, in percent, or AutomaticScale: that of the monitor, also when
    // the user takes the dialog to another one. 0, and nothing changes, for a number that is neither. To
    // begin with there is none: pixels are those of the file. A dialog that is built already changes at once:
    // windows, and what the user has typed, selected and scrolled in them, stay. Once there is a scale all
    // lengths that controls have and take are pixels of their windows, not those of the file; the file is
    // read anew by each build.
    int SetScaleM(int percent);
    int ScaleM() const { return scale_.PercentM(); } // The scale of the last build or change; else 100.
    static constexpr int AutomaticScale = 0;         // For SetScaleM: the scale of the monitor.
    static constexpr int LeastScale = 50;
    static constexpr int MostScale = 800;

    // The language that the texts of the file are shown in from the next build on: "en", "pt_BR"; empty: the
    // system's; null: as in the file, as at first. FILE.en.mo beside FILE.dlg has them; "en_GB" falls back to
    // "en", without one they stay. Values and lines by id are the file's in every language
    // (docs/translating.md). The library's own messages change at once, for the whole process: English for
    // "en", else Chinese, but for those in the catalogue of the next build. 0, and no change, for what names
    // no language.
    int SetLanguageM(const char* language);
    // '_' for '-'; empty: none. Valid until SetLanguageM.
    const char* LanguageM() const { return translation_.LanguageM().c_str(); }

    // From now on the callback is told, while a dialog is built, what its file lacks or says wrongly: that it
    // is missing, pictures that are missing or can't be shown, values and entries that can't be read. Null:
    // what it would be told goes to the debugger (OutputDebugString), the same text only once. Before the
    // first call nobody is told, and nothing is looked for, unless a debugger runs the program.
    // context: given back with each call.
    void SetDiagnosticsM(DiagnosticTP callback, void* context);

    // The functions from here to MessageTextM are for what the description file doesn't say. They hold from
    // now on, also for later builds, whether the dialog is built already or not.

    // From the next build on the dialog makes controls of the application's own class, for the kind with that
    // class: SetFactoryM<DuSingleEditCL>([](int id) { return std::make_unique<MyEditCL>(); }). It asks once
    // for each description of the kind, with its function id, fills what it gets from the description, has it
    // create its window, owns it, and finds it by id as any control. Null from the factory: the library's own
    // control. A factory without a function: that for all. The object must not delete itself, and the factory
    // not build or destroy the dialog.
    template <class ControlTP> void SetFactoryM(ControlFactoryTP<ControlTP> make);

    // The colour of a control's text; none: the platform's. Kept for the build to come; once there are
    // controls, false for an unknown id and for a control without a text or whose text the platform paints in
    // its own colour (the ability ColoursText in kinds.h). Check boxes, radio buttons and group boxes keep
    // their colour under a visual style of the system.
    bool SetTextColourM(int id, std::optional<COLORREF> colour);
    // What screen readers call a control, in place of what the system takes for its name; none or the empty
    // text: no such name. Kept for the build to come; once there are controls, false for an unknown id. A
    // bitmap button or multi-state button is then a push button to them, which they can press.
    bool SetAccessibleNameM(int id, const ValueTextCL& name);
    // Whether a field's text is selected once the user has been told that its value is refused, so that
    // typing replaces it. Not to begin with.
    void SetSelectRefusedM(bool select);
    // Whether the messages about fields stand over the dialog (over the window whose part it is; over a popup
    // of it that is in front) and disable it. Else those of single-line edits belong to the application's
    // main window or what it has in front, without one to the thread's active window.
    void SetMessageOwnerM(bool overDialog);
    // Replaces a text of the library's message boxes, for all dialogs of the process; none: the library's own
    // again. What the numbers mean and what may stand in the texts tells message_texts.h. False for a number
    // that is none.
    static bool SetMessageTextM(int message, const ValueTextCL& text);
    static ValueTextCL MessageTextM(int message); // As it is now; empty for a number that is none.

    // Shows the dialog without a template: the description file says all that one could. parent: the owner,
    // not kept; null: for DoModalM the constructor's, else the application's main window.
    int CreateM(CWnd* parent = nullptr);  // Modeless: it is built, and soon shows itself. 0 without a window.
    int DoModalM(CWnd* parent = nullptr); // Modal: what EndDialog said; -1 without a window.

    // Builds every control of the description file in the parent. mode 1: the parent is the dialog itself and
    // is restyled, titled, placed and stacked; otherwise a window that keeps all that. 1.
    // Without DestroyM before, a second build uses the records of the first load; its controls are destroyed.
    int InitDlgM(CWnd* parent, int mode);
    void DestroyM();               // Destroys all controls and records and the dialog font.
    BOOL DestroyWindow() override; // Destroys the controls too, as DestroyM does.
    // Builds the dialog of the description file. TRUE: the system sets the focus.
    BOOL OnInitDialog() override;
    void EndDialog(int result) override; // With that result; no field has been left by that.

    // Puts the controls that the description file binds ("[随窗口变化]") where they stand in a client area of
    // that size, in pixels; below the file's size: where that has them. The host calls it when the dialog's
    // own window, built in mode 1, is resized; in another window the application does, in its WM_SIZE. 0 when
    // the file has no such section, or nothing is built.
    int ResizeM(int width, int height);

    // Draws the background picture with its corner at (x, y), in pixels; 0 when there is none.
    int DrawBkGroundM(CDC* dc, int x, int y);

    // Controls by function id. Where several have the id, the first in the order of the kinds is meant.
    // An unknown id, or that of a control of another kind, gives 0 and changes nothing.
    CWnd* GetContrlPtrM(int id, int* kind);           // Null: none, *kind stays. A static_cast to the class
                                                      // that *kind says is fine; the host keeps it.
    int ShowContrlM(int id, int show);                // Shows it for 1, hides it for every other value; 1.
    int ShowAllCtrlM(int show);                       // The same for all controls; 1.
    int EnableAllCtrlM(int enable);                   // Enables all for 1, else disables them; 1.
    void ShowObjectM(int kind, int index, bool show); // A radio button (kind 11) by its place in their array.
    int GetNormalAnimateBmpIdxM(int id, int* index);  // An animation's picture; *index is set only for 1.
    int ChangeNormalAnimateM(int id, int index);      // Shows a picture of an animation; its result.

    // Painting of drawing controls and special animations; the painter is told of in painted.h,
    // painted_picture.h. It is kept for this id through every build to come; an empty one is kept no more.
    // While nothing is built any id may get one. false, and none is kept: an unknown id, or a control of
    // another kind.
    bool SetPainterM(int id, PainterTP painter);
    bool RepaintM(int id); // Soon, once for all calls until then. false: no control with a painter.
    // Shows a frame, from 0, of a normal animation in manual mode, or below what the painter of a special one
    // paints. false: no such control, or no such frame.
    bool ShowFrameM(int id, int frame);
    // Whether pictures that take clicks are worked by keys too: bitmap buttons, multi-state buttons, knobs,
    // normal animations that notify (picture_static.h). At first not; from now on through every build.
    void SetPictureKeyboardM(bool use);

    // Lines of list boxes and combo boxes.
    int AddItemM(int id, int position, const char* text); // The result of the control's AddItemM.
    int DelItemM(int id); // The number is the control's id and the index of the line to delete; 1 if found.
    int SetSelM(int id);  // The number is the control's id and the index of the line to select; 1 if found.

    // The values of every kind, and lines, by function id: typed, checked, in one style. The host keeps it.
    DialogValuesCL& ValuesM() { return values_; }

    // Values of single-line edits; the results are those of the edit's SetValueM, SetCurValM, GetValueM and
    // GetCurValM. Texts are GBK, copied.
    int SetSingleEditValM(int id, int value);
    int SetSingleEditValM(int id, float value);
    int SetSingleEditValM(int id, double value) { return SetSingleEditValM(id, static_cast<float>(value)); }
    int SetSingleEditValM(int id, const char* text);
    int SetSingleEditValM(int id, simpleValD value);
    int GetSingleEditValM(int id, int* value);
    int GetSingleEditValM(int id, float* value);
    int GetSingleEditValM(int id, char* text); // The same; text: 260 bytes.
    // The same for whatever type the edit has.
    int GetSingleEditValM(int id, simpleValD* value);
    int EnableSingleEditM(int id, int enable); // Enables for 1, else disables; -1: all of them.

    // -1: a typed value is bad. It stands for the application's dialog that routes 1624 to onCtrlLostFocusM.
    int SetValueStatusM(int status) { return slKeep(valueStatus_, status); }
    int GetValueStatusM() const { return valueStatus_; }
    // Has the single-line edit with the focus checked as if the user left it: a bad value is told, and the
    // edit keeps the focus. The value status. While a bad value is being told or reported nothing is told
    // again.
    int CheckValueLegalM();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override; // Closing has no field checked.

    // For the application's message map: 1624 (a field was left, with what value) and 1625 (a control gained
    // the focus; unless it is the cancel control, the field left last is asked to check its value). 0.
    afx_msg LRESULT onCtrlLostFocusM(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT onCtrlSetFocusM(WPARAM wParam, LPARAM lParam);

    // Hands the control relations of the description file to the dialog's controls; nothing calls it during
    // building. 1 if the file has the section.
    int initItemRelationM();

    static constexpr UINT_PTR StartTimer = 6107; // Shows the dialog once, when its controls exist.
    afx_msg void OnPaint();                      // Draws the background picture.
    afx_msg void OnTimer(UINT_PTR id);           // Shows the dialog at StartTimer.
    DECLARE_MESSAGE_MAP()

private:
    friend class DialogValuesCL;
    class TurnCL;
    template <class RowTP> struct KindMembersCL
    {
        typename RowTP::Controls controls;
        typename RowTP::Records records;
        ControlFactoryTP<typename RowTP::Controls::ControlTP> make;
    };
    template <class TableTP> struct MembersOfCL;
    template <class... RowsTP> struct MembersOfCL<std::tuple<RowsTP...>>
    {
        using Type = std::tuple<KindMembersCL<RowsTP>...>;
    };
    struct KindsCL
    {
        MembersOfCL<KindTable>::Type all;
    };

    template <class RowTP> KindMembersCL<RowTP>& membersM() const
    {
        return std::get<KindMembersCL<RowTP>>(kinds_->all);
    }
    template <class FunctionTP> void eachControlsM(FunctionTP&& see);
    template <class FunctionTP> bool withControlM(int id, FunctionTP&& see);
    void fillIndexM();
    void* findM(int id, int* row);
    template <class FunctionTP> int withSingleEditM(int id, FunctionTP&& see);
    void buildM(CWnd* parent, const TurnCL& turn);
    void initM(VrIOCL& io, CWnd* parent, const TurnCL& turn);
    void beginDiagnosticsM();
    bool givePainterM(int id, const PainterTP& painter);
    void givePictureKeyboardM();
    void openFileM(VrIOCL& io);
    template <class RowTP> void translateKindM(const TurnCL& turn);
    template <class RowTP> void buildKindM(VrIOCL& io, CWnd* parent, const TurnCL& turn);
    HWND parentM() const; // The window with the controls: the dialog's own, or one that the application has.
    // What the passes over all controls do with one: the topmost child with its id.
    struct StepCL
    {
        int windowIndex;
        HWND window;
        int place;     // Among its siblings, from the top down.
        bool isOfKind; // The window belongs to a control of the library's own class.
    };
    // *siblings: all children of parent, from the top down.
    std::vector<StepCL> stepsM(CWnd* parent, std::vector<HWND>* siblings);
    void finishM(CWnd* parent, const TurnCL& turn);
    void setItemFontM(const std::vector<StepCL>& steps, bool isShown, const TurnCL& turn);
    void setItemFontM(CWnd* parent, bool isShown, const TurnCL& turn);
    void setTxtLstBoxItemHeightM();
    bool isScaledM() const { return askedScale_ != NoScale; }
    int wantedScaleM() const;
    CSize windowSizeM(HWND window, const ScaleCL& scale, int dpi) const;
    void sizeWindowM(HWND window);
    void noteSizeM(HWND window);
    bool hasFileSizeM(HWND window) const;
    void giveTreeFontsM(const TurnCL& turn);
    void makeFontM();
    bool rescaleControlM(HWND window, DControlCommonCL& control, const DVrCommonBoxCL* scaled, int from,
        const CallRefCL<void()>& giveLengths);
    template <class RowTP> void rescaleKindM(VrIOCL& io, int from, const TurnCL& turn);
    void rescaleM(int percent, const RECT* suggested);
    void changeScaleM(int percent, const RECT* suggested, const TurnCL& turn);
    bool answerDpiM(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    void leaveKindsM();
    bool partM();
    bool hasControlsM();
    bool showLooksM(int id);
    void showRefusalM();
    void showHooksM();
    bool readBindingsM(VrIOCL& io);
    void bindM(const DialogStretchCL& before, const TurnCL& turn);
    bool unbindM(const TurnCL& turn);
    void bindAgainM(const DialogStretchCL& before);
    void findBoundM();
    void makeSizableM(const TurnCL& turn);
    void stretchAgainM(const DialogStretchCL& before);
    void leaveOutOpaqueM(HDC dc);
    LRESULT whileBoundM(UINT message, WPARAM wParam, LPARAM lParam);

    DialogHeaderCL header_;
    int lastLeftId_ { 0 };
    int cancelId_ { 0 };
    char configFile_[TextSize] {};
    std::unique_ptr<ReadingDiagnosticsCL> diagnostics_; // Null: nobody is told.
    TranslationCL translation_;
    CFont font_;
    CFont treeFont_; // At other scales than 100 %: trees have a font of the system's.
    static constexpr int NoScale = -1;
    int askedScale_ { NoScale }; // Percent, AutomaticScale or none.
    ScaleCL scale_;
    int mode_ { 0 };            // Of the last build.
    CSize builtSize_;           // Of its window.
    bool isFileSized_ { true }; // Whether the window had that size before the scale changed.
    DVrBitmapCL background_;
    int valueStatus_ { 0 };
    std::shared_ptr<KindsCL> kinds_ {
        std::make_shared<KindsCL>()
    };                // The turns that are about them own them too.
    int turns_ { 0 }; // How many of those there are.
    ControlIndexCL index_;
    DialogValuesCL values_ { *this };
    std::map<int, PainterTP> painters_;
    bool usesPictureKeyboard_ { false };
    struct LooksByIdCL
    {
        std::optional<COLORREF> textColour;
        ValueTextCL name;
    };
    std::map<int, LooksByIdCL> looks_; // What the application has given controls by id.
    RefusalCL refusal_;
    BoundWindowsCL bound_;
    DialogStretchCL stretch_;
    UINT_PTR timerId_ { 0 };
    HWND builtIn_ { nullptr };
    // That its controls go, one after another; a window of its class does nothing of its own about that.
    bool tellsItself_ { false };
    bool isParted_ { false }; // The controls only wait for their windows to go; nobody finds them any more.
};

template <class ControlTP> void DuBasicDialogCL::SetFactoryM(ControlFactoryTP<ControlTP> make)
{
    constexpr bool isKind = slLastRow([](auto row) {
        return std::is_same_v<typename decltype(row)::Controls::ControlTP, ControlTP>;
    }) >= 0;
    static_assert(isKind, "name the library's class of the kind: SetFactoryM<DuSingleEditCL>(...)");
    slEachKind([this, &make](auto row) {
        if constexpr (std::is_same_v<typename decltype(row)::Controls::ControlTP, ControlTP>) {
            membersM<decltype(row)>().make = std::move(make);
        }
    });
}

#include "dialog/basic_dialog_each.h"
