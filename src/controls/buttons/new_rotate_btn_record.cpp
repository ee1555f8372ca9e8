#include "controls/buttons/new_rotate_btn_record.h"
#include "baselib/path.h"
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unordered_map>

template class PANELKIT_API Arr<DVrNewRotateBtnCL>;

namespace {

constexpr int DescriptionSize = 125;

int magnitude(int value)
{
    return value == INT_MIN ? INT_MAX : std::abs(value);
}

std::string picturePath(const char* folder, const char* name)
{
    char extension[PathSize];
    slGetFileExtension(name, extension);
    const std::string whole = std::strlen(extension) < 2 ? std::string(name) + ".bmp" : name;
    char path[PathSize];
    slCatFileNameWithPath(folder, whole.c_str(), path);
    return path;
}

} // namespace

void SlotPictureCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("number", number);
    visitor.IndexM("button", button);
    visitor.IndexM("slot", slot);
    visitor.NameM("picture", picture, NullWord::Kept);
}

void DVrNewRotateBtnCL::EachFieldM(FieldVisitorCL& visitor, int withShowCondition, int withDescription)
{
    visitor.IntsM("steps", steps_, 2);
    visitor.IndexM("initial_index", initialIndex_);
    if (withShowCondition != 0) {
        showConditionFieldM(visitor);
    }
    if (withDescription != 0) {
        visitor.CaptionM("description", description_, { NullWord::UpperEmpty, DescriptionSize });
    }
    visitPicturesM(visitor);
}

// A row for each slot. The last picture named for a slot counts; one that a visitor gives an empty slot
// stays.
void DVrNewRotateBtnCL::visitPicturesM(FieldVisitorCL& visitor)
{
    std::unordered_map<int, std::size_t> pictureOf;
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        pictureOf[pictures_[i].slot] = i;
    }
    visitor.ListM("pictures", slotCount_, [this, &pictureOf](FieldVisitorCL& one, int slot) {
        const auto found = pictureOf.find(slot);
        CharArr none;
        CharArr& file = found != pictureOf.end() ? pictures_[found->second].file : none;
        one.NameM("picture", file, NullWord::Kept);
        if (!none.EmptyM()) {
            SetPictureM(slot, none.TextM());
        }
    });
}

int DVrNewRotateBtnCL::FmReadInterfaceM(VrIOCL* io, int withShowCondition, int withDescription)
{
    if (io == nullptr) {
        return 0;
    }
    FieldReaderCL reader(io);
    ReadM(reader, withShowCondition, withDescription);
    return 1;
}

void DVrNewRotateBtnCL::ReadM(FieldReaderCL& reader, int withShowCondition, int withDescription)
{
    *this = DVrNewRotateBtnCL(AliveTag);
    EachCommonFieldM(reader, 1);
    EachFieldM(reader, withShowCondition, withDescription);
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
    SectionReaderCL section(*io, NewRotateBtnHeader);
    int count = 0;
    int lines = 0;
    section.InputCountM(&count);
    section.InputCommentsM(&lines);
    const int withShowCondition = lines < 0 ? 1 : 0;
    const int withDescription = count < 0 ? 1 : 0;
    DVrNewRotateBtnCL record(AliveTag);
    FieldCounterCL values;
    record.EachCommonFieldM(values, 1);
    record.EachFieldM(values, withShowCondition, withDescription);
    section.SetCountM(magnitude(count), values.ValuesM());
    if (section.StatusM() != SectionStatus::Read) {
        return 0;
    }
    section.SkipCommentsM(magnitude(lines));
    DVrNewRotateBtnArr before; // Pictures may be for buttons that were there already.
    if (GetBoundM() > 0) {
        before = *this;
    }
    TakeBackCL half([this, &before] { SwapListM(before); });
    for (int i = 0; i < section.CountM(); ++i) {
        record.ReadM(section.RecordM(i), withShowCondition, withDescription);
        if (AddItemM(record) < 0) { // Pictures are for buttons by their places.
            throw std::bad_alloc();
        }
    }
    section.EndM();
    const int result = readPicturesM(io);
    half.KeepM();
    if (result == 0) {
        section.SetStatusM(SectionStatus::Incomplete);
    }
    return result;
}

int DVrNewRotateBtnArr::readPicturesM(VrIOCL* io)
{
    SectionReaderCL section(*io, NewRotateBtnBitmapHeader);
    int count = 0;
    int lines = 0;
    section.InputCountM(&count);
    section.InputCommentsM(&lines);
    SlotPictureCL entry;
    FieldCounterCL values;
    entry.EachFieldM(values);
    section.SetCountM(count, values.ValuesM());
    if (section.StatusM() != SectionStatus::Read) {
        return 0;
    }
    section.SkipCommentsM(lines);
    char folder[PathSize];
    io->GetFilePathM(folder);
    std::size_t slots = 0;
    for (int i = 0; i < count; ++i) {
        entry = SlotPictureCL();
        entry.EachFieldM(section.RecordM(i));
        if (CheckAvailableM(entry.button) == 0) {
            section.DropM(EntryFault::UnknownId);
        } else if (!takesSlotM(entry.button, entry.slot, io->SizeM(), &slots)) {
            section.DropM(EntryFault::BadSlot);
        } else {
            ElementAtM(entry.button)
                .SetPictureM(entry.slot, picturePath(folder, entry.picture.TextM()).c_str());
        }
    }
    return 1;
}

// Whether a slot can be meant: slots beyond the file's size are not, nor so many empty ones that they
// outweigh the file by far. *slots: how many there are by now, in all buttons.
bool DVrNewRotateBtnArr::takesSlotM(int button, int slot, std::size_t fileSize, std::size_t* slots)
{
    constexpr std::size_t SlotsPerByte = 16;
    if (slot < 0 || static_cast<std::size_t>(slot) > fileSize) {
        return false;
    }
    const auto more = static_cast<std::size_t>(std::max(0, slot + 1 - ElementAtM(button).SlotCountM()));
    if (*slots + more > SlotsPerByte * fileSize) {
        return false;
    }
    *slots += more;
    return true;
}
