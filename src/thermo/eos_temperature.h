// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// T in K at pressure p and mass density rho, 0 when nothing was found. `skipWetCheck` leaves out the
// correction of states inside the two-phase region.
double EosTemperature(SubstanceModel& model, double p, double rho, bool skipWetCheck);

} // namespace orva
