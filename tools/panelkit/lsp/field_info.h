#pragma once
#include "editing/grammars.h"
#include <string>
#include <vector>

// What the values of a field are to an editor.
enum class Meant
{
    Number,
    Flag,
    Id,
    Colour,
    Text, // For a person to read.
    Picture
};

// What one field of a section's records is: its layout, and what the pages on the kinds say of it.
struct FieldInfoCL
{
    std::string name;
    Meant meant { Meant::Number };
    int parts { 1 };
    std::vector<std::string> partNames; // Of a field of several values; empty where they have none.
    std::string defaultText;            // As in a file; "" for an empty text.
    std::vector<ChoiceCL> choices;
    std::string meaning;

    std::string LabelM(int part) const; // "size width": the field, and which of its values.
    std::string HintM(int part) const;  // The same, but the field only for the first of them.
};

// The fields of a section, in the order of the file; none of the version's.
const std::vector<FieldInfoCL>& fieldsOf(int grammar);
const FieldInfoCL* fieldOf(int grammar, const char* name); // Null when there is none.
// "spin edit", "entry of combo box", "relation": what a record of a section is.
const std::string& recordName(int grammar);
