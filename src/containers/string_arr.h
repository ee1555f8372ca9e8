#pragma once
#include "baselib/string.h"
#include "containers/arr.h"

extern template class PANELKIT_API Arr<VrStringCL>;

// A list of texts. Merged slots take the texts of the other list.
class PANELKIT_API VrStringArr : public Arr<VrStringCL>
{
public:
    using Arr<VrStringCL>::Arr;
    // Appends an alive text, taking it over. Its index; -1 when there is no memory.
    int AppendM(CharArr&& text);
};
