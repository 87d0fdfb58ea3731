// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva::dvopar {

// p = RT / (v - B) - A / ((v + C) (v + D)) at one temperature. RT in kJ/kmol, v in m^3/kmol, p in kPa.
struct Isotherm {
    double RT = 0, A = 0, B = 0, C = 0, D = 0;
    double vCrit = 0; // critical volume of the equation: below T(cr) it lies between the two phases
};

struct SaturatedState {
    double p = 0, vL = 0, vV = 0;
    bool failed = true;
};

// Vapour-liquid equilibrium by equal fugacities: Newton's method in ln p from `pStart`, kept inside a bracket
// that closes on the stable phase. Fails for an isotherm without a loop.
SaturatedState Saturate(const Isotherm& isotherm, double pStart);

} // namespace orva::dvopar
