// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/input_checks.h"
#include "calc/point_kinds.h"

namespace orva {

void ShowProcess(PointRun& run) {
    if (TakeTemperature(run, run.result.par1) && TakePressure(run, run.result.par2) && ShowsTexts(run))
        run.result.report = run.context.calculation.processPoint.report;
}

} // namespace orva
