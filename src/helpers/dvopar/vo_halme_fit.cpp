// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/vo_halme_fit.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "helpers/dvopar/fit_data.h"
#include "helpers/dvopar/least_squares.h"
#include "helpers/dvopar/saturated_state.h"
#include "state/constants.h"
#include "state/substance_model.h"
#include "thermo/cubic_equation.h"
#include "thermo/vo_halme_constants.h"

namespace orva::dvopar {

namespace {

enum Parameter : std::size_t { pZeta, pM1, pM2, pM3, pK };

constexpr std::array<double, 3> startsOfZeta = {0.30, 0.27, 0.33};
// s >= 0, and with it real C and D, needs zeta <= 3/8.
constexpr std::array<double, 4> lowest = {0.20, 0.02, -10, -20};
constexpr std::array<double, 4> highest = {0.37, 4, 10, 20};
// k must not turn the co-volume away from its critical value by more than 90 % up to the temperatures at
// which the heat capacities of gases end.
constexpr double largestK = 0.2, largestTurn = 0.9, hottest = 1500; // K
// What pulls m2 and m3 to 0 where the data leave them open. The stronger ones are for data that would bend
// the temperature function too far.
constexpr std::array<double, 5> pulls = {0.02, 0.5, 5, 50, 5000};
constexpr double kPull = 1;
constexpr double lowestReduced = 0.3; // down to here the temperature function must fall
constexpr int soundnessSteps = 140;
constexpr double worstMeanDeviation = 0.3; // of ln p or ln rho: more is no description of the substance

// The equation of state with one set of parameters, evaluated by the property models themselves.
class Equation {
public:
    Equation(const SubstanceData& substance, int row) {
        model.substance = substance;
        model.selection.eos = static_cast<std::int16_t>(row);
    }

    bool Take(const Values& x) {
        VoHalmeParameters& vh = model.voHalme;
        vh.zeta = x[pZeta];
        vh.m1 = x[pM1];
        vh.m2 = x[pM2];
        vh.m3 = x[pM3];
        vh.k = x.size() > pK ? x[pK] : 0;
        return SetVoHalmeConstants(model);
    }

    Isotherm At(double T) {
        SetEosCoefficients(model, T);
        return {gasConstant * T, model.eos.A, model.eos.B, model.eos.C, model.eos.D, model.eos.vCritCalc};
    }

    const SubstanceModel& Model() const { return model; }

private:
    SubstanceModel model;
};

// ln of calculated over given value; not a number where the equation has no equilibrium.
double LogDeviation(Equation& equation, const FitPoint& point) {
    const SaturatedState state = Saturate(equation.At(point.T), point.pStart);
    if (state.failed)
        return std::nan("");
    const double calculated =
        point.kind == FitPoint::Kind::Pressure ? state.p : equation.Model().substance.molarMass / state.vL;
    return std::log(calculated / point.value);
}

Values ResidualsAt(Equation& equation, const std::vector<FitPoint>& points, const Values& x, double pull) {
    if (!equation.Take(x))
        return {};
    Values residuals;
    residuals.reserve(points.size() + 3);
    for (const FitPoint& point : points) {
        const double deviation = LogDeviation(equation, point);
        if (!std::isfinite(deviation))
            return {};
        residuals.push_back(point.weight * deviation);
    }
    residuals.push_back(pull * x[pM2]);
    residuals.push_back(pull * x[pM3]);
    if (x.size() > pK)
        residuals.push_back(kPull * x[pK]);
    return residuals;
}

// The slope at T(cr) of the Peng/Robinson function, carried over to the exponent 3/4. Peng, Robinson, Ind.
// Eng. Chem. Fundam. 15 (1976) 59.
double StartOfM1(double omega) {
    const double m = 0.37464 + 1.54226 * omega - 0.26992 * omega * omega;
    return std::clamp(m * 2 / 3, 0.1, 3.0);
}

double BoundOfK(double Tc) {
    const double distance = hottest / Tc - 1;
    return std::min(largestK, largestTurn / (distance * distance));
}

LeastSquaresResult BestFit(Equation& equation, const std::vector<FitPoint>& points, double omega, int row,
                           double pull) {
    Values low(lowest.begin(), lowest.end());
    Values high(highest.begin(), highest.end());
    if (row == eosVoHalme2) {
        high.push_back(BoundOfK(equation.Model().substance.Tc));
        low.push_back(-high.back());
    }
    LeastSquaresResult best{{}, 0, true};
    for (const double zeta : startsOfZeta) {
        Values start(low.size(), 0.0);
        start[pZeta] = zeta;
        start[pM1] = StartOfM1(omega);
        const LeastSquaresResult fit = MinimiseSquares(
            [&](const Values& x) { return ResidualsAt(equation, points, x, pull); }, start, low, high);
        if (!fit.failed && (best.failed || fit.sum < best.sum))
            best = fit;
    }
    return best;
}

bool IsSound(Equation& equation, const Values& x) {
    if (!equation.Take(x))
        return false;
    const double Tc = equation.Model().substance.Tc;
    double above = equation.Model().voHalme.ac;
    for (int i = 1; i <= soundnessSteps; ++i) {
        const Isotherm isotherm = equation.At(Tc * (1 - (1 - lowestReduced) * i / soundnessSteps));
        if (!(isotherm.A > above && isotherm.B > 0))
            return false;
        above = isotherm.A;
    }
    return true;
}

double MeanDeviation(Equation& equation, const std::vector<FitPoint>& points) {
    double sum = 0;
    for (const FitPoint& point : points)
        sum += std::abs(LogDeviation(equation, point));
    return sum / static_cast<double>(points.size());
}

} // namespace

VoHalmeFit FitVoHalme(const Request& request) {
    const std::vector<FitPoint> points = FitPoints(request);
    if (points.empty())
        return {std::nullopt, "the request holds nothing that can be fitted"};
    Equation equation(request.substance, request.row);
    for (const double pull : pulls) {
        const LeastSquaresResult fit = BestFit(equation, points, AcentricFactor(request), request.row, pull);
        if (fit.failed)
            return {std::nullopt, "no equilibrium of the equation of state at the given temperatures"};
        if (!IsSound(equation, fit.x))
            continue;
        if (!(MeanDeviation(equation, points) < worstMeanDeviation))
            return {std::nullopt, "the data of the request contradict each other: no acceptable fit"};
        return {equation.Model().voHalme, ""};
    }
    return {std::nullopt, "no sound temperature function fits the data of the request"};
}

} // namespace orva::dvopar
