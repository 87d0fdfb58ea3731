// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Projections of the two-phase region and of the vapour-pressure curve onto a plane. Inside the region the
// vapour fraction of the mode picks a line: 0 the liquid, 1 the vapour boundary.

// p over v, traced in T so that the points lie evenly on the screen in both axes.
void CoexistencePv(CurveRun& run);

// Density or p v over p.
void CoexistenceDensityOverP(CurveRun& run);
void CoexistencePvOverP(CurveRun& run);

// T over v or density.
void CoexistenceTOverVolume(CurveRun& run);
void CoexistenceTOverDensity(CurveRun& run);

// Both densities over T, and their mean.
void CoexistenceDensities(CurveRun& run);
void DensityDiameter(CurveRun& run);

// p over T, ln p over 1/T, and the slope of the latter, of the vapour-pressure curve in force.
void VapourPressureCurve(CurveRun& run);
void LogVapourPressureCurve(CurveRun& run);
void VapourPressureSlopeCurve(CurveRun& run);

// Enthalpy of vaporisation over T by the model in force.
void VaporisationCurve(CurveRun& run);

} // namespace orva
