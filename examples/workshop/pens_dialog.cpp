#include "pens_dialog.h"

#include <cstdio>
#include <cstdlib>

BEGIN_MESSAGE_MAP(PensDialogCL, DuBasicDialogCL)
ON_MESSAGE(ButtonActionMsg, &PensDialogCL::onButtonM)
ON_MESSAGE(ValueReportMsg, &PensDialogCL::onCtrlLostFocusM) // These two: bad values keep their field.
ON_MESSAGE(FocusGainedMsg, &PensDialogCL::onCtrlSetFocusM)
ON_NOTIFY(LVN_ITEMCHANGING, PensId, &PensDialogCL::onPenChangingM)
ON_NOTIFY(LVN_ITEMCHANGED, PensId, &PensDialogCL::onPenChosenM)
ON_NOTIFY(TVN_SELCHANGINGW, LayersId, &PensDialogCL::onLayerChangingM)
ON_NOTIFY(TVN_SELCHANGEDW, LayersId, &PensDialogCL::onLayerChosenM)
ON_EN_CHANGE(NameId, &PensDialogCL::onFieldChangedM)
ON_EN_CHANGE(WidthId, &PensDialogCL::onFieldChangedM)
ON_EN_CHANGE(SpeedId, &PensDialogCL::onFieldChangedM)
ON_LBN_SELCHANGE(NibsId, &PensDialogCL::onFieldChangedM)
ON_LBN_SELCHANGE(ColoursId, &PensDialogCL::onFieldChangedM)
END_MESSAGE_MAP()

PensDialogCL::PensDialogCL(const SettingsCL& settings)
    : settings_(settings)
{
    SetConfigFileM("pens.dlg");
    SetCancelIdM(CancelId); // Its focus has no field asked again for its value.
}

BOOL PensDialogCL::OnInitDialog()
{
    const BOOL result = DuBasicDialogCL::OnInitDialog(); // The controls are there from now on.
    int kind = 0;
    pens_ = static_cast<DuListCtrlCL*>(GetContrlPtrM(PensId, &kind));
    layers_ = static_cast<DuTreeCL*>(GetContrlPtrM(LayersId, &kind));
    if (pens_ == nullptr || layers_ == nullptr) {
        return result; // Another file than ours.
    }
    pens_->SetExtendedStyle(LVS_EX_FULLROWSELECT);
    for (int pen = 0; pen < pens_->GetItemCount(); ++pen) {
        pens_->SetItemData(pen, static_cast<DWORD_PTR>(pen)); // The colour.
    }
    eachLayerM(layers_->GetRootItem(), [this](HTREEITEM layer) { layers_->Expand(layer, TVE_EXPAND); });
    ValuesM().SetIndexM(PensId, 0);
    restoreM();
    showPenM();
    showLayerM();
    return result;
}

std::string PensDialogCL::cellM(int pen, int column) const
{
    return std::string(pens_->GetItemText(pen, column));
}

bool PensDialogCL::areFieldsLegalM()
{
    auto& values = ValuesM();
    return values.TextM(NameId) && values.RealM(WidthId) && values.IntM(SpeedId);
}

// Another row, or layer and with it another row, is about to be selected: not while a bad value stands there,
// which would be lost. The user hears of it when the field loses the focus.
void PensDialogCL::onPenChangingM(NMHDR* header, LRESULT* refused)
{
    const auto* const change = reinterpret_cast<const NMLISTVIEW*>(header);
    const bool selects = ((change->uNewState ^ change->uOldState) & LVIS_SELECTED) != 0;
    *refused = selects && !areFieldsLegalM() ? 1 : 0;
}

void PensDialogCL::onLayerChangingM(NMHDR*, LRESULT* refused)
{
    *refused = areFieldsLegalM() ? 0 : 1;
}

// Another row is selected.
void PensDialogCL::onPenChosenM(NMHDR* header, LRESULT*)
{
    const auto* const change = reinterpret_cast<const NMLISTVIEW*>(header);
    if (((change->uNewState ^ change->uOldState) & LVIS_SELECTED) != 0) {
        showPenM();
    }
}

// The fields show the chosen pen; without one they can't be used.
void PensDialogCL::showPenM()
{
    auto& values = ValuesM();
    const int pen = penM();
    for (const int id : { NameId, WidthId, SpeedId, NibsId, ColoursId }) {
        values.EnableM(id, pen >= 0);
    }
    if (pen < 0 || pens_ == nullptr) {
        return;
    }
    isShowing_ = true;
    values.SetTextM(NameId, cellM(pen, NameColumn));
    values.SetRealM(WidthId, std::atof(cellM(pen, WidthColumn).c_str()));
    values.SetIntM(SpeedId, std::atoi(cellM(pen, SpeedColumn).c_str()));
    const ValueTextCL nib = cellM(pen, NibColumn);
    for (int line = values.LineCountM(NibsId).value_or(0) - 1; line >= 0; --line) {
        if (values.LineM(NibsId, line) == nib) {
            values.SetIndexM(NibsId, line);
        }
    }
    values.SetIndexM(ColoursId, static_cast<int>(pens_->GetItemData(pen)));
    isShowing_ = false;
}

// The user types or selects: the row follows, but for what is not legal (yet).
void PensDialogCL::onFieldChangedM()
{
    const int pen = penM();
    if (isShowing_ || pen < 0) {
        return;
    }
    auto& values = ValuesM();
    char text[32] = "";
    if (const auto name = values.TextM(NameId)) {
        pens_->SetItemTextM(pen, NameColumn, name->GbkM().c_str());
    }
    if (const auto width = values.RealM(WidthId)) {
        std::snprintf(text, sizeof text, "%.2f", static_cast<double>(*width));
        pens_->SetItemTextM(pen, WidthColumn, text);
    }
    if (const auto speed = values.IntM(SpeedId)) {
        pens_->SetItemTextM(pen, SpeedColumn, std::to_string(*speed).c_str());
    }
    if (const auto nib = values.LineM(NibsId, values.IndexM(NibsId).value_or(-1))) {
        pens_->SetItemTextM(pen, NibColumn, nib->GbkM().c_str());
    }
    if (const int colour = values.IndexM(ColoursId).value_or(-1); colour >= 0) {
        pens_->SetItemData(pen, static_cast<DWORD_PTR>(colour));
    }
}

// Each layer's number is its pen.
void PensDialogCL::onLayerChosenM(NMHDR*, LRESULT*)
{
    int pen = 0;
    if (layers_ != nullptr && layers_->GetCurSelM(&pen) != nullptr) {
        ValuesM().SetIndexM(PensId, pen);
        showLayerM();
    }
}

void PensDialogCL::showLayerM()
{
    int pen = 0;
    const HTREEITEM layer = layers_->GetCurSelM(&pen);
    wchar_t text[200] = L"";
    if (layer != nullptr) {
        const std::wstring name = ValueTextCL(std::string(layers_->GetItemText(layer))).WideM();
        std::swprintf(text, 200, L"%ls: %d 号笔", name.c_str(), pen + 1);
    }
    ::SetDlgItemTextW(m_hWnd, LayerPenId, text);
}

void PensDialogCL::useForLayerM()
{
    const HTREEITEM layer = layers_->GetSelectedItem();
    if (layer != nullptr && penM() >= 0) {
        layers_->SetItemData(layer, static_cast<DWORD_PTR>(penM()));
        showLayerM();
    }
}

LRESULT PensDialogCL::onButtonM(WPARAM id, LPARAM)
{
    if (id == OkId) {
        // Enter leaves no field: what is being typed is checked here, and the user told.
        if (CheckValueLegalM() == 0 && areFieldsLegalM() && keepM()) {
            EndDialog(IDOK);
        }
    } else if (id == CancelId) {
        EndDialog(IDCANCEL);
    } else if (id == UseForLayerId) {
        useForLayerM();
    }
    return 0;
}

void PensDialogCL::eachLayerM(HTREEITEM first, const std::function<void(HTREEITEM)>& see)
{
    for (HTREEITEM layer = first; layer != nullptr; layer = layers_->GetNextSiblingItem(layer)) {
        see(layer);
        eachLayerM(layers_->GetChildItem(layer), see);
    }
}
