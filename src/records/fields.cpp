#include "records/fields.h"
#include "baselib/char_arr.h"
#include "baselib/io.h"
#include <cstring>

FieldVisitorCL::~FieldVisitorCL() = default;

void FieldVisitorCL::ListM(const char*, int, const std::function<void(FieldVisitorCL&, int)>&) { }

void FieldVisitorCL::StopReadingM() { }

int slIsNullWord(const char* text)
{
    return std::strcmp(text, "NULL") == 0 || std::strcmp(text, "null") == 0;
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
        text.SetM(nullWord == NullWord::Empty && slIsNullWord(line) ? "" : line);
    }
}

void FieldReaderCL::StopReadingM()
{
    static VrIOCL nothing; // A reader that isn't open reads nothing.
    io_ = &nothing;
}
