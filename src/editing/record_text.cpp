#include "editing/record_text.h"
#include <algorithm>

namespace {

// Whether a value begins a line where others of its record stand before it.
bool beginsLine(const std::vector<ValueFormCL>& forms, std::size_t number, bool isEntry)
{
    const bool isBehindText = forms[number - 1].type == TextType;
    return isBehindText || (forms[number].type == TextType && !isEntry);
}

// The word for a value in a comment line; "" where the word before is for it too.
std::string wordFor(const ValueFormCL& form)
{
    static const char* const Places[] = { "x", "y" };
    static const char* const Sizes[] = { "width", "height" };
    const std::string field = form.field;
    if ((field == "position" || field == "size") && form.part < 2) {
        return field == "size" ? Sizes[form.part] : Places[form.part];
    }
    return form.part == 0 ? field : "";
}

std::string commentFor(const GrammarCL& grammar)
{
    std::string comment;
    const std::vector<ValueFormCL> forms = slFormsOf(grammar, 0, {});
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const std::string word = wordFor(forms[i]);
        const bool isBroken = i > 0 && beginsLine(forms, i, grammar.owner != nullptr);
        comment += word.empty() ? "" : (i == 0 ? "" : isBroken ? " / " : " ") + word;
    }
    return comment;
}

} // namespace

MeantRecordTP meantOf(const std::vector<ValueFormCL>& forms)
{
    MeantRecordTP meant;
    for (const ValueFormCL& form : forms) {
        meant.push_back({ form.field, form.part, form.text });
    }
    return meant;
}

TextChangesTP valuesAnew(const EditPlanCL& plan, std::string_view bytes, int grammar, int record, int set,
    const std::vector<ValueFormCL>& before, std::vector<ValueFormCL>& now)
{
    const SeenSectionCL& section = plan.SectionM(grammar);
    const SeenValueCL* const values = section.FirstM(record);
    TextChangesTP changes;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (static_cast<int>(i) != set && now[i].type == before[i].type) {
            now[i].text = plan.TextOfM(values[i]);
        } else if (now[i].text != plan.TextOfM(values[i])) {
            changes.push_back({ values[i].SpanM(), now[i].text });
        }
        const bool isNewText = now[i].type == TextType && before[i].type != TextType;
        if (isNewText && i + 1 < now.size()) { // It takes the rest of its line.
            const SpanCL gap { values[i].end, values[i + 1].begin };
            const std::string_view blanks = bytes.substr(gap.begin, gap.end - gap.begin);
            if (blanks.find('\n') == std::string_view::npos) {
                changes.push_back({ gap, RecordLinesCL(bytes, section).LineEndM() });
            }
        }
    }
    return changes;
}

TextChangesTP recordAnew(const EditPlanCL& plan, std::string_view bytes, int grammar, int record,
    const std::vector<ValueFormCL>& forms)
{
    const RecordLinesCL lines(bytes, plan.SectionM(grammar));
    const bool isEntry = slGrammars()[static_cast<std::size_t>(grammar)].owner != nullptr;
    return { { lines.ValuesM(record), laidOut(forms, isEntry, lines.LineEndM()).lines } };
}

std::optional<RecordTextCL> laidOutLike(const EditPlanCL& plan, std::string_view bytes, int grammar,
    int record, const std::vector<ValueFormCL>& forms)
{
    const SeenSectionCL& section = plan.SectionM(grammar);
    const SeenValueCL* const values = section.FirstM(record);
    if (static_cast<std::size_t>(section.EndM(record) - values) != forms.size()) {
        return std::nullopt;
    }
    std::map<std::size_t, std::string> others;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        // What is a text in one may be a number in the other.
        const bool isAlike
            = values[i].part == forms[i].part && forms[i].field == std::string_view(values[i].field);
        const bool isEnded = i + 1 == forms.size() || forms[i].type != TextType
            || bytes.substr(values[i].end, values[i + 1].begin - values[i].end).find('\n')
                != std::string_view::npos;
        if (!isAlike || !isEnded) {
            return std::nullopt;
        }
        others[i] = forms[i].text;
    }
    return plan.CopyM(grammar, record, others).text;
}

RecordTextCL laidOut(const std::vector<ValueFormCL>& forms, bool isEntry, const std::string& lineEnd)
{
    RecordTextCL text { "", lineEnd };
    for (std::size_t i = 0; i < forms.size(); ++i) {
        text.lines += i == 0 ? "" : beginsLine(forms, i, isEntry) ? lineEnd : " ";
        text.lines += forms[i].text;
    }
    return text;
}

std::string sectionText(const GrammarCL& grammar, const std::string& lineEnd, const RecordTextCL* record)
{
    const std::string count = record != nullptr ? "1" : "0";
    // The rest of the line of a signed head is one of its comment lines.
    const std::string numbers = grammar.head == HeadKind::Signed ? count + " 2" : count + lineEnd + "1";
    return grammar.header + lineEnd + numbers + lineEnd + commentFor(grammar) + lineEnd
        + (record != nullptr ? record->lines + lineEnd : "");
}
