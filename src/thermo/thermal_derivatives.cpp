// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/thermal_derivatives.h"

namespace orva {

ThermalDerivatives VirialVolumeDerivatives(const VirialSlopes& s, double T, double p, double v) {
    ThermalDerivatives d;
    const double R = gasConstant;
    const double u = v - s.B;
    if (std::abs(u) < thermal::poleWidth)
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
