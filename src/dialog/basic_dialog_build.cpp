// Building: the header and the pass of each kind.
#include "baselib/message_texts.h"
#include "dialog/basic_dialog.h"
#include "pictures/picture_sharing.h"

int DuBasicDialogCL::InitDlgM(CWnd* parent, int mode)
{
    if (parent == nullptr) {
        return 0;
    }
    if (turns_ > 0) { // Those are over.
        const LifeCL life(this);
        leaveKindsM();
        if (!life.IsAliveM()) {
            return 1;
        }
    }
    builtIn_ = parent->GetSafeHwnd();
    mode_ = mode;
    buildM(parent, TurnCL(this, builtIn_));
    return 1;
}

void DuBasicDialogCL::buildM(CWnd* parent, const TurnCL& turn)
{
    scale_ = ScaleCL(wantedScaleM());
    bound_ = {};
    const DialogStretchCL before = stretch_.OfM(builtIn_);
    bool isBound = false;
    beginDiagnosticsM();
    translation_.ReadM(configFile_);
    if (!translation_.LanguageM().empty()) { // Else they stay what another dialog may have chosen.
        slSetMessageLanguage(translation_.LanguageM(), &translation_.CatalogueM());
    }
    {
        const PictureSharingCL sharing;
        VrIOCL io; // It holds the file's bytes, not the file: a control may open that again.
        openFileM(io);
        initM(io, parent, turn);
        slEachKindAsBuilt([this, &io, parent, &turn](auto row) {
            if (!turn.IsOverM()) {
                buildKindM<decltype(row)>(io, parent, turn);
            }
        });
        isBound = !turn.IsOverM() && readBindingsM(io);
    }
    if (!turn.IsOverM()) {
        finishM(parent, turn);
    }
    if (!turn.IsOverM()) {
        setTxtLstBoxItemHeightM(); // The font has changed them.
    }
    if (isBound && !turn.IsOverM()) {
        bindM(before, turn);
    }
    if (turn.IsOverM()) {
        return;
    }
    for (const auto& [id, painter] : painters_) {
        givePainterM(id, painter);
    }
    givePictureKeyboardM();
    showHooksM();
}

HWND DuBasicDialogCL::parentM() const
{
    return ::IsWindow(builtIn_) ? builtIn_ : m_hWnd;
}

void DuBasicDialogCL::initM(VrIOCL& io, CWnd* parent, const TurnCL& turn)
{
    if (slReadDialogHeader(io, header_) == 0) {
        return;
    }
    background_.DropM(); // Perhaps another file's.
    if (!header_.background.EmptyM()) {
        background_.LoadScaledM(header_.background.TextM(), PictureScaleCL(scale_, { 0, 0 }));
    }
    if (mode_ == 1) {
        ::SetWindowLongW(parent->m_hWnd, GWL_STYLE, static_cast<LONG>(header_.StyleM()));
        if (!turn.IsOverM() && header_.titleFlag == 1) {
            const ValueTextCL title = translation_.FindM(header_.title.TextM(), "dialog", 0);
            parent->SetWindowText(header_.title.TextM());
            if (!title.IsNoneM() && !turn.IsOverM()) {
                ::SetWindowTextW(parent->m_hWnd, title.WideM().c_str());
            }
        }
        if (turn.IsOverM()) {
            return;
        }
        // The style may have another frame, of which a window of the same size would not hear.
        parent->SetWindowPos(nullptr, slWindowLength(scale_.PlaceM(header_.position[0])),
            slWindowLength(scale_.PlaceM(header_.position[1])),
            slWindowLength(scale_.PlaceM(header_.size[0])), slWindowLength(scale_.PlaceM(header_.size[1])),
            SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        if (!turn.IsOverM() && isScaledM()) {
            sizeWindowM(parent->m_hWnd);
        }
        if (!turn.IsOverM()) {
            noteSizeM(parent->m_hWnd);
        }
    }
}

void DuBasicDialogCL::fillIndexM()
{
    index_.RememberM(0);
    int number = 0;
    eachControlsM([this, &number](auto, auto& controls) {
        for (int i = 0; i < controls.GetBoundM(); ++i) {
            index_.AddM(controls.ControlAtM(i).GetFunctionIDM(), { number, i });
        }
        ++number;
    });
    index_.EndM();
}

// The first control with that id, as an object of the class of its kind, whose row of the table is told;
// null: none. Once, not for each use: a use then has code only for the kinds that it does something with.
void* DuBasicDialogCL::findM(int id, int* row)
{
    if (!index_.IsFilledM(0)) {
        fillIndexM();
    }
    void* found = nullptr;
    for (const auto& [placeId, place] : index_.PlacesM(id)) {
        int number = 0;
        const int slot = place.slot;
        *row = place.row;
        eachControlsM([&found, &number, id, slot, row](auto, auto& controls) {
            if (number++ == *row && controls.CheckAvailableM(slot) == 1
                && controls.ControlAtM(slot).GetFunctionIDM() == id) {
                found = &controls.ControlAtM(slot);
            }
        });
        if (found != nullptr) {
            break;
        }
    }
    return found;
}

// Reads the records of one kind, then makes and fills its controls.
template <class RowTP> void DuBasicDialogCL::buildKindM(VrIOCL& io, CWnd* parent, const TurnCL& turn)
{
    using ControlTP = typename RowTP::Controls::ControlTP;
    auto& [controls, records, make] = membersM<RowTP>();
    if (isScaledM()) {
        records.DelAllM(); // Those of a build before this one may have had another scale.
    }
    int count = 0;
    if (slReadSection(io, records, &count) != SectionStatus::Read) {
        return;
    }
    if constexpr (!RowTP::Records::Secondaries.empty()) {
        count = records.GetAvailableNumM();
    }
    // Controls of a build before this one would move while they have windows.
    controls.DelAllM();
    if (turn.IsOverM()) {
        return;
    }
    index_.ForgetM();
    const ControlTP scratch(AliveTag);
    controls.InitialSizeM(count);
    for (int i = 0; i < count; ++i) {
        controls.SetItemM(scratch, i);
        if (make) {
            controls.StandInM(
                i, make(records.CheckAvailableM(i) == 1 ? records.GetItemPM(i)->GetFuncIDM() : 0));
        }
        if (records.CheckAvailableM(i) == 1) {
            auto& record = records.ElementAtM(i);
            controls.ControlAtM(i).SetPictureScaleM({ scale_, record.GetPositionM() });
            slScaleRecord(record, scale_);
        }
        (records.*RowTP::InitM)(i, &controls.ControlAtM(i));
    }
    controls.Create(parent);
    controls.AfterCreateM();
    if constexpr (!std::is_null_pointer_v<decltype(RowTP::FillM)>) {
        int record = records.GetFirstIdxM();
        int control = controls.GetFirstIdxM();
        while (record >= 0 && control >= 0) {
            (records.*RowTP::FillM)(record, &controls.ControlAtM(control));
            record = records.GetNextIdxM(record);
            control = controls.GetNextIdxM(control);
        }
    }
    if (!turn.IsOverM() && !translation_.EmptyM()) {
        translateKindM<RowTP>(turn);
    }
}

template <class RowTP> void DuBasicDialogCL::translateKindM(const TurnCL& turn)
{
    auto& controls = membersM<RowTP>().controls;
    for (int i = controls.GetFirstIdxM(); i >= 0 && !turn.IsOverM(); i = controls.GetNextIdxM(i)) {
        [[maybe_unused]] auto& control = controls.ControlAtM(i);
        [[maybe_unused]] const auto translate = [this, &control](const ValueTextCL& text) {
            return translation_.FindM(text, RowTP::Records::KindName, control.GetFunctionIDM());
        };
        if constexpr (RowTP::CanM(HasCaption)) {
            const ValueTextCL caption = translate(control.CaptionM());
            if (!caption.IsNoneM()) {
                ::SetWindowTextW(control.m_hWnd, caption.WideM().c_str());
            }
        }
        if constexpr (RowTP::CanM(TranslatesTexts)) {
            control.TranslateM(translate);
        }
    }
}
