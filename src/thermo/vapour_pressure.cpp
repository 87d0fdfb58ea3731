// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/vapour_pressure.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/rounding.h"
#include "thermo/vapour_pressure_forms.h"

namespace orva {

namespace {

constexpr double lowestTemperature = 1e-6;    // K
constexpr double lowestPressure = 1e-35;      // kPa: a smaller result counts as none
constexpr double temperatureTolerance = 1e-4; // relative
constexpr double flatSlope = 1e-35;
constexpr int newtonSteps = 1000; // a generous end for the open iterations

const VapourPressureResult noSolution{0, true, 0};

// The August equation has no upper limit, and Tb is its lower one.
int AugustDeviation(double T, double Tb) {
    return T < Tb ? RoundedKelvins(T - Tb) : 0;
}

// A block without any coefficient would pass as p = 1 kPa; it is a missing one and fails.
bool IsMissing(const AntoineBlock& block) {
    return block.A == 0 && block.B == 0;
}
bool IsMissing(const AugustBlock& block) {
    return block.A == 0 && block.B == 0;
}
bool IsMissing(const FrostKalkwarfBlock& block) {
    return block.c1 == 0 && block.c2 == 0 && block.c4 == 0 && block.c5 == 0 && block.c7 == 0 && block.c8 == 0;
}

VapourPressureResult Checked(double value, int deviation, double lowest) {
    if (!std::isfinite(value) || value < lowest)
        return {0, true, deviation};
    return {value, false, deviation};
}

VapourPressureResult AntoinePressure(const AntoineBlock& block, double T, bool ranged) {
    const int deviation = ranged ? RangeDeviation(T, block.Tlo, block.Thi) : 0;
    if (IsMissing(block))
        return {0, true, deviation};
    const double lgP = block.A - block.B / (block.C + T - 273.15);
    return Checked(std::exp(ln10 * lgP), deviation, lowestPressure);
}

VapourPressureResult AugustPressure(const SubstanceData& substance, double T) {
    if (IsMissing(substance.august))
        return {0, true, AugustDeviation(T, substance.Tb)};
    const double p = std::exp(substance.august.A + substance.august.B / T);
    return Checked(p, AugustDeviation(T, substance.Tb), lowestPressure);
}

VapourPressureResult WagnerPressure(const WagnerBlock& block, double T) {
    const int deviation = RangeDeviationIfGiven(T, block.Tlo, block.Thi);
    const WagnerForm wagner(block);
    const double tau = wagner.Tau(T);
    if (!(tau >= wagnerSmallestTau))
        return {0, true, deviation};
    const double S = wagner.Sum(tau);
    if (!(std::abs(S) <= wagnerLargestSum))
        return {0, true, deviation};
    return Checked(wagner.pref * std::exp(S * wagner.Tref / T), deviation, lowestPressure);
}

VapourPressureResult FrostKalkwarfPressure(const FrostKalkwarfBlock& block, double T, bool stored) {
    const int deviation = stored ? RangeDeviationIfGiven(T, block.Tlo, block.Thi) : 0;
    if (IsMissing(block))
        return {0, true, deviation};
    const FrostKalkwarfForm form(block, stored);
    const double Q = form.Explicit(T);
    if (std::abs(form.E) < frostKalkwarfExplicit)
        return Checked(std::exp(ln10 * Q), deviation, lowestPressure);
    const double TF = std::pow(T, form.F);
    double p = std::exp(ln10 * Q);
    for (int step = 0; step < newtonSteps; ++step) {
        const double r = form.E * p / TF + Q - std::log(p) / ln10;
        const double slope = form.E / TF - 1 / (p * ln10);
        if (!(p >= 1e-120) || !(std::abs(slope) >= 1e-50))
            return {0, true, deviation};
        const double dp = -r / slope;
        p += dp;
        if (std::abs(dp / p) < 1e-4)
            return Checked(p, deviation, lowestPressure);
    }
    return {0, true, deviation};
}

VapourPressureResult AntoineTemperature(const AntoineBlock& block, double p, bool ranged) {
    const double T = block.B / (block.A - std::log(p) / ln10) - block.C + 273.15;
    if (!std::isfinite(T) || IsMissing(block))
        return noSolution;
    return Checked(T, ranged ? RangeDeviation(T, block.Tlo, block.Thi) : 0, lowestTemperature);
}

double AugustSlope(const SubstanceData& s) {
    return std::log(s.pc / normalPressure) * s.Tc * s.Tb / (s.Tb - s.Tc);
}

// The stored block is not used here, kept on purpose: both constants come fresh from Tb, Tc, pc.
double AugustTemperatureOf(const SubstanceData& substance, double p) {
    const double B = AugustSlope(substance);
    const double A = std::log(substance.pc) - B / substance.Tc;
    return B / (std::log(p) - A);
}

VapourPressureResult AugustTemperature(const SubstanceData& substance, double p) {
    const double T = AugustTemperatureOf(substance, p);
    if (!std::isfinite(T))
        return noSolution;
    return Checked(T, AugustDeviation(T, substance.Tb), lowestTemperature);
}

VapourPressureResult WagnerTemperature(const SubstanceData& substance, double p) {
    const WagnerForm wagner(substance.wagner);
    double T = substance.Tb > 1e-4 ? AugustTemperatureOf(substance, p) : 0;
    if (!(T >= 1e-4 && T < wagner.Tref))
        T = 0.8 * substance.Tc;
    const double lnRatio = std::log(p / wagner.pref);
    for (int step = 0; step < newtonSteps; ++step) {
        const double tau = wagner.Tau(T);
        if (!(tau >= wagnerSmallestTau))
            return noSolution;
        const double S = wagner.Sum(tau);
        const double slope = (-wagner.Tref / (T * T)) * S + (wagner.Tref / T) * wagner.SumSlope(tau);
        if (!(std::abs(slope) >= flatSlope))
            return noSolution;
        const double dT = -((wagner.Tref / T) * S - lnRatio) / slope;
        T += dT;
        if (std::abs(dT / T) < temperatureTolerance)
            return Checked(T, RangeDeviationIfGiven(T, substance.wagner.Tlo, substance.wagner.Thi),
                           lowestTemperature);
    }
    return noSolution;
}

VapourPressureResult FrostKalkwarfTemperature(const FrostKalkwarfBlock& block, double p, bool stored) {
    if (IsMissing(block))
        return noSolution;
    const FrostKalkwarfForm form(block, stored);
    const double lgP = std::log(p) / ln10;
    double T = form.B / (lgP - form.A) - form.C;
    for (int step = 0; step < newtonSteps; ++step) {
        const double value = form.Implicit(T, p) - lgP;
        const double slope = form.ImplicitSlope(T, p);
        if (!(std::abs(slope) >= flatSlope))
            return noSolution;
        const double dT = -value / slope;
        T += dT;
        if (std::abs(dT / T) < temperatureTolerance)
            return Checked(T, stored ? RangeDeviationIfGiven(T, block.Tlo, block.Thi) : 0, lowestTemperature);
    }
    return noSolution;
}

double AntoineSlope(const AntoineBlock& block, double T) {
    const double t = block.C - 273.15 + T;
    return -(T * T) * ln10 * block.B / (t * t);
}

double FrostKalkwarfSlope(const SubstanceData& substance, const FrostKalkwarfBlock& block, double T,
                          int equation) {
    const FrostKalkwarfForm form(block, equation == vpFrostKalkwarf);
    const double p = VapourPressure(substance, T, equation).value;
    // Kept on purpose: C - T, where the pressure equation has C + T. It matters only where the working C is
    // not 0.
    const double t = form.C - T;
    const double X =
        -form.B * ln10 / (t * t) + form.G * ln10 + form.I * form.H * ln10 * std::pow(T, form.I - 1);
    const double Y = X * T + form.D;
    const double TF = std::pow(T, form.F);
    const double N = TF * Y - form.F * form.E * ln10 * p;
    return -T * N / (TF - form.E * ln10 * p);
}

double WagnerSlope(const WagnerBlock& block, double T) {
    const WagnerForm wagner(block);
    const double tau = wagner.Tau(T);
    if (!(tau >= wagnerSmallestTau))
        return std::nan("");
    return -(T * T) * ((-wagner.Tref / (T * T)) * wagner.Sum(tau) + (wagner.Tref / T) * wagner.SumSlope(tau));
}

std::optional<Message> RangeWarning(const VapourPressureResult& result, int limit, const char* lead) {
    if (std::abs(result.deviation) <= limit)
        return std::nullopt;
    return Message{"Warnung zur Dampfdruckgleichung",
                   lead + std::to_string(result.deviation)
                       + " K außerhalb Parameter-Gültigkeitsbereich\n"
                         "(vgl. unter Daten/Parameter Dampfdruckgleichung)",
                   MessageIcon::Exclamation};
}

} // namespace

VapourPressureResult VapourPressure(const SubstanceData& substance, double T, int equation) {
    if (!(T <= substance.Tc && T >= lowestTemperature))
        return noSolution;
    switch (equation) {
    case vpAntoineLow:
        return AntoinePressure(substance.antoineLow, T, true);
    case vpAntoineHigh:
        return AntoinePressure(substance.antoineHigh, T, true);
    case vpFrostKalkwarf:
        return FrostKalkwarfPressure(substance.frostKalkwarf, T, true);
    case vpWagner:
        return WagnerPressure(substance.wagner, T);
    case vpAugust:
        return AugustPressure(substance, T);
    case vpFrostKalkwarfVdW:
        return FrostKalkwarfPressure(substance.kfw, T, false);
    case vpFrostKalkwarfRK:
        return FrostKalkwarfPressure(substance.kfr, T, false);
    case vpThompson:
        return AntoinePressure(substance.thompson, T, false);
    default:
        return noSolution;
    }
}

VapourPressureResult VapourPressureTemperature(const SubstanceData& substance, double p, int equation) {
    if (!(p <= substance.pc && p > 0))
        return noSolution;
    switch (equation) {
    case vpAntoineLow:
        return AntoineTemperature(substance.antoineLow, p, true);
    case vpAntoineHigh:
        return AntoineTemperature(substance.antoineHigh, p, true);
    case vpFrostKalkwarf:
        return FrostKalkwarfTemperature(substance.frostKalkwarf, p, true);
    case vpWagner:
        return WagnerTemperature(substance, p);
    case vpAugust:
        return AugustTemperature(substance, p);
    case vpFrostKalkwarfVdW:
        return FrostKalkwarfTemperature(substance.kfw, p, false);
    case vpFrostKalkwarfRK:
        return FrostKalkwarfTemperature(substance.kfr, p, false);
    case vpThompson:
        return AntoineTemperature(substance.thompson, p, false);
    default:
        return noSolution;
    }
}

SlopeResult VapourPressureSlope(const SubstanceData& substance, double T, int equation) {
    double slope = 0;
    switch (equation) {
    case vpAntoineLow:
        slope = AntoineSlope(substance.antoineLow, T);
        break;
    case vpAntoineHigh:
        slope = AntoineSlope(substance.antoineHigh, T);
        break;
    case vpThompson:
        slope = AntoineSlope(substance.thompson, T);
        break;
    case vpFrostKalkwarf:
        slope = FrostKalkwarfSlope(substance, substance.frostKalkwarf, T, equation);
        break;
    case vpFrostKalkwarfVdW:
        slope = FrostKalkwarfSlope(substance, substance.kfw, T, equation);
        break;
    case vpFrostKalkwarfRK:
        slope = FrostKalkwarfSlope(substance, substance.kfr, T, equation);
        break;
    case vpWagner:
        slope = WagnerSlope(substance.wagner, T);
        break;
    case vpAugust:
        slope = AugustSlope(substance);
        break;
    default:
        return {}; // no equation: 0 without failure
    }
    if (!std::isfinite(slope))
        return {0, true};
    return {slope, false};
}

std::optional<Message> VapourPressureWarning(const VapourPressureResult& result) {
    return RangeWarning(result, 10, " Temperatur ");
}

std::optional<Message> VapourPressureTemperatureWarning(const VapourPressureResult& result) {
    return RangeWarning(result, 5, "Temperatur ");
}

} // namespace orva
