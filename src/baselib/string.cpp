#include "baselib/string.h"
#include "baselib/io.h"
#include "baselib/path.h"

int VrStringCL::AddStringM(const char* text)
{
    return text != nullptr ? text_.SetM(text) : 0;
}

int VrStringCL::GetStringM(char* out) const
{
    return text_.GetM(out, PathSize);
}

int VrStringCL::GetStringM(char* out, int size) const
{
    return text_.GetM(out, size);
}

void VrStringCL::FmInputEvrFileM(VrIOCL* io)
{
    if (io == nullptr) {
        return;
    }
    int tag = DeletedTag;
    io->InputDM(&tag);
    const bool read = io->InputTextM(&text_) != 0;
    SetDeleteTagM(read && tag == AliveTag ? AliveTag : DeletedTag);
}

void VrStringCL::FmOutputEvrFileM(VrIOCL* io) const
{
    if (io == nullptr) {
        return;
    }
    io->OutputDM(GetDeleteTagM());
    io->OutputTextM(TextM());
}

void VrStringCL::SetByMergeM(const VrBaseCL& other, int)
{
    if (const auto* const string = dynamic_cast<const VrStringCL*>(&other)) {
        text_ = string->text_;
        SetDeleteTagM(AliveTag);
    }
}
