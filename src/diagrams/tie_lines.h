// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Ends of the tie line of the current T or p for each family. End 1 is the liquid, but for the residual
// functions and the functions over p, where it is the vapour.

TieLine TieLinePv(CurveRun& run);      // v, p
TieLine TieLinePvOverP(CurveRun& run); // p, p v
TieLine TieLineDensity(CurveRun& run); // p, rho
TieLine TieLineResidualOverT(CurveRun& run);
TieLine TieLineResidualOverP(CurveRun& run);
TieLine TieLineCaloricOverT(CurveRun& run);
TieLine TieLineCaloricOverP(CurveRun& run);
TieLine TieLineCaloricOverVolume(CurveRun& run);
TieLine TieLinePair(CurveRun& run);

} // namespace orva
