// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/database_curves.h"

#include <algorithm>
#include <cmath>

#include "calc/units.h"
#include "diagrams/catalogue.h"
#include "state/constants.h"
#include "thermo/density_correlations.h"
#include "thermo/heat_capacity.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr double pointRange = 10; // K around the single point of a density
constexpr int windowSamples = 50;
constexpr double windowRoom = 1e-3; // of a value that does not change, above and below

DatabaseRange RangeOf(double low, double high) {
    return {static_cast<float>(low), static_cast<float>(high)};
}

// Without limits a single point with a slope stands for a small range around its temperature, and any other
// form for one around its reference temperature.
DatabaseRange Around(double T) {
    return RangeOf(T - pointRange, T + pointRange);
}
DatabaseRange LiquidDensityRange(const SubstanceModel& model) {
    const LiquidDensityBlock& c = model.substance.rhoLiquid;
    if (c.Tlo != 0 || c.Thi != 0)
        return RangeOf(c.Tlo, c.Thi);
    if (c.r1 > missingValue && c.r3 > missingValue)
        return Around(c.r3);
    return c.Tcr > missingValue ? Around(c.Tcr) : DatabaseRange();
}
DatabaseRange SolidDensityRange(const SubstanceModel& model) {
    const SolidDensityBlock& c = model.substance.rhoSolid;
    if (c.Tlo == 0 && c.Thi == 0 && c.s1 > missingValue && c.s3 > missingValue)
        return Around(c.s3);
    return RangeOf(c.Tlo, c.Thi);
}
DatabaseRange IdealCpRange(const SubstanceModel& model) {
    const SubstanceData& s = model.substance;
    return model.selection.cpModel == 2 ? RangeOf(s.cpSinhCosh.Tlo, s.cpSinhCosh.Thi)
                                        : RangeOf(s.cpPolynomial.Tlo, s.cpPolynomial.Thi);
}
template<auto block> DatabaseRange BlockRange(const SubstanceModel& model) {
    return RangeOf((model.substance.*block).Tlo, (model.substance.*block).Thi);
}

// Value in kg/m^3, m^3/kmol, kJ/kmol, kJ/(kmol K) or kPa; not a number where there is none.
double LiquidDensityAt(const SubstanceModel& model, double T) {
    const DensityResult found = LiquidDensity(model.substance, static_cast<float>(T));
    return found.failed || !(found.rho > 0) ? std::nan("") : found.rho;
}
double LiquidVolumeAt(const SubstanceModel& model, double T) {
    return model.substance.molarMass / LiquidDensityAt(model, T);
}
double SolidDensityAt(const SubstanceModel& model, double T) {
    const DensityResult found = SolidDensity(model.substance, static_cast<float>(T));
    return found.failed || !(found.rho > 0) ? std::nan("") : found.rho;
}
double IdealCpAt(const SubstanceModel& model, double T) {
    const HeatCapacityResult found = IdealGasCp(model.substance, T, model.selection.cpModel);
    return found.failed || found.cp == 0 ? std::nan("") : found.cp;
}
double LiquidCpAt(const SubstanceModel& model, double T) {
    const double cp = LiquidCp(model.substance, T);
    return cp == 0 ? std::nan("") : cp;
}
double SolidCpAt(const SubstanceModel& model, double T) {
    const double cp = SolidCp(model.substance, T);
    return cp == 0 ? std::nan("") : cp;
}
double VaporisationAt(const SubstanceModel& model, double T) {
    const VaporisationDbResult found = VaporisationEnthalpyDb(model.substance, T);
    return found.failed ? std::nan("") : found.h;
}
template<int equation> double PressureAt(const SubstanceModel& model, double T) {
    const VapourPressureResult found = VapourPressure(model.substance, T, equation);
    return found.failed ? std::nan("") : found.value;
}

enum class Factor : std::uint8_t { None, Volume, Energy, Pressure };

struct DatabaseFunction {
    int type;
    DatabaseRange (*range)(const SubstanceModel&);
    double (*value)(const SubstanceModel&, double T);
    Factor factor;
};

using S = SubstanceData;

constexpr DatabaseFunction functions[] = {
    {300, LiquidDensityRange, LiquidDensityAt, Factor::None},
    {301, LiquidDensityRange, LiquidVolumeAt, Factor::Volume},
    {302, IdealCpRange, IdealCpAt, Factor::Energy},
    {303, BlockRange<&S::cpLiquid>, LiquidCpAt, Factor::Energy},
    {304, BlockRange<&S::cpSolid>, SolidCpAt, Factor::Energy},
    {305, BlockRange<&S::hVapFunction>, VaporisationAt, Factor::Energy},
    {306, BlockRange<&S::frostKalkwarf>, PressureAt<vpFrostKalkwarf>, Factor::Pressure},
    {307, BlockRange<&S::wagner>, PressureAt<vpWagner>, Factor::Pressure},
    {308, BlockRange<&S::antoineLow>, PressureAt<vpAntoineLow>, Factor::Pressure},
    {309, BlockRange<&S::antoineHigh>, PressureAt<vpAntoineHigh>, Factor::Pressure},
    {310, SolidDensityRange, SolidDensityAt, Factor::None},
};

const DatabaseFunction* FindFunction(int type) {
    for (const DatabaseFunction& row : functions)
        if (row.type == type)
            return &row;
    return nullptr;
}

double FactorOf(Factor factor, const SubstanceModel& model, const Options& options, double T) {
    switch (factor) {
    case Factor::Volume:
        return options.volumeFactor;
    case Factor::Energy:
        return EnergyFactor(options.unitBasis, T, model.substance);
    case Factor::Pressure:
        return options.pFactor;
    case Factor::None:
        break;
    }
    return 1;
}

} // namespace

DatabaseRange DatabaseRangeOf(int type, const SubstanceModel& model) {
    const DatabaseFunction* function = FindFunction(type);
    return function == nullptr ? DatabaseRange() : function->range(model);
}

bool DatabaseValue(int type, const SubstanceModel& model, const Options& options, double T, double& value) {
    const DatabaseFunction* function = FindFunction(type);
    if (function == nullptr)
        return false;
    value = function->value(model, T) * FactorOf(function->factor, model, options, T);
    return std::isfinite(value);
}

void SetDatabaseWindow(const SubstanceModel& model, const Options& options, DiagramSpec& spec) {
    const DatabaseRange range = DatabaseRangeOf(spec.type, model);
    spec.dbTMin = range.low;
    spec.dbTMax = range.high;
    if (!range.Exists())
        return;
    double low = 0;
    double high = 0;
    bool any = false;
    for (int i = 0; i <= windowSamples; ++i) {
        const double T = range.low + (static_cast<double>(range.high) - range.low) * i / windowSamples;
        double value = 0;
        if (!DatabaseValue(spec.type, model, options, T, value))
            continue;
        low = any ? std::min(low, value) : value;
        high = any ? std::max(high, value) : value;
        any = true;
    }
    if (!any)
        return;
    const double room = high > low ? 0 : windowRoom * std::abs(high);
    spec.xMin = range.low * options.TFactor;
    spec.xMax = range.high * options.TFactor;
    // What is never negative needs no room below 0.
    spec.yMin = static_cast<float>(low < 0 ? low - room : std::max(low - room, 0.0));
    spec.yMax = static_cast<float>(high + room);
}

void DatabaseCurve(CurveRun& run) {
    const DatabaseRange range = DatabaseRangeOf(run.row.type, run.model);
    run.spec.dbTMin = range.low;
    run.spec.dbTMax = range.high;
    run.spec.curveKind = curveFunctionOfT;
    run.spec.curveCode = run.row.curveCode;
    WalkGrid(run, run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        double value = 0;
        const double T = x / run.options.TFactor;
        if (T > 0 && DatabaseValue(run.row.type, run.model, run.options, T, value))
            run.Add(x, value, 0);
        return true;
    });
}

} // namespace orva
