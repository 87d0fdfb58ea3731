// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace orva {

// Constants of p = R T / (v - B) - A / ((v + C) (v + D)) and their values at the working temperature.
// Units K, kPa, m^3/kmol. The virial row entered by hand keeps its b0, b1, b2 in b0, nB, nF.
struct EosParameters {
    double a0 = 0, b0 = 0, c0 = 0, d0 = 0; // coefficients of A, B, C, D
    double nA = 0, nB = 0, nC = 0, nD = 0; // exponents of T; nA is the slope m of the Soave form
    double nF = 0;
    std::array<double, 3> reserve{};
    double A = 0, B = 0, C = 0, D = 0; // at the temperature of the last evaluation
    std::int16_t AlphaForm = 1;        // 1 power of T, 2 Soave
    double vCritCalc = 0;              // critical molar volume that the row implies, 0 for virial rows
    double rhoCritCalc = 0;            // M / vCritCalc
};

// Constants of the two Vo / Halme rows.
struct VoHalmeParameters {
    double ac = 0;
    double k = 0;    // second row only
    double zeta = 0; // critical compressibility factor of the equation
    double m1 = 0, m2 = 0, m3 = 0;
    double OmegaA = 0, OmegaB = 0, s = 0;
};

// What the last solution of the equation left behind.
struct EosWorkingSet {
    std::array<double, 3> Roots{}; // volume roots, ascending: [0] liquid, [2] vapour
    double BVirial = 0;            // last second virial coefficient, m^3/kmol
    std::int16_t RegionCode = 0;   // 0 subcritical, 1 T <= Tc, 2 above both, 3 p <= pc, 4 critical
};

} // namespace orva
