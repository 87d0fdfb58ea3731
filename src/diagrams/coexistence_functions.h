// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Caloric functions on the boundary of the two-phase region, or on a line of constant vapour fraction in it.

void CoexistenceFunctionOverP(CurveRun& run);
void CoexistenceFunctionOverT(CurveRun& run);

// The parameter A of the equation of state over T.
void CoexistenceParameterOverT(CurveRun& run);

// A function over v, walked in T.
void CoexistenceFunctionOverVolume(CurveRun& run);

// One function over another, walked in p along the vapour-pressure equation.
void CoexistencePair(CurveRun& run);

} // namespace orva
