#pragma once
#include "records/fields.h"
#include "records/own_list.h"

// The frame files of one animation record, in the order of the frames.
class PANELKIT_API FrameNamesCL : public TextListCL
{
public:
    int AddNameM(const char* file); // The index of the new name.
    void EachNameM(FieldVisitorCL& visitor) const;
};
