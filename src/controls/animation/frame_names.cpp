#include "controls/animation/frame_names.h"

int FrameNamesCL::AddNameM(const char* file)
{
    if (file == nullptr) {
        return -1;
    }
    VrStringCL name(AliveTag);
    name.AddStringM(file);
    return AddItemM(name);
}

void FrameNamesCL::EachNameM(FieldVisitorCL& visitor) const
{
    visitor.ListM("bitmaps", GetBoundM(), [this](FieldVisitorCL& one, int row) {
        CharArr name(GetItemPM(row)->TextM());
        one.TextM("", name, NullWord::Kept);
    });
}
