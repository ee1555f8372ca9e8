#pragma once
#include "controls/animation/normal_animate_record.h"
#include "controls/animation/spec_animate_record.h"
#include "controls/buttons/bmp_button_record.h"
#include "controls/buttons/check_box_record.h"
#include "controls/buttons/multi_state_button_record.h"
#include "controls/buttons/radio_box_record.h"
#include "controls/buttons/rotate_btn_record.h"
#include "controls/buttons/standard_button_record.h"
#include "controls/drawing/draw_2d_record.h"
#include "controls/labels/group_box_record.h"
#include "controls/labels/label_record.h"
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

// What a kind can do besides being a control. Code asks for what it needs, never for a kind.
enum Ability : unsigned
{
    Stacked = 1,             // Takes part in the stacking and font passes.
    HoldsLines = 2,          // AddItemM(data, text), DelItemM(line), SetSelM(line).
    HoldsTypedValue = 4,     // SetValueM, GetValueM, SetCurValM, GetCurValM; ranges and checks.
    ShowsFrames = 8,         // GetCurIdxM, DispBmpM.
    StandsInGroups = 16,     // ShowObjectM(index, show) on the array; CheckedInGroupM.
    HasLineHeight = 32,      // SetItemHeightM() on the array, once the font is set.
    HasValue = 64,           // ValuePartsM, ReadValueM, WriteValueM: its value by id, kept between runs.
    ListsLines = 128,        // LineCountM, LineTextM, InsertLineM, DeleteLineM, ClearLinesM.
    TakesPainter = 256,      // SetPainterM, RepaintM.
    TakesKeys = 512,         // UseKeyboardM.
    ColoursText = 1024,      // SetTextColourM shows.
    TellsRefusals = 2048,    // SetRefusalM.
    ActsAsButton = 4096,     // A picture for a push button.
    GoesQuietly = 8192,      // Destroying its window tells nobody but those whom the window system tells.
    HasCaption = 16384,      // CaptionM, SetCaptionM.
    TranslatesTexts = 32768, // TranslateM: texts of the file beside a caption.
    KeepsSize = 65536,       // Larger than described it would show no more.
    KeepsHeight = 131072,    // The same of its height; what is described is more than its window has.
    Opaque = 262144,         // It paints every pixel of its window.
    HasArrows = 524288,      // SpinButtonM: a second window, at its right edge.
    GoesUnheard = 1048576    // It does nothing itself when its window goes.
};

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
// the order of building, its abilities, how a record fills a control, and what a record adds once the
// control's window exists (null: nothing).
template <class RecordArrTP, class ControlArrTP, KindCode codeN, int buildPlaceN, unsigned abilitiesN,
    auto initN, auto fillN = nullptr>
struct KindRowCL
{
    using Records = RecordArrTP;                   // The record array.
    using Controls = ControlArrTP;                 // The runtime array.
    static constexpr int Code = codeN;             // The code that GetContrlPtrM reports.
    static constexpr int BuildPlace = buildPlaceN; // Its place in the order of building, from 0.
    static constexpr auto InitM = initN;           // How a record fills a control.
    static constexpr auto FillM = fillN; // What a record adds once the window exists; null: nothing.
    // Whether the kind has the ability.
    static constexpr bool CanM(Ability ability) { return (abilitiesN & ability) != 0; }
};

// The one table of kinds. The rows stand in the order of the host's members, which is also the order of
// search by id and of collection for the stacking and font passes.
using KindTable = std::tuple<KindRowCL<DVrNormalAnimateArr, DuNormalAnimateArr, NormalAnimateCode, 0,
                                 Stacked | ShowsFrames | TakesKeys, &DVrNormalAnimateArr::InitNormalAnimateM>,
    KindRowCL<DVrSpecAnimateArr, DuSpecAnimateArr, SpecAnimateCode, 1, Stacked | TakesPainter,
        &DVrSpecAnimateArr::InitSpecAnimateM>,
    KindRowCL<DVrLabelArr, DuLabelArr, LabelCode, 2,
        Stacked | HasCaption | ColoursText | GoesQuietly | GoesUnheard, &DVrLabelArr::InitLabelM>,
    KindRowCL<DVrSingleEditArr, DuSingleEditArr, SingleEditCode, 3,
        Stacked | HoldsTypedValue | HasValue | ColoursText | TellsRefusals | GoesQuietly | GoesUnheard
            | Opaque,
        &DVrSingleEditArr::InitSingleEditM>,
    KindRowCL<DVrMultiEditArr, DuMultiEditArr, MultiEditCode, 5,
        Stacked | HasValue | ColoursText | GoesQuietly | GoesUnheard | Opaque | TranslatesTexts,
        &DVrMultiEditArr::InitMultiEditM>,
    KindRowCL<DVrSpinEditArr, DuSpinEditArr, SpinEditCode, 4,
        Stacked | HasValue | ColoursText | TellsRefusals | Opaque | HasArrows,
        &DVrSpinEditArr::InitSpinEditM>,
    KindRowCL<DVrTextListBoxArr, DuTextListBoxArr, TextListBoxCode, 6,
        Stacked | HoldsLines | HasLineHeight | HasValue | ListsLines | ColoursText | GoesQuietly
            | TranslatesTexts | Opaque,
        &DVrTextListBoxArr::InitTextListBoxM, &DVrTextListBoxArr::InitTextListBoxStrM>,
    KindRowCL<DVrBmpListBoxArr, DuBmpListBoxArr, BmpListBoxCode, 7,
        Stacked | HoldsLines | HasValue | ListsLines | Opaque, &DVrBmpListBoxArr::InitBmpListBoxM,
        &DVrBmpListBoxArr::InitBmpListBoxBmpM>,
    KindRowCL<DVrComboBoxArr, DuComboBoxArr, ComboBoxCode, 8,
        Stacked | HoldsLines | HasValue | ListsLines | ColoursText | GoesQuietly | KeepsHeight | Opaque
            | TranslatesTexts,
        &DVrComboBoxArr::InitComboBoxM, &DVrComboBoxArr::InitComboBoxStrM>,
    KindRowCL<DVrListCtrlArr, DuListCtrlArr, ListCtrlCode, 9,
        Stacked | HasValue | ListsLines | ColoursText | Opaque | TranslatesTexts,
        &DVrListCtrlArr::InitListCtrlM, &DVrListCtrlArr::InitListCtrlStrM>,
    KindRowCL<DVrStandardButtonArr, DuStandardButtonArr, StandardButtonCode, 12,
        Stacked | HasCaption | GoesQuietly | GoesUnheard | Opaque,
        &DVrStandardButtonArr::InitStandardButtonM>,
    KindRowCL<DVrRadioBoxArr, DuRadioBoxArr, RadioBoxCode, 10,
        Stacked | HasCaption | StandsInGroups | HasValue | ColoursText | GoesQuietly | GoesUnheard,
        &DVrRadioBoxArr::InitRadioBoxM>,
    KindRowCL<DVrCheckBoxArr, DuCheckBoxArr, CheckBoxCode, 11,
        Stacked | HasCaption | HasValue | ColoursText | GoesQuietly | GoesUnheard,
        &DVrCheckBoxArr::InitCheckBoxM>,
    KindRowCL<DVrBmpButtonArr, DuBmpButtonArr, BmpButtonCode, 13,
        Stacked | TakesKeys | ActsAsButton | KeepsSize, &DVrBmpButtonArr::InitBmpButtonM>,
    KindRowCL<DVrMultiStateButtonArr, DuMultiStateButtonArr, MultiStateButtonCode, 14,
        Stacked | HasValue | TakesKeys | ActsAsButton | KeepsSize,
        &DVrMultiStateButtonArr::InitMultiStateButtonM>,
    KindRowCL<DVrGroupBoxArr, DuGroupBoxArr, GroupBoxCode, 16,
        Stacked | HasCaption | ColoursText | GoesQuietly | GoesUnheard, &DVrGroupBoxArr::InitGroupBoxM>,
    KindRowCL<DVrRotateBtnArr, DuRotateBtnArr, RotateBtnCode, 15, HasValue | TakesKeys | KeepsSize,
        &DVrRotateBtnArr::InitRotateBtnM>,
    KindRowCL<DVrTreeArr, DuTreeArr, TreeCode, 17, HasValue | ColoursText | Opaque | TranslatesTexts,
        &DVrTreeArr::InitTreeM, &DVrTreeArr::InitTreeStrM>,
    KindRowCL<DVrDraw2DArr, DuDraw2DArr, Draw2DCode, 18, TakesPainter, &DVrDraw2DArr::InitDraw2DM>>;

// How many kinds there are.
constexpr int KindCount = static_cast<int>(std::tuple_size_v<KindTable>);

// The last row of the table that answers a test with yes; -1 when none does.
template <class TestTP> constexpr int slLastRow(TestTP test)
{
    int found = -1;
    int row = 0;
    std::apply([&](auto... kind) { ((found = test(kind) ? row : found, ++row), ...); }, KindTable());
    return found;
}
// The row of the kind that is built at that place, from 0; -1: none.
constexpr int slRowBuiltAt(int place)
{
    return slLastRow([place](auto kind) { return kind.BuildPlace == place; });
}

// Each place and each code from the first on is some row's, so that none is there twice.
constexpr bool slIsKindTableWhole()
{
    for (int i = 0; i < KindCount; ++i) {
        if (slRowBuiltAt(i) < 0 || slLastRow([i](auto kind) { return kind.Code == i + 1; }) < 0) {
            return false;
        }
    }
    return true;
}
static_assert(slIsKindTableWhole(), "build places count from 0, codes from 1, each once");

// Calls see(row) for each kind of the table, in its order; row is a KindRowCL.
template <class FunctionTP> void slEachKind(FunctionTP&& see)
{
    std::apply([&see](auto... row) { (see(row), ...); }, KindTable());
}

// The same in the order of building.
template <class FunctionTP, int... placeN>
void slEachKindAsBuilt(FunctionTP&& see, std::integer_sequence<int, placeN...>)
{
    (see(std::tuple_element_t<static_cast<std::size_t>(slRowBuiltAt(placeN)), KindTable>()), ...);
}
template <class FunctionTP> void slEachKindAsBuilt(FunctionTP&& see)
{
    slEachKindAsBuilt(see, std::make_integer_sequence<int, KindCount>());
}
