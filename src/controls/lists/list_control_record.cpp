#include "controls/lists/list_control_record.h"
#include <algorithm>

template class PANELKIT_API Arr<DVrListCtrlCL>;

namespace {

// Shows rows of two numbers and a text.
void visitPaired(FieldVisitorCL& visitor, const char* name, const PairedTextsCL& list, const char* first,
    const char* second)
{
    int pair = -1;
    int text = -1;
    visitor.ListM(name, list.CountM(), [&](FieldVisitorCL& row, int number) {
        pair = number == 0 ? list.pairs.GetFirstIdxM() : list.pairs.GetNextIdxM(pair);
        text = number == 0 ? list.texts.GetFirstIdxM() : list.texts.GetNextIdxM(text);
        int numbers[2] = {};
        list.pairs.GetItemM(numbers, pair);
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
    if (CheckAvailableM(index) == 1) {
        ElementAtM(index).AddTitleStringM(pair, text);
    }
    return 1;
}

int DVrListCtrlArr::AddItemStringM(int index, const int pair[2], const char* text)
{
    if (pair == nullptr || text == nullptr) {
        return 0;
    }
    if (CheckAvailableM(index) == 1) {
        ElementAtM(index).AddItemStringM(pair, text);
    }
    return 1;
}
