// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "state/constants.h"
#include "state/substance_model.h"
#include "thermo/pair.h"
#include "thermo/parameter_derivatives.h"

namespace orva {

// Derivatives of the thermal equation for one phase at T, p, v. Units of K, kPa, m^3/kmol.
struct ThermalDerivatives {
    // First derivatives, in the order of the printed rows 1 to 6.
    double dpdv = 0; // at T
    double dpdT = 0; // at v
    double dvdp = 0; // at T
    double dvdT = 0; // at p
    double dTdv = 0; // at p
    double dTdp = 0; // at v
    // Second derivatives, printed rows 1, 4 and 5.
    double d2pdv2 = 0; // at T
    double d2vdT2 = 0; // at p
    double d2Tdv2 = 0; // -(dv/dT) times the second derivative, kept on purpose
};

// Derivatives of the cubic equation. A, B, C, D must be current at T and `s` belong to them. Nothing is
// formed within 1e-11 m^3/kmol of the co-volume.
inline ThermalDerivatives CubicDerivatives(const EosParameters& eos, const ParameterSlopes& s, double T,
                                           double v);

// d2p/dv2 of the cubic equation by itself, to the same bit.
inline double CubicCurvature(const EosParameters& eos, double T, double v);

// Derivatives of v = R T / p + B.
ThermalDerivatives VirialVolumeDerivatives(const VirialSlopes& s, double T, double p, double v);

// Mechanical coefficients: alpha = (dv/dT)/v in 1/K, chi = -(dv/dp)/v in 1/kPa, beta = (dp/dT)/p in 1/K.
struct MechanicalCoefficientValues {
    double alpha = 0, chi = 0, beta = 0;
};
MechanicalCoefficientValues MechanicalCoefficients(double p, double v, const ThermalDerivatives& d);

namespace thermal {

inline constexpr double poleWidth = 1e-11; // m^3/kmol

inline double Curvature(const EosParameters& eos, double T, double v, double u3, double W3) {
    const double C = eos.C;
    const double D = eos.D;
    const Pair terms =
        Pair{gasConstant * T, eos.A * ((C + D + v) * 3 * v - C * D + (C + D) * (C + D))} / Pair{u3, W3};
    return 2 * (terms[0] - terms[1]);
}

inline void FillSecond(const EosParameters& eos, const ParameterSlopes& s, double T, double v,
                       ThermalDerivatives& d) {
    const double R = gasConstant;
    const double A = eos.A;
    const double C = eos.C;
    const double D = eos.D;
    const double u = v - eos.B;
    const double W = (v + C) * (v + D);
    const double S = 2 * v + C + D;
    const double vT = d.dvdT;
    const double E = vT - s.dB;
    const double Y = (v + D) * s.dC + (v + C) * s.dD;
    const double u2 = u * u;
    const double u3 = u2 * u;
    const double W2 = W * W;
    const double W3 = W2 * W;
    const double drift = 2 * vT * v + Y + vT * (C + D);
    // Slopes along the isobar: of dp/dT (first) and of dp/dv (second).
    const Pair single = Pair{T * s.d2B + vT, s.d2A} / Pair{u2, W};
    const Pair hard = Pair{2 * (T * s.dB + u) * E, -R * (u - 2 * T * E)} / u3;
    const Pair soft = Pair{A * ((v + D) * s.d2C + (v + C) * s.d2D + vT * (s.dC + s.dD) + 2 * s.dC * s.dD)
                               + (2 * (vT * v + Y) + vT * (C + D)) * s.dA,
                           A * (2 * vT + s.dC + s.dD) + S * s.dA}
                      / W2;
    const Pair softer = drift * 2 * A * Pair{Y, S} / W3;
    const double P1 = R * (single[0] - hard[0]) - single[1] + soft[0] - softer[0];
    const double P2 = hard[1] + soft[1] - softer[1];
    d.d2pdv2 = Curvature(eos, T, v, u3, W3);
    const Pair along = Pair{-(P2 * vT + P1), P1} / Pair{d.dpdv, vT};
    d.d2vdT2 = along[0];
    d.d2Tdv2 = -(along[1] + P2) / d.dpdv / vT;
}

} // namespace thermal

inline double CubicCurvature(const EosParameters& eos, double T, double v) {
    const double u = v - eos.B;
    if (std::abs(u) < thermal::poleWidth)
        return 0;
    const double W = (v + eos.C) * (v + eos.D);
    return thermal::Curvature(eos, T, v, u * u * u, W * W * W);
}

inline ThermalDerivatives CubicDerivatives(const EosParameters& eos, const ParameterSlopes& s, double T,
                                           double v) {
    ThermalDerivatives d;
    const double u = v - eos.B;
    if (std::abs(u) < thermal::poleWidth)
        return d;
    const double W = (v + eos.C) * (v + eos.D);
    const double S = 2 * v + eos.C + eos.D;
    const double Y = (v + eos.D) * s.dC + (v + eos.C) * s.dD;
    const Pair soft = Pair{S, Y} * eos.A / (W * W);
    const Pair hard = gasConstant * Pair{T, T * s.dB + u} / (u * u);
    d.dpdv = soft[0] - hard[0];
    d.dpdT = soft[1] + hard[1] - s.dA / W;
    const Pair volume = Pair{1, -d.dpdT} / d.dpdv;
    d.dvdp = volume[0];
    d.dvdT = volume[1];
    const Pair temperature = Pair{1, 1} / Pair{d.dvdT, d.dpdT};
    d.dTdv = temperature[0];
    d.dTdp = temperature[1];
    thermal::FillSecond(eos, s, T, v, d);
    return d;
}

} // namespace orva
