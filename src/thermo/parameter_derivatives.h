// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "state/constants.h"
#include "state/substance_model.h"
#include "thermo/pair.h"

namespace orva {

// First and second derivatives in T of A, B, C, D, and of a = A / (R T), at one temperature.
struct ParameterSlopes {
    double dA = 0, d2A = 0;
    double dB = 0, d2B = 0;
    double dC = 0, d2C = 0;
    double dD = 0, d2D = 0;
    double da = 0, d2a = 0;
};

// Derivatives at T, for which A, B, C, D must be current.
inline ParameterSlopes ParameterDerivatives(const SubstanceModel& model, double T);

// Second virial coefficient of the row in force with its derivatives in T, m^3/kmol. The parameters are
// brought to T; the coefficient stands in work.BVirial afterwards.
struct VirialSlopes {
    double B = 0, dB = 0, d2B = 0;
};
VirialSlopes VirialDerivatives(SubstanceModel& model, double T);

namespace slopes {

// X = x0 T^n; most parameters have n = 0.
inline void Power(double X, double n, double T, double& dX, double& d2X) {
    if (n == 0) {
        dX = d2X = 0;
        return;
    }
    dX = n * X / T;
    d2X = (n - 1) * dX / T;
}

// A = a0 (1 + m (1 - sqrt(T / Tc)))^2.
inline void Soave(const EosParameters& eos, double Tc, double T, ParameterSlopes& s) {
    const double m = eos.nA;
    const double c = 1 + m * (1 - std::sqrt(T / Tc));
    const double e = -0.5 * m * std::sqrt(1 / (Tc * T));
    const double eSlope = -0.5 * e / T;
    s.dA = 2 * eos.a0 * c * e;
    s.d2A = 2 * eos.a0 * (e * e + c * eSlope);
}

// A of both Vo / Halme rows; B, C, D of the second one.
ParameterSlopes VoHalme(const SubstanceModel& model, double T);

} // namespace slopes

inline ParameterSlopes ParameterDerivatives(const SubstanceModel& model, double T) {
    const EosParameters& eos = model.eos;
    const std::int16_t row = model.selection.eos;
    ParameterSlopes s;
    if (row == eosVoHalme1 || row == eosVoHalme2) {
        s = slopes::VoHalme(model, T);
    } else {
        if (eos.AlphaForm == 2)
            slopes::Soave(eos, model.substance.Tc, T, s);
        else
            slopes::Power(eos.A, eos.nA, T, s.dA, s.d2A);
        slopes::Power(eos.B, eos.nB, T, s.dB, s.d2B);
        slopes::Power(eos.C, eos.nC, T, s.dC, s.d2C);
        slopes::Power(eos.D, eos.nD, T, s.dD, s.d2D);
    }
    const double q = gasConstant * T;
    const double lag = T * s.dA - eos.A;
    const Pair slope = Pair{lag, T * T * s.d2A - 2 * lag} / q / T;
    s.da = slope[0];
    s.d2a = slope[1] / T;
    return s;
}

} // namespace orva
