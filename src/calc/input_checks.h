// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"
#include "state/constants.h"

namespace orva {

// The given values of the data row. A value that is missing turns its label red, fails the run and returns
// false.
bool TakeTemperature(PointRun& run, ResultLabel& label);
bool TakePressure(PointRun& run, ResultLabel& label);
bool TakeDensity(PointRun& run, ResultLabel& label);
// The density of the liquid in its own column, which reaches no result slot.
bool TakeLiquidDensity(PointRun& run, ResultLabel& label);

// A property model failed: the report says so and turns red.
void ReportFailure(PointRun& run, std::string_view message);

// " (E-1)", the way a failure of a property model is written; " (E0)" where the model did not fail and its
// result is too small to be one.
inline constexpr int noModelFailure = 0;
std::string FailureNumber(int number = modelFailure);

} // namespace orva
