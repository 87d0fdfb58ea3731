// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thermo/saturation.h"

namespace orva {

// Saturation of a cubic row by a bracketed search, for the states at which the secant search gives up: it can
// fall into a cycle of two steps, and it loses pressures below about 1e-3 kPa to its smallest step or to the
// rounding of the liquid volume. The bracket closes on the sign of the area ratio where the isotherm has
// three volumes, and on the kind of the volume where it has one. Slower than the secant search, but it finds
// every state between T > 0 and T(cr) whose pressure is above 1e-250 kPa. On success work.Roots and the
// parameters stand at the solution.

SaturationResult BracketedSaturationPressure(SubstanceModel& model, double T);
SaturationResult BracketedSaturationTemperature(SubstanceModel& model, double p);

} // namespace orva
