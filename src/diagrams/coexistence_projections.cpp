// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "diagrams/projections.h"
#include "state/constants.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr double belowCritical = 5;      // kPa, where the lines over p end before the critical point
constexpr double smallestAbscissa = 0.1; // display units of p
constexpr double pressureGrid = 0.75;    // of the step of the window
constexpr double temperatureGrid = 2;
constexpr double liquidGrid = 0.25; // of the above, where the line lies nearer to the liquid
constexpr double nearerLiquid = 0.5;
constexpr double diameterGrid = 3;
constexpr double diameterGuard = 5.00001; // of the product of both volumes

double OnLine(const CurveRun& run) {
    const auto& roots = run.model.work.Roots;
    return roots[0] + (roots[2] - roots[0]) * run.mode.vapourFraction;
}

double DisplayPv(const CurveRun& run, double p, double v) {
    return p * v * run.options.pFactor * run.options.volumeFactor;
}

void CoexistenceOverP(CurveRun& run, bool density) {
    SubstanceModel& model = run.model;
    const double M = model.substance.molarMass;
    run.curve.SetZKind(zTemperature);
    double T = 0; // start of the next search
    WalkGrid(run, run.spec.xMin, (model.substance.pc - belowCritical) * run.options.pFactor,
             pressureGrid * run.stepX, [&](double x) {
                 const double p = std::max(x, smallestAbscissa) / run.options.pFactor;
                 if (IsBelowTriplePoint(run, p, model.substance.ptrip))
                     return true;
                 const SaturationResult saturation = EosSaturationTemperature(model, p, T);
                 if (saturation.failed)
                     return true;
                 T = saturation.value;
                 const double v = OnLine(run);
                 run.Add(p * run.options.pFactor, density ? M / v : DisplayPv(run, p, v), T);
                 return true;
             });
    if (!run.windowEmpty)
        run.Add(model.substance.pc * run.options.pFactor,
                density ? model.eos.rhoCritCalc : DisplayPv(run, model.substance.pc, model.eos.vCritCalc),
                model.substance.Tc);
}

void CoexistenceTOver(CurveRun& run, bool density) {
    SubstanceModel& model = run.model;
    const double M = model.substance.molarMass;
    const double TFactor = run.options.TFactor;
    run.curve.SetZKind(zPressure);
    const double fine = run.mode.vapourFraction < nearerLiquid ? liquidGrid : 1;
    const double step = temperatureGrid * fine * run.stepY / TFactor;
    run.Add(density ? model.eos.rhoCritCalc : model.eos.vCritCalc * run.options.volumeFactor,
            model.substance.Tc * TFactor, model.substance.pc);
    WalkIntoWindow(run, model.substance.Tc - step, run.spec.yMin / TFactor, -step, [&](double T) {
        if (IsBelowTriplePoint(run, T, model.substance.Ttrip))
            return false;
        const SaturationResult saturation = EosSaturationPressure(model, T);
        if (saturation.failed || !(saturation.value > missingValue))
            return true;
        const double v = OnLine(run);
        run.Add(density ? M / v : v * run.options.volumeFactor, T * TFactor, saturation.value);
        return true;
    });
}

// The densities over T begin at the critical point; without its volume there is no curve.
bool StartAtCriticalDensity(CurveRun& run) {
    const SubstanceModel& model = run.model;
    run.curve.SetZKind(zPressure);
    if (!(model.eos.vCritCalc > missingValue)) {
        run.outcome.status = curveNoCriticalDensity;
        return false;
    }
    run.Add(model.substance.Tc * run.options.TFactor, model.substance.molarMass / model.eos.vCritCalc,
            model.substance.pc);
    return true;
}

} // namespace

void CoexistenceDensityOverP(CurveRun& run) {
    CoexistenceOverP(run, true);
}

void CoexistencePvOverP(CurveRun& run) {
    CoexistenceOverP(run, false);
}

void CoexistenceTOverVolume(CurveRun& run) {
    CoexistenceTOver(run, false);
}

void CoexistenceTOverDensity(CurveRun& run) {
    CoexistenceTOver(run, true);
}

void CoexistenceDensities(CurveRun& run) {
    SubstanceModel& model = run.model;
    if (!StartAtCriticalDensity(run))
        return;
    const double M = model.substance.molarMass;
    const double TFactor = run.options.TFactor;
    WalkIntoWindow(run, model.substance.Tc * TFactor, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = x / TFactor;
        if (IsBelowTriplePoint(run, T, model.substance.Ttrip))
            return false;
        if (T >= model.substance.Tc) // the critical point stands already; no pair of roots belongs to it
            return true;
        const SaturationResult saturation = EosSaturationPressure(model, T);
        const auto& roots = model.work.Roots;
        if (saturation.failed
            || !(roots[0] > model.eos.B && saturation.value > missingValue && roots[2] > missingValue))
            return true;
        const double vVapour = roots[2];
        run.Add(x, M / roots[0], saturation.value);
        run.Add(x, M / vVapour, saturation.value);
        return true;
    });
}

void DensityDiameter(CurveRun& run) {
    SubstanceModel& model = run.model;
    if (!StartAtCriticalDensity(run))
        return;
    const double M = model.substance.molarMass;
    const double TFactor = run.options.TFactor;
    WalkIntoWindow(run, model.substance.Tc, run.spec.xMin / TFactor, -diameterGrid * run.stepX / TFactor,
                   [&](double T) {
                       if (IsBelowTriplePoint(run, T, model.substance.Ttrip))
                           return false;
                       const SaturationResult saturation = EosSaturationPressure(model, T);
                       const double vL = model.work.Roots[0];
                       const double vV = model.work.Roots[2];
                       // Kept on purpose: the guard leaves out the upper part of the line.
                       if (!saturation.failed && vL * vV >= diameterGuard)
                           run.Add(T * TFactor, (M / vL + M / vV) / 2, saturation.value);
                       return true;
                   });
}

} // namespace orva
