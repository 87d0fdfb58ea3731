// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Joule-Thomson inversion curve: where dT/dp at constant enthalpy is 0.

struct InversionResult {
    double value = 0; // K or kPa
    double v = 0;     // m^3/kmol, of the search in p
    bool failed = true;
};

// The zero in T at p: marches from two steps before `start` on and turns at each change of sign with a tenth
// of the step, until it is below 0.001 K. Fails where the range (Tmin, Tmax) is left, where two phases stand
// side by side, and where the start is itself a zero.
InversionResult JouleThomsonInversionT(SubstanceModel& model, double p, double start, double step,
                                       double Tmin, double Tmax);

// The zero in p at T, by Newton steps from `start`.
InversionResult JouleThomsonInversionP(SubstanceModel& model, double T, double start);

// In the p-pv plane, and p over T up to the vapour-pressure curve.
void InversionPvOverP(CurveRun& run);
void InversionPOverT(CurveRun& run);

} // namespace orva
