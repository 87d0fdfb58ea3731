// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/ideal_gas_functions.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/heat_capacity.h"

namespace orva {

namespace {

constexpr float standardTemperature = 298.15F; // K
constexpr float standardPressure = 101.325F;   // kPa
constexpr double lowestSinhCoshTemperature = 0.1;

struct Integrals {
    double h, s; // not finite when failed
};

Integrals PolynomialIntegrals(const HeatCapacityPolynomial& x, double T, double T0) {
    const double T2 = T * T;
    const double T02 = T0 * T0;
    const double T3 = T2 * T;
    const double T03 = T02 * T0;
    const double T4 = T2 * T2;
    const double T04 = T02 * T02;
    return {x.C0 * (T - T0) + (x.C1 / 2.0) * (T2 - T02) + (x.C2 / 3.0) * (T3 - T03)
                + (x.C3 / 4.0) * (T4 - T04) + (x.C4 / 5.0) * (T4 * T - T04 * T0),
            x.C0 * std::log(T / T0) + x.C1 * (T - T0) + (x.C2 / 2.0) * (T2 - T02) + (x.C3 / 3.0) * (T3 - T03)
                + (x.C4 / 4.0) * (T4 - T04)};
}

// sinh, cosh and their logarithms of one argument.
struct Hyperbolic {
    double sinh, cosh;
    explicit Hyperbolic(double x) {
        const double e = std::exp(x);
        const double eInverse = std::exp(-x);
        sinh = (e - eInverse) * 0.5;
        cosh = (e + eInverse) * 0.5;
    }
};

// x coth x - ln sinh x.
double CothTerm(double x, const Hyperbolic& f) {
    return x * (f.cosh / f.sinh) - std::log(f.sinh);
}

// x tanh x - ln cosh x.
double TanhTerm(double x, const Hyperbolic& f) {
    return x * (f.sinh / f.cosh) - std::log(f.cosh);
}

Integrals SinhCoshIntegrals(const SinhCoshHeatCapacity& q, double T, double T0) {
    const double u = q.q2 / T;
    const double w = q.q4 / T;
    const double u0 = q.q2 / T0;
    const double w0 = q.q4 / T0;
    const Hyperbolic fu(u);
    const Hyperbolic fw(w);
    const Hyperbolic fu0(u0);
    const Hyperbolic fw0(w0);
    const double coth = fu.cosh / fu.sinh - fu0.cosh / fu0.sinh;
    const double tanh = fw.sinh / fw.cosh - fw0.sinh / fw0.cosh;
    return {q.q0 * (T - T0) + q.q1 * q.q2 * coth - q.q3 * q.q4 * tanh,
            q.q0 * (std::log(T) - std::log(T0)) + q.q1 * (CothTerm(u, fu) - CothTerm(u0, fu0))
                - q.q3 * (TanhTerm(w, fw) - TanhTerm(w0, fw0))};
}

} // namespace

ReferenceGas ReferenceGasState(const SubstanceData& substance, ReferencePoint& reference, double p) {
    ReferenceGas gas;
    if (reference.kind == 2 || reference.kind == 10) {
        gas.h = substance.hFormation;
        gas.s = reference.kind == 2
                    ? static_cast<double>(substance.sConventional)
                    : (static_cast<double>(substance.hFormation) - substance.gFormation) / 298.15;
        reference.T0 = standardTemperature;
        reference.p0 = standardPressure;
    }
    if (reference.p0 == 0)
        reference.p0 = standardPressure;
    if (p > 0)
        gas.s -= gasConstant * std::log(p / reference.p0);
    return gas;
}

IdealGasState IdealGasFunctions(const SubstanceData& substance, ReferencePoint& reference, int cpModel,
                                double T, double p) {
    const ReferenceGas gas = ReferenceGasState(substance, reference, p);
    const HeatCapacityResult heat = IdealGasCp(substance, T, cpModel);
    if (heat.failed)
        return {0, 0, 0, true};
    IdealGasState state{gas.h, gas.s, heat.cp, false};
    const double T0 = reference.T0;
    Integrals integrals{0, 0};
    if (cpModel == 1) {
        integrals = PolynomialIntegrals(substance.cpPolynomial, T, T0);
    } else if (cpModel == 2) {
        if (T <= lowestSinhCoshTemperature)
            return {0, 0, 0, true};
        integrals = SinhCoshIntegrals(substance.cpSinhCosh, T, T0);
    }
    state.h += integrals.h + reference.h0;
    state.s += integrals.s + reference.s0;
    if (!std::isfinite(state.h) || !std::isfinite(state.s))
        return {0, 0, 0, true};
    return state;
}

} // namespace orva
