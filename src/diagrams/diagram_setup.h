// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/catalogue.h"
#include "diagrams/chosen_diagram.h"
#include "diagrams/diagram_records.h"

namespace orva {

// Writes the default window of the diagram type. Nothing changes for a type that is not built.
void ApplyRanges(const DiagramRanges& ranges, DiagramSpec& spec);

// Brings curve parameters, units, window, axis titles and heading up to date for the chosen type. The first
// diagram after a change of the substance starts at the critical temperature.
void SetUpDiagram(DiagramRecords& records, DiagramSpec& spec);

// Takes type, curveKind and curveCode from a row and sets the diagram up.
void SelectDiagram(DiagramRecords& records, const DiagramRow& row, DiagramSpec& spec);

} // namespace orva
