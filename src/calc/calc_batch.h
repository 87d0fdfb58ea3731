// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/calculation_state.h"
#include "calc/point_result.h"
#include "state/batch_data.h"
#include "state/name_tables.h"
#include "state/options.h"
#include "state/substance_model.h"
#include "text/number_format.h"
#include "thermo/caloric_state.h"

namespace orva {

// The records that a point calculation reads and writes.
struct CalculationContext {
    SubstanceModel& model;
    Options& options;
    const NameTables& names;
    const BatchDataSet& batch;
    CalculationState& calculation;
    NumberStyle style;
};

// How one run is wanted.
struct RunOptions {
    bool suppressReport = false; // numbers only: no report, and labels without text but for a refused input
    bool warn = true;            // allow the hint on the triple point
    // The ambient state of the exergies, where the caller knows it: many points share it.
    const AmbientState* ambient = nullptr;
};

// One calculation of kind `kind` for row `dataSet` of the data series, 0 for the direct input. The same input
// gives the same result. Fails with a text in the report, never otherwise.
PointResult CalcBatch(CalculationContext& context, int kind, int dataSet, RunOptions run = {});

// True for the kinds that are built.
bool IsKindAvailable(int kind);

} // namespace orva
