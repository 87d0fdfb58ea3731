// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/report_blocks.h"

namespace orva {

// The caloric functions in a report.

// Both phases as one mixture with the share y of vapour: z = y z(V) + (1 - y) z(L).
void AppendGlobalList(PointRun& run);

// The functions of each phase at T, p into the result slots and as a table.
void AppendFunctionRows(PointRun& run);

// The same at the T and p of the result slots, under a heading, where the list of functions is asked for.
void AppendFunctionList(PointRun& run);

} // namespace orva
