#pragma once
#include "editing/text_changes.h"
#include <memory>
#include <vector>

// A value that stands in a line of a record: a column of that line.
struct CellCL
{
    SpanCL span;
    bool isText; // Goes on to the end of the line.
    int part;    // Its number in a field of several values.
};

// The columns of a line that holds nothing but values, from its first value on.
struct RowCellsCL
{
    std::size_t lineBegin;
    std::vector<CellCL> cells;
};

// Lines up rows of the same columns: numbers end one above the other, and as far as they have room below the
// ends of the words of the last comment line that has a word for each. common: how many values at the
// beginning have a word each whatever fields they are of. Appends the blanks that are to be others.
void lineUpRows(const FileTextCL& text, const std::vector<RowCellsCL>& rows, SpanCL comments,
    std::size_t common, TextChangesTP& changes);

// What is to change in a file, in its order, for all numbers to be lined up; nothing where it would then be
// read otherwise. refusedLine: then the first line in question, may be null.
TextChangesTP blanksToChange(
    const std::shared_ptr<const FileTextCL>& text, std::size_t* refusedLine = nullptr);
