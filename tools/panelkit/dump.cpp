// What the library reads from a description file.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "commands.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "description_file.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "json.h"
#include <vector>

namespace {

const char* statusName(SectionStatus status)
{
    switch (status) {
    case SectionStatus::Missing:
        return "missing";
    case SectionStatus::Empty:
        return "empty";
    case SectionStatus::Broken:
        return "broken";
    case SectionStatus::Incomplete:
        return "incomplete";
    case SectionStatus::Read:
        break;
    }
    return "read";
}

JsonTP dialogOf(VrIOCL& io)
{
    DialogHeaderCL header;
    if (slReadDialogHeader(io, header) == 0) {
        return nullptr;
    }
    return { { "position", header.position }, { "size", header.size }, { "title_flag", header.titleFlag },
        { "title", slGbkToUtf8(header.title) }, { "font_option", header.fontOption },
        { "window_kind", header.windowKind }, { "border_kind", header.borderKind },
        { "background", slGbkToUtf8(header.background) }, { "style", hexWord(header.StyleM()) } };
}

JsonTP section(const char* kind, const char* header, SectionStatus status)
{
    return { { "kind", kind }, { "header", slGbkToUtf8(header) }, { "status", statusName(status) },
        { "records", JsonTP::array() } };
}

template <class RecordArrTP> JsonTP sectionOf(VrIOCL& io)
{
    RecordArrTP records;
    int count = 0;
    JsonTP result = section(RecordArrTP::KindName, RecordArrTP::Header, slReadSection(io, records, &count));
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        JsonTP object;
        FieldPrinterCL printer(object);
        records.ElementAtM(i).EachCommonFieldM(printer);
        records.ElementAtM(i).EachFieldM(printer);
        result["records"].push_back(std::move(object));
    }
    return result;
}

JsonTP relationsOf(VrIOCL& io)
{
    JsonTP relations = JsonTP::array();
    int count = 0;
    slOpenEntries(io, RelationHeader, RelationNumbers, 0, &count);
    SectionEntryCL entry;
    for (int i = 0; i < count; ++i) {
        slReadEntry(io, entry, RelationNumbers, 0, 0);
        const std::vector<int> values(entry.numbers, entry.numbers + RelationNumbers);
        relations.push_back({ { "control", entry.functionId }, { "values", values } });
    }
    return relations;
}

JsonTP newRotateButtonsOf(VrIOCL& io)
{
    DVrNewRotateBtnArr records;
    records.FmReadInterfaceM(&io);
    JsonTP buttons = JsonTP::array();
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        JsonTP object;
        FieldPrinterCL printer(object);
        records.ElementAtM(i).EachCommonFieldM(printer, 1);
        records.ElementAtM(i).EachFieldM(printer);
        buttons.push_back(std::move(object));
    }
    return buttons;
}

} // namespace

int dumpCommand(const std::string& file)
{
    std::string name;
    if (!enterFolderOf(file, &name)) {
        return CannotUse;
    }
    VrIOCL io;
    io.OpenM(name.c_str(), "r");
    JsonTP sections = JsonTP::array();
    slEachKindAsBuilt([&](auto row) { sections.push_back(sectionOf<typename decltype(row)::Records>(io)); });
    printJson({ { "dialog", dialogOf(io) }, { "sections", std::move(sections) },
        { "relations", relationsOf(io) }, { "new_rotate_buttons", newRotateButtonsOf(io) } });
    return 0;
}
