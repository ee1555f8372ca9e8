// What the library reads from a description file.
#include "baselib/gbk.h"
#include "commands.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "description_file.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include "json.h"

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

template <class FieldsTP> JsonTP fieldsOf(FieldsTP& fields)
{
    JsonTP object;
    FieldPrinterCL printer(object);
    fields.EachFieldM(printer);
    return object;
}

// The alive records of an array.
template <class RecordArrTP> JsonTP recordsOf(RecordArrTP& records, int withItemIndex)
{
    JsonTP list = JsonTP::array();
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        JsonTP object;
        FieldPrinterCL printer(object);
        records.ElementAtM(i).EachCommonFieldM(printer, withItemIndex);
        records.ElementAtM(i).EachFieldM(printer);
        list.push_back(std::move(object));
    }
    return list;
}

JsonTP dialogOf(VrIOCL& io)
{
    DialogHeaderCL header;
    if (slReadDialogHeader(io, header) == 0) {
        return nullptr;
    }
    JsonTP object = fieldsOf(header);
    object["style"] = hexWord(header.StyleM());
    return object;
}

template <class RecordArrTP> JsonTP sectionOf(VrIOCL& io)
{
    RecordArrTP records;
    int count = 0;
    const SectionStatus status = slReadSection(io, records, &count);
    const char* const kind = RecordArrTP::KindName; // The constant itself isn't exported.
    return { { "kind", kind }, { "header", slGbkToUtf8(RecordArrTP::Header) },
        { "status", statusName(status) }, { "records", recordsOf(records, 0) } };
}

JsonTP relationsOf(VrIOCL& io)
{
    JsonTP relations = JsonTP::array();
    slReadRelations(io, [&relations](RelationCL& relation) { relations.push_back(fieldsOf(relation)); });
    return relations;
}

// Null when the file has no such section.
JsonTP bindingsOf(VrIOCL& io)
{
    JsonTP bindings = JsonTP::array();
    const SectionStatus status = slReadBindings(io, [&bindings](BindingCL& binding) {
        bindings.push_back(fieldsOf(binding));
        return 1;
    });
    return status == SectionStatus::Missing ? JsonTP() : bindings;
}

JsonTP newRotateButtonsOf(VrIOCL& io)
{
    DVrNewRotateBtnArr records;
    records.FmReadInterfaceM(&io);
    return recordsOf(records, 1);
}

} // namespace

int dumpCommand(const ShowOptionsCL& options)
{
    DocumentsCL documents(options.files.size());
    const int result = onEachFile(options, [&documents](const OpenedFileCL& file) {
        VrIOCL io;
        io.OpenM(file.name.c_str(), "r");
        JsonTP sections = JsonTP::array();
        slEachKindAsBuilt(
            [&](auto row) { sections.push_back(sectionOf<typename decltype(row)::Records>(io)); });
        JsonTP document { { "dialog", dialogOf(io) }, { "sections", std::move(sections) },
            { "relations", relationsOf(io) }, { "new_rotate_buttons", newRotateButtonsOf(io) } };
        JsonTP bindings = bindingsOf(io);
        if (!bindings.is_null()) {
            document["bindings"] = std::move(bindings);
        }
        documents.AddM(file.said, std::move(document));
        return 0;
    });
    documents.PrintM();
    return result;
}
