#include "records/fields.h"
#include "baselib/char_arr.h"
#include "baselib/io.h"
#include <cstring>

FieldVisitorCL::~FieldVisitorCL() = default;

void FieldVisitorCL::ListM(const char*, int, const std::function<void(FieldVisitorCL&, int)>&) { }

void FieldVisitorCL::StopReadingM() { }

int slIsNullWord(const char* text)
{
    return text != nullptr && (std::strcmp(text, "NULL") == 0 || std::strcmp(text, "null") == 0);
}

namespace {

bool meansNoText(const char* text, NullWord nullWord)
{
    return nullWord == NullWord::CapitalsEmpty ? std::strcmp(text, "NULL") == 0
                                               : nullWord == NullWord::Empty && slIsNullWord(text) != 0;
}

} // namespace

FieldReaderCL::FieldReaderCL(VrIOCL* io)
    : io_(io)
{
    if (io_ == nullptr) {
        FieldReaderCL::StopReadingM();
    }
}

void FieldReaderCL::IntM(const char*, int& value)
{
    io_->InputDM(&value);
}

void FieldReaderCL::RealM(const char*, float& value)
{
    io_->InputRM(&value);
}

void FieldReaderCL::IntPairM(const char*, int (&values)[2])
{
    io_->InputInt2DM(values);
}

void FieldReaderCL::RealPairM(const char*, float (&values)[2])
{
    io_->InputPoint2DM(values);
}

void FieldReaderCL::ColourM(const char*, ColourTP& colour, int* flag)
{
    // Components that can't be read keep those of the default colour.
    int rgb[3] = { static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
        static_cast<int>(colour >> 16 & 0xFF) };
    const int read = io_->InputInt3DM(rgb);
    if (flag != nullptr) {
        if (read == 0 || rgb[0] < 0) {
            return;
        }
        *flag = 1;
    }
    colour = (rgb[0] & 0xFFU) | (rgb[1] & 0xFFU) << 8 | (rgb[2] & 0xFFU) << 16;
}

void FieldReaderCL::TextM(const char*, CharArr& text, NullWord nullWord)
{
    char line[TextSize];
    if (io_->InputGetsM(line, TextSize) != 0) {
        text.SetM(meansNoText(line, nullWord) ? "" : line);
    }
}

void FieldReaderCL::StopReadingM()
{
    static VrIOCL nothing; // A reader that isn't open reads nothing.
    io_ = &nothing;
}

void FieldCounterCL::IntM(const char*, int& value)
{
    value = 0;
    addM(1);
}

void FieldCounterCL::RealM(const char*, float&)
{
    addM(1);
}

void FieldCounterCL::IntPairM(const char*, int (&)[2])
{
    addM(2);
}

void FieldCounterCL::RealPairM(const char*, float (&)[2])
{
    addM(2);
}

void FieldCounterCL::ColourM(const char*, ColourTP&, int*)
{
    addM(3);
}

void FieldCounterCL::TextM(const char*, CharArr&, NullWord)
{
    addM(1);
}
