#include "records/common_box_record.h"
#include "baselib/int2d_arr.h"
#include "baselib/io.h"

void DVrCommonBoxCL::EachCommonFieldM(FieldVisitorCL& visitor, int withItemIndex)
{
    visitor.IntM("window_index", windowIndex_);
    if (withItemIndex != 0) {
        visitor.IntM("item_index", itemIndex_);
    }
    visitor.IntM("function_id", functionId_);
    visitor.IntPairM("position", position_);
    visitor.IntPairM("size", size_);
}

int DVrCommonBoxCL::FmReadInterfaceM(VrIOCL* io, int withItemIndex)
{
    if (io == nullptr) {
        return 0;
    }
    // What can't be read is 0, never what the record before left.
    windowIndex_ = functionId_ = 0;
    position_[0] = position_[1] = size_[0] = size_[1] = 0;
    if (withItemIndex != 0) {
        itemIndex_ = 0;
    }
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
    io->InputDM(&itemIndex_, &functionId_, &extraValue_, &regionKind_);
    io->InputInt2DM(position_);
    io->InputInt2DM(size_);
    io->InputDM(&showCondition_);
    return itemIndex_;
}

void DVrCommonBoxCL::setPolygonM(Int2DArr* points) const
{
    const int corners[4][2] = { { 0, 0 }, { size_[0], 0 }, { size_[0], size_[1] }, { 0, size_[1] } };
    for (int i = 0; i < 4; ++i) {
        points->SetItemM(corners[i], i);
    }
}
