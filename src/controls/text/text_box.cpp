#include "controls/text/text_box.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <cstdarg>
#include <cstdio>

BEGIN_MESSAGE_MAP(DuTextBox, CEdit)
ON_WM_CHAR()
END_MESSAGE_MAP()

template <class NumberTP>
int DuTextBox::getM(const char* (*read)(const char* at, const char* end, NumberTP* value),
    const NumberTP (&limits)[2], NumberTP* value) const
{
    char text[BufferSize];
    const char* const end = text + GetWindowText(text, BufferSize);
    const char* const begin = std::find_if_not(static_cast<const char*>(text), end, slIsBlank);
    if (begin == end) {
        return -1;
    }
    NumberTP number = 0;
    const int count = read(begin, end, &number) > begin ? 1 : 0;
    if (number >= limits[0] && number <= limits[1]) {
        *value = number;
        return count;
    }
    *value = -1;
    return -1;
}

int DuTextBox::GetIntM(int* value) const
{
    if (value == nullptr) {
        return 0;
    }
    return getM(&slReadInt, intLimits_, value);
}

int DuTextBox::GetRealM(float* value) const
{
    if (value == nullptr) {
        return 0;
    }
    return getM(&slReadReal, realLimits_, value);
}

int DuTextBox::SetIntM(int value, const char* format)
{
    if (format == nullptr) {
        return 0;
    }
    showM(value >= intLimits_[0] && value <= intLimits_[1] ? format : nullptr, value);
    return 1;
}

int DuTextBox::SetRealM(float value, const char* format)
{
    if (format == nullptr) {
        return 0;
    }
    showM(value >= realLimits_[0] && value <= realLimits_[1] ? format : nullptr, static_cast<double>(value));
    return 1;
}

int DuTextBox::GetStringM(char* text) const
{
    if (text == nullptr) {
        return 0;
    }
    return GetWindowText(text, BufferSize) > 0 ? 1 : 0;
}

int DuTextBox::SetStringM(const char* text, const char* format)
{
    if (text == nullptr || format == nullptr) {
        return 0;
    }
    showM(format, text);
    return 1;
}

void DuTextBox::showM(const char* format, ...)
{
    // Room for the second byte of a character that does not fit, so that it is seen to be one.
    char printed[BufferSize + 1] = "";
    if (format != nullptr) {
        va_list values;
        va_start(values, format);
        std::vsnprintf(printed, sizeof printed, format, values);
        va_end(values);
    }
    slCutText(printed, BufferSize - 1);
    SetWindowText(printed);
}

bool DuTextBox::isTakenM(UINT character) const
{
    const bool number = (character >= '0' && character <= '9') || character == VK_BACK;
    switch (editType_) {
    case IntegerCharacters:
        return number;
    case RealCharacters:
        return number || character == '-' || character == '.';
    default:
        return true;
    }
}

void DuTextBox::OnChar(UINT character, UINT repeats, UINT flags)
{
    if (isTakenM(character)) {
        CEdit::OnChar(character, repeats, flags);
    }
}
