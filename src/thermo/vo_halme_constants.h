// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"

namespace orva {

// Constants of the Vo / Halme rows that follow from the critical compressibility factor of the equation.
//
// With v^2 + s B v - s B^2 as the product (v + C) (v + D), the three volumes coincide at the critical point
// for OmegaB^3 + (1 - 3 zeta) OmegaB^2 + 3 zeta^2 OmegaB - zeta^3 = 0, solved in closed form after Cardano.
struct VoHalmeCriticalConstants {
    double OmegaA = 0, OmegaB = 0, s = 0;
    bool failed = false; // zeta not finite or so small that no real solution is left
};
VoHalmeCriticalConstants VoHalmeConstantsOf(double zeta);

// Completes the record from its zeta: OmegaA, OmegaB, s, ac (kPa m^6/kmol^2), and the critical molar volume
// and density that the row implies. zeta, m1, m2, m3 and k must stand in model.voHalme. False, with critical
// volume and density 0, if that is not possible.
bool SetVoHalmeConstants(SubstanceModel& model);

} // namespace orva
