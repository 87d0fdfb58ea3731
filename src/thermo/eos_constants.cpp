// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/eos_constants.h"

#include <cmath>

#include "state/constants.h"
#include "state/resets.h"

namespace orva {

namespace {

constexpr double smallestCriticalVolume = 1e-6; // m^3/kmol
constexpr double pengRobinsonZc = 0.3074;

enum class CubicFamily { None, VanDerWaals, Berthelot, RedlichKwong, Soave, PengRobinson };

// A virial row takes the constants of the cubic row it is derived from.
CubicFamily FamilyOf(int eosType) {
    switch (eosType) {
    case eosVanDerWaals:
    case virialVanDerWaals:
        return CubicFamily::VanDerWaals;
    case eosBerthelot:
    case virialBerthelot:
        return CubicFamily::Berthelot;
    case eosRedlichKwong:
    case virialRedlichKwong:
        return CubicFamily::RedlichKwong;
    case eosSoaveRedlichKwong:
    case virialSoaveRedlichKwong:
        return CubicFamily::Soave;
    case eosPengRobinson:
    case virialPengRobinson:
        return CubicFamily::PengRobinson;
    default:
        return CubicFamily::None;
    }
}

void VanDerWaalsConstants(SubstanceModel& model, bool berthelot) {
    const double Tc = model.substance.Tc;
    const double pc = model.substance.pc;
    EosParameters& eos = model.eos;
    const double R2 = gasConstant * gasConstant;
    eos.a0 = (27.0 / 64.0) * R2 * (berthelot ? Tc * Tc * Tc : Tc * Tc) / pc;
    eos.nA = berthelot ? -1 : 0;
    eos.b0 = gasConstant * Tc / pc / 8;
    eos.vCritCalc = CriticalVolumeFromFactor(model.substance, 3.0 / 8.0);
}

void RedlichKwongConstants(SubstanceModel& model, bool soave) {
    const double Tc = model.substance.Tc;
    const double pc = model.substance.pc;
    const double omega = model.substance.omega;
    EosParameters& eos = model.eos;
    const double root = std::cbrt(2.0) - 1;
    const double OmegaA = 1 / (9 * root);
    const double OmegaB = root / 3;
    eos.a0 = OmegaA * gasConstant * gasConstant * (soave ? Tc * Tc : std::pow(Tc, 2.5)) / pc;
    eos.nA = soave ? 0.48 + 1.574 * omega - 0.176 * omega * omega : -0.5;
    eos.b0 = OmegaB * gasConstant * Tc / pc;
    eos.d0 = eos.b0;
    eos.AlphaForm = soave ? 2 : 1;
    eos.vCritCalc = CriticalVolumeFromFactor(model.substance, 1.0 / 3.0);
}

void PengRobinsonConstants(SubstanceModel& model) {
    const double Tc = model.substance.Tc;
    const double pc = model.substance.pc;
    const double omega = model.substance.omega;
    EosParameters& eos = model.eos;
    const double y = std::cbrt(13 + std::pow(2.0, 4.5));
    const double Omega1 = -1.0 / 32.0 - 21 / (32 * y) + 3 * y / 32;
    const double Omega2 = (10.0 / 3.0) * Omega1 * Omega1 + (4.0 / 3.0) * Omega1 + 1.0 / 3.0;
    eos.a0 = Omega2 * gasConstant * gasConstant * Tc * Tc / pc;
    eos.nA = 0.37464 + 1.54226 * omega - 0.26992 * omega * omega;
    eos.b0 = Omega1 * gasConstant * Tc / pc;
    eos.c0 = (1 - std::sqrt(2.0)) * eos.b0;
    eos.d0 = (1 + std::sqrt(2.0)) * eos.b0;
    eos.AlphaForm = 2;
    eos.vCritCalc = CriticalVolumeFromFactor(model.substance, pengRobinsonZc);
}

} // namespace

void ClearEosParameters(EosParameters& eos) {
    ResetEosParameters(eos);
}

double CriticalVolumeFromFactor(const SubstanceData& substance, double z) {
    return z * gasConstant * substance.Tc / substance.pc;
}

bool DetermineEosParameters(SubstanceModel& model, int eosType) {
    EosParameters& eos = model.eos;
    eos.AlphaForm = 1;
    eos.vCritCalc = 0;
    if (eosType != 1)
        ClearEosParameters(eos);
    if (eosType == eosVoHalme1 || eosType == eosVoHalme2)
        return false;

    const CubicFamily family = FamilyOf(eosType);
    if (family == CubicFamily::VanDerWaals || family == CubicFamily::Berthelot)
        VanDerWaalsConstants(model, family == CubicFamily::Berthelot);
    else if (family == CubicFamily::RedlichKwong || family == CubicFamily::Soave)
        RedlichKwongConstants(model, family == CubicFamily::Soave);
    else if (family == CubicFamily::PengRobinson)
        PengRobinsonConstants(model);
    if (!std::isfinite(eos.a0) || !std::isfinite(eos.nA) || !std::isfinite(eos.b0)
        || !std::isfinite(eos.vCritCalc)) {
        ClearEosParameters(eos);
        eos.vCritCalc = eos.rhoCritCalc = 0;
        return false;
    }

    eos.rhoCritCalc = 0;
    if (model.selection.nonCubic)
        eos.vCritCalc = 0;
    if (eos.vCritCalc > smallestCriticalVolume)
        eos.rhoCritCalc = model.substance.molarMass / eos.vCritCalc;
    return true;
}

} // namespace orva
