// What a common record does with a live control and with regions.
#include "containers/int2d_arr.h"
#include "controls/base/control_common.h"
#include "pictures/rgn_record.h"
#include "records/common_box_record.h"

int DVrCommonBoxCL::InitCommonCtrlM(DControlCommonCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    control->SetWinIdxM(windowIndex_);
    control->SetFunctionIDM(functionId_);
    control->SetPositionM(position_);
    control->SetSizeM(size_);
    control->SetShowConditionM(showCondition_);
    return 1;
}

int DVrCommonBoxCL::GiveLengthsM(DControlCommonCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    control->SetPositionM(position_);
    control->SetSizeM(size_);
    return 1;
}

void DVrCommonBoxCL::GetButtonRgnM(DVrRgnCL* region) const
{
    if (region == nullptr) {
        return;
    }
    region->DeleteObject();
    if (regionKind_ == 0) {
        region->CreateRectRgn(0, 0, size_[0], size_[1]);
    }
}

void DVrCommonBoxCL::GetDrawRgnM(DVrRgnCL* region) const
{
    if (region == nullptr) {
        return;
    }
    Int2DArr points;
    setPolygonM(&points);
    region->DeleteObject();
    region->CreateRgnFromPolygonM(points);
}

void DVrCommonBoxCL::GetRotateButtonRgnM(DVrRgnCL* region) const
{
    if (region == nullptr) {
        return;
    }
    region->DeleteObject();
    region->CreateEllipticRgn(0, 0, size_[0], size_[1]);
}
