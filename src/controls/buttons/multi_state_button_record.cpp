#include "controls/buttons/multi_state_button_record.h"
#include "baselib/take_back.h"

template class PANELKIT_API Arr<DVrMultiStateButtonCL>;

void DVrMultiStateButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("initial_status", initialStatus_);
    visitor.NameM(RegionField, region_, NullWord::Kept);
    slVisitRows(visitor, "states", files_, files_.GetAvailableNumM(), &slStateRow, [this](int slot) {
        return RowCL { &statuses_[slot], { &files_[slot].ValueM() } };
    });
}

int DVrMultiStateButtonCL::AddStringM(int status, const char* file)
{
    return file != nullptr ? addM(status, CharArr(file)) : -1;
}

int DVrMultiStateButtonCL::addM(int status, CharArr&& file)
{
    const int index = files_.AppendM(std::move(file));
    if (index >= 0) {
        TakeBackCL half([this, index] { files_.DelItemM(index); });
        statuses_.AddItemM(status);
        half.KeepM();
    }
    return index;
}
