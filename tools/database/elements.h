// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orva {

// Atoms of a molecular formula by symbol: "C2H6O", "ClFO3", "D2O". Nothing for a text that is no formula of
// plain symbols and counts.
std::optional<std::map<std::string, int>> AtomsOfFormula(std::string_view formula);

// kg/kmol: conventional atomic weights (IUPAC 2021); nothing for symbols that the table lacks.
std::optional<double> AtomicWeight(std::string_view symbol);

// Standard entropy of one kmol of atoms in the reference state of the element at 298.15 K and 100 kPa,
// kJ/(kmol K): Cox, Wagman, Medvedev, CODATA Key Values for Thermodynamics (1989); deuterium: NIST-JANAF.
std::optional<double> EntropyOfElement(std::string_view symbol);

} // namespace orva
