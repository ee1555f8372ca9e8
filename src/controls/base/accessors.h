#pragma once

// What plain setters and getters do.

// Keeps a value: 1.
template <class ValueTP> int slKeep(ValueTP& member, ValueTP value)
{
    member = value;
    return 1;
}

// Copies a pair of numbers: 1. 0, and nothing is copied, when one of the places is null.
template <class NumberTP> int slCopyPair(NumberTP* to, const NumberTP* from)
{
    if (to == nullptr || from == nullptr) {
        return 0;
    }
    to[0] = from[0];
    to[1] = from[1];
    return 1;
}
