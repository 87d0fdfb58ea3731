// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"

namespace orva {

// The blocks that extend a report: the tables of both phases into the record and the result slots, then
// coefficients and residual functions (levels 2 and 4) and derivatives (levels 3 and 4).
void AppendExtendedBlocks(PointRun& run);

} // namespace orva
