// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "database/accepted_deviations.h"
#include "database/check_results.h"
#include "database/record_compiler.h"

namespace orva {

// What the values of a substance must hold among each other: M, T(cr) and p(cr) above 0, T(b) below T(cr),
// limits in order, and the checks of ValueChecks(). A deviation above the refusal limit of its check refuses
// the row, unless it is accepted; an acceptance that nothing needs is refused as well. Substances that are
// refused already are passed over.
CheckResults CheckRecords(std::vector<CompiledSubstance>& substances, AcceptedDeviations accepted,
                          Refusals& refusals);

} // namespace orva
