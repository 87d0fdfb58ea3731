// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "diagrams/thermal_sections.h"
#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr int loopSteps = 20000;
constexpr double isochorReach = 0.8; // of a step beyond the end of the window

double AbscissaOf(const CurveRun& run, double v, bool density) {
    return density ? run.model.substance.molarMass / v : v * run.options.volumeFactor;
}

// Left out where only real states are wanted; a virial gas without volume of its own has no triple point.
bool IsLeftOut(const CurveRun& run, double T) {
    const bool exempt = run.model.selection.nonCubic && run.model.selection.eos <= 0;
    return !exempt && IsBelowTriplePoint(run, T, run.model.substance.Ttrip);
}

void VirialIsobar(CurveRun& run, bool density) {
    WalkGrid(run, run.spec.yMin, run.spec.yMax, run.stepY, [&](double y) {
        const double T = y / run.options.TFactor;
        if (IsLeftOut(run, T))
            return true;
        const double v = gasConstant * T / run.p + VirialCoefficientB(run.model, run.model.selection.eos, T);
        if (v > 0)
            run.Add(AbscissaOf(run, v, density), y, run.p);
        return true;
    });
}

// One branch above p(cr); below it liquid and vapour, with the saturated ends.
void CubicIsobar(CurveRun& run, bool density) {
    const bool subcritical = run.p < run.model.substance.pc;
    double TLV = 0;
    std::array<double, 3> found{};
    if (subcritical) {
        const SaturationResult saturation = EosSaturationTemperature(run.model, run.p);
        if (saturation.failed)
            return;
        TLV = saturation.value;
        found = run.model.work.Roots;
    }
    WalkGrid(run, run.spec.yMin, run.spec.yMax, run.stepY, [&](double y) {
        const double T = y / run.options.TFactor;
        if (IsLeftOut(run, T))
            return true;
        SetEosCoefficients(run.model, T);
        const CubicSolution cubic = SolveEosCubic(run.model, T, run.p);
        if (cubic.failed || cubic.rootCount == 0)
            return true;
        const bool first = !subcritical || T < TLV || cubic.rootCount == 1;
        const double v = run.model.work.Roots[first ? 0 : 2];
        if (v > run.model.eos.B)
            run.Add(AbscissaOf(run, v, density), y, run.p);
        return true;
    });
    if (!subcritical)
        return;
    SetEosCoefficients(run.model, TLV);
    const std::array<double, 3> ends =
        SolveEosCubic(run.model, TLV, run.p).rootCount == 3 ? run.model.work.Roots : found;
    for (const double v : {ends[0], ends[2]})
        run.Add(AbscissaOf(run, v, density), TLV * run.options.TFactor, run.p);
}

void IsobarLoop(CurveRun& run, bool density) {
    const SaturationResult saturation = EosSaturationTemperature(run.model, run.p);
    if (saturation.failed)
        return;
    const double vVapour = run.model.work.Roots[2];
    double v = run.model.work.Roots[0];
    const double step = (vVapour - v) / loopSteps;
    const double thinning = std::abs(run.stepX);
    const double M = run.model.substance.molarMass;
    double lastX = 0;
    for (int i = 0; i <= loopSteps; ++i, v += step) {
        const double x = AbscissaOf(run, v, density);
        if (std::abs(x - lastX) < thinning)
            continue;
        const double T = EosTemperature(run.model, run.p, M / v, true);
        if (!(T > 0))
            continue;
        run.Add(x, T * run.options.TFactor, run.p);
        lastX = x;
    }
    run.AddOutsideTest(AbscissaOf(run, vVapour, density), saturation.value * run.options.TFactor, run.p);
}

void IsobarSection(CurveRun& run, bool density) {
    if (run.model.selection.nonCubic)
        VirialIsobar(run, density);
    else if (run.mode.sCurveMode && run.p < run.model.substance.pc)
        IsobarLoop(run, density);
    else
        CubicIsobar(run, density);
    SortCurveByX(run.curve.Count(), run.curve);
}

double SaturationPressureInForce(CurveRun& run, double T) {
    SubstanceModel& model = run.model;
    if (model.selection.eosPriority)
        return EosSaturationPressure(model, T).value;
    return VapourPressure(model.substance, T, model.selection.vaporPressure).value;
}

} // namespace

void IsobarOverVolume(CurveRun& run) {
    IsobarSection(run, false);
}

void IsobarOverDensity(CurveRun& run) {
    IsobarSection(run, true);
}

void IsochorSection(CurveRun& run) {
    SubstanceModel& model = run.model;
    const double vCrit = model.eos.vCritCalc;
    const bool stops = run.options.curveTpRestricted && model.selection.eos > 0;
    run.curve.SetZKind(zVolume);
    WalkClampedGrid(
        run, run.spec.xMax, run.spec.xMin, -run.stepX,
        [&](double x) {
            const double T = x / run.options.TFactor;
            if (stops && T < model.substance.Ttrip)
                return false;
            const double pLV = SaturationPressureInForce(run, T);
            const PressureResult pressure = EosPressure(model, T, run.v);
            const bool meets =
                run.options.curveTpRestricted && pLV > 0 && !pressure.failed
                && ((run.v > vCrit && pressure.p > pLV) || (run.v < vCrit && pressure.p < pLV));
            const double p = meets ? pLV : pressure.p;
            if (!pressure.failed && p > missingValue)
                run.Add(x, p * run.options.pFactor, run.v);
            return !meets;
        },
        isochorReach);
}

} // namespace orva
