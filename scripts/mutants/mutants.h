#pragma once
#include "baselib/api.h"

// What mutated sources call: which mutant is awake, and which are passed.

// The number of the mutant that is awake; 0: none; -1: none, and those passed are noted.
extern PANELKIT_API int slAwakeMutant;

// Notes that a mutant is passed: false.
PANELKIT_API bool slNoteMutant(int number);
// Notes that a test begins.
PANELKIT_API void slNoteTest(const char* name);

inline bool slMutant(int number)
{
    return slAwakeMutant == number || (slAwakeMutant < 0 && slNoteMutant(number));
}

enum class SlComparison
{
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Equal,
    NotEqual
};

// Stands between the two sides of a comparison, which it makes, or makes the other way when its mutant is
// awake.
template <int number, SlComparison comparison> struct SlFlip
{
};

template <class LeftTP, int number, SlComparison comparison> struct SlFlipLeft
{
    const LeftTP& left;

    template <class RightTP> bool with(const RightTP& right) const
    {
        const bool isAwake = slMutant(number);
        if constexpr (comparison == SlComparison::Less) {
            return isAwake ? left <= right : left < right;
        } else if constexpr (comparison == SlComparison::LessEqual) {
            return isAwake ? left < right : left <= right;
        } else if constexpr (comparison == SlComparison::Greater) {
            return isAwake ? left >= right : left > right;
        } else if constexpr (comparison == SlComparison::GreaterEqual) {
            return isAwake ? left > right : left >= right;
        } else if constexpr (comparison == SlComparison::Equal) {
            return isAwake ? left != right : left == right;
        } else {
            return isAwake ? left == right : left != right;
        }
    }
    template <class RightTP> bool operator<(const RightTP& right) const { return with(right); }
    template <class RightTP> bool operator==(const RightTP& right) const { return with(right); }
};

template <class LeftTP, int number, SlComparison comparison>
SlFlipLeft<LeftTP, number, comparison> operator<(const LeftTP& left, SlFlip<number, comparison>)
{
    return { left };
}
template <class LeftTP, int number, SlComparison comparison>
SlFlipLeft<LeftTP, number, comparison> operator==(const LeftTP& left, SlFlip<number, comparison>)
{
    return { left };
}
