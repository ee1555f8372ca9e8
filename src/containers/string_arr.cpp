#include "containers/string_arr.h"

template class PANELKIT_API Arr<VrStringCL>;

int VrStringArr::AppendM(CharArr&& text)
{
    const int index = GetBoundM();
    if (index == GetLengthM() && AddSizeM(index) == 0) {
        return -1;
    }
    VrStringCL& slot = getCurrentItemPrtM()[index];
    setCountsM(index + 1, GetAvailableNumM() + (slot.IsAliveM() ? 0 : 1));
    slot.SetDeleteTagM(AliveTag);
    slot.ValueM() = std::move(text);
    return index;
}
