// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/calc_batch.h"
#include "thermo/phase_volumes.h"

namespace orva {

inline constexpr std::string_view lineEnd = "\r\n";

// One run of a point calculation on its way: what the driver and the report blocks share.
struct PointRun {
    CalculationContext& context;
    PointResult& result;
    RunOptions options;
    double T = 0, p = 0;
    PhaseVolumes phases;
};

// Adds one line to the report, unless the report is suppressed.
void AppendLine(PointRun& run, std::string_view line);

// Density and volume of both phases, two rows; the displayed volumes go to their result slots whatever the
// phases.
void AppendDensityTable(PointRun& run);

// The constants of the cubic equation at T, or the second virial coefficient.
void AppendParameterTrailer(PointRun& run);

} // namespace orva
