#pragma once
#include "baselib/char_arr.h"
#include "containers/own_list.h"
#include "records/fields.h"
#include <new>
#include <utility>

// The values of one entry of a secondary section, wherever they are kept.
struct RowCL
{
    static constexpr int MostNumbers = 3; // The most that an entry has.
    static constexpr int MostTexts = 3;   // The same of texts.
    int* numbers;                         // As many as the entry has; null: none.
    CharArr* texts[MostTexts];            // Null behind the last one.
};

// Names the values of an entry behind its function id, as EachFieldM does those of a record.
using RowFieldsTP = void (*)(FieldVisitorCL& visitor, const RowCL& row);

// The field of entries that are one text, at most sizeN - 1 bytes.
template <int sizeN = TextSize> void slTextRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.CaptionM("text", *row.texts[0], { NullWord::SkipsEntry, sizeN });
}

// The field of entries that are the name of one picture.
inline void slPictureRow(FieldVisitorCL& visitor, const RowCL& row)
{
    visitor.NameM("bitmap", *row.texts[0], NullWord::SkipsEntry);
}

// Appends an alive text. Its index; -1, and nothing is appended, for null or when the list can't grow. What
// finds no memory for the text throws and appends nothing.
inline int slAppendText(VrStringArr& texts, const char* text)
{
    return text != nullptr ? texts.AppendM(CharArr(text)) : -1;
}

// The same; a list that can't grow throws too. 0, and nothing is appended, for null; else 1.
inline int slAddText(VrStringArr& texts, const char* text)
{
    if (slAppendText(texts, text) < 0 && text != nullptr) {
        throw std::bad_alloc();
    }
    return text != nullptr ? 1 : 0;
}

// Appends an alive text, taking it over. Where the list can't grow std::bad_alloc is thrown.
inline void slTakeText(VrStringArr& texts, CharArr& text)
{
    if (texts.AppendM(std::move(text)) < 0) {
        throw std::bad_alloc();
    }
}

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

// Shows rows to a visitor, which may change their values: the alive items of `first` in their order.
// rowAt(slot) is the RowCL of one of them.
template <class ListTP, class RowAtTP>
void slVisitRows(FieldVisitorCL& visitor, const char* name, const ListTP& first, int rows, RowFieldsTP fields,
    RowAtTP&& rowAt)
{
    struct WalkCL
    {
        const ListTP& list;
        RowFieldsTP fields;
        RowAtTP& rowAt;
        int slot;
    } walk { first, fields, rowAt, -1 };
    visitor.ListM(name, rows, [&walk](FieldVisitorCL& seer, int number) {
        walk.slot = walk.list.GetNextIdxM(number == 0 ? -1 : walk.slot);
        walk.fields(seer, walk.rowAt(walk.slot));
    });
}

// The same for rows that are one text.
inline void slVisitTexts(FieldVisitorCL& visitor, const char* name, VrStringArr& texts, RowFieldsTP fields)
{
    slVisitRows(visitor, name, texts, texts.GetAvailableNumM(), fields, [&texts](int slot) {
        return RowCL { nullptr, { &texts.ElementAtM(slot).ValueM() } };
    });
}
