// Colour values: shown beside their numbers, and picked.
#include "features.h"
#include "field_info.h"
#include <cmath>

namespace {

constexpr int Parts = 3;
constexpr double MostOfPart = 255;

SpanCL spanOfColour(const SeenValueCL* first)
{
    return { first[0].begin, first[Parts - 1].end };
}

} // namespace

JsonTP documentColours(OpenFileCL& file, const JsonTP&)
{
    JsonTP colours = JsonTP::array();
    for (int grammar = 0; grammar < static_cast<int>(slGrammars().size()); ++grammar) {
        const SeenSectionCL& section = file.ReadingM().SectionM(grammar);
        file.EachValueM(grammar, [&](const ValueInTextCL& place) {
            const FieldInfoCL* const field = fieldOf(grammar, place.value->field);
            if (field == nullptr || field->meant != Meant::Colour || place.value->part != Parts - 1) {
                return;
            }
            const SeenValueCL* const first = place.value - (Parts - 1);
            double parts[Parts];
            for (int part = 0; part < Parts; ++part) {
                const int number = file.NumberM(first[part]);
                if (first[part].fate != Fate::Read || number < 0 || number > MostOfPart
                    || first[part].end > section.regionEnd) {
                    return; // None at all, or a mistake.
                }
                parts[part] = number / MostOfPart;
            }
            colours.push_back({ { "range", file.DocumentM().RangeM(spanOfColour(first)) },
                { "color",
                    { { "red", parts[0] }, { "green", parts[1] }, { "blue", parts[2] }, { "alpha", 1 } } } });
        });
    }
    return colours;
}

JsonTP colourPresentations(OpenFileCL& file, const JsonTP& params)
{
    const ValueInTextCL place = file.ValueAtM(file.DocumentM().OffsetM(params.at("range").at("start")));
    const FieldInfoCL* const field
        = place.value != nullptr ? fieldOf(place.grammar, place.value->field) : nullptr;
    if (field == nullptr || field->meant != Meant::Colour || place.value->part != 0) {
        return JsonTP::array();
    }
    const std::string& bytes = file.DocumentM().GbkM();
    std::string label;
    std::string text; // The blanks between the numbers stay.
    for (int part = 0; part < Parts; ++part) {
        constexpr const char* Names[Parts] = { "red", "green", "blue" };
        const double share = params.at("color").at(Names[part]).get<double>();
        const std::string number = std::to_string(static_cast<int>(std::lround(share * MostOfPart)));
        const SeenValueCL* const value = place.value + part;
        text += (part > 0 ? bytes.substr(value[-1].end, value->begin - value[-1].end) : "") + number;
        label += (part > 0 ? " " : "") + number;
    }
    return JsonTP::array(
        { { { "label", label }, { "textEdit", textEdit(file, spanOfColour(place.value), text) } } });
}
