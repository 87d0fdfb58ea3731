// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_data.h"

namespace orva {

// Heat capacities of the database in kJ/(kmol K), T in K.
//
// A polynomial block has three forms. |C0| below 1e-8: C1 + C2 T + C3 T^2 + C4 / T^2. Else, with |C4| of 1
// and more, C0 + C1 T + C2 T^2 + C3 T^3 + C4 / T^2. Else C0 to C4 as the coefficients of T^0 to T^4. The size
// of C4 is what tells a term in T^-2 from one in T^4.

struct HeatCapacityResult {
    double cp = 0;
    bool failed = false;
};

// Ideal gas by model 1 (polynomial) or 2 (Aly, Lee, Fluid Phase Equilib. 6 (1981) 169); 0 for any other
// index.
HeatCapacityResult IdealGasCp(const SubstanceData& substance, double T, int cpModel);

// Condensed phases, single precision.
float LiquidCp(const SubstanceData& substance, double T);
float SolidCp(const SubstanceData& substance, double T);

} // namespace orva
