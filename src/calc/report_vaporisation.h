// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"
#include "thermo/vaporisation_enthalpy.h"

namespace orva {

// What the seven ways need of the run: T, p, the data row, the reference point of the densities.
VaporisationRequest VaporisationRequestOf(const PointRun& run);

// The way in German, behind "Verdampfungsenthalpie aus ".
std::string MethodText(int vaporisationModel, const SubstanceModel& model, const NameTables& names,
                       NumberStyle style);

// The report of an enthalpy of vaporisation, with the value of the database function beside it where T is
// within 5 K of its range.
void AppendVaporizationReport(PointRun& run, const VaporisationResult& found);

} // namespace orva
