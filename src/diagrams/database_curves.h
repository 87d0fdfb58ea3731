// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/curve_run.h"

namespace orva {

// Functions of T from the database, types 300 to 310.

// Range of validity of the function of a type, K; both 0 where the substance has none.
struct DatabaseRange {
    float low = 0, high = 0;
    bool Exists() const { return high > low; }
};
DatabaseRange DatabaseRangeOf(int type, const SubstanceModel& model);

// The value at T in display units; false where there is none.
bool DatabaseValue(int type, const SubstanceModel& model, const Options& options, double T, double& value);

// The default window: the range of validity, and the values within it with some room around them.
void SetDatabaseWindow(const SubstanceModel& model, const Options& options, DiagramSpec& spec);

void DatabaseCurve(CurveRun& run);

} // namespace orva
