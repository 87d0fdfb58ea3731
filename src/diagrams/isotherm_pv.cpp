// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/thermal_sections.h"

#include <cmath>

#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

void OnePhaseIsotherm(CurveRun& run) {
    const double volumeFactor = run.options.volumeFactor;
    const double pFactor = run.options.pFactor;
    WalkGrid(run, run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const PressureResult pressure = EosPressure(run.model, run.T, x / volumeFactor);
        if (!pressure.failed)
            run.Add(x, pressure.p * pFactor, run.T);
        return true;
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
    WalkGrid(run, run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const double v = x / volumeFactor;
        if (v <= run.model.eos.B || !IsKept(run, v, vLiquid, vVapour))
            return true;
        const PressureResult pressure = EosPressure(run.model, run.T, v);
        if (!pressure.failed)
            run.Add(x, pressure.p * pFactor, run.T);
        return true;
    });
    run.AddOutsideTest(vLiquid * volumeFactor, saturation.value * pFactor, run.T);
    run.AddOutsideTest(vVapour * volumeFactor, saturation.value * pFactor, run.T);
}

} // namespace

void IsothermPv(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    if (run.HasLoop())
        IsothermWithLoop(run);
    else
        OnePhaseIsotherm(run);
    SortCurveByX(run.curve.Count(), run.curve);
}

} // namespace orva
