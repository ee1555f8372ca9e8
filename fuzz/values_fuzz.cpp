// The values of controls: what a user types into an edit of any type and limits, and what was saved of any
// kind. Run by scripts/fuzz with the corpus in fuzz/corpus/values. The first bytes of an input are the type,
// the parts, decimals and limits, the rest is the text.
#include "controls/base/control_value.h"
#include "controls/text/typed_value.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t HeadSize = 11; // Type, parts, decimals, two limits of four bytes.

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void setRange(TypedValueCL& value, const std::uint8_t* limits)
{
    simpleValD range;
    std::memcpy(range.text, limits, sizeof range.numbers);
    value.SetRangeM(range);
}

void type(const std::uint8_t* head, const std::string& text)
{
    TypedValueCL value;
    value.SetTypeM(head[0] % 5, head[2] - 1);
    setRange(value, head + 3);
    for (const char letter : text) {
        value.AcceptsM(static_cast<unsigned char>(letter));
    }
    const CheckCode code = value.ReadM(text.c_str());
    value.FaultM(code);
    value.LimitTextM(code);
    value.MessageM(IntTooSmallMessage);
    const ControlValueCL taken = value.ReadAsM(text.c_str());
    expect((taken.PartsM() == NoPart) == (code != ValidValue));
    if (code != ValidValue && code != Unreadable) {
        value.ForceM(code);
    }
    char shown[TextSize] = {};
    value.ShowM(shown, static_cast<int>(sizeof shown));
    expect(std::strlen(shown) < sizeof shown);
    TypedValueCL other = value;
    if (taken.PartsM() != NoPart && other.TakeM(taken)) {
        other.ShowM(shown, static_cast<int>(sizeof shown));
        expect(other.ReadM(shown) == ValidValue);
    }
    char dotted[TextSize] = {};
    std::strncpy(dotted, text.c_str(), sizeof dotted - 1);
    slTripDot(dotted, head[2]);
}

// What could be read is saved so that it reads back the same.
void restore(unsigned parts, const std::string& text)
{
    const auto value = ControlValueCL::FromSavedM(text, parts);
    if (value.has_value()) {
        expect(value->IsOfM(parts));
        const std::string saved = value->SavedM();
        const auto again = ControlValueCL::FromSavedM(saved, parts);
        expect(again.has_value() && again->SavedM() == saved);
        value->LinesOfM(20, true);
        value->LinesOfM(1, false);
        value->OnlyM(parts & (NumberPart | TextPart));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < HeadSize) {
        return 0;
    }
    const std::string text(reinterpret_cast<const char*>(data) + HeadSize, size - HeadSize);
    type(data, text.c_str());
    for (const unsigned parts :
        { unsigned { data[1] }, CheckedPart + 0U, NumberPart + 0U, RealPart + 0U, TextPart + 0U,
            LinesPart + 0U, PathPart + 0U, NumberPart + RealPart + 0U, LinesPart + TextPart + 0U }) {
        restore(parts, text);
    }
    return 0;
}
