// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/diagram_ranges.h"
#include "state/options.h"
#include "state/session_state.h"
#include "state/substance_model.h"

namespace orva {

// Zeroes the sixteen doubles of the equation-of-state constants; the form of the temperature function and the
// critical volume stay.
void ResetEosParameters(EosParameters& eos);

// The reset at start and before a new substance is taken from the list. It leaves the chosen equations alone,
// so that the next substance keeps them where it can. The menus that it closes belong to the shell.
void ResetModelState(SubstanceModel& model, Options& options, SessionState& session, DiagramRanges& ranges);

// Forgets the file of the loaded data series.
void ClearBatchFile(SessionState& session);

} // namespace orva
