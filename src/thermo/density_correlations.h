// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "state/dialogs.h"
#include "state/substance_data.h"

namespace orva {

// Densities of the condensed phases from the database, and the relations that carry one density to others.
// T in K, p in kPa, rho in kg/m^3.

struct DensityResult {
    double rho = 0;
    bool failed = false;
    int deviation = 0; // K out of the range of validity, rounded half to even
};

// Density of the saturated liquid. Three forms by the fields of the block: a point with a slope; a polynomial
// with a pole and a cube root; the Rackett form (DIPPR 105), which gives 0 without failure above its
// reference temperature.
DensityResult LiquidDensity(const SubstanceData& substance, float T);

// Density of the solid, single precision: a cubic, or a point with a slope; 0 without data.
DensityResult SolidDensity(const SubstanceData& substance, float T);

// The boxes for a temperature more than 5 K out of range.
std::optional<Message> LiquidDensityWarning(const DensityResult& result);
std::optional<Message> SolidDensityWarning(const DensityResult& result, const SolidDensityBlock& block);

// Density of the liquid at the normal boiling point after Benson, as a single: (1.981 + 0.18327 ln(pc / p))
// rhoc. 0 without a pressure. Benson, J. Phys. Colloid Chem. 52 (1948) 1060.
float BensonApproximation(double p, double pc, double rhoc);

// Density of the liquid by the rectilinear diameter through the critical point and one saturated state (T1,
// rhoV1, rhoL1), given the density of the vapour at T. Cailletet, Mathias, C. R. Acad. Sci. 102 (1886) 1202.
double DiameterLiquidDensity(double T, double Tc, double rhoc, double rhoV, double T1, double rhoV1,
                             double rhoL1);

} // namespace orva
