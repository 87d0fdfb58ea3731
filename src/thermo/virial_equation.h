// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// Second virial coefficient of row `eosType` at T, m^3/kmol; 0 for T below 1e-6 K and for rows without one.
// Overwrites the shared parameters. Row 16: Pitzer, Curl, J. Am. Chem. Soc. 79 (1957) 2369.
double VirialCoefficientB(SubstanceModel& model, int eosType, double T);

} // namespace orva
