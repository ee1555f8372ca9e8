#pragma once
#include "controls/base/id_index.h"

// A control of a dialog: the row of the kind table, the slot of the row's array.
struct ControlPlaceCL
{
    int row { 0 };  // Of the kind table, from 0.
    int slot { 0 }; // Of that kind's array, from 0.
};

// The controls of a dialog by id.
using ControlIndexCL = IdIndexCL<ControlPlaceCL>;
