#include "controls/text/typed_value.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "baselib/real_text.h"
#include <algorithm>
#include <charconv>
#include <cstring>

namespace {

constexpr unsigned Backspace = 8;
constexpr unsigned EditCommands[] = { 1, 3, 22, 24, 26 }; // Ctrl with A, C, V, X, Z.

bool isNumberType(int type)
{
    return type == IntegerType || type == RealType;
}

} // namespace

void slTripDot(char* text, int decimals)
{
    if (text == nullptr) {
        return;
    }
    char* const point = std::strchr(text, '.');
    const std::size_t kept = static_cast<std::size_t>(std::max(decimals, 0)) + 1;
    if (point != nullptr && std::strlen(point) > kept) {
        point[kept] = '\0';
    }
}

KeptValueCL::KeptValueCL(const KeptValueCL& other)
    : few_(other.few_)
    , whole_(other.whole_ != nullptr ? std::make_unique<simpleValD>(*other.whole_) : nullptr)
{
}

KeptValueCL& KeptValueCL::operator=(const KeptValueCL& other)
{
    KeptValueCL copy(other);
    few_ = copy.few_;
    whole_ = std::move(copy.whole_);
    return *this;
}

simpleValD KeptValueCL::WholeM() const
{
    simpleValD value;
    std::memcpy(value.text, TextM(), whole_ != nullptr ? sizeof value.text : sizeof few_.text);
    return value;
}

void KeptValueCL::SetTextM(const char* text)
{
    if (text == TextM()) {
        return;
    }
    if (whole_ == nullptr && (text == nullptr || std::memchr(text, 0, sizeof few_.text) != nullptr)) {
        slCopyText(few_.text, sizeof few_.text, text);
    } else {
        slCopyText(makeWholeM().text, TextSize, text);
    }
}

simpleValD& KeptValueCL::makeWholeM()
{
    if (whole_ == nullptr) {
        whole_ = std::make_unique<simpleValD>(WholeM());
    }
    return *whole_;
}

void TypedValueCL::SetTypeM(int type, int decimals)
{
    type_ = type;
    decimals_ = decimals;
}

int TypedValueCL::SetRangeM(const simpleValD& range)
{
    if (!isNumberType(type_) && type_ != TextType) {
        return 0;
    }
    // The bytes of two ints are those of two reals.
    std::memcpy(&range_, range.text, sizeof range_);
    return 1;
}

int TypedValueCL::SetValueM(const simpleValD& value)
{
    switch (type_) {
    case IntegerType:
        SetIntM(value.number);
        return 1;
    case RealType:
        SetRealM(value.real);
        return 1;
    case TextType: {
        simpleValD ended = value;
        ended.text[TextSize - 1] = '\0';
        SetTextM(ended.text);
        return 1;
    }
    default:
        return 0;
    }
}

int TypedValueCL::GetValueM(simpleValD* value) const
{
    if (value == nullptr) {
        return 0;
    }
    switch (type_) {
    case IntegerType:
        value->number = IntM();
        return 1;
    case RealType:
        value->real = RealM();
        return 1;
    case TextType:
        slCopyText(value->text, TextSize, TextM());
        return 1;
    default:
        return 0;
    }
}

bool TypedValueCL::AcceptsM(unsigned character) const
{
    if (!isNumberType(type_)) {
        return type_ == TextType;
    }
    const auto* const commandsEnd = std::end(EditCommands);
    return (character >= '0' && character <= '9') || character == Backspace || character == '-'
        || character == '+' || (type_ == RealType && character == '.')
        || std::find(std::begin(EditCommands), commandsEnd, character) != commandsEnd;
}

template <class T> CheckCode TypedValueCL::judgeM(T value, const T (&limits)[2])
{
    return value < limits[0] ? BelowMinimum : value > limits[1] ? AboveMaximum : ValidValue;
}

CheckCode TypedValueCL::ReadM(const char* text)
{
    char line[TextSize];
    slCopyText(line, TextSize, text);
    if (type_ == TextType) {
        SetTextM(line);
        // Only the maximum counts.
        const int length = static_cast<int>(std::strlen(TextM()));
        return length > range_.numbers[1] ? AboveMaximum : ValidValue;
    }
    if (type_ == RealType) {
        slTripDot(line, decimals_);
    }
    const char* const end = line + std::strlen(line);
    const char* const begin = std::find_if_not(static_cast<const char*>(line), end, slIsBlank);
    if (type_ == IntegerType && slReadInt(begin, end, &value_.NumberM()) > begin) {
        return judgeM(IntM(), range_.numbers);
    }
    if (type_ == RealType && slReadReal(begin, end, &value_.RealM()) > begin) {
        return judgeM(RealM(), range_.reals);
    }
    return Unreadable;
}

unsigned TypedValueCL::PartsM() const
{
    switch (type_) {
    case IntegerType:
        return NumberPart;
    case RealType:
        return RealPart;
    case TextType:
        return TextPart;
    default:
        return NoPart;
    }
}

ControlValueCL TypedValueCL::ReadAsM(const char* text) const
{
    TypedValueCL read = *this;
    ControlValueCL value;
    if (read.ReadM(text) != ValidValue) {
        return value;
    }
    if (type_ == IntegerType) {
        value.number = read.IntM();
    } else if (type_ == RealType) {
        value.real = read.RealM();
    } else {
        value.text = read.TextM();
    }
    return value;
}

bool TypedValueCL::TakeM(const ControlValueCL& value)
{
    if (!value.IsOfM(PartsM())) {
        return false;
    }
    TypedValueCL taken = *this;
    if (value.number) {
        taken.SetIntM(*value.number);
    } else if (value.real) {
        taken.SetRealM(*value.real);
    } else {
        int lost = 0;
        const std::string text = value.text->GbkM(&lost);
        if (lost > 0 || text.size() >= TextSize) {
            return false;
        }
        taken.SetTextM(text.c_str());
    }
    char shown[TextSize];
    taken.ShowM(shown, TextSize);
    if (TypedValueCL(taken).ReadM(shown) != ValidValue) {
        return false;
    }
    value_ = taken.value_;
    return true;
}

int TypedValueCL::ShowM(char* to, int size) const
{
    slCopyText(to, size, "");
    if (type_ == TextType) {
        slCopyText(to, size, TextM());
        return 1;
    }
    LimitsCL number;
    std::memcpy(&number, TextM(), sizeof number);
    showNumberM(to, size, number, 0);
    return isNumberType(type_) ? 1 : 0;
}

// One of the two numbers of a value or range; the locale doesn't matter.
void TypedValueCL::showNumberM(char* to, int size, const LimitsCL& value, int which) const
{
    char text[TextSize];
    char* end = text;
    if (type_ == RealType) {
        const int decimals = std::clamp(decimals_, 0, MostDecimals);
        end = slWriteFixed(text, value.reals[which], decimals);
    } else if (type_ == IntegerType || type_ == TextType) {
        end = std::to_chars(text, text + TextSize - 1, value.numbers[which]).ptr;
    }
    *end = '\0';
    slCopyText(to, size, text);
}

void TypedValueCL::ForceM(CheckCode code)
{
    if (code != BelowMinimum && code != AboveMaximum) {
        return;
    }
    const int which = code == BelowMinimum ? 0 : 1;
    if (type_ == IntegerType) {
        SetIntM(range_.numbers[which]);
    } else if (type_ == RealType) {
        SetRealM(range_.reals[which]);
    } else if (type_ == TextType && code == AboveMaximum) {
        slCutText(value_.TextM(), std::max(range_.numbers[1], 0));
    }
}

std::string TypedValueCL::LimitTextM(CheckCode code) const
{
    char text[TextSize];
    showNumberM(text, TextSize, range_, code == BelowMinimum ? 0 : 1);
    return text;
}

MessageTextId TypedValueCL::FaultM(CheckCode code) const
{
    if (code == Unreadable) {
        return BadValueMessage;
    }
    const bool isLow = code == BelowMinimum;
    switch (type_) {
    case IntegerType:
        return isLow ? IntTooSmallMessage : IntTooLargeMessage;
    case RealType:
        return isLow ? RealTooSmallMessage : RealTooLargeMessage;
    default:
        return TextTooLongMessage;
    }
}

std::u16string TypedValueCL::MessageM(MessageTextId id) const
{
    return slMessageText(
        id, slGbkToUtf16(LimitTextM(BelowMinimum).c_str()), slGbkToUtf16(LimitTextM(AboveMaximum).c_str()));
}
