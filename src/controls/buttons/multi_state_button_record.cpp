#include "controls/buttons/multi_state_button_record.h"

template class PANELKIT_API Arr<DVrMultiStateButtonCL>;

void DVrMultiStateButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("initial_status", initialStatus_);
    visitor.TextM("region", region_, NullWord::Kept);
    visitor.ListM("states", files_.GetBoundM(), [this](FieldVisitorCL& state, int row) {
        CharArr file(files_.GetItemPM(row)->TextM());
        state.IntM("status", statuses_[row]);
        state.TextM("bitmap", file, NullWord::Kept);
    });
}

int DVrMultiStateButtonCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrMultiStateButtonCL::AddStringM(int status, const char* file)
{
    if (file == nullptr) {
        return -1;
    }
    VrStringCL name(AliveTag);
    name.AddStringM(file);
    const int index = files_.AddItemM(name);
    if (index >= 0) {
        statuses_.AddItemM(status);
    }
    return index;
}

int DVrMultiStateButtonArr::AddStringM(int index, int status, const char* file)
{
    if (file == nullptr) {
        return 0;
    }
    return ifAliveM(
        index, [status, file](DVrMultiStateButtonCL& record) { record.AddStringM(status, file); });
}
