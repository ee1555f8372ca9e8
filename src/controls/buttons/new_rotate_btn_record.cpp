#include "controls/buttons/new_rotate_btn_record.h"
#include "baselib/gbk.h"
#include "baselib/io.h"
#include "baselib/path.h"
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

template class PANELKIT_API Arr<DVrNewRotateBtnCL>;

namespace {

constexpr int DescriptionSize = 125;
constexpr int PictureValues = 4; // Of a line of the pictures' section.

int magnitude(int value)
{
    return value == INT_MIN ? INT_MAX : std::abs(value);
}

} // namespace

void DVrNewRotateBtnCL::EachFieldM(FieldVisitorCL& visitor)
{
    EachColumnM(visitor, 1, 1);
    const VrStringArr pictures = PicturesM();
    visitor.ListM("pictures", slotCount_, [&pictures](FieldVisitorCL& one, int row) {
        CharArr name(pictures.GetItemPM(row)->TextM());
        one.TextM("", name, NullWord::Kept);
    });
}

void DVrNewRotateBtnCL::EachColumnM(FieldVisitorCL& visitor, int withShowCondition, int withDescription)
{
    visitor.IntPairM("steps", steps_);
    visitor.IntM("initial_index", initialIndex_);
    if (withShowCondition != 0) {
        int showCondition = GetShowConditionM();
        visitor.IntM("show_condition", showCondition);
        SetShowConditionM(showCondition);
    }
    if (withDescription != 0) {
        visitor.TextM("description", description_, NullWord::CapitalsEmpty);
    }
}

int DVrNewRotateBtnCL::FmReadInterfaceM(VrIOCL* io, int withShowCondition, int withDescription)
{
    if (io == nullptr) {
        return 0;
    }
    *this = DVrNewRotateBtnCL(AliveTag);
    DVrCommonBoxCL::FmReadInterfaceM(io, 1);
    FieldReaderCL reader(io);
    EachColumnM(reader, withShowCondition, withDescription);
    char text[DescriptionSize];
    slCopyText(text, DescriptionSize, description_.TextM());
    description_.SetM(text);
    return 1;
}

int DVrNewRotateBtnCL::SetPictureM(int slot, const char* file)
{
    if (slot < 0 || slot == INT_MAX || file == nullptr) {
        return 0;
    }
    pictures_.push_back({ slot, CharArr(file) });
    slotCount_ = std::max(slotCount_, slot + 1);
    return 1;
}

VrStringArr DVrNewRotateBtnCL::PicturesM() const
{
    VrStringArr names;
    names.InitialSizeM(slotCount_);
    for (int i = 0; i < slotCount_; ++i) {
        names.AddItemM(VrStringCL(AliveTag));
    }
    for (const PictureCL& picture : pictures_) {
        names.ElementAtM(picture.slot).AddStringM(picture.file.TextM());
    }
    return names;
}

int DVrNewRotateBtnArr::FmReadInterfaceM(VrIOCL* io)
{
    if (io == nullptr) {
        return 0;
    }
    if (io->SearchStrM(NewRotateBtnHeader) == 0) {
        return 0;
    }
    int count = 0;
    int lines = 0;
    io->InputDM(&count, &lines);
    const int withShowCondition = lines < 0 ? 1 : 0;
    const int withDescription = count < 0 ? 1 : 0;
    DVrNewRotateBtnCL record(AliveTag);
    FieldCounterCL values;
    record.EachCommonFieldM(values, 1);
    record.EachColumnM(values, withShowCondition, withDescription);
    if (!slCanHold(io->BytesLeftM(), magnitude(count), values.CountM())) {
        return 0;
    }
    io->SkipSomeLinesM(magnitude(lines));
    for (int i = 0; i < magnitude(count); ++i) {
        record.FmReadInterfaceM(io, withShowCondition, withDescription);
        AddItemM(record);
    }
    return readPicturesM(io);
}

int DVrNewRotateBtnArr::readPicturesM(VrIOCL* io)
{
    const int found = io->SearchStrM(NewRotateBtnBitmapHeader);
    int count = 0;
    int lines = 0;
    if (found != 0) {
        io->InputDM(&count, &lines);
    }
    if (found == 0 || !slCanHold(io->BytesLeftM(), count, PictureValues)) {
        return 0;
    }
    // Slots beyond the file's size are not meant, nor so many empty ones that they outweigh the file by far.
    const std::size_t mostSlot = io->SizeM();
    constexpr std::size_t SlotsPerByte = 16;
    std::size_t slots = 0;
    io->SkipSomeLinesM(lines);
    char folder[PathSize];
    io->GetFilePathM(folder);
    for (int i = 0; i < count; ++i) {
        int numbers[3] = {}; // A number of no use, the button, the slot.
        io->InputDM(&numbers[0], &numbers[1], &numbers[2]);
        char name[PathSize];
        io->InputGetsM(name, PathSize);
        if (CheckAvailableM(numbers[1]) == 0 || numbers[2] < 0
            || static_cast<std::size_t>(numbers[2]) > mostSlot) {
            continue;
        }
        DVrNewRotateBtnCL& button = ElementAtM(numbers[1]);
        const std::size_t more = static_cast<std::size_t>(std::max(0, numbers[2] + 1 - button.SlotCountM()));
        if (slots + more > SlotsPerByte * mostSlot) {
            continue;
        }
        slots += more;
        char extension[PathSize];
        slGetFileExtension(name, extension);
        const std::string whole = std::strlen(extension) < 2 ? std::string(name) + ".bmp" : name;
        char path[PathSize];
        slCatFileNameWithPath(folder, whole.c_str(), path);
        button.SetPictureM(numbers[2], path);
    }
    return found;
}
