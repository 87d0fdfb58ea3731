// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/fit_data.h"

#include <algorithm>
#include <cmath>

#include "state/constants.h"
#include "state/model_selection.h"
#include "thermo/density_correlations.h"
#include "thermo/vapour_pressure.h"

namespace orva::dvopar {

namespace {

constexpr int pointsPerEquation = 30;
constexpr double lowestReduced = 0.5, highestReduced = 0.99;
constexpr double shortestRange = 0.02; // of T(cr); a shorter one is no equation to fit to
constexpr double acentricReduced = 0.7;
constexpr double anchorPoints = 10; // what the acentric factor counts, in points
// Expected relative deviations: the temperature function can follow the pressure closely, while one critical
// factor has to serve the density of the whole range.
constexpr double pressureDeviation = 0.005, densityDeviation = 0.03;
constexpr double largestPressure = 1.2; // of p(cr): more is no vapour pressure

// A range that is not told is the whole one.
Range Usable(Range range, double Tc) {
    if (range.low <= 0 && range.high <= 0)
        return {lowestReduced * Tc, highestReduced * Tc};
    return {std::max(range.low, lowestReduced * Tc), std::min(range.high, highestReduced * Tc)};
}

// p / p(cr).
double LeeKesler(double Tr, double omega) {
    const double lnTr = std::log(Tr);
    const double Tr6 = std::pow(Tr, 6);
    const double f0 = 5.92714 - 6.09648 / Tr - 1.28862 * lnTr + 0.169347 * Tr6;
    const double f1 = 15.2518 - 15.6875 / Tr - 13.4721 * lnTr + 0.43577 * Tr6;
    return std::exp(f0 + omega * f1);
}

double RackettDensity(const SubstanceData& s, double T, double omega) {
    const double factor = 0.29056 - 0.08775 * omega;
    const double exponent = 1 + std::pow(1 - T / s.Tc, 2.0 / 7.0);
    return s.molarMass * s.pc / (gasConstant * s.Tc * std::pow(factor, exponent));
}

class PointTable {
public:
    explicit PointTable(const Request& ownRequest)
        : request(ownRequest), Tc(ownRequest.substance.Tc), omega(AcentricFactor(ownRequest)) {}

    std::vector<FitPoint> Fill() {
        TakePressures();
        if (request.densityPoint)
            TakeSinglePoint();
        else
            TakeDensities();
        return std::move(points);
    }

private:
    void TakePressures() {
        const Range range = Usable(request.pressureRange, Tc);
        const bool equation = request.vapourPressure != vpNone && LongEnough(range);
        if (equation)
            Sample(range, FitPoint::Kind::Pressure, [this](double T) { return EquationPressure(T); });
        if (points.empty()) {
            Sample(Usable({}, Tc), FitPoint::Kind::Pressure,
                   [this](double T) { return EstimatedPressure(T); });
        } else if (request.substance.omega != 0
                   && (range.low > acentricReduced * Tc || range.high < acentricReduced * Tc)) {
            const double p = request.substance.pc * std::pow(10.0, -1 - request.substance.omega);
            Add(FitPoint::Kind::Pressure, acentricReduced * Tc, p, anchorPoints);
        }
    }

    void TakeDensities() {
        const std::size_t before = points.size();
        const Range range = Usable(request.densityRange, Tc);
        if (request.densityEquation && LongEnough(range))
            Sample(range, FitPoint::Kind::Density, [this](double T) {
                const DensityResult density = LiquidDensity(request.substance, static_cast<float>(T));
                return density.failed ? 0.0 : density.rho;
            });
        if (points.size() == before)
            Sample(Usable({}, Tc), FitPoint::Kind::Density,
                   [this](double T) { return RackettDensity(request.substance, T, omega); });
    }

    void TakeSinglePoint() {
        const LiquidDensityBlock& block = request.substance.rhoLiquid;
        if (block.r3 < lowestReduced * Tc || block.r3 > highestReduced * Tc)
            TakeDensities();
        else
            Add(FitPoint::Kind::Density, block.r3, block.r1, pointsPerEquation);
    }

    bool LongEnough(Range range) const { return range.high - range.low > shortestRange * Tc; }

    double EquationPressure(double T) const {
        const VapourPressureResult p = VapourPressure(request.substance, T, request.vapourPressure);
        return p.failed || p.value > largestPressure * request.substance.pc ? 0 : p.value;
    }

    double EstimatedPressure(double T) const { return request.substance.pc * LeeKesler(T / Tc, omega); }

    template<typename Function> void Sample(Range range, FitPoint::Kind kind, Function value) {
        for (int i = 0; i < pointsPerEquation; ++i) {
            const double T = range.low + (range.high - range.low) * i / (pointsPerEquation - 1);
            Add(kind, T, value(T), 1);
        }
    }

    // `count`: how many points of an equation this one stands for.
    void Add(FitPoint::Kind kind, double T, double value, double count) {
        if (!(value > 0) || !std::isfinite(value))
            return;
        FitPoint point{kind, T, value, 0, 0};
        const bool pressure = kind == FitPoint::Kind::Pressure;
        point.weight = std::sqrt(count) / (pressure ? pressureDeviation : densityDeviation);
        const double p = pressure ? value : EquationPressure(T);
        point.pStart = p > 0 ? p : EstimatedPressure(T);
        points.push_back(point);
    }

    const Request& request;
    const double Tc;
    const double omega;
    std::vector<FitPoint> points;
};

} // namespace

double AcentricFactor(const Request& request) {
    const SubstanceData& s = request.substance;
    if (s.omega != 0)
        return s.omega;
    const VapourPressureResult p = VapourPressure(s, acentricReduced * s.Tc, request.vapourPressure);
    return p.failed ? 0 : -std::log(p.value / s.pc) / ln10 - 1;
}

std::vector<FitPoint> FitPoints(const Request& request) {
    return PointTable(request).Fill();
}

} // namespace orva::dvopar
