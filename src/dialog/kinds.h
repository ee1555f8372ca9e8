#pragma once
#include "controls/animation/normal_animate_record.h"
#include "controls/animation/spec_animate_record.h"
#include "controls/buttons/bmp_button_record.h"
#include "controls/buttons/check_box_record.h"
#include "controls/buttons/group_box_record.h"
#include "controls/buttons/label_record.h"
#include "controls/buttons/multi_state_button_record.h"
#include "controls/buttons/radio_box_record.h"
#include "controls/buttons/rotate_btn_record.h"
#include "controls/buttons/standard_button_record.h"
#include "controls/drawing/draw_2d_record.h"
#include "controls/lists/bitmap_list_box_record.h"
#include "controls/lists/combo_box_record.h"
#include "controls/lists/list_control_record.h"
#include "controls/lists/text_list_box_record.h"
#include "controls/lists/tree_record.h"
#include "controls/text/multi_edit_record.h"
#include "controls/text/single_edit_record.h"
#include "controls/text/spin_edit_record.h"
#include <tuple>
#include <type_traits>
#include <utility>

class DuBmpButtonArr;
class DuBmpListBoxArr;
class DuCheckBoxArr;
class DuComboBoxArr;
class DuDraw2DArr;
class DuGroupBoxArr;
class DuLabelArr;
class DuListCtrlArr;
class DuMultiEditArr;
class DuMultiStateButtonArr;
class DuNormalAnimateArr;
class DuRadioBoxArr;
class DuRotateBtnArr;
class DuSingleEditArr;
class DuSpecAnimateArr;
class DuSpinEditArr;
class DuStandardButtonArr;
class DuTextListBoxArr;
class DuTreeArr;

enum class Stacking
{
    ByWindowIndex,
    AsCreated
}; // AsCreated kinds don't get the dialog font either.

// What DuBasicDialogCL::GetContrlPtrM says of the kind of a control.
enum KindCode : int
{
    NormalAnimateCode = 1,
    SpecAnimateCode = 2,
    LabelCode = 3,
    SingleEditCode = 4,
    MultiEditCode = 5,
    SpinEditCode = 6,
    TextListBoxCode = 7,
    BmpListBoxCode = 8,
    ComboBoxCode = 9,
    ListCtrlCode = 10,
    RadioBoxCode = 11,
    CheckBoxCode = 12,
    StandardButtonCode = 13,
    BmpButtonCode = 14,
    MultiStateButtonCode = 15,
    RotateBtnCode = 16,
    GroupBoxCode = 17,
    TreeCode = 18,
    Draw2DCode = 19
};

// One kind of control: its record array and runtime array, the code that GetContrlPtrM reports, its place in
// the order of building, whether the stacking and font passes take it, how a record fills a control, and
// what a record adds once the control's window exists (null: nothing).
template <class RecordArrTP, class ControlArrTP, int codeN, int buildPlaceN, Stacking stackingN, auto initN,
    auto fillN = nullptr>
struct KindRowCL
{
    using Records = RecordArrTP;
    using Controls = ControlArrTP;
    static constexpr int Code = codeN;
    static constexpr int BuildPlace = buildPlaceN;
    static constexpr bool IsStacked = stackingN == Stacking::ByWindowIndex;
    static constexpr auto InitM = initN;
    static constexpr auto FillM = fillN;
};

// The one table of kinds. The rows stand in the order of the host's members, which is also the order of
// search by id and of collection for the stacking and font passes.
using KindTable = std::tuple<KindRowCL<DVrNormalAnimateArr, DuNormalAnimateArr, NormalAnimateCode, 0,
                                 Stacking::ByWindowIndex, &DVrNormalAnimateArr::InitNormalAnimateM>,
    KindRowCL<DVrSpecAnimateArr, DuSpecAnimateArr, SpecAnimateCode, 1, Stacking::ByWindowIndex,
        &DVrSpecAnimateArr::InitSpecAnimateM>,
    KindRowCL<DVrLabelArr, DuLabelArr, LabelCode, 2, Stacking::ByWindowIndex, &DVrLabelArr::InitLabelM>,
    KindRowCL<DVrSingleEditArr, DuSingleEditArr, SingleEditCode, 3, Stacking::ByWindowIndex,
        &DVrSingleEditArr::InitSingleEditM>,
    KindRowCL<DVrMultiEditArr, DuMultiEditArr, MultiEditCode, 5, Stacking::ByWindowIndex,
        &DVrMultiEditArr::InitMultiEditM>,
    KindRowCL<DVrSpinEditArr, DuSpinEditArr, SpinEditCode, 4, Stacking::ByWindowIndex,
        &DVrSpinEditArr::InitSpinEditM>,
    KindRowCL<DVrTextListBoxArr, DuTextListBoxArr, TextListBoxCode, 6, Stacking::ByWindowIndex,
        &DVrTextListBoxArr::InitTextListBoxM, &DVrTextListBoxArr::InitTextListBoxStrM>,
    KindRowCL<DVrBmpListBoxArr, DuBmpListBoxArr, BmpListBoxCode, 7, Stacking::ByWindowIndex,
        &DVrBmpListBoxArr::InitBmpListBoxM, &DVrBmpListBoxArr::InitBmpListBoxBmpM>,
    KindRowCL<DVrComboBoxArr, DuComboBoxArr, ComboBoxCode, 8, Stacking::ByWindowIndex,
        &DVrComboBoxArr::InitComboBoxM, &DVrComboBoxArr::InitComboBoxStrM>,
    KindRowCL<DVrListCtrlArr, DuListCtrlArr, ListCtrlCode, 9, Stacking::ByWindowIndex,
        &DVrListCtrlArr::InitListCtrlM, &DVrListCtrlArr::InitListCtrlStrM>,
    KindRowCL<DVrStandardButtonArr, DuStandardButtonArr, StandardButtonCode, 12, Stacking::ByWindowIndex,
        &DVrStandardButtonArr::InitStandardButtonM>,
    KindRowCL<DVrRadioBoxArr, DuRadioBoxArr, RadioBoxCode, 10, Stacking::ByWindowIndex,
        &DVrRadioBoxArr::InitRadioBoxM>,
    KindRowCL<DVrCheckBoxArr, DuCheckBoxArr, CheckBoxCode, 11, Stacking::ByWindowIndex,
        &DVrCheckBoxArr::InitCheckBoxM>,
    KindRowCL<DVrBmpButtonArr, DuBmpButtonArr, BmpButtonCode, 13, Stacking::ByWindowIndex,
        &DVrBmpButtonArr::InitBmpButtonM>,
    KindRowCL<DVrMultiStateButtonArr, DuMultiStateButtonArr, MultiStateButtonCode, 14,
        Stacking::ByWindowIndex, &DVrMultiStateButtonArr::InitMultiStateButtonM>,
    KindRowCL<DVrGroupBoxArr, DuGroupBoxArr, GroupBoxCode, 16, Stacking::ByWindowIndex,
        &DVrGroupBoxArr::InitGroupBoxM>,
    KindRowCL<DVrRotateBtnArr, DuRotateBtnArr, RotateBtnCode, 15, Stacking::AsCreated,
        &DVrRotateBtnArr::InitRotateBtnM>,
    KindRowCL<DVrTreeArr, DuTreeArr, TreeCode, 17, Stacking::AsCreated, &DVrTreeArr::InitTreeM,
        &DVrTreeArr::InitTreeStrM>,
    KindRowCL<DVrDraw2DArr, DuDraw2DArr, Draw2DCode, 18, Stacking::AsCreated, &DVrDraw2DArr::InitDraw2DM>>;

constexpr int KindCount = 19;

// Calls see(row) for each kind of the table, in its order; row is a KindRowCL.
template <class FunctionTP> void slEachKind(FunctionTP&& see)
{
    std::apply([&see](auto... row) { (see(row), ...); }, KindTable());
}

// The same in the order of building.
template <class FunctionTP> void slEachKindAsBuilt(FunctionTP&& see)
{
    for (int place = 0; place < KindCount; ++place) {
        slEachKind([&see, place](auto row) {
            if (row.BuildPlace == place) {
                see(row);
            }
        });
    }
}
