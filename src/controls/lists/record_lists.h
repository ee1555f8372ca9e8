#pragma once
#include "records/rows.h"

// The text of slot `index`, "" outside the list.
inline const char* slTextAt(const VrStringArr& texts, int index)
{
    const VrStringCL* const string = texts.GetItemPM(index);
    return string != nullptr ? string->TextM() : "";
}

// Calls see(number, text) for the alive texts in order, numbered from 0.
template <class FunctionTP> void slEachText(const VrStringArr& texts, FunctionTP&& see)
{
    int number = 0;
    for (int i = texts.GetFirstIdxM(); i >= 0; i = texts.GetNextIdxM(i)) {
        see(number++, slTextAt(texts, i));
    }
}
