#include "controls/lists/list_control_record.h"
#include "baselib/take_back.h"
#include <algorithm>

template class PANELKIT_API Arr<DVrListCtrlCL>;

int PairedTextsCL::AddM(const int pair[2], const char* text)
{
    if (pair == nullptr || text == nullptr) {
        return 0;
    }
    int numbers[2] = { pair[0], pair[1] };
    CharArr own(text);
    TakeM({ numbers, { &own } });
    return 1;
}

void PairedTextsCL::TakeM(const RowCL& row)
{
    const int added = pairs.AddItemM(row.numbers);
    TakeBackCL half([this, added] { pairs.DelItemM(added); });
    slTakeText(texts, *row.texts[0]);
    half.KeepM();
}

void PairedTextsCL::DelAllM()
{
    pairs.DelAllM();
    texts.DelAllM();
}

int PairedTextsCL::CountM() const
{
    return std::min(pairs.GetAvailableNumM(), texts.GetAvailableNumM());
}

void PairedTextsCL::VisitM(FieldVisitorCL& visitor, const char* name, RowFieldsTP fields)
{
    int pair = -1;
    slVisitRows(visitor, name, texts, CountM(), fields, [this, &pair](int text) {
        pair = text == texts.GetFirstIdxM() ? 0 : pair + 1;
        return RowCL { pairs[pair], { &texts[text].ValueM() } };
    });
}

void DVrListCtrlCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.CountM("column_count", columnCount_);
    visitor.FlagM("single_selection", singleSelection_);
    titles_.VisitM(visitor, "titles", &slTitleRow);
    cells_.VisitM(visitor, "cells", &slCellRow);
}

int DVrListCtrlCL::AddTitleStringM(const int pair[2], const char* text)
{
    return titles_.AddM(pair, text);
}

int DVrListCtrlCL::AddItemStringM(const int pair[2], const char* text)
{
    return cells_.AddM(pair, text);
}

void DVrListCtrlCL::destroyM()
{
    titles_.DelAllM();
    cells_.DelAllM();
}
