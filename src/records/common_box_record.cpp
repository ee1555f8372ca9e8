#include "records/common_box_record.h"
#include "containers/int2d_arr.h"
#include "records/field_reader.h"
#include <algorithm>

namespace {

// What can't be read is 0, never what the record before left.
class ZeroingCL : public FieldVisitorCL
{
public:
    void IntM(const char*, int& value) override { value = 0; }
    void IntsM(const char*, int* values, int count) override { std::fill_n(values, count, 0); }
};

} // namespace

void DVrCommonBoxCL::EachCommonFieldM(FieldVisitorCL& visitor, int withItemIndex)
{
    visitor.IndexM("window_index", windowIndex_);
    if (withItemIndex != 0) {
        visitor.IndexM("item_index", itemIndex_);
    }
    visitor.IdM("function_id", functionId_);
    visitor.LengthPairM("position", position_);
    visitor.LengthPairM("size", size_);
}

// What FmInputInterfaceM reads.
void DVrCommonBoxCL::storedFieldsM(FieldVisitorCL& visitor)
{
    visitor.IndexM("item_index", itemIndex_);
    visitor.IdM("function_id", functionId_);
    visitor.IntM("extra_value", extraValue_);
    visitor.IntM("region_kind", regionKind_);
    visitor.LengthPairM("position", position_);
    visitor.LengthPairM("size", size_);
    showConditionFieldM(visitor);
}

int DVrCommonBoxCL::FmReadInterfaceM(VrIOCL* io, int withItemIndex)
{
    if (io == nullptr) {
        return 0;
    }
    ZeroingCL zeroing;
    EachCommonFieldM(zeroing, withItemIndex);
    FieldReaderCL reader(io);
    EachCommonFieldM(reader, withItemIndex);
    return 1;
}

int DVrCommonBoxCL::FmInputInterfaceM(int windowIndex, VrIOCL* io)
{
    if (io == nullptr) {
        return 0;
    }
    windowIndex_ = windowIndex;
    FieldReaderCL reader(io);
    storedFieldsM(reader);
    return itemIndex_;
}

void DVrCommonBoxCL::setPolygonM(Int2DArr* points) const
{
    const int corners[4][2] = { { 0, 0 }, { size_[0], 0 }, { size_[0], size_[1] }, { 0, size_[1] } };
    for (int i = 0; i < 4; ++i) {
        points->SetItemM(corners[i], i);
    }
}
