#pragma once
#include "toolkit/toolkit.h"

// The brush of a control that paints a background: none at first, deleted with its holder.
class PANELKIT_API DVrBrushCL : public CBrush
{
public:
    DVrBrushCL();
    ~DVrBrushCL() override;
};
