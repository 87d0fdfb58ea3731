// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/substance_model.h"
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
ThermalDerivatives CubicDerivatives(const EosParameters& eos, const ParameterSlopes& s, double T, double v);

// Derivatives of v = R T / p + B.
ThermalDerivatives VirialVolumeDerivatives(const VirialSlopes& s, double T, double p, double v);

// Mechanical coefficients: alpha = (dv/dT)/v in 1/K, chi = -(dv/dp)/v in 1/kPa, beta = (dp/dT)/p in 1/K.
struct MechanicalCoefficientValues {
    double alpha = 0, chi = 0, beta = 0;
};
MechanicalCoefficientValues MechanicalCoefficients(double p, double v, const ThermalDerivatives& d);

} // namespace orva
