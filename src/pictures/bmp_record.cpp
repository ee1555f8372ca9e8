#include "pictures/bmp_record.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "baselib/take_back.h"
#include "containers/int_arr.h"
#include "pictures/bmp_reader.h"
#include <cstddef>
#include <string>

template class PANELKIT_API Arr<DVrBmpCL>;

void DVrBmpCL::FmInputEvrFileM(VrIOCL* io)
{
    if (io == nullptr) {
        return;
    }
    SetDeleteTagM(AliveTag);
    char name[PathSize] {};
    char directory[PathSize] {};
    io->InputGetsM(name, PathSize);
    io->GetFilePathM(directory);
    slCopyText(name_, PathSize, (std::string(directory) + name).c_str());
}

int DVrBmpCL::GetBmpNameM(char* out) const
{
    if (out == nullptr) {
        return 0;
    }
    slCopyText(out, PathSize, name_);
    return 1;
}

int DVrBmpCL::SetBmpNameM(const char* name)
{
    slCopyText(name_, PathSize, name);
    return 1;
}

int DVrBmpArr::GetBmpNameM(int index, char* out) const
{
    const DVrBmpCL* const record = GetItemPM(index);
    if (record == nullptr) {
        slCopyText(out, PathSize, "");
        return 0;
    }
    return record->GetBmpNameM(out);
}

unsigned char* DVrBmpArr::GetBmpContentM(int index, int* w, int* h) const
{
    char name[PathSize] {};
    GetBmpNameM(index, name);
    unsigned char* pixels = nullptr;
    slLoadBmpTexture(name, w, h, &pixels);
    return pixels;
}

int DVrBmpArr::FmInputScpFileM(VrIOCL* io, IntArr* map)
{
    if (io == nullptr) {
        return 0;
    }
    int count = 0;
    io->InputDM(&count);
    int result = 1;
    if (count > 0 && static_cast<std::size_t>(count) <= io->BytesLeftM()) {
        result = AddSizeM(count);
        const int bound = GetBoundM();
        TakeBackCL half([this, bound, count] {
            for (int k = 0; k < count; ++k) {
                ElementAtM(bound + k).SetDeleteTagM(DeletedTag);
            }
        });
        for (int k = 0; k < count && result == 1; ++k) {
            int label = 0;
            io->InputDM(&label);
            ElementAtM(bound + k).FmInputEvrFileM(io);
            if (map != nullptr) {
                map->SetItemM(bound + k, k);
            }
        }
        half.KeepM();
        if (result == 1) {
            setCountsM(bound + count, bound + count);
        }
    }
    io->SkipEndLineM();
    return result;
}
