#pragma once
#include <string>

// Names that C++ takes, made from the texts of description files (GBK).

// "drawing_area" gives "DrawingArea".
std::string camelOf(const std::string& words);
// The text's letters and digits, each word and each Chinese character's sound with a capital: "" for a text
// with none. A letter that neither ASCII nor the table of sounds has is its code: "U9F98".
std::string identifierOf(const char* text);
bool isIdentifier(const std::string& name);
