#pragma once
#include "baselib/path.h"
#include "baselib/simple_value.h"
#include <functional>

class CharArr;

// A Windows colour value, red + green * 256 + blue * 65536, that a description file writes as R G B.
// Only the low byte of each written component counts.
using ColourTP = unsigned;

// Texts of a description file take at most this many bytes with their terminator.
constexpr int TextSize = PathSize;

// 1 when the text is exactly "NULL" or "null", the words that stand for no text or no file.
PANELKIT_API int slIsNullWord(const char* text);

// What "NULL" and "null" mean in a field.
enum class NullWord
{
    Kept,       // "NULL" and "null" are ordinary texts of this field.
    Empty,      // Both stand for "".
    UpperEmpty, // Only "NULL" does.
    SkipsEntry  // Both mean that the entry does not count.
};

// How a text is written.
struct TextFormCL
{
    // bytes: the size.
    TextFormCL(NullWord word = NullWord::Kept, int bytes = TextSize) // NOLINT: fields say just the word.
        : nullWord(word)
        , size(bytes)
    {
    }
    NullWord nullWord; // What those words mean.
    int size;          // With its terminator; what is longer is cut at a character.
};

// The field whose picture a region is made of.
inline constexpr char RegionField[] = "region";

// One of the values that a field may have, and what it means.
struct ChoiceCL
{
    int value;        // As it stands in the file.
    const char* name; // What it means, in English.
};

// All of them; any other value counts as one of these, or as nothing at all.
struct ChoicesCL
{
    // Of an array that lives as long.
    template <int countN>
    constexpr ChoicesCL(const ChoiceCL (&choices)[countN]) // NOLINT: a list is what it says.
        : first(choices)
        , count(countN)
    {
    }
    // For loops over them.
    const ChoiceCL* begin() const { return first; }
    const ChoiceCL* end() const { return first + count; }
    const ChoiceCL* first; // Of the array.
    int count;             // How many there are.
};

// The direction of a length.
enum class Along
{
    X,
    Y
};

// Sees the values of one record, entry or header in the order of the file. Each of them names its values
// once, in EachFieldM, with the verb that says what a value is; what reads, prints, checks or changes them
// are visitors of that one list.
//
// A visitor overrides what it cares about: a verb not overridden hands its value to the general verb for its
// type, and those do nothing.
class PANELKIT_API FieldVisitorCL
{
public:
    virtual ~FieldVisitorCL();

    // A number, or a fixed group of them, that is no more than a number.
    virtual void IntM(const char* name, int& value);
    virtual void RealM(const char* name, float& value);
    virtual void IntsM(const char* name, int* values, int count);
    virtual void RealsM(const char* name, float* values, int count);
    // A colour. flag: null for a plain colour; else 1 while the colour applies, which a negative red
    // prevents.
    virtual void ColourM(const char* name, ColourTP& colour, int* flag = nullptr);
    // A text; form: how long it may be and what "NULL" means.
    virtual void TextM(const char* name, CharArr& text, const TextFormCL& form);

    virtual void IdM(const char* name, int& value) { IntM(name, value); }    // The function id of a control.
    virtual void IndexM(const char* name, int& value) { IntM(name, value); } // A place in an order.
    virtual void CountM(const char* name, int& value) { IntM(name, value); } // How many of something.
    virtual void FlagM(const char* name, int& value) { IntM(name, value); }  // 1: yes.
    // One of a few values.
    virtual void ChoiceM(const char* name, int& value, const ChoicesCL&) { IntM(name, value); }
    virtual void LengthM(const char* name, int& value, Along) { IntM(name, value); } // Pixels.
    virtual void LengthPairM(const char* name, int (&xy)[2]) { IntsM(name, xy, 2); } // Pixels, x and y.
    virtual void MillisecondsM(const char* name, int& value) { IntM(name, value); }  // A time.
    // Angles.
    virtual void DegreesM(const char* name, float& value) { RealM(name, value); }
    virtual void DegreesPairM(const char* name, float (&values)[2]) { RealsM(name, values, 2); }
    // A text for a person to read, and the name of a file.
    virtual void CaptionM(const char* name, CharArr& text, const TextFormCL& form)
    {
        TextM(name, text, form);
    }
    virtual void NameM(const char* name, CharArr& file, const TextFormCL& form) { TextM(name, file, form); }
    // An int, a real or a text, as another field says (ValueType), and two limits for such values. Of an
    // unknown type they are ints.
    virtual void NumberM(const char* name, int type, simpleValD& value);
    virtual void LimitsM(const char* name, int type, simpleValD& range);

    // What secondary sections added to the record: rows, each with values of its own. see(visitor, row) shows
    // one of them, in rising order.
    virtual void ListM(
        const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see);
    // The record turned out to be unreadable: the fields from here on keep their defaults.
    virtual void StopReadingM();
};
