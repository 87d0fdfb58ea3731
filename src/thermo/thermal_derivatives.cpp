// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/thermal_derivatives.h"

#include <cmath>

#include "state/constants.h"

namespace orva {

namespace {

constexpr double poleWidth = 1e-11; // m^3/kmol

void FillSecond(const EosParameters& eos, const ParameterSlopes& s, double T, double v,
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
    double P1 = R * ((T * s.d2B + vT) / u2 - (2 * (T * s.dB + u) * E) / u3);
    P1 = P1 - s.d2A / W
         + (A * ((v + D) * s.d2C + (v + C) * s.d2D + vT * (s.dC + s.dD) + 2 * s.dC * s.dD)
            + (2 * (vT * v + Y) + vT * (C + D)) * s.dA)
               / W2;
    P1 = P1 - (drift * 2 * A * Y) / W3;
    const double P2 =
        -R * (u - 2 * T * E) / u3 + (A * (2 * vT + s.dC + s.dD) + S * s.dA) / W2 - (drift * 2 * A * S) / W3;
    d.d2pdv2 = 2 * (R * T / u3 - A * ((C + D + v) * 3 * v - C * D + (C + D) * (C + D)) / W3);
    d.d2vdT2 = -(P2 * vT + P1) / d.dpdv;
    d.d2Tdv2 = -(P1 / vT + P2) / d.dpdv / vT;
}

} // namespace

ThermalDerivatives CubicDerivatives(const EosParameters& eos, const ParameterSlopes& s, double T, double v) {
    ThermalDerivatives d;
    const double u = v - eos.B;
    if (std::abs(u) < poleWidth)
        return d;
    const double W = (v + eos.C) * (v + eos.D);
    d.dpdv = eos.A * (2 * v + eos.C + eos.D) / (W * W) - gasConstant * T / (u * u);
    d.dpdT = ((v + eos.D) * s.dC + (v + eos.C) * s.dD) * eos.A / (W * W)
             + gasConstant * (T * s.dB + u) / (u * u) - s.dA / W;
    d.dvdp = 1 / d.dpdv;
    d.dvdT = -d.dpdT / d.dpdv;
    d.dTdv = 1 / d.dvdT;
    d.dTdp = 1 / d.dpdT;
    FillSecond(eos, s, T, v, d);
    return d;
}

ThermalDerivatives VirialVolumeDerivatives(const VirialSlopes& s, double T, double p, double v) {
    ThermalDerivatives d;
    const double R = gasConstant;
    const double u = v - s.B;
    if (std::abs(u) < poleWidth)
        return d;
    const double sum = p * s.dB + R;
    d.dpdv = -p * p / (R * T);
    d.dpdT = R * (T * s.dB + u) / (u * u);
    d.dvdp = 1 / d.dpdv;
    d.dvdT = R / p + s.dB;
    d.dTdv = p / sum;
    d.dTdp = 1 / d.dpdT;
    d.d2pdv2 = 2 * R * T / (u * u * u);
    d.d2vdT2 = s.d2B;
    d.d2Tdv2 = p * p * s.d2B / (sum * sum);
    return d;
}

MechanicalCoefficientValues MechanicalCoefficients(double p, double v, const ThermalDerivatives& d) {
    return {d.dvdT / v, -d.dvdp / v, d.dpdT / p};
}

} // namespace orva
