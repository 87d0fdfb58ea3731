// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Sections of the p, v, T surface.

// p(v) at constant T. Below T(cr) a cubic equation gives the branches outside of the two-phase region and the
// two saturated points, between which the sorted points draw the tie line; or, by the modes, the inner part
// of the loop or the whole of it. Without an equilibrium pressure there are no points.
void IsothermPv(CurveRun& run);

// Saturated liquid and vapour at T in the p-v diagram.
TieLine IsothermPvTieLine(CurveRun& run);

} // namespace orva
