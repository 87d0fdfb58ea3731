// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/heat_capacity.h"

#include <cmath>

#include "thermo/sinh_cosh.h"

namespace orva {

namespace {

constexpr double vanishingC0 = 1e-8;

double Polynomial(const HeatCapacityPolynomial& x, double T) {
    if (std::abs(x.C0) < vanishingC0)
        return x.C1 + x.C2 * T + x.C3 * T * T + x.C4 / (T * T);
    if (std::abs(x.C4) >= 1)
        return x.C0 + x.C1 * T + x.C2 * T * T + x.C3 * T * T * T + x.C4 / (T * T);
    return x.C0 + x.C1 * T + x.C2 * T * T + x.C3 * T * T * T + x.C4 * T * T * T * T;
}

float FiniteSingle(double cp) {
    const auto single = static_cast<float>(cp);
    return std::isfinite(single) ? single : 0.0F;
}

} // namespace

HeatCapacityResult IdealGasCp(const SubstanceData& substance, double T, int cpModel) {
    double cp = 0;
    if (cpModel == 1)
        cp = Polynomial(substance.cpPolynomial, T);
    else if (cpModel == 2)
        cp = SinhCoshFunctions(substance.cpSinhCosh, T).HeatCapacity(substance.cpSinhCosh);
    if (!std::isfinite(cp))
        return {0, true};
    return {cp, false};
}

float LiquidCp(const SubstanceData& substance, double T) {
    return FiniteSingle(Polynomial(substance.cpLiquid, T));
}

float SolidCp(const SubstanceData& substance, double T) {
    return FiniteSingle(Polynomial(substance.cpSolid, T));
}

} // namespace orva
