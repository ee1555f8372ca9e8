#pragma once
#include "dialog/kinds.h"
#include <gtest/gtest.h>
#include <string>

// The table of kinds as types of a typed suite, one a row, behind the other types given. ofTP picks what the
// suite wants of a row.
template <class TableTP, template <class> class ofTP, class... OthersTP> struct TypesOfTableCL;
template <class... RowTP, template <class> class ofTP, class... OthersTP>
struct TypesOfTableCL<std::tuple<RowTP...>, ofTP, OthersTP...>
{
    using TypesTP = testing::Types<OthersTP..., ofTP<RowTP>...>;
};
template <template <class> class ofTP, class... OthersTP>
using EveryKindTP = typename TypesOfTableCL<KindTable, ofTP, OthersTP...>::TypesTP;

template <class RowTP> using RowItselfTP = RowTP;
using EveryRowTP = EveryKindTP<RowItselfTP>;

// Names the tests of a suite over rows by their kinds.
struct KindNamesCL
{
    template <class RowTP> static std::string GetName(int) { return RowTP::Records::KindName; }
};
