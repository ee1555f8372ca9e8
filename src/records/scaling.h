#pragma once
#include "baselib/scale.h"
#include "records/fields.h"

// Scales every length of the records that it sees: rectangles by their edges, columns of a table one behind
// the other, all others on their own.
class PANELKIT_API ScalingCL : public FieldVisitorCL
{
public:
    // scale: of the records that it will see.
    explicit ScalingCL(const ScaleCL& scale)
        : scale_(scale)
    {
    }
    void LengthM(const char* name, int& value, Along along) override;
    void LengthPairM(const char* name, int (&xy)[2]) override;
    void ListM(const char* name, int rows,
        const std::function<void(FieldVisitorCL& visitor, int row)>& see) override;

private:
    ScaleCL scale_;
    int corner_[2] {}; // Of the record at hand, as the file has it.
};

// Scales the lengths of a record of any kind.
template <class RecordTP> void slScaleRecord(RecordTP& record, const ScaleCL& scale)
{
    if (scale.PercentM() != 100) {
        ScalingCL scaling(scale);
        record.EachCommonFieldM(scaling);
        record.EachFieldM(scaling);
    }
}
