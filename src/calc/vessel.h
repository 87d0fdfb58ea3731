// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"

namespace orva {

// A closed vessel of volume V with the mass m at T: pressure, phases, and how much of it is liquid.

// Takes T and the mean density from the vessel input. False where the run ends: an input is missing, or the
// partial method has no equilibrium at T.
bool TakeVessel(PointRun& run);

// The phase split of the content. The global method starts from the phases already decided; the partial
// method takes p(LV) from the vapour-pressure equation, the vapour from the equation of state and the liquid
// from its correlation. Writes the split into the report.
void SolveVessel(PointRun& run);

// The result for the drawing.
void KeepVesselResult(PointRun& run);

struct FillHeightResult {
    double height = 0; // in units of a circle of radius 50
    bool failed = false;
};

// Height of the circular segment that holds `percent` (0 to 50) of the area of a circle of radius `radius`.
FillHeightResult FillHeight(double percent, double radius);

} // namespace orva
