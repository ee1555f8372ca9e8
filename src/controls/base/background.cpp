#include "controls/base/background.h"

HBRUSH BackgroundCL::AnswerM(CDC* dc)
{
    if (dc == nullptr) {
        return nullptr;
    }
    dc->SetBkColor(colour_);
    brush_.DeleteObject();
    brush_.CreateSolidBrush(colour_);
    return static_cast<HBRUSH>(brush_.GetSafeHandle());
}
