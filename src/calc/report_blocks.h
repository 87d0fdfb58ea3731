// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"

namespace orva {

inline constexpr std::size_t labelWidth = 17;            // of a row of the tables
inline constexpr std::string_view softHyphen = "\u00AD"; // the rules of some reports are drawn with it

// The two value fields of a row: a blank field where there is no liquid, nothing where there is no vapour.
std::string ValueFields(const PointRun& run, double liquid, double vapour);

// Density and volume of both phases, two rows; the displayed volumes go to their result slots whatever the
// phases.
void AppendDensityTable(PointRun& run);

// The volumes of the result slots, one row.
void AppendVolumeRow(PointRun& run);

// The constants of the cubic equation at T, or the second virial coefficient.
void AppendParameterTrailer(PointRun& run);

} // namespace orva
