#include "controls/lists/list_control_record.h"
#include <algorithm>

template class PANELKIT_API Arr<DVrListCtrlCL>;

namespace {

// Shows the rows of two numbers and a text that fill a table.
void visitPaired(FieldVisitorCL& visitor, const char* name, const PairedTextsCL& list, const char* first,
    const char* second)
{
    int text = -1;
    visitor.ListM(name, list.CountM(), [&](FieldVisitorCL& row, int number) {
        text = number == 0 ? list.texts.GetFirstIdxM() : list.texts.GetNextIdxM(text);
        int numbers[2] = {};
        list.pairs.GetItemM(numbers, number);
        row.IntM(first, numbers[0]);
        row.IntM(second, numbers[1]);
        slVisitText(row, "text", list.texts, text);
    });
}

} // namespace

int PairedTextsCL::AddM(const int pair[2], const char* text)
{
    if (pair == nullptr) {
        return 0;
    }
    const int result = slAddText(texts, text);
    if (result != 0) {
        pairs.AddItemM(pair);
    }
    return result;
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

void DVrListCtrlCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("column_count", columnCount_);
    visitor.IntM("single_selection", singleSelection_);
    visitPaired(visitor, "titles", titles_, "column", "width");
    visitPaired(visitor, "cells", cells_, "row", "column");
}

int DVrListCtrlCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
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

int DVrListCtrlArr::AddTitleStringM(int index, const int pair[2], const char* text)
{
    if (pair == nullptr || text == nullptr) {
        return 0;
    }
    return ifAliveM(index, [pair, text](DVrListCtrlCL& record) { record.AddTitleStringM(pair, text); });
}

int DVrListCtrlArr::AddItemStringM(int index, const int pair[2], const char* text)
{
    if (pair == nullptr || text == nullptr) {
        return 0;
    }
    return ifAliveM(index, [pair, text](DVrListCtrlCL& record) { record.AddItemStringM(pair, text); });
}
