// What the values are called: hints between them, and a word on the one under the mouse.
#include "baselib/gbk.h"
#include "features.h"
#include "field_info.h"

namespace {

const ChoiceCL* choiceOf(OpenFileCL& file, const FieldInfoCL& field, const SeenValueCL& value)
{
    const int number = field.choices.empty() ? 0 : file.NumberM(value);
    for (const ChoiceCL& choice : field.choices) {
        if (choice.value == number) {
            return &choice;
        }
    }
    return nullptr;
}

// "**size width** of label 2, “Speed”", what it means, its default, its choices.
std::string explanation(OpenFileCL& file, const ValueInTextCL& place)
{
    const FieldInfoCL* const field = fieldOf(place.grammar, place.value->field);
    if (field == nullptr) {
        return "";
    }
    const std::string words = file.TextOfM(place.grammar, place.record);
    std::string text = "**" + field->LabelM(place.value->part) + "** of " + recordName(place.grammar) + " "
        + std::to_string(place.record + 1) + (words.empty() ? "" : " “" + words + "”") + "\n\n";
    if (!field->meaning.empty()) {
        text += field->meaning + "\n\n";
    }
    text += "Default: " + (field->defaultText.empty() ? "empty" : "`" + field->defaultText + "`") + "\n";
    for (const ChoiceCL& choice : field->choices) {
        text += "\n- `" + std::to_string(choice.value) + "` " + choice.name;
    }
    if (field->meant == Meant::Flag) {
        text += "\n- `0` no\n- `1` yes";
    }
    return text;
}

JsonTP hint(const OpenFileCL& file, std::size_t offset, const std::string& label)
{
    return { { "position", file.DocumentM().PositionM(offset) }, { "label", label + ":" }, { "kind", 2 },
        { "paddingRight", true } };
}

JsonTP hoverText(const OpenFileCL& file, SpanCL span, const std::string& text)
{
    return { { "contents", { { "kind", "markdown" }, { "value", text } } },
        { "range", file.DocumentM().RangeM(span) } };
}

bool touches(SpanCL span, std::size_t offset)
{
    return !span.EmptyM() && offset >= span.begin && offset <= span.end;
}

} // namespace

JsonTP inlayHints(OpenFileCL& file, const JsonTP& params)
{
    const std::size_t begin = file.DocumentM().OffsetM(params.at("range").at("start"));
    const std::size_t end = file.DocumentM().OffsetM(params.at("range").at("end"));
    JsonTP hints = JsonTP::array();
    const auto add = [&](SpanCL span, const std::string& label) {
        if (!span.EmptyM() && span.begin >= begin && span.begin <= end) {
            hints.push_back(hint(file, span.begin, label));
        }
    };
    for (int grammar = DialogGrammar; grammar < static_cast<int>(slGrammars().size()); ++grammar) {
        const SeenSectionCL& section = file.ReadingM().SectionM(grammar);
        if (!section.IsThereM() || section.head.headerSpan.begin > end || section.regionEnd < begin) {
            continue;
        }
        add(section.head.countSpan, "records");
        add(section.head.commentCount, "comment lines");
        file.EachValueM(grammar, [&](const ValueInTextCL& place) {
            const FieldInfoCL* const field = fieldOf(grammar, place.value->field);
            if (field != nullptr && place.value->begin >= begin && place.value->begin <= end) {
                const ChoiceCL* const choice = choiceOf(file, *field, *place.value);
                add(spanOf(*place.value),
                    field->HintM(place.value->part)
                        + (choice != nullptr ? std::string(" (") + choice->name + ")" : ""));
            }
        });
    }
    return hints;
}

JsonTP hoverAt(OpenFileCL& file, const JsonTP& params)
{
    const std::size_t offset = file.DocumentM().OffsetM(params.at("position"));
    const ValueInTextCL place = file.ValueAtM(offset);
    if (place.value != nullptr) {
        const std::string text = explanation(file, place);
        return text.empty() ? JsonTP() : hoverText(file, spanOf(*place.value), text);
    }
    const int grammar = file.SectionAtM(offset);
    if (grammar < 0) {
        return nullptr;
    }
    const SectionSeenCL& head = file.ReadingM().SectionM(grammar).head;
    if (touches(head.headerSpan, offset)) {
        return hoverText(file, head.headerSpan,
            "**" + slGbkToUtf8(head.header) + "** " + recordName(grammar)
                + (grammar > DialogGrammar ? ", records: " + std::to_string(head.count) : ""));
    }
    if (touches(head.countSpan, offset)) {
        return hoverText(file, head.countSpan, "How many records follow.");
    }
    if (touches(head.commentCount, offset)) {
        return hoverText(file, head.commentCount, "How many lines of comments follow before the records.");
    }
    return nullptr;
}
