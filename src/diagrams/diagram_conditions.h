// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagrams/catalogue.h"
#include "state/dialogs.h"
#include "state/substance_model.h"

namespace orva {

// Whether a diagram of the menu can be drawn with the models in force. Says why not, or what to bear in mind.
bool MayDraw(const DiagramRow& row, const SubstanceModel& model, Dialogs& dialogs);

} // namespace orva
