// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/vo_halme_constants.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/eos_constants.h"

namespace orva {

namespace {

constexpr double smallestCriticalVolume = 1e-6; // m^3/kmol

const VoHalmeCriticalConstants noConstants{0, 0, 0, true};

} // namespace

VoHalmeCriticalConstants VoHalmeConstantsOf(double zeta) {
    const double e = 6 * zeta - 1;
    const double g = 1 - 3 * zeta;
    const double h = 27 * zeta * zeta * zeta + 27 * g * zeta * zeta - 2 * g * g * g;
    const double k1 = h * h + 4 * e * e * e;
    const double r = h + std::sqrt(k1);
    if (!(r > 0))
        return noConstants;
    const double rootR = std::cbrt(r);
    const double root2 = std::cbrt(2.0);
    VoHalmeCriticalConstants constants;
    constants.OmegaB = -g / 3 - root2 * e / (3 * rootR) + rootR / (root2 * 3);
    constants.s = (1 - 3 * zeta + constants.OmegaB) / constants.OmegaB;
    constants.OmegaA = 3 * zeta * zeta + constants.s * constants.OmegaB
                       + 2 * constants.s * constants.OmegaB * constants.OmegaB;
    if (!std::isfinite(constants.OmegaA) || !std::isfinite(constants.s))
        return noConstants;
    return constants;
}

bool SetVoHalmeConstants(SubstanceModel& model) {
    EosParameters& eos = model.eos;
    VoHalmeParameters& vh = model.voHalme;
    eos.vCritCalc = eos.rhoCritCalc = 0;
    const double Tc = model.substance.Tc;
    const VoHalmeCriticalConstants constants = VoHalmeConstantsOf(vh.zeta);
    const double ac = gasConstant * gasConstant * constants.OmegaA * Tc * Tc / model.substance.pc;
    const double vCrit = CriticalVolumeFromFactor(model.substance, vh.zeta);
    if (constants.failed || !std::isfinite(ac) || !std::isfinite(vCrit))
        return false;
    vh.OmegaA = constants.OmegaA;
    vh.OmegaB = constants.OmegaB;
    vh.s = constants.s;
    vh.ac = ac;
    eos.vCritCalc = vCrit;
    if (vCrit > smallestCriticalVolume)
        eos.rhoCritCalc = model.substance.molarMass / vCrit;
    return true;
}

} // namespace orva
