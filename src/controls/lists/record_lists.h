#pragma once
#include "baselib/char_arr.h"
#include "records/fields.h"
#include "records/own_list.h"

// The lists of texts and numbers that entries of secondary sections add to a record.

// Appends an alive text. 0, and nothing is appended, for null; else 1.
inline int slAddText(VrStringArr& texts, const char* text)
{
    VrStringCL string(AliveTag);
    const int result = string.AddStringM(text);
    if (result != 0) {
        texts.AddItemM(string);
    }
    return result;
}

// The text of slot `index`, "" outside the list.
inline const char* slTextAt(const VrStringArr& texts, int index)
{
    const VrStringCL* const string = texts.GetItemPM(index);
    return string != nullptr ? string->TextM() : "";
}

// Shows one text of a list to a visitor.
inline void slVisitText(FieldVisitorCL& visitor, const char* name, const VrStringArr& texts, int index)
{
    CharArr text(slTextAt(texts, index));
    visitor.TextM(name, text, NullWord::Kept);
}

// Calls see(number, text) for the alive texts in order, numbered from 0.
template <class FunctionTP> void slEachText(const VrStringArr& texts, FunctionTP&& see)
{
    int number = 0;
    for (int i = texts.GetFirstIdxM(); i >= 0; i = texts.GetNextIdxM(i)) {
        see(number++, slTextAt(texts, i));
    }
}

// Shows the alive texts of a record to a visitor, as rows of one text each.
inline void slVisitTexts(FieldVisitorCL& visitor, const char* name, const VrStringArr& texts)
{
    int slot = -1;
    visitor.ListM(name, texts.GetAvailableNumM(), [&](FieldVisitorCL& row, int number) {
        slot = number == 0 ? texts.GetFirstIdxM() : texts.GetNextIdxM(slot);
        slVisitText(row, "", texts, slot);
    });
}
