#pragma once
#include "baselib/simple_value.h"
#include "editing/grammars.h"
#include <string>
#include <string_view>
#include <vector>

// One value of a record: what it is called, what may stand there, and what does.
struct ValueFormCL
{
    const char* field;                     // The name of its field.
    int part;                              // Its number among the values of a field with several.
    ValueType type;                        // What it is written as.
    bool isId { false };                   // The function id of a control.
    bool isIndex { false };                // A place in an order.
    TextFormCL form { NullWord::Kept, 0 }; // Of a text.
    std::string text;                      // As it is written, GBK.
};

// A value by name, as it is to be written.
struct NamedTextCL
{
    std::string field;      // The name of its field.
    int part { 0 };         // Its number among the values of a field with several.
    std::string text;       // GBK; "" is written as the word that stands for no text.
    bool isNeeded { true }; // Else it counts only where there is such a value and the text can stand for it.
};

// The values of a record of a grammar, in the order of the file, as `given` wants them; those not given have
// their defaults, and where a text must stand the name of the field. Which values there are may depend on
// others. flags: HeadFlag. Empty when a value given can't be read as what it is, says that the record can't
// be read, or names none.
PANELKIT_API std::vector<ValueFormCL> slFormsOf(
    const GrammarCL& grammar, int flags, const std::vector<NamedTextCL>& given);
// Whether a text reads back as such a value, the whole of it and nothing else.
PANELKIT_API bool slCanStandFor(const ValueFormCL& form, std::string_view text);
