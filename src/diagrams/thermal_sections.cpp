// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/thermal_sections.h"

#include <cmath>

#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

bool HasLoop(const CurveRun& run) {
    return !run.model.selection.nonCubic && run.T < run.model.substance.Tc;
}

void OnePhaseIsotherm(CurveRun& run) {
    const double volumeFactor = run.options.volumeFactor;
    const double pFactor = run.options.pFactor;
    WalkGrid(run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const PressureResult pressure = EosPressure(run.model, run.T, x / volumeFactor);
        if (!pressure.failed)
            run.Add(x, pressure.p * pFactor, run.T);
    });
}

// Which grid points of a subcritical isotherm are kept.
bool IsKept(const CurveRun& run, double v, double vLiquid, double vVapour) {
    if (run.options.sCurveWithoutTieLine)
        return true;
    const bool outside = v <= vLiquid || v >= vVapour;
    return outside != run.mode.sCurveMode;
}

void IsothermWithLoop(CurveRun& run) {
    const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
    if (saturation.failed)
        return;
    const double vLiquid = run.model.work.Roots[0];
    const double vVapour = run.model.work.Roots[2];
    const double volumeFactor = run.options.volumeFactor;
    const double pFactor = run.options.pFactor;
    WalkGrid(run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const double v = x / volumeFactor;
        if (v <= run.model.eos.B || !IsKept(run, v, vLiquid, vVapour))
            return;
        const PressureResult pressure = EosPressure(run.model, run.T, v);
        if (!pressure.failed)
            run.Add(x, pressure.p * pFactor, run.T);
    });
    run.AddOutsideTest(vLiquid * volumeFactor, saturation.value * pFactor, run.T);
    run.AddOutsideTest(vVapour * volumeFactor, saturation.value * pFactor, run.T);
}

} // namespace

void IsothermPv(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    if (HasLoop(run))
        IsothermWithLoop(run);
    else
        OnePhaseIsotherm(run);
    SortCurveByX(run.curve.Count(), run.curve);
}

TieLine IsothermPvTieLine(CurveRun& run) {
    TieLine tie;
    tie.failed = true;
    if (!(run.T < run.model.substance.Tc))
        return tie;
    const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
    if (saturation.failed)
        return tie;
    tie.x1 = static_cast<float>(run.model.work.Roots[0] * run.options.volumeFactor);
    tie.x2 = static_cast<float>(run.model.work.Roots[2] * run.options.volumeFactor);
    tie.y1 = tie.y2 = static_cast<float>(saturation.value * run.options.pFactor);
    tie.failed = !std::isfinite(tie.x1 + tie.x2 + tie.y1); // a vapour volume beyond single precision
    if (tie.failed)
        tie.x1 = tie.x2 = tie.y1 = tie.y2 = 0;
    return tie;
}

} // namespace orva
