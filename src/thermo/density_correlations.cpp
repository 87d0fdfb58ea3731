// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/density_correlations.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/rounding.h"

namespace orva {

namespace {

constexpr int warnedDeviation = 5;
constexpr double lowestDensity = 1e-10;

double Finite(double rho, bool& failed) {
    if (std::isfinite(rho))
        return rho;
    failed = true;
    return 0;
}

std::string RangeWarningText(int deviation) {
    return " Temperatur " + std::to_string(deviation) + " K außerhalb Parameter-Gültigkeitsbereich\n";
}

double LiquidPolynomial(const LiquidDensityBlock& c, double T) {
    double rho = c.r1 + c.r2 * T + c.r3 * T * T + c.r4 * T * T * T + c.r5 / (c.r6 + T);
    if (std::abs(c.r7) >= missingValue && T < c.Tcr)
        rho += c.r7 * std::pow(1 - T / c.Tcr, 1.0 / 3.0);
    return rho;
}

} // namespace

DensityResult LiquidDensity(const SubstanceData& substance, float temperature) {
    const LiquidDensityBlock& c = substance.rhoLiquid;
    const double T = temperature;
    DensityResult result;
    if (c.Tlo == 0 && c.r1 > missingValue && c.r3 > missingValue) {
        // Kept on purpose: the temperature of the point, r3, is not subtracted here.
        result.rho = Finite(c.r2 * T + c.r1, result.failed);
        return result;
    }
    if (std::abs(c.r1) >= missingValue) {
        result.rho = Finite(LiquidPolynomial(c, T), result.failed);
        if (result.rho < lowestDensity)
            return {0, true, 0};
    } else {
        if (T > c.Tcr)
            return {};
        result.rho = Finite(c.r2 / std::pow(c.r3, 1 + std::pow(1 - T / c.Tcr, c.r4)), result.failed);
    }
    result.deviation = RangeDeviationIfGiven(T, c.Tlo, c.Thi);
    return result;
}

DensityResult SolidDensity(const SubstanceData& substance, float temperature) {
    const SolidDensityBlock& c = substance.rhoSolid;
    const double T = temperature;
    DensityResult result;
    double rho = 0;
    if (c.Tlo > 0 && c.Thi > 0)
        rho = c.s1 + c.s2 * T + c.s3 * T * T + c.s4 * T * T * T;
    else if (c.Tlo == 0 && c.s1 > missingValue)
        rho = c.s1 + c.s2 * T;
    result.rho = Finite(static_cast<float>(rho), result.failed);
    result.deviation = RangeDeviationIfGiven(T, c.Tlo, c.Thi);
    return result;
}

std::optional<Message> LiquidDensityWarning(const DensityResult& result) {
    if (std::abs(result.deviation) <= warnedDeviation)
        return std::nullopt;
    return Message{"Warnung zur Dichtegleichung rho(L) = Fu(T)",
                   RangeWarningText(result.deviation)
                       + "(zum Gültigkeitsbereich der Dichtegleichung vgl. Fenster \"Modelle\")",
                   MessageIcon::Exclamation};
}

std::optional<Message> SolidDensityWarning(const DensityResult& result, const SolidDensityBlock& block) {
    if (std::abs(result.deviation) <= warnedDeviation)
        return std::nullopt;
    return Message{"Warnung zur Dichtegleichung rho(S) = Fu(T)",
                   RangeWarningText(result.deviation) + "(Gültigkeitsbereich: " + std::to_string(block.Tlo)
                       + " ... " + std::to_string(block.Thi) + " K)",
                   MessageIcon::Exclamation};
}

float BensonApproximation(double p, double pc, double rhoc) {
    if (!(p > missingValue))
        return 0;
    const auto rho = static_cast<float>((1.981 + 0.18327 * std::log(pc / p)) * rhoc);
    return std::isfinite(rho) ? rho : 0;
}

double DiameterLiquidDensity(double T, double Tc, double rhoc, double rhoV, double T1, double rhoV1,
                             double rhoL1) {
    const double rho = (rhoL1 + rhoV1) * (T - Tc) / (T1 - Tc) - rhoV + 2 * rhoc * (T1 - T) / (T1 - Tc);
    return std::isfinite(rho) ? rho : 0;
}

} // namespace orva
