// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/report_blocks.h"

namespace orva {

// The calculation kinds, one function a family. Each takes its input from the data row, calls the property
// models and writes its part of the report; what all kinds share stands in CalcBatch.

// Given T and p: density and phase.
void CalculateFromTP(PointRun& run);

} // namespace orva
