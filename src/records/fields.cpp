#include "records/fields.h"
#include "baselib/char_arr.h"
#include <cstring>

int slIsNullWord(const char* text)
{
    return text != nullptr && (std::strcmp(text, "NULL") == 0 || std::strcmp(text, "null") == 0);
}

FieldVisitorCL::~FieldVisitorCL() = default;

void FieldVisitorCL::IntM(const char*, int&) { }
void FieldVisitorCL::RealM(const char*, float&) { }
void FieldVisitorCL::IntsM(const char*, int*, int) { }
void FieldVisitorCL::RealsM(const char*, float*, int) { }
void FieldVisitorCL::ColourM(const char*, ColourTP&, int*) { }
void FieldVisitorCL::TextM(const char*, CharArr&, const TextFormCL&) { }

void FieldVisitorCL::IdM(const char* name, int& value)
{
    IntM(name, value);
}

void FieldVisitorCL::IndexM(const char* name, int& value)
{
    IntM(name, value);
}

void FieldVisitorCL::CountM(const char* name, int& value)
{
    IntM(name, value);
}

void FieldVisitorCL::FlagM(const char* name, int& value)
{
    IntM(name, value);
}

void FieldVisitorCL::ChoiceM(const char* name, int& value, const ChoicesCL&)
{
    IntM(name, value);
}

void FieldVisitorCL::LengthM(const char* name, int& value, Along)
{
    IntM(name, value);
}

void FieldVisitorCL::LengthPairM(const char* name, int (&xy)[2])
{
    IntsM(name, xy, 2);
}

void FieldVisitorCL::MillisecondsM(const char* name, int& value)
{
    IntM(name, value);
}

void FieldVisitorCL::DegreesM(const char* name, float& value)
{
    RealM(name, value);
}

void FieldVisitorCL::DegreesPairM(const char* name, float (&values)[2])
{
    RealsM(name, values, 2);
}

void FieldVisitorCL::CaptionM(const char* name, CharArr& text, const TextFormCL& form)
{
    TextM(name, text, form);
}

void FieldVisitorCL::NameM(const char* name, CharArr& file, const TextFormCL& form)
{
    TextM(name, file, form);
}

void FieldVisitorCL::NumberM(const char* name, int type, simpleValD& value)
{
    if (type == RealType) {
        RealM(name, value.real);
    } else if (type == TextType) {
        CharArr text(value.text);
        CaptionM(name, text, NullWord::Kept);
        text.GetM(value.text, TextSize);
    } else {
        IntM(name, value.number);
    }
}

void FieldVisitorCL::LimitsM(const char* name, int type, simpleValD& range)
{
    if (type == RealType) {
        RealsM(name, range.reals, 2);
    } else {
        IntsM(name, range.numbers, 2);
    }
}

void FieldVisitorCL::ListM(const char*, int, const std::function<void(FieldVisitorCL&, int)>&) { }
void FieldVisitorCL::StopReadingM() { }
