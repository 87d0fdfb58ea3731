// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace orva {

// Quantities whose unit depends on the basis of the energies.
enum class UnitQuantity : std::uint8_t { H, S, G, U, A, E, Cp, Cv, VaporisationH, VaporisationS };

// Quantity and unit as a report writes them, by the basis 0 molar, 1 divided by R, 2 divided by R T, 3
// specific.
std::string_view UnitText(UnitQuantity quantity, int unitBasis);

} // namespace orva
