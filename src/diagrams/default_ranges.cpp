// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/default_ranges.h"

#include <algorithm>
#include <cmath>

#include "calc/units.h"
#include "state/constants.h"
#include "thermo/heat_capacity.h"

namespace orva {

namespace {

constexpr std::int16_t basisReduced = 2;
constexpr std::int16_t basisSpecific = 3;
constexpr double fallbackVolume = 1.5; // window of v where no critical volume is known
constexpr double lowestLnP = -5;
constexpr double widestTemperature = 300;   // K, least upper limit of the wide temperature axis
constexpr double heatCapacityMargin = 100;  // kJ/(kmol K), room for the residual part above the ideal gas
constexpr double heatCapacityCeiling = 250; // kJ/(kmol K), where the ideal gas is not known
constexpr double heatCapacityFloor = -10;

float Single(double x) {
    return std::isfinite(x) && std::abs(x) < 3.4e38 ? static_cast<float>(x) : 0.0F;
}

void SetThermalRanges(const SubstanceModel& model, const Options& options, DiagramRanges& ranges,
                      bool keepRanges) {
    const SubstanceData& substance = model.substance;
    const bool nonCubic = model.selection.nonCubic;
    const double pCr = substance.pc * options.pFactor;
    const double TCr = substance.Tc * options.TFactor;
    if (!keepRanges || ranges.pMax == 0)
        ranges.pMax = Single(1.4 * pCr);
    ranges.pMin = 0.001F;
    if (!keepRanges || ranges.TMax == 0)
        ranges.TMax = Single(1.1 * TCr);
    if (!keepRanges || ranges.TMin == 0) {
        ranges.TMin = Single((nonCubic ? 0.3 : 1.0) * substance.Ttrip * options.TFactor);
        if (ranges.TMin < missingValue)
            ranges.TMin = Single(0.5 * TCr);
    }
    ranges.TwideMax = std::max(ranges.TMax, Single(widestTemperature * options.TFactor));

    const double vCritical = nonCubic ? substance.vcDatabase : model.eos.vCritCalc;
    ranges.vMax = Single(7 * vCritical * options.volumeFactor);
    if (ranges.vMax == 0)
        ranges.vMax = Single(fallbackVolume);
    ranges.vMin = 0;
    ranges.rhoMax = Single(3.5 * (nonCubic ? substance.rhoc : model.eos.rhoCritCalc));
    ranges.rhoMin = 0;
    ranges.vSmallMax = Single(1.4 * substance.vcDatabase * options.volumeFactor);
    ranges.vSmallMin = Single(0.01 * options.volumeFactor);
    ranges.pvMax = Single(pCr * ranges.vMax);
    ranges.pvMin = 0;
}

void SetVapourPressureRanges(const SubstanceModel& model, const Options& options, DiagramRanges& ranges) {
    const SubstanceData& substance = model.substance;
    const double TCr = substance.Tc * options.TFactor;
    ranges.lnPMax =
        options.volumeBasis == basisReduced ? 0.5F : Single(1.1 * std::log(substance.pc * options.pFactor));
    ranges.lnPMin = Single(lowestLnP);
    const double Ttrip = substance.Ttrip;
    ranges.invTMax = Single(Ttrip < missingValue ? 2.3 / TCr : 1 / ((Ttrip - 5) * options.TFactor));
    ranges.invTMin = Single(1 / ((substance.Tc + 10) * options.TFactor));
    ranges.dlnMax = -500;
    ranges.dlnMin = -6000;
}

// kJ/(kmol K).
double HighestHeatCapacity(const SubstanceModel& model) {
    const HeatCapacityResult ideal = IdealGasCp(model.substance, model.substance.Tc, model.selection.cpModel);
    if (ideal.failed || !(ideal.cp > missingValue))
        return heatCapacityCeiling;
    return ideal.cp + heatCapacityMargin;
}

void SetCaloricRanges(const SubstanceModel& model, const Options& options, DiagramRanges& ranges) {
    const double f = options.energyFactor;
    ranges.hVapMax = Single(50000 * f);
    ranges.hVapMin = 0;
    ranges.deltaMax = 0.04F;
    ranges.deltaMin = -0.005F;
    // Values of formation are far below zero.
    const bool zeroAtReference = model.reference.kind == 1;
    ranges.hMax = Single((zeroAtReference ? 50000 : 0) * f);
    ranges.hMin = Single((zeroAtReference ? -50000 : -300000) * f);
    ranges.sMax = Single((zeroAtReference ? 250 : 200) * f);
    ranges.sMin = Single(-250 * f);
    ranges.cpMax = Single(HighestHeatCapacity(model) * f);
    ranges.cpMin = Single(heatCapacityFloor * f);
    ranges.dsMin = Single(-498.8706 * f);
    ranges.dsMax = Single(20 * f);
    ranges.dhMin = Single(-49887.06 * f);
    ranges.dhMax = Single(1000 * f);
}

} // namespace

void SetDefaultRanges(SubstanceModel& model, Options& options, DiagramRanges& ranges, bool keepRanges) {
    SetUnits(model, options);
    if (options.unitBasis == basisSpecific)
        options.energyFactor = EnergyFactor(options.unitBasis, 0, model.substance);
    SetThermalRanges(model, options, ranges, keepRanges);
    SetVapourPressureRanges(model, options, ranges);
    SetCaloricRanges(model, options, ranges);
}

} // namespace orva
