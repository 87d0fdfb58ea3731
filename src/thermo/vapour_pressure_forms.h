// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "state/constants.h"
#include "state/substance_data.h"

namespace orva {

// The working forms of the two longer vapour-pressure equations, coefficients widened to double.

inline constexpr double wagnerSmallestTau = 1e-6;
inline constexpr double wagnerLargestSum = 50;
inline constexpr double frostKalkwarfExplicit = 1e-35; // below this |E| the equation is explicit in p

// ln(p / pref) = (Tref / T) (a tau + b tau^1.5 + c tau^d + e tau^f + g tau^h), tau = 1 - T / Tref.
// Wagner, Cryogenics 13 (1973) 470.
struct WagnerForm {
    double a, b, c, d, e, f, g, h, Tref, pref;

    explicit WagnerForm(const WagnerBlock& w)
        : a(w.w1), b(w.w2), c(w.w3), d(w.w4), e(w.w5), f(w.w6), g(w.w7), h(w.w8), Tref(w.w9), pref(w.w10) {}

    double Tau(double T) const { return 1 - T / Tref; }

    double Sum(double tau) const {
        return a * tau + b * std::pow(tau, 1.5) + c * std::pow(tau, d) + e * std::pow(tau, f)
               + (g == 0 ? 0.0 : g * std::pow(tau, h));
    }

    // dSum/dT.
    double SumSlope(double tau) const {
        return (-1 / Tref)
               * (a + 1.5 * b * std::sqrt(tau) + c * d * std::pow(tau, d - 1) + e * f * std::pow(tau, f - 1)
                  + (g == 0 ? 0.0 : g * h * std::pow(tau, h - 1)));
    }
};

// lg p = A + B / (C + T) + D lg T + E p / T^F + G T + H T^I.
// Frost, Kalkwarf, J. Chem. Phys. 21 (1953) 264, extended. A stored block has C relative to the Celsius scale
// and F less 2; a correlated one holds the working values.
struct FrostKalkwarfForm {
    double A, B, C, D, E, F, G, H, I;

    FrostKalkwarfForm(const FrostKalkwarfBlock& s, bool stored)
        : A(s.c1), B(s.c2), C(stored ? s.c3 - 273.15 : s.c3), D(s.c4), E(s.c5), F(stored ? s.c6 + 2.0 : s.c6),
          G(s.c7), H(s.c8), I(s.c9) {}

    // All but the term in p.
    double Explicit(double T) const {
        return A + B / (C + T) + D * std::log(T) / ln10 + G * T + (H == 0 ? 0.0 : H * std::pow(T, I));
    }

    double Implicit(double T, double p) const {
        return A + B / (T + C) + D * std::log(T) / ln10 + (E == 0 ? 0.0 : E * p / std::pow(T, F)) + G * T
               + (H == 0 ? 0.0 : H * std::pow(T, I));
    }

    double ImplicitSlope(double T, double p) const {
        const double t = T + C;
        return -B / (t * t) + D / (T * ln10) - (E == 0 ? 0.0 : E * F * p / std::pow(T, F + 1)) + G
               + (H == 0 ? 0.0 : H * I * std::pow(T, I - 1));
    }
};

} // namespace orva
