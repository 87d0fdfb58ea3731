// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Sections of the p, v, T surface.

// p(v) at constant T. Below T(cr) a cubic equation gives the branches outside of the two-phase region and the
// two saturated points, between which the sorted points draw the tie line; or, by the modes, the inner part
// of the loop or the whole of it. Without an equilibrium pressure there are no points.
void IsothermPv(CurveRun& run);

// p v and the density over p at constant T, with both saturated ends below T(cr).
void IsothermPvOverP(CurveRun& run);
void IsothermDensityOverP(CurveRun& run);

// T over v or the density at constant p, with both saturated ends below p(cr).
void IsobarOverVolume(CurveRun& run);
void IsobarOverDensity(CurveRun& run);

// p(T) at constant v. Where only real states are wanted it ends on the vapour-pressure curve.
void IsochorSection(CurveRun& run);

} // namespace orva
