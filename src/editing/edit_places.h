#pragma once

// What came of an edit; the file is changed only by one that is done.
enum class EditResult
{
    Done,
    NoSuchPlace, // The file has no such section, record or value, or the section has already been made.
    Unsound,     // A section that would be changed doesn't read whole: which bytes are meant can't be told.
    BadValue,    // The text can't stand for such a value.
    IdTaken,     // A control has the id already.
    Misread      // With the change something else would be read otherwise, such as a header within a text.
};

// Where a record is.
struct RecordPlaceCL
{
    const char* section; // The header of its section, GBK: of controls, of entries, of relations.
    int record;          // Its number there, from 0.
};

// Where a value is.
struct ValuePlaceCL
{
    RecordPlaceCL record; // The record that it is part of.
    const char* field;    // The name of its field.
    int part { 0 };       // Its number among the values of a field with several.
};
