#pragma once
#include "file_reading.h"
#include <string>
#include <vector>

// A text that a person reads in a dialog and can't change: what is to be translated.
struct ReadableTextCL
{
    std::string text; // UTF-8.
    std::string kind; // As dump names it; "dialog" for the title.
    const char* field;
    int id; // The function id of its control; 0 for the dialog.
    std::size_t offset;
    int width, height; // Pixels that its control, column or dialog has.
};

// In the order of the table of kinds, each behind what it stands in.
std::vector<ReadableTextCL> readableTexts(FileReadingCL& file);
