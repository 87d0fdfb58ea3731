// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thermo/caloric_state.h"

namespace orva {

// What a diagram type shows of a state: one caloric function, or a pair of them, or a row of the residual
// functions.
struct CurveProperty {
    double CaloricValues::*y = nullptr;
    double CaloricValues::*x = nullptr; // of a pair
    bool xTimesAmbientT = false;        // x stands for T(ambient) s
    int residualRow = -1;
};

} // namespace orva
