// Pictures: what the application paints on controls, which frames animations show, keys.
#include "dialog/basic_dialog.h"

bool DuBasicDialogCL::SetPainterM(int id, PainterTP painter)
{
    bool isBuilt = false;
    eachControlsM([&isBuilt](auto, auto& controls) { isBuilt = isBuilt || controls.GetAvailableNumM() > 0; });
    if (isBuilt && !givePainterM(id, painter)) {
        return false;
    }
    if (painter) {
        painters_[id] = std::move(painter);
    } else {
        painters_.erase(id);
    }
    return true;
}

bool DuBasicDialogCL::givePainterM(int id, const PainterTP& painter)
{
    bool isGiven = false;
    withControlM(id, [&isGiven, &painter](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(TakesPainter)) {
            isGiven = control.SetPainterM(painter) == 1;
        }
    });
    return isGiven;
}

bool DuBasicDialogCL::RepaintM(int id)
{
    bool isAsked = false;
    withControlM(id, [&isAsked](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(TakesPainter)) {
            isAsked = control.RepaintM() == 1;
        }
    });
    return isAsked;
}

bool DuBasicDialogCL::ShowFrameM(int id, int frame)
{
    bool isShown = false;
    withControlM(id, [&isShown, frame](auto row, auto& control) {
        if constexpr (decltype(row)::Code == NormalAnimateCode || decltype(row)::Code == SpecAnimateCode) {
            isShown = control.HasBmpM(frame) && control.DispBmpM(frame) == 1;
        }
    });
    return isShown;
}

void DuBasicDialogCL::SetPictureKeyboardM(bool use)
{
    usesPictureKeyboard_ = use;
    givePictureKeyboardM();
}

void DuBasicDialogCL::givePictureKeyboardM()
{
    eachControlsM([this](auto row, auto& controls) {
        if constexpr (decltype(row)::CanM(TakesKeys)) {
            for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
                controls.ControlAtM(i).UseKeyboardM(usesPictureKeyboard_);
            }
        }
    });
}
