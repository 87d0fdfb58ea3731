// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/ideal_gas_functions.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/heat_capacity.h"
#include "thermo/sinh_cosh.h"

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

// The terms of the integrals at one temperature: coth u, tanh w, u coth u - ln sinh u, w tanh w - ln cosh w.
IdealGasTerms TermsAt(const SinhCoshFunctions& f, double T) {
    const double coth = f.coshU / f.sinhU;
    const double tanh = f.sinhW / f.coshW;
    return {T, std::log(T), coth, tanh, f.u * coth - std::log(f.sinhU), f.w * tanh - std::log(f.coshW)};
}

Integrals SinhCoshIntegrals(const SinhCoshHeatCapacity& q, const IdealGasTerms& at,
                            const IdealGasTerms& from) {
    return {q.q0 * (at.T - from.T) + q.q1 * q.q2 * (at.coth - from.coth)
                - q.q3 * q.q4 * (at.tanh - from.tanh),
            q.q0 * (at.lnT - from.lnT) + q.q1 * (at.cothTerm - from.cothTerm)
                - q.q3 * (at.tanhTerm - from.tanhTerm)};
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

IdealGasTerms ReferenceTerms(const SubstanceData& substance, const ReferencePoint& reference, int cpModel) {
    const double T0 = reference.T0;
    return cpModel == 2 ? TermsAt({substance.cpSinhCosh, T0}, T0) : IdealGasTerms();
}

IdealGasState IdealGasFunctions(const SubstanceData& substance, ReferencePoint& reference, int cpModel,
                                double T, double p, const IdealGasTerms& known) {
    const ReferenceGas gas = ReferenceGasState(substance, reference, p);
    const double T0 = reference.T0;
    double cp = 0;
    Integrals integrals{0, 0};
    if (cpModel == 2) {
        if (T <= lowestSinhCoshTemperature)
            return {0, 0, 0, true};
        const SinhCoshHeatCapacity& q = substance.cpSinhCosh;
        const SinhCoshFunctions functions(q, T);
        cp = functions.HeatCapacity(q);
        integrals = SinhCoshIntegrals(q, TermsAt(functions, T),
                                      known.T == T0 ? known : ReferenceTerms(substance, reference, cpModel));
    } else {
        const HeatCapacityResult heat = IdealGasCp(substance, T, cpModel);
        if (heat.failed)
            return {0, 0, 0, true};
        cp = heat.cp;
        if (cpModel == 1)
            integrals = PolynomialIntegrals(substance.cpPolynomial, T, T0);
    }
    const double h = gas.h + (integrals.h + reference.h0);
    const double s = gas.s + (integrals.s + reference.s0);
    if (!std::isfinite(h) || !std::isfinite(s) || !std::isfinite(cp))
        return {0, 0, 0, true};
    return {h, s, cp, false};
}

IdealGasState IdealGasFunctions(const SubstanceData& substance, ReferencePoint& reference, int cpModel,
                                double T, double p) {
    return IdealGasFunctions(substance, reference, cpModel, T, p, {});
}

} // namespace orva
