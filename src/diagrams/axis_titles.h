// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "diagrams/catalogue.h"
#include "state/options.h"

namespace orva {

// "v / (m^3/kmol)", "h / (kJ/kg) ": quantity and unit of an axis, by the basis of the energies and the units
// of T, p and v. With reduced quantities "p / p(cr)", "V(red)" and the like.
std::string AxisTitle(Quantity quantity, const Options& options);

} // namespace orva
