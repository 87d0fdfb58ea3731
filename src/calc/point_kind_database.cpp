// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstdlib>

#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/density_correlations.h"
#include "thermo/heat_capacity.h"
#include "thermo/rounding.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr double pointRange = 10;     // K around the single point of a density
constexpr double warnedDistance = 10; // K out of the range of validity

struct FunctionLimits {
    int low = 0, high = 0; // K
};

struct FunctionValue {
    double value = 0;
    bool failed = false;
};

// A single point with a slope stands for a small range around its temperature.
template<class Density> FunctionLimits DensityLimits(const Density& block, float coefficient, float T) {
    if (block.Tlo == 0 && coefficient > missingValue)
        return {RoundedKelvins(T - pointRange), RoundedKelvins(T + pointRange)};
    return {block.Tlo, block.Thi};
}

template<auto block> FunctionLimits LimitsOf(const SubstanceModel& model) {
    return {(model.substance.*block).Tlo, (model.substance.*block).Thi};
}

FunctionLimits LiquidDensityLimits(const SubstanceModel& model) {
    const LiquidDensityBlock& block = model.substance.rhoLiquid;
    return DensityLimits(block, block.r1, block.r3);
}
FunctionLimits SolidDensityLimits(const SubstanceModel& model) {
    const SolidDensityBlock& block = model.substance.rhoSolid;
    return DensityLimits(block, block.s1, block.s3);
}
FunctionLimits IdealCpLimits(const SubstanceModel& model) {
    return model.selection.cpModel == 2 ? LimitsOf<&SubstanceData::cpSinhCosh>(model)
                                        : LimitsOf<&SubstanceData::cpPolynomial>(model);
}

// A value of 0 is no value of these functions.
FunctionValue Positive(double value, bool failed = false) {
    return {value, failed || !std::isfinite(value) || value == 0};
}

FunctionValue LiquidDensityValue(PointRun& run) {
    const DensityResult density = LiquidDensity(run.context.model.substance, static_cast<float>(run.T));
    return Positive(density.rho, density.failed);
}
FunctionValue SolidDensityValue(PointRun& run) {
    const DensityResult density = SolidDensity(run.context.model.substance, static_cast<float>(run.T));
    return Positive(density.rho, density.failed);
}
FunctionValue VaporisationValue(PointRun& run) {
    const VaporisationDbResult found = VaporisationEnthalpyDb(run.context.model.substance, run.T);
    return {found.h * run.context.options.energyFactor, found.failed};
}
FunctionValue IdealCpValue(PointRun& run) {
    const SubstanceModel& model = run.context.model;
    const HeatCapacityResult found = IdealGasCp(model.substance, run.T, model.selection.cpModel);
    return Positive(found.cp * run.context.options.energyFactor, found.failed);
}
FunctionValue LiquidCpValue(PointRun& run) {
    return Positive(LiquidCp(run.context.model.substance, run.T) * run.context.options.energyFactor);
}
FunctionValue SolidCpValue(PointRun& run) {
    return Positive(SolidCp(run.context.model.substance, run.T) * run.context.options.energyFactor);
}

template<int equation> FunctionValue VapourPressureValue(PointRun& run) {
    const VapourPressureResult found = VapourPressure(run.context.model.substance, run.T, equation);
    if (const auto warning = VapourPressureWarning(found); warning && run.options.warn)
        run.result.messages.push_back(*warning);
    return {found.value * run.context.options.pFactor, found.failed};
}

constexpr int unitBases = 4;

struct DatabaseFunction {
    int kind;
    FunctionLimits (*limits)(const SubstanceModel&);
    FunctionValue (*value)(PointRun&);
    std::string_view label;
    std::string_view units[unitBases]; // by the basis of the energies
    int slot;                          // of the results, noSlot for none
};

constexpr int noSlot = -1;

// clang-format off
constexpr DatabaseFunction functions[] = {
    {kindLiquidDensity, LiquidDensityLimits, LiquidDensityValue, " rho(L) = ",
     {" kg/m^3", " kg/m^3", " kg/m^3", " kg/m^3"}, slotRhoL},
    {kindVaporisationDb, LimitsOf<&SubstanceData::hVapFunction>, VaporisationValue, " delta(LV)h = ",
     {" kJ/kmol", " K", " ", " kJ/kg"}, slotVaporisationH},
    {kindIdealGasCp, IdealCpLimits, IdealCpValue, " cp_IdGas = ",
     {" kJ/(kmol/)", " ", " 1/K", " kJ/(kg K)"}, slotCpIdeal},
    {kindLiquidCp, LimitsOf<&SubstanceData::cpLiquid>, LiquidCpValue, " cp(L) = ",
     {" kJ/(kmol/)", " ", " 1/K", " kJ/(kg K)"}, slotCpL},
    {kindSolidCp, LimitsOf<&SubstanceData::cpSolid>, SolidCpValue, " cp(S) = ",
     {" kJ/(kmol/)", " ", " 1/K", " kJ/(kg K)"}, slotCpS},
    {kindFrostKalkwarf, LimitsOf<&SubstanceData::frostKalkwarf>, VapourPressureValue<vpFrostKalkwarf>,
     " p(LV), erw. Frost-Kalkwarf = ", {" kPa", " kPa", " kPa", " kPa"}, slotP},
    {kindWagner, LimitsOf<&SubstanceData::wagner>, VapourPressureValue<vpWagner>,
     " p(LV), Wagner = ", {" kPa", " kPa", " kPa", " kPa"}, slotP},
    {kindAntoineLow, LimitsOf<&SubstanceData::antoineLow>, VapourPressureValue<vpAntoineLow>,
     " p(LV), Antoine (Lo-p) = ", {" kPa", " kPa", " kPa", " kPa"}, slotP},
    {kindAntoineHigh, LimitsOf<&SubstanceData::antoineHigh>, VapourPressureValue<vpAntoineHigh>,
     " p(LV), Antoine (Hi-p) = ", {" kPa", " kPa", " kPa", " kPa"}, slotP},
    {kindSolidDensity, SolidDensityLimits, SolidDensityValue, " rho(S) = ",
     {" kg/m^3", " kg/m^3", " kg/m^3", " kg/m^3"}, noSlot},
};
// clang-format on

const DatabaseFunction* FindFunction(int kind) {
    for (const DatabaseFunction& row : functions)
        if (row.kind == kind)
            return &row;
    return nullptr;
}

void FillSlots(PointRun& run, const DatabaseFunction& function, double value) {
    auto& results = run.result.results;
    if (function.slot != noSlot)
        results[static_cast<std::size_t>(function.slot)] = value;
    if (function.kind == kindLiquidDensity)
        results[slotVolumeL] = run.context.model.substance.molarMass / value;
    if (function.kind == kindVaporisationDb)
        results[slotVaporisationS] = value / run.T;
}

void AppendVolumes(PointRun& run, double rho) {
    const double M = run.context.model.substance.molarMass;
    const double v = M / rho;
    const NumberStyle style = run.context.style;
    AppendLine(run, Spaces(12) + "v  /m^3/kmol = " + Format(v, "##0.000###", style));
    AppendLine(run, Spaces(12) + "v  /m^3/kg   = " + Format(v / M, "##0.000###", style));
}

void WarnOutOfRange(PointRun& run, const FunctionLimits& limits) {
    const bool known = limits.high > 0;
    if (!run.options.warn || !known
        || !(limits.low - run.T > warnedDistance || run.T - limits.high > warnedDistance))
        return;
    run.result.messages.push_back(
        {"WARNUNG",
         "T liegt mehr als 10 K außerhalb des Gültigkeitsbereichs der Gleichung\n(T/K = "
             + std::to_string(limits.low) + "..." + std::to_string(limits.high) + ")",
         MessageIcon::Exclamation});
}

} // namespace

void CalculateDatabaseFunction(PointRun& run) {
    PointResult& result = run.result;
    if (!TakeTemperature(run, result.par1))
        return;
    const DatabaseFunction* function = FindFunction(result.kind);
    if (function == nullptr)
        return;
    const FunctionLimits limits = function->limits(run.context.model);
    const FunctionValue found = function->value(run);
    WarnOutOfRange(run, limits);
    if (found.failed) {
        result.failed = true;
        result.messages.push_back(
            {"Ausführung nicht möglich", "Berechnungsfehler aufgetreten", MessageIcon::Exclamation});
        return;
    }
    FillSlots(run, *function, found.value);
    if (!ShowsTexts(run))
        return;
    if (result.kind == kindLiquidDensity || result.kind == kindSolidDensity)
        AppendVolumes(run, found.value);
    const auto basis = static_cast<std::size_t>(run.context.options.unitBasis);
    result.par1.text = TemperatureLabel(run);
    result.co1.text = " Berechnung aus der Datenbankfunktion " + std::string(function->label) + " Fu(T)";
    result.co2.text = std::string(function->label) + Str(found.value, run.context.style)
                      + std::string(function->units[basis % unitBases]);
    AppendLine(run, "");
    AppendLine(run, " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:");
    AppendLine(run, " T(Lo)/K = " + std::to_string(limits.low));
    AppendLine(run, " T(Hi)/K = " + std::to_string(limits.high));
}

} // namespace orva
