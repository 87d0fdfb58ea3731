// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace orva {

// One state point given by the user. A value of 0 is not given.
struct BatchRow {
    bool skip = false;
    double T = 0;   // K
    double p = 0;   // kPa
    float rhoL = 0; // kg/m^3
    float rhoV = 0; // kg/m^3
    float hLV = 0;  // kJ/kmol
    float cp = 0;   // kJ/(kmol K)
};

// Row 0 is the direct input, rows 1 and up a data series.
struct BatchDataSet {
    std::vector<BatchRow> rows = std::vector<BatchRow>(1);
};

} // namespace orva
