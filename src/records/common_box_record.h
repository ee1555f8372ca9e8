#pragma once
#include "baselib/base.h"
#include "records/fields.h"

class DControlCommonCL;
class DVrRgnCL;
class Int2DArr;

// The fields that open every control record, and the default shapes of a control. Here and with the records
// of every kind and their arrays, null where a pointer is wanted is refused: nothing happens, the result is
// 0, -1 where an index is reported.
class PANELKIT_API DVrCommonBoxCL : public VrBaseCL
{
public:
    using VrBaseCL::VrBaseCL;

    // Reads window index, the item index only when withItemIndex is nonzero, function id, position and
    // size (pixels); the other fields keep their values. Always 1.
    int FmReadInterfaceM(VrIOCL* io, int withItemIndex);
    // Takes the window index as given, then reads item index, function id, extra value, region kind,
    // position, size and show condition. The item index that was read.
    int FmInputInterfaceM(int windowIndex, VrIOCL* io);

    // Hands window index, function id, position, size and show condition to a control. Always 1.
    int InitCommonCtrlM(DControlCommonCL* control) const;

    // Hands the control what may change with the scale of a dialog that is built: position and size, and what
    // else of lengths a kind has. Always 1.
    int GiveLengthsM(DControlCommonCL* control) const;

    // Shapes in the control's own client coordinates. A region that the argument held is deleted.
    void GetButtonRgnM(DVrRgnCL* region) const;       // The rectangle; nothing unless the region kind is 0.
    void GetDrawRgnM(DVrRgnCL* region) const;         // The outline polygon.
    void GetRotateButtonRgnM(DVrRgnCL* region) const; // The inscribed ellipse.

    // What the file says; at first 0, the show condition -1. The references hold as long as the record.
    int GetWindowIndexM() const { return windowIndex_; }
    int GetItemIndexM() const { return itemIndex_; }
    int GetFuncIDM() const { return functionId_; }
    int GetExtraValueM() const { return extraValue_; }
    int GetRegionKindM() const { return regionKind_; }
    const int (&GetPositionM() const)[2] { return position_; }
    const int (&GetSizeM() const)[2] { return size_; }
    int GetShowConditionM() const { return showCondition_; }

    // Take the place of what the file says.
    void SetWindowIndexM(int index) { windowIndex_ = index; }
    void SetShowConditionM(int condition) { showCondition_ = condition; }

    // The common fields of a main section, named as every other field is.
    void EachCommonFieldM(FieldVisitorCL& visitor, int withItemIndex = 0);

protected:
    // For kinds whose section has it: shows the visitor the show condition.
    void showConditionFieldM(FieldVisitorCL& visitor) { visitor.IntM("show_condition", showCondition_); }

private:
    void storedFieldsM(FieldVisitorCL& visitor);
    void setPolygonM(Int2DArr* points) const;

    int windowIndex_ { 0 };
    int itemIndex_ { 0 };
    int functionId_ { 0 };
    int extraValue_ { 0 };
    int regionKind_ { 0 };
    int position_[2] {};
    int size_[2] {};
    int showCondition_ { -1 };
};
