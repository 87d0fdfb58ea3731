// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/options.h"
#include "state/substance_model.h"

namespace orva {

// All calculation is done in K, kPa, m^3/kmol and kJ/kmol; the display units and their factors are settled
// here.

// Sets pFactor, TFactor, volumeFactor and the three unit labels by `volumeBasis`: 0 molar, 1 specific, 2
// reduced by the critical data. Reduced volumes need vCritCalc and specific ones a molar mass; without it
// `volumeBasis` falls back to 0.
void SetUnits(const SubstanceModel& model, Options& options);

// Factor that turns molar energies into displayed ones by `unitBasis`: 0 gives 1, 1 gives 1/R, 2 gives 1/(R
// T), 3 gives 1/M. 1 where the divisor is missing. T in K.
double EnergyFactor(int unitBasis, double T, const SubstanceData& substance);

} // namespace orva
