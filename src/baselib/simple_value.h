#pragma once
#include "baselib/path.h"

// What a value is held as; the codes of description files.
enum ValueType
{
    IntegerType = 1,
    RealType = 2,
    TextType = 3
};

// One typed value or one range of 260 bytes; which member is meant, the data type of its owner says.
// Made as all zero.
union simpleValD {
    char text[PathSize] {}; // GBK, at most 259 bytes and a terminator.
    int number;             // Of IntegerType.
    float real;             // Of RealType.
    int numbers[2];         // Minimum and maximum, also of a text's length.
    float reals[2];         // Minimum and maximum.
};
