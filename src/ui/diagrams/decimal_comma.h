// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;

namespace orva {

// Turns a comma into a point while it is typed; the cursor stays where it was.
void TurnCommas(QLineEdit& field);

} // namespace orva
