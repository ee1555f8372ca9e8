#include "records/field_reader.h"
#include "baselib/gbk.h"
#include "baselib/number_scan.h"
#include "baselib/number_text.h"
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>

ReadObserverCL::~ReadObserverCL() = default;
SeenRoomCL* ReadObserverCL::BeginRecordM(const char*, int)
{
    return nullptr;
}
void ReadObserverCL::ValueM(const ValueSeenCL&) { }
void ReadObserverCL::EntryDroppedM(const EntryDroppedCL&) { }
void ReadObserverCL::SectionM(const SectionSeenCL&) { }

namespace {

// Only a limit may stand for more than itself.
bool numberFits(const char* at, const char* end, int value)
{
    return (value != INT_MAX && value != INT_MIN) || slIntFits(at, end);
}

bool numberFits(const char* at, const char* end, float value)
{
    return std::abs(value) != FLT_MAX || slRealFits(at, end);
}

// Where the word ends, or a text's length of it: many values may be looked for at the same long word.
std::size_t wordEnd(const FileTextCL& file, std::size_t at)
{
    const std::string_view word = file.CutM({ at, at + TextSize });
    std::size_t length = 0;
    while (length < word.size() && !slIsBlank(word[length])) {
        ++length;
    }
    return at + slGbkCutLength(word.data(), length, TextSize - 1);
}

} // namespace

std::size_t slNextValue(const VrIOCL& io)
{
    const FileTextCL* const file = io.FileTextM().get();
    if (file == nullptr) {
        return io.PositionM();
    }
    const char* const bytes = file->BytesM();
    const char* const next = slSkipBlanks(bytes + io.PositionM(), bytes + file->SizeM());
    return static_cast<std::size_t>(next - bytes);
}

const char* FieldReaderCL::sureM() const
{
    const bool isSure = !isStopped_ && !io_->binary_ && io_->SizeM() > slScannedAtOnce;
    return isSure ? io_->end_ - slScannedAtOnce : nullptr;
}

// Of a number that was read whole. Apart, as readM is short without, and needs no registers saved.
[[gnu::noinline]] bool FieldReaderCL::tellReadM(
    const char* name, int part, const char* begin, const char* end)
{
    tellM(name, part,
        { static_cast<std::size_t>(begin - io_->data_), static_cast<std::size_t>(end - io_->data_) },
        Fate::Read);
    return true;
}

// Nearly all numbers are read by this alone: what is rare is left to another, so that it stays short.
inline bool FieldReaderCL::readM(const char* name, int part, int& value)
{
    if (sure_ != nullptr) {
        const char* const begin = slSkipBlanks(io_->at_, sure_);
        const char* const end = begin < sure_ ? slScanShortInt(begin, &value) : nullptr;
        if (end != nullptr) {
            io_->at_ = end;
            return observer_ == nullptr || tellReadM(name, part, begin, end);
        }
    }
    return readOtherwiseM(name, part, value);
}

inline bool FieldReaderCL::readM(const char* name, int part, float& value)
{
    if (sure_ != nullptr) {
        const char* const begin = slSkipBlanks(io_->at_, sure_);
        float read = 0;
        const char* const end = begin < sure_ ? slReadReal(begin, io_->end_, &read) : begin;
        if (end > begin && std::abs(read) != FLT_MAX) {
            value = read;
            mayJoinM(begin);
            io_->at_ = end;
            return observer_ == nullptr || tellReadM(name, part, begin, end);
        }
    }
    return readOtherwiseM(name, part, value);
}

// Of any kind, from any file, or not at all.
template <class T> bool FieldReaderCL::readOtherwiseM(const char* name, int part, T& value)
{
    const std::size_t begin = isObservedM() ? slNextValue(*io_) : 0;
    if (isObservedM()) {
        mayJoinM(io_->data_ + begin);
    }
    const bool isRead = !isStopped_ && io_->InputOneM(&value);
    if (isObservedM()) {
        const FileTextCL& file = *io_->FileTextM();
        if (isStopped_) {
            tellM(name, part, { begin, begin }, Fate::NotLookedAt);
        } else if (isRead) {
            const char* const bytes = file.BytesM();
            const bool fits = numberFits(bytes + begin, io_->at_, value);
            tellM(name, part, { begin, io_->PositionM() }, fits ? Fate::Read : Fate::Saturated);
        } else {
            tellUnreadM(name, part, begin);
        }
    }
    return isRead;
}

void FieldReaderCL::tellUnreadM(const char* name, int part, std::size_t begin)
{
    const FileTextCL& file = *io_->FileTextM();
    if (begin == file.SizeM()) {
        tellM(name, part, { begin, begin }, Fate::Missing);
    } else {
        tellM(name, part, { begin, wordEnd(file, begin) }, Fate::NotANumber);
    }
}

template <class T> void FieldReaderCL::readAllM(const char* name, T* values, int count)
{
    for (int part = 0; part < count; ++part) {
        readM(name, part, values[part]);
    }
}

void FieldReaderCL::IntM(const char* name, int& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::IdM(const char* name, int& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::IndexM(const char* name, int& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::CountM(const char* name, int& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::FlagM(const char* name, int& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::ChoiceM(const char* name, int& value, const ChoicesCL&)
{
    readM(name, 0, value);
}

void FieldReaderCL::LengthM(const char* name, int& value, Along)
{
    readM(name, 0, value);
}

void FieldReaderCL::LengthPairM(const char* name, int (&xy)[2])
{
    readAllM(name, xy, 2);
}

void FieldReaderCL::RealM(const char* name, float& value)
{
    readM(name, 0, value);
}

void FieldReaderCL::IntsM(const char* name, int* values, int count)
{
    readAllM(name, values, count);
}

void FieldReaderCL::RealsM(const char* name, float* values, int count)
{
    readAllM(name, values, count);
}

void FieldReaderCL::ColourM(const char* name, ColourTP& colour, int* flag)
{
    // Components that can't be read keep those of the default colour.
    int rgb[3] = { static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
        static_cast<int>(colour >> 16 & 0xFF) };
    const bool hasRed = readM(name, 0, rgb[0]);
    readM(name, 1, rgb[1]);
    readM(name, 2, rgb[2]);
    if (flag != nullptr) {
        if (!hasRed || rgb[0] < 0) {
            return;
        }
        *flag = 1;
    }
    colour = (rgb[0] & 0xFFU) | (rgb[1] & 0xFFU) << 8 | (rgb[2] & 0xFFU) << 16;
}

void FieldReaderCL::StopReadingM()
{
    isStopped_ = true;
    sure_ = nullptr;
}
