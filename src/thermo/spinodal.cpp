// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/spinodal.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/thermal_derivatives.h"

namespace orva {

namespace {

constexpr double marchStep = 0.0002; // m^3/kmol
constexpr int marchSteps = 12000;    // for each point
constexpr double smallestStep = 1e-12;
constexpr double refinement = -0.1;
constexpr double firstSlope = 0.1; // above the co-volume the second derivative is positive

// Marches until the curvature changes sign, then turns and refines. False when the steps run out.
bool March(SubstanceModel& model, double T, InflectionPoint& point, double previous) {
    double step = marchStep;
    for (int n = 1; n <= marchSteps; ++n) {
        point.v += step;
        point.slope = CubicCurvature(model.eos, T, point.v);
        const double r = previous / point.slope;
        previous = point.slope;
        if (r > 0)
            continue;
        step *= refinement;
        if (std::abs(step) >= smallestStep)
            continue;
        const PressureResult pressure = EosPressure(model, T, point.v);
        point.p = pressure.p;
        return !pressure.failed && std::isfinite(point.p);
    }
    return false;
}

double PressureSlope(const EosParameters& eos, double T, double v) {
    const double u = v - eos.B;
    const double W = (v + eos.C) * (v + eos.D);
    return eos.A * (2 * v + eos.C + eos.D) / (W * W) - gasConstant * T / (u * u);
}

// Zero of dp/dv between a volume of negative and one of positive slope.
double BisectSlope(const EosParameters& eos, double T, double negative, double positive) {
    for (int i = 0; i < 200 && std::abs(positive - negative) > 1e-15 * positive; ++i) {
        const double middle = 0.5 * (negative + positive);
        (PressureSlope(eos, T, middle) > 0 ? positive : negative) = middle;
    }
    return 0.5 * (negative + positive);
}

// A volume of positive slope between the branches, 0 if there is none: the largest slope on a geometric grid.
double UnstableVolume(const EosParameters& eos, double T, double vCrit) {
    double best = 0;
    double bestSlope = 0;
    if (!(eos.A > 0 && eos.B > 0))
        return 0;
    for (double v = eos.B * 1.02; v < 40 * vCrit; v *= 1.01) {
        const double slope = PressureSlope(eos, T, v);
        if (slope > bestSlope) {
            bestSlope = slope;
            best = v;
        }
    }
    return best;
}

} // namespace

SpinodalSearch FindSpinodal(SubstanceModel& model, double T) {
    SpinodalSearch search;
    if (model.selection.nonCubic) {
        search.failed = true;
        return search;
    }
    SetEosCoefficients(model, T);
    InflectionPoint& first = search.points[0];
    first.v = model.eos.B;
    if (!March(model, T, first, firstSlope)) {
        first = {};
        search.failed = true;
        return search;
    }
    InflectionPoint& second = search.points[1];
    second.v = first.v + 1e-6;
    const double previous = CubicCurvature(model.eos, T, second.v);
    second.v -= marchStep;
    if (!March(model, T, second, previous))
        second = {};
    return search;
}

SpinodalPoints SpinodalVolumes(SubstanceModel& model, double T) {
    SpinodalPoints points;
    points.failed = true;
    if (model.selection.nonCubic || !(T > 0 && T < model.substance.Tc))
        return points;
    SetEosCoefficients(model, T);
    const EosParameters& eos = model.eos;
    const double middle = UnstableVolume(eos, T, eos.vCritCalc);
    if (middle == 0)
        return points;
    double low = middle;
    while (PressureSlope(eos, T, low) >= 0)
        low = eos.B + 0.5 * (low - eos.B);
    double high = middle;
    while (PressureSlope(eos, T, high) >= 0 && high < 1e6)
        high *= 2;
    points.v = {BisectSlope(eos, T, low, middle), BisectSlope(eos, T, high, middle)};
    for (int i = 0; i < 2; ++i) {
        const double v = points.v[static_cast<std::size_t>(i)];
        const double p = gasConstant * T / (v - eos.B) - (eos.A / (eos.C + v)) / (eos.D + v);
        points.p[static_cast<std::size_t>(i)] = p;
    }
    points.failed = !std::isfinite(points.p[0] + points.p[1]);
    return points;
}

} // namespace orva
