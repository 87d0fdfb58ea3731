// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "database/record_compiler.h"

namespace orva {

// The fluids of lectures and of refrigeration, by CAS number.
std::span<const std::string_view> CommonFluids();

// What a common fluid must have beside M, Tc and pc: rhoc, omega, Tb; Wagner, Frost/Kalkwarf or both Antoine
// equations; liquid density; a point or a function of the enthalpy of vaporisation; heat capacity of the
// ideal gas and of the liquid; enthalpy and free enthalpy of formation. The names of what is missing.
std::vector<std::string> MissingOfCommonFluid(const CompiledSubstance& substance);

// A line for each common fluid that lacks something: "7440-59-7 Helium: cp liquid".
std::string IncompleteFluids(const std::vector<CompiledSubstance>& substances);

} // namespace orva
