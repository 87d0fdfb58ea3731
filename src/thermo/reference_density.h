// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "state/substance_model.h"

namespace orva {

// A proposal for the second reference point of the Benson method: a saturated state with both densities.

enum class LiquidDensitySource : std::uint8_t { None, BoilingPointValue, Equation, Slope, SinglePoint };
enum class VapourDensitySource : std::uint8_t { EquationOfState, PitzerCurl, IdealGas };

struct ReferenceDensityProposal {
    float T = 0, p = 0, rhoL = 0, rhoV = 0; // K, kPa, kg/m^3
    bool atBoilingPoint = false;            // else at the single point of the liquid-density block
    LiquidDensitySource liquid = LiquidDensitySource::None;
    VapourDensitySource vapour = VapourDensitySource::IdealGas;
};

// The normal boiling point with the density of the liquid from the database, or the single point of the
// liquid-density block; the density of the vapour from the equation of state, the Pitzer/Curl virial equation
// or the ideal gas. Kept on purpose: the pressure at the boiling point is 101.3 kPa, while its text says
// 101.325.
ReferenceDensityProposal ProposeReferenceDensityPoint(SubstanceModel& model);

} // namespace orva
