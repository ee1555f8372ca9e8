#pragma once
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include <string>

// Reads all sections of a description file, as its dialog does, and shows the records of each kind:
// see(kind, record).
template <class FunctionTP> void readAllSections(VrIOCL& io, FunctionTP&& see)
{
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        const char* const kind = decltype(records)::KindName;
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            see(kind, records.ElementAtM(i));
        }
    });
    slReadRelations(io, [](RelationCL&) {});
    slReadBindings(io, nullptr);
    DVrNewRotateBtnArr newRotateButtons;
    newRotateButtons.FmReadInterfaceM(&io);
    for (int i = newRotateButtons.GetFirstIdxM(); i >= 0; i = newRotateButtons.GetNextIdxM(i)) {
        see("new_rotate_button", newRotateButtons.ElementAtM(i));
    }
}
