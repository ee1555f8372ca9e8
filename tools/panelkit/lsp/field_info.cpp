#include "field_info.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "dialog/kinds.h"
#include "field_pages.h"
#include <algorithm>
#include <cstring>

namespace {

std::string realText(float value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(value));
    return text;
}

// "left top" names two values; "2 ints" doesn't.
std::vector<std::string> partNamesOf(const std::string& type, int parts)
{
    std::vector<std::string> names;
    for (std::size_t at = 0; at < type.size();) {
        const std::size_t end = std::min(type.find(' ', at), type.size());
        names.push_back(type.substr(at, end - at));
        at = end + 1;
    }
    const bool isNamed
        = parts > 1 && names.size() == static_cast<std::size_t>(parts) && (type[0] < '0' || type[0] > '9');
    return isNamed ? names : std::vector<std::string>();
}

struct SectionFieldsCL
{
    std::string name;
    std::vector<FieldInfoCL> fields;
};

// Collects the fields of one section from a record that has its defaults.
class CollectorCL : public FieldVisitorCL
{
public:
    CollectorCL(const char* header, std::vector<FieldInfoCL>& fields)
        : header_(slGbkToUtf8(header))
        , fields_(fields)
    {
    }
    void IntM(const char* name, int& value) override { IntsM(name, &value, 1); }
    void RealM(const char* name, float& value) override { RealsM(name, &value, 1); }
    void IntsM(const char* name, int* values, int count) override
    {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += (i > 0 ? " " : "") + std::to_string(values[i]);
        }
        addM(name, Meant::Number, count, text);
    }
    void RealsM(const char* name, float* values, int count) override
    {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += (i > 0 ? " " : "") + realText(values[i]);
        }
        addM(name, Meant::Number, count, text);
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        const auto byte = [colour](int shift) { return std::to_string(colour >> shift & 0xFF); };
        addM(name, Meant::Colour, 3,
            flag != nullptr && *flag == 0 ? "-1 0 0" : byte(0) + " " + byte(8) + " " + byte(16));
    }
    void TextM(const char* name, CharArr& text, const TextFormCL&) override
    {
        addM(name, Meant::Text, 1, slGbkToUtf8(text.TextM()));
    }
    void NameM(const char* name, CharArr& file, const TextFormCL& form) override
    {
        TextM(name, file, form);
        fields_.back().meant = Meant::Picture;
    }
    void IdM(const char* name, int& value) override
    {
        IntM(name, value);
        fields_.back().meant = Meant::Id;
    }
    void FlagM(const char* name, int& value) override
    {
        IntM(name, value);
        fields_.back().meant = Meant::Flag;
    }
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override
    {
        IntM(name, value);
        fields_.back().choices.assign(choices.begin(), choices.end());
    }

private:
    void addM(const char* name, Meant meant, int parts, const std::string& text)
    {
        FieldInfoCL& info = fields_.emplace_back();
        info.name = name;
        info.meant = meant;
        info.parts = parts;
        info.defaultText = text;
        const DocumentedFieldCL* const documented = documentedField(header_, name);
        if (documented != nullptr) {
            info.meaning = documented->meaning;
            info.partNames = partNamesOf(documented->type, parts);
        }
    }

    std::string header_;
    std::vector<FieldInfoCL>& fields_;
};

std::string nameOf(const GrammarCL& grammar)
{
    const char* const main = grammar.owner != nullptr ? grammar.owner : grammar.header;
    const auto is = [main](const char* header) { return std::strcmp(main, header) == 0; };
    std::string name = is(VersionHeader) ? "version"
        : is(DialogHeader)               ? "dialog"
        : is(RelationHeader)             ? "relation"
        : is(BindingHeader)              ? "binding"
                                         : "new rotate button";
    slEachKind([&](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        if (is(RecordsTP::Header)) {
            const char* const kind = RecordsTP::KindName;
            name = kind;
        }
    });
    std::replace(name.begin(), name.end(), '_', ' ');
    return grammar.owner != nullptr ? "entry of " + name : name;
}

std::vector<SectionFieldsCL> makeSections()
{
    std::vector<SectionFieldsCL> all;
    for (const GrammarCL& grammar : slGrammars()) {
        SectionFieldsCL& section = all.emplace_back();
        section.name = nameOf(grammar);
        if (grammar.head != HeadKind::Line) {
            CollectorCL collector(grammar.header, section.fields);
            grammar.visit(collector, HasShowCondition | HasDescription);
        }
    }
    return all;
}

const SectionFieldsCL& sectionFields(int grammar)
{
    static const std::vector<SectionFieldsCL> sections = makeSections();
    return sections[static_cast<std::size_t>(grammar)];
}

} // namespace

std::string FieldInfoCL::LabelM(int part) const
{
    if (parts == 1) {
        return name;
    }
    const auto place = static_cast<std::size_t>(part);
    return name + " " + (place < partNames.size() ? partNames[place] : std::to_string(part + 1));
}

std::string FieldInfoCL::HintM(int part) const
{
    const auto place = static_cast<std::size_t>(part);
    return part > 0 && place < partNames.size() ? partNames[place] : LabelM(part);
}

const std::vector<FieldInfoCL>& fieldsOf(int grammar)
{
    return sectionFields(grammar).fields;
}

const FieldInfoCL* fieldOf(int grammar, const char* name)
{
    for (const FieldInfoCL& field : fieldsOf(grammar)) {
        if (field.name == name) {
            return &field;
        }
    }
    return nullptr;
}

const std::string& recordName(int grammar)
{
    return sectionFields(grammar).name;
}
