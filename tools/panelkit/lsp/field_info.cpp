#include "field_info.h"
#include "baselib/gbk.h"
#include "dialog/relation.h"
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

std::string defaultOf(const FieldCL& field)
{
    if (field.verb == Verb::Colour) {
        return !field.isOn ? "-1 0 0"
                           : std::to_string(field.colour & 0xFF) + " "
                + std::to_string(field.colour >> 8 & 0xFF) + " " + std::to_string(field.colour >> 16 & 0xFF);
    }
    if (field.text != nullptr) {
        return slGbkToUtf8(field.text->TextM());
    }
    std::string text;
    for (int part = 0; part < field.parts; ++part) {
        text += part > 0 ? " " : "";
        text += realText(field.RealM(part));
    }
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
class CollectorCL
{
public:
    CollectorCL(int grammar, std::string name)
        : header_(slGbkToUtf8(allGrammars()[static_cast<std::size_t>(grammar)].header))
    {
        fields_.name = std::move(name);
        nothing_.starts.push_back(0);
        nothing_.values.reserve(8); // The view steps over values that aren't there.
        view_.BeginM(nothing_, 0);
    }
    FieldVisitorCL& VisitorM() { return view_; }
    SectionFieldsCL FieldsM()
    {
        for (const FieldCL& field : view_.FieldsM()) {
            FieldInfoCL info;
            info.name = field.name;
            info.verb = field.verb;
            info.parts = field.parts;
            info.defaultText = defaultOf(field);
            info.choices.assign(field.firstChoice, field.lastChoice);
            const DocumentedFieldCL* const documented = documentedField(header_, field.name);
            if (documented != nullptr) {
                info.meaning = documented->meaning;
                info.partNames = partNamesOf(documented->type, field.parts);
            }
            fields_.fields.push_back(std::move(info));
        }
        return std::move(fields_);
    }

private:
    std::string header_;
    SeenSectionCL nothing_;
    RecordViewCL view_;
    SectionFieldsCL fields_;
};

template <class RecordTP> SectionFieldsCL collect(int grammar, const char* name, RecordTP&& visit)
{
    std::string words = name;
    std::replace(words.begin(), words.end(), '_', ' ');
    CollectorCL collector(grammar, words);
    visit(collector.VisitorM());
    return collector.FieldsM();
}

std::vector<SectionFieldsCL> makeSections()
{
    std::vector<SectionFieldsCL> all(allGrammars().size());
    const auto at
        = [&all](int grammar) -> SectionFieldsCL& { return all[static_cast<std::size_t>(grammar)]; };
    DialogHeaderCL dialog;
    at(VersionGrammar).name = "version";
    at(DialogGrammar) = collect(DialogGrammar, "dialog", [&](FieldVisitorCL& v) { dialog.EachFieldM(v); });
    slEachKind([&](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        typename RecordsTP::RecordTP record(AliveTag);
        const char* const kind = RecordsTP::KindName;
        const int grammar = grammarOf(RecordsTP::Header);
        at(grammar) = collect(grammar, kind, [&](FieldVisitorCL& v) {
            record.EachCommonFieldM(v);
            record.EachFieldM(v);
        });
        for (const auto& secondary : RecordsTP::Secondaries) {
            SectionEntryCL entry;
            const int place = grammarOf(secondary.header);
            at(place)
                = collect(place, kind, [&](FieldVisitorCL& v) { entry.EachFieldM(v, secondary.fields); });
            at(place).name = "entry of " + at(place).name;
        }
    });
    RelationCL relation;
    const int relations = grammarOf(RelationHeader);
    at(relations) = collect(relations, "relation", [&](FieldVisitorCL& v) { relation.EachFieldM(v); });
    DVrNewRotateBtnCL button(AliveTag);
    const int buttons = grammarOf(NewRotateBtnHeader);
    at(buttons) = collect(buttons, "new_rotate_button", [&](FieldVisitorCL& v) {
        button.EachCommonFieldM(v, 1);
        button.EachFieldM(v);
    });
    NewRotatePictureCL picture;
    const int pictures = grammarOf(NewRotateBtnBitmapHeader);
    at(pictures) = collect(
        pictures, "picture of new_rotate_button", [&](FieldVisitorCL& v) { picture.EachFieldM(v); });
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
