// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/diagram_ranges.h"
#include "state/options.h"
#include "state/substance_model.h"

namespace orva {

// Fills the default windows of all diagrams from the substance and the models in force, in display units. The
// units are brought up to date first, so that the factors of specific and reduced units follow the substance.
// With `keepRanges` pMax, TMax and TMin stay where they are not 0. To be called after a change of options or
// models.
void SetDefaultRanges(SubstanceModel& model, Options& options, DiagramRanges& ranges,
                      bool keepRanges = false);

} // namespace orva
