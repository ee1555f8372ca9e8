// Single values: choices, colours, ranges.
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "control_list.h"
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace {

std::string shortNumber(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string listOf(const FieldCL& field)
{
    std::string list;
    for (const ChoiceCL* choice = field.firstChoice; choice != field.lastChoice; ++choice) {
        list += (list.empty() ? "" : ", ") + std::to_string(choice->value) + " " + choice->name;
    }
    return list;
}

void checkFates(FileReadingCL& file, const FieldCL& field, FindingsCL& findings)
{
    for (int part = 0; part < field.parts && field.seen != nullptr; ++part) {
        const SeenValueCL& value = field.seen[part];
        if (value.fate == Fate::Saturated) {
            findings.AddM(Says::NumberTooLarge, value.begin, { field.name, file.CutM(value) });
        } else if (value.fate == Fate::Cut) {
            findings.AddM(Says::TextTooLong, value.begin, { field.name, std::to_string(field.size - 1) });
        }
    }
}

// The light of each value of a colour's component.
std::array<double, 256> makeLinear()
{
    std::array<double, 256> linear {};
    for (std::size_t i = 0; i < linear.size(); ++i) {
        const double value = static_cast<double>(i) / 255.0;
        linear[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return linear;
}

// The contrast of black text on a colour, from 1 to 21.
double contrastOfBlack(ColourTP colour)
{
    static const std::array<double, 256> linear = makeLinear();
    const double luminance = 0.2126 * linear[colour & 0xFF] + 0.7152 * linear[colour >> 8 & 0xFF]
        + 0.0722 * linear[colour >> 16 & 0xFF];
    return (luminance + 0.05) / 0.05;
}

void checkColour(FileReadingCL& file, const FieldCL& field, const RecordViewCL& record, FindingsCL& findings)
{
    for (int part = 0; part < 3 && field.seen != nullptr && field.IsOnM(); ++part) {
        const std::string_view bytes = file.BytesM(field.seen[part]);
        const bool isShort = bytes.size() < 3 || (bytes.size() == 3 && bytes <= "255");
        if (isShort && !bytes.empty() && bytes[0] >= '0' && bytes[0] <= '9') {
            continue;
        }
        int number = 0;
        slReadInt(bytes.data(), bytes.data() + bytes.size(), &number);
        if (number < 0 || number > 255) {
            findings.AddM(Says::BadColour, field.seen[part].begin, { std::to_string(number) });
            return;
        }
    }
    constexpr double LeastContrast = 4.5;
    const FieldCL* const text = record.FindM("text");
    const bool isEdit = record.FindM("read_only") != nullptr;
    const double contrast = contrastOfBlack(*field.colour);
    if (field.IsOnM() && (isEdit || (text != nullptr && !text->text->EmptyM())) && contrast < LeastContrast) {
        char ratio[16];
        std::snprintf(ratio, sizeof ratio, "%.1f", contrast);
        findings.AddM(Says::LowContrast, field.seen->begin,
            { std::to_string(*field.colour & 0xFF) + " " + std::to_string(*field.colour >> 8 & 0xFF) + " "
                    + std::to_string(*field.colour >> 16 & 0xFF),
                ratio });
    }
}

bool isWhole(double steps)
{
    constexpr double Slack = 1e-3;
    return std::fabs(steps - std::round(steps)) < Slack;
}

void checkStep(const FieldCL& step, const FieldCL& range, const FieldCL& initial, FindingsCL& findings)
{
    const double by = step.RealM();
    const double low = range.RealM();
    const double high = range.RealM(1);
    const double from = initial.RealM();
    if (by == 0) {
        findings.AddM(Says::StepIsZero, step.seen->begin);
    } else if (std::fabs(by) > high - low) {
        findings.AddM(
            Says::StepTooLarge, step.seen->begin, { shortNumber(by), shortNumber(low), shortNumber(high) });
    } else if (from >= low && from <= high) {
        const double end = !isWhole((high - from) / by) ? high : low;
        if (!isWhole((end - from) / by)) {
            findings.AddM(Says::EndNotReached, step.seen->begin,
                { shortNumber(by), shortNumber(from), shortNumber(end) });
        }
    }
}

// low and high: the parts of the limits that are the smallest and the largest value.
void checkLimits(const FieldCL& range, int low, int high, const FieldCL& initial, FindingsCL& findings)
{
    const double least = range.RealM(low);
    const double most = range.RealM(high);
    if (least > most) {
        findings.AddM(Says::MinAboveMax, range.seen->begin, { shortNumber(least), shortNumber(most) });
    } else if (initial.RealM() < least || initial.RealM() > most) {
        findings.AddM(Says::InitialOutside, initial.seen->begin,
            { shortNumber(initial.RealM()), shortNumber(least), shortNumber(most) });
    }
}

} // namespace

void checkValues(FileReadingCL& file, const RecordViewCL& record, bool isPlain,
    std::vector<NamedPictureCL>& pictures, FindingsCL& findings)
{
    if (!isPlain) {
        for (const FieldCL& field : record.FieldsM()) {
            checkFates(file, field, findings);
        }
    }
    for (const std::size_t place : record.JudgedM()) {
        const FieldCL& field = record.FieldM(place);
        if (field.seen == nullptr) {
            continue;
        }
        switch (field.verb) {
        case Verb::Choice: {
            bool isOne = false;
            for (const ChoiceCL* choice = field.firstChoice; choice != field.lastChoice; ++choice) {
                isOne = isOne || choice->value == field.ints[0];
            }
            if (!isOne) {
                findings.AddM(Says::BadValue, field.seen->begin,
                    { field.name, std::to_string(field.ints[0]), listOf(field) });
            }
            break;
        }
        case Verb::Flag:
            if (field.ints[0] != 0 && field.ints[0] != 1) {
                findings.AddM(
                    Says::BadFlag, field.seen->begin, { field.name, std::to_string(field.ints[0]) });
            }
            break;
        case Verb::Colour:
            checkColour(file, field, record, findings);
            break;
        case Verb::Name:
            if (!field.text->EmptyM() && slIsNullWord(field.text->TextM()) == 0) {
                const SpanCL span { field.seen->begin, field.seen->begin + field.text->LengthM() };
                pictures.push_back({ span, std::strcmp(field.name, RegionField) == 0 });
            }
            break;
        default:
            break;
        }
    }
}

void checkRanges(int kind, const RecordViewCL& record, FindingsCL& findings)
{
    const auto field = [&record](const char* name) { return record.FindM(name); };
    const auto tooLong = [&findings](const FieldCL& text, std::size_t length, int most) {
        if (static_cast<long>(length) > most) {
            findings.AddM(
                Says::InitialTooLong, text.seen->begin, { std::to_string(length), std::to_string(most) });
        }
    };
    if (kind == SingleEditCode || kind == SpinEditCode) {
        const FieldCL& range = *field("range");
        const FieldCL& initial = *field("initial");
        if (initial.type == TextType) {
            const char* const text = initial.value->text;
            tooLong(initial, slIsNullWord(text) != 0 ? 0 : std::strlen(text), range.value->numbers[1]);
            return;
        }
        checkLimits(range, 0, 1, initial, findings);
        if (kind == SpinEditCode && range.RealM() <= range.RealM(1)) {
            checkStep(*field("step"), range, initial, findings);
        }
    } else if (kind == MultiEditCode) {
        tooLong(*field("text"), field("text")->text->LengthM(),
            std::max(field("max_characters")->ints[0], 1) - 1);
    } else if (kind == RotateBtnCode) {
        const FieldCL& range = *field("angle_range");
        const FieldCL& step = *field("step_angle");
        checkLimits(range, 1, 0, *field("initial_angle"), findings);
        if (step.RealM() == 0) {
            findings.AddM(Says::StepIsZero, step.seen->begin);
        } else if (range.RealM(0) >= range.RealM(1)
            && std::fabs(step.RealM()) > range.RealM(0) - range.RealM(1)) {
            findings.AddM(Says::StepTooLarge, step.seen->begin,
                { shortNumber(step.RealM()), shortNumber(range.RealM(1)), shortNumber(range.RealM(0)) });
        }
    } else if (kind == BmpListBoxCode) {
        for (const char* const name : { "rows", "columns" }) {
            if (field(name)->ints[0] < 1) {
                findings.AddM(
                    Says::ZeroGrid, field(name)->seen->begin, { name, std::to_string(field(name)->ints[0]) });
            }
        }
    }
}
