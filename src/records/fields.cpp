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
