// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Caloric functions of one phase along a line of constant p, v or T; the row of the catalogue says which
// function. Where an isobar or isotherm crosses the two-phase region the ends of its tie line are put in, so
// that the sorted points jump.

void CaloricOverT(CurveRun& run);      // isobar or isochor
void CaloricOverP(CurveRun& run);      // isotherm
void CaloricOverVolume(CurveRun& run); // isotherm

// Real heat capacity: the ideal gas and the residual part. And the differential Joule-Thomson coefficient.
void HeatCapacityOverT(CurveRun& run);
void JouleThomsonOverT(CurveRun& run);

// Residual functions over T (isobar) and over p (isotherm), in the whole window: the triple point ends none.
void ResidualOverT(CurveRun& run);
void ResidualOverP(CurveRun& run);

// One caloric function over another between two limits of p (isotherm) or T (isobar).
void PairAlongP(CurveRun& run);
void PairAlongT(CurveRun& run);

} // namespace orva
