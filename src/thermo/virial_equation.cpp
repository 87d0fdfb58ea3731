// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/virial_equation.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"

namespace orva {

namespace {

constexpr double lowestTemperature = 1e-6; // K

double FiniteOrZero(double x) {
    return std::isfinite(x) ? x : 0.0;
}

// A and B as the cubic rows form them. For the row entered by hand the slots mean something else, and the
// values are of no use.
void EvaluateAttraction(SubstanceModel& model, double T) {
    EosParameters& eos = model.eos;
    const double A = eos.AlphaForm == 1
                         ? std::pow(T, eos.nA) * eos.a0
                         : eos.a0 * std::pow(1 + eos.nA * (1 - std::sqrt(T / model.substance.Tc)), 2);
    eos.A = FiniteOrZero(A);
    eos.B = FiniteOrZero(std::pow(T, eos.nB) * eos.b0);
}

double PitzerCurl(const SubstanceData& substance, double T) {
    const double Tr = T / substance.Tc;
    const double Tr2 = Tr * Tr;
    const double Tr3 = Tr2 * Tr;
    const double Tr8 = Tr3 * Tr3 * Tr2;
    const double f0 = 0.1445 - 0.33 / Tr - 0.1385 / Tr2 - 0.0121 / Tr3;
    const double f1 = 0.073 + 0.46 / Tr - 0.5 / Tr2 - 0.097 / Tr3 - 0.0073 / Tr8;
    return (f0 + substance.omega * f1) * gasConstant * substance.Tc / substance.pc;
}

} // namespace

double VirialCoefficientB(SubstanceModel& model, int eosType, double T) {
    if (T < lowestTemperature)
        return 0;
    EosParameters& eos = model.eos;
    EvaluateAttraction(model, T);
    switch (eosType) {
    case eosIdealGas:
        eos.A = eos.B = eos.C = eos.D = 0;
        return 0;
    case eosVoHalme1:
    case eosVoHalme2:
    case virialVanDerWaals:
    case virialBerthelot:
    case virialRedlichKwong:
    case virialSoaveRedlichKwong:
    case virialPengRobinson:
        SetEosCoefficients(model, T);
        return FiniteOrZero(eos.B - eos.A / (gasConstant * T));
    case virialByHand:
        return FiniteOrZero(eos.b0 - eos.nB / std::pow(T, eos.nF));
    case virialPitzerCurl:
        return PitzerCurl(model.substance, T);
    default:
        return 0;
    }
}

} // namespace orva
