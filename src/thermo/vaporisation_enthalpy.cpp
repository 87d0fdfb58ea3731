// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/vaporisation_enthalpy.h"

#include <cmath>
#include <limits>

#include "state/constants.h"
#include "thermo/density_correlations.h"
#include "thermo/phase_volumes.h"
#include "thermo/residual_functions.h"
#include "thermo/rounding.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr int warnedDeviation = 5;

bool Missing(double x) {
    return !(x > missingValue);
}

void Keep(std::optional<Message> warning, VaporisationResult& result) {
    if (warning)
        result.warnings.push_back(std::move(*warning));
}

bool Fail(VaporisationResult& result) {
    result.failed = true;
    return false;
}

bool Fail(VaporisationResult& result, VaporisationInfo info) {
    result.info = info;
    return Fail(result);
}

bool PressureFromEos(SubstanceModel& model, VaporisationResult& result) {
    result.saturation = EosSaturationPressure(model, result.T);
    if (result.saturation.failed)
        return Fail(result, VaporisationInfo::PressureFromEosFailed);
    result.p = result.saturation.value;
    result.info = VaporisationInfo::PressureFromEos;
    return true;
}

// Models 1, 3 and 4 need no pressure.
bool FindPressure(SubstanceModel& model, int way, int equation, double rowP, VaporisationResult& result) {
    if (way == vaporisationCubic)
        return PressureFromEos(model, result);
    if (way != vaporisationChen && way != vaporisationLiquidDensity && way != vaporisationBenson)
        return true;
    const VapourPressureResult pressure = VapourPressure(model.substance, result.T, equation);
    Keep(VapourPressureWarning(pressure), result);
    result.p = pressure.value;
    result.info = VaporisationInfo::PressureFromEquation;
    if (!Missing(result.p))
        return true;
    if (Missing(rowP))
        return Fail(result, VaporisationInfo::NoPressure);
    result.p = rowP;
    result.info = VaporisationInfo::PressureFromDataRow;
    return true;
}

bool TemperatureFromEos(SubstanceModel& model, VaporisationResult& result) {
    result.saturation = EosSaturationTemperature(model, result.p);
    if (result.saturation.failed)
        return Fail(result, VaporisationInfo::TemperatureFromEosFailed);
    result.T = result.saturation.value;
    result.info = VaporisationInfo::TemperatureFromEos;
    return true;
}

bool FindTemperature(SubstanceModel& model, int way, int equation, double rowT, VaporisationResult& result) {
    if (way == vaporisationCubic) {
        if (!TemperatureFromEos(model, result))
            return false;
    } else {
        const VapourPressureResult temperature =
            VapourPressureTemperature(model.substance, result.p, equation);
        Keep(VapourPressureTemperatureWarning(temperature), result);
        result.T = temperature.value;
        result.info = VaporisationInfo::TemperatureFromEquation;
        if (Missing(result.T)) {
            if (Missing(rowT))
                return Fail(result, VaporisationInfo::NoTemperature);
            result.T = rowT;
            result.info = VaporisationInfo::TemperatureFromDataRow;
        }
    }
    if (result.T > model.substance.Tc)
        return Fail(result, VaporisationInfo::TemperatureAboveCritical);
    return true;
}

double FromDatabase(const SubstanceData& substance, VaporisationResult& result) {
    const VaporisationBlock& block = substance.hVapFunction;
    const VaporisationDbResult db = VaporisationEnthalpyDb(substance, result.T);
    if (db.failed)
        return std::nan("");
    if (result.T < block.Tlo)
        result.outside = RoundedKelvins(block.Tlo - result.T);
    if (result.T > block.Thi)
        result.outside = RoundedKelvins(result.T - block.Thi);
    if (std::abs(result.outside) > warnedDeviation)
        result.warnings.push_back({"Warnung zur Gleichung delta(LV)h = Fu(T)",
                                   "Temperatur " + std::to_string(result.outside)
                                       + " K außerhalb Parameter-Gültigkeitsbereich\n"
                                         "(vgl. unter Daten/Parameter delta(LV)h = Fu(T))",
                                   MessageIcon::Exclamation});
    return db.h;
}

double Chen(const SubstanceData& substance, const VaporisationResult& state) {
    const double Tr = state.T / substance.Tc;
    const double pr = state.p / substance.pc;
    if (!(pr > 0))
        return std::nan("");
    return state.T * (33.08 * Tr - 32.74 - 29.77 * (std::log(pr) / ln10)) / (1.07 - Tr);
}

double CarruthKobayashi(const SubstanceData& substance, double T) {
    const double x = 1 - T / substance.Tc;
    return gasConstant * substance.Tc
           * (7.08 * std::pow(x, 0.354) + 10.95 * substance.omega * std::pow(x, 0.456));
}

double Watson(const SubstanceModel& model, double T) {
    const SubstanceData& substance = model.substance;
    return substance.hVapRef
           * std::pow((substance.Tc - T) / (substance.Tc - substance.TVapRef),
                      model.selection.watsonExponent);
}

// Clapeyron with the slope of the vapour-pressure equation.
double Clapeyron(SubstanceModel& model, int way, int equation, const SaturatedDensities& reference,
                 VaporisationResult& result) {
    const SubstanceData& substance = model.substance;
    PhaseVolumes phases;
    EosPhaseVolumes(model, result.T, result.p, phases);
    result.rootIndex = phases.rootCount;
    const double rhoV = phases.rhoV;
    double rhoL = 0;
    if (way == vaporisationLiquidDensity) {
        const DensityResult density = LiquidDensity(substance, static_cast<float>(result.T));
        Keep(LiquidDensityWarning(density), result);
        rhoL = density.failed ? 0 : density.rho;
    } else if (!Missing(reference.T) && !Missing(reference.rhoL)) {
        rhoL = DiameterLiquidDensity(result.T, substance.Tc, substance.rhoc, rhoV, reference.T,
                                     reference.rhoV, reference.rhoL);
    }
    if (!(rhoL * rhoV > missingValue))
        return std::nan("");
    const double scale = substance.molarMass * result.p / gasConstant;
    result.zV = scale / result.T / rhoV;
    result.zL = scale / result.T / rhoL;
    const SlopeResult slope = VapourPressureSlope(substance, result.T, equation);
    if (slope.failed)
        return std::nan("");
    return -gasConstant * static_cast<float>(slope.slope) * (result.zV - result.zL);
}

double FromCubic(SubstanceModel& model, VaporisationResult& result) {
    PhaseVolumes phases;
    SaturatedPhaseVolumes(model, result.T, result.p, result.saturation, phases);
    result.rootIndex = phases.rootCount;
    if (!(phases.vL * phases.vV > missingValue))
        return std::nan("");
    const double RT = gasConstant * result.T;
    result.zEosV = result.p * phases.vV / RT;
    result.zEosL = result.p * phases.vL / RT;
    const ResidualState vapour = ResidualFunctions(model, result.T, result.p, phases.vV);
    const ResidualState liquid = ResidualFunctions(model, result.T, result.p, phases.vL);
    if (vapour.failed || liquid.failed)
        return std::nan("");
    return gasConstant * vapour.table.h - gasConstant * liquid.table.h;
}

double Enthalpy(SubstanceModel& model, int way, int equation, const SaturatedDensities& reference,
                VaporisationResult& result) {
    switch (way) {
    case vaporisationDatabase:
        return FromDatabase(model.substance, result);
    case vaporisationChen:
        return Chen(model.substance, result);
    case vaporisationCarruthKobayashi:
        return CarruthKobayashi(model.substance, result.T);
    case vaporisationWatson:
        return Watson(model, result.T);
    case vaporisationLiquidDensity:
    case vaporisationBenson:
        return Clapeyron(model, way, equation, reference, result);
    case vaporisationCubic:
        return FromCubic(model, result);
    default:
        return std::nan("");
    }
}

} // namespace

std::string InfoText(VaporisationInfo info) {
    switch (info) {
    case VaporisationInfo::PressureFromEos:
        return "p = p(LV) von kubischer EOS";
    case VaporisationInfo::PressureFromEosFailed:
        return "p(LV) von EOS: Fehler " + std::to_string(modelFailure);
    case VaporisationInfo::PressureFromEquation:
        return "p = p(LV) von Dampfdruckgleichung:";
    case VaporisationInfo::PressureFromDataRow:
        return "p(LV) = p aus akt. Datensatz";
    case VaporisationInfo::NoPressure:
        return "kein p verfügbar";
    case VaporisationInfo::TemperatureFromEos:
        return "T = T(LV) von kubischer EOS";
    case VaporisationInfo::TemperatureFromEosFailed:
        return "T(LV) von EOS: Fehler " + std::to_string(modelFailure);
    case VaporisationInfo::TemperatureFromEquation:
        return "T = T(LV) von Dampfdruckgleichung:";
    case VaporisationInfo::TemperatureFromDataRow:
        return "(T(LV) aus aktuellem Datensatz)";
    case VaporisationInfo::NoTemperature:
        return "kein T verfügbar";
    case VaporisationInfo::TemperatureAboveCritical:
        return "T > T(cr)!";
    case VaporisationInfo::None:
        break;
    }
    return "";
}

VaporisationDbResult VaporisationEnthalpyDb(const SubstanceData& substance, double T) {
    const VaporisationBlock& c = substance.hVapFunction;
    if (!(c.Tcr > missingValue))
        return {0, true};
    const double Tr = T / c.Tcr;
    if (!(Tr <= 1))
        return {0, true};
    const double exponent = c.C + c.D * Tr + c.E * (Tr * Tr) + c.F * (Tr * Tr * Tr);
    const double h = c.A * std::exp(-c.B * Tr) * std::pow(1 - Tr, exponent);
    if (!std::isfinite(h))
        return {0, true};
    return {h, false};
}

VaporisationResult VaporisationEnthalpy(SubstanceModel& model, int vaporisationModel, int equation,
                                        const VaporisationRequest& request) {
    VaporisationResult result;
    result.T = request.T;
    result.p = request.p;
    if (!(request.T <= model.substance.Tc)) {
        result.failed = true;
        return result;
    }
    if (Missing(request.p) && !FindPressure(model, vaporisationModel, equation, request.rowP, result))
        return result;
    if (Missing(request.T) && !FindTemperature(model, vaporisationModel, equation, request.rowT, result))
        return result;
    const double h = Enthalpy(model, vaporisationModel, equation, request.reference, result);
    const double rounded = std::nearbyint(h);
    if (!(std::abs(rounded) <= std::numeric_limits<std::int32_t>::max()))
        result.failed = true;
    else
        result.h = static_cast<std::int32_t>(rounded);
    return result;
}

} // namespace orva
