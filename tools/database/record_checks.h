// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "database/record_compiler.h"

namespace orva {

// What the values of a substance must hold among each other: M, T(cr) and p(cr) above 0, T(b) below T(cr),
// limits in order, 101.325 kPa within 2 % at T(b) from each vapour-pressure equation whose range reaches T(b)
// within 5 K, a positive liquid density over its range. Substances that are refused already are passed over.
void CheckRecords(std::vector<CompiledSubstance>& substances, Refusals& refusals);

} // namespace orva
