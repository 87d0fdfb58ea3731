// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "diagrams/thermal_sections.h"
#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr double lowestSubcriticalP = 0.01;    // kPa
constexpr double lowestSupercriticalP = 1e-10; // kPa
constexpr int pvLoopSteps = 20000;
constexpr int densityLoopSteps = 200;

// What the ordinate shows of a state.
struct IsothermOrdinate {
    // The display value of a volume at p.
    double (*ofVolume)(const CurveRun&, double p, double v);
};

double PvOf(const CurveRun& run, double p, double v) {
    return p * v * run.options.pFactor * run.options.volumeFactor;
}
double DensityOf(const CurveRun& run, double, double v) {
    return run.model.substance.molarMass / v;
}

// p v by the equation itself, which the volume root reaches only through cancelling at low pressure.
double PvOfEquation(const EosParameters& eos, double T, double v) {
    return gasConstant * T * v / (v - eos.B) - eos.A * v / ((v + eos.C) * (v + eos.D));
}

// The virial gas up to its own vapour pressure where only the gas is wanted.
double UpperPressure(const CurveRun& run) {
    const bool gasOnly =
        run.model.selection.nonCubic && run.options.partialCurveGasOnly && run.T < run.model.substance.Tc;
    return gasOnly ? run.outcome.pSatCurve * static_cast<double>(run.options.pFactor) : run.spec.xMax;
}

void VirialIsotherm(CurveRun& run, bool density) {
    const double B = run.model.work.BVirial;
    const double RT = gasConstant * run.T;
    WalkClampedGrid(run, run.spec.xMin, UpperPressure(run), run.stepX, [&](double x) {
        double p = x / run.options.pFactor;
        if (density) {
            p = std::max(p, lowestSupercriticalP);
            run.Add(p * run.options.pFactor, DensityOf(run, p, RT / p + B), run.T);
        } else {
            run.Add(x, (RT + B * p) * run.options.pFactor * run.options.volumeFactor, run.T);
        }
        return true;
    });
}

// The one root above T(cr). At very low pressure rounding adds two that are none, the first below b.
double OneRoot(const SubstanceModel& model) {
    const auto& roots = model.work.Roots;
    return roots[0] > model.eos.B ? roots[0] : roots[2];
}

void SupercriticalIsotherm(CurveRun& run, bool density) {
    WalkClampedGrid(run, run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const double p = std::max(x / run.options.pFactor, lowestSupercriticalP);
        const CubicSolution cubic = SolveEosCubic(run.model, run.T, p);
        const double v = OneRoot(run.model);
        if (cubic.failed || cubic.rootCount == 0 || v <= run.model.eos.B)
            return true;
        const double pv = PvOfEquation(run.model.eos, run.T, v);
        const double y = density ? run.model.substance.molarMass / (pv / p)
                                 : pv * run.options.pFactor * run.options.volumeFactor;
        run.Add(p * run.options.pFactor, y, run.T);
        return true;
    });
}

// The root that is stable at p.
double StableRoot(const SubstanceModel& model, const CubicSolution& cubic, bool liquidSide) {
    return cubic.rootCount == 1 || liquidSide ? model.work.Roots[0] : model.work.Roots[2];
}

void SubcriticalIsotherm(CurveRun& run, const IsothermOrdinate& ordinate) {
    const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
    if (saturation.failed)
        return;
    const double pLV = saturation.value;
    const std::array<double, 3> found = run.model.work.Roots;
    WalkClampedGrid(run, run.spec.xMin, run.spec.xMax, run.stepX, [&](double x) {
        const double p = std::max(x / run.options.pFactor, lowestSubcriticalP);
        const CubicSolution cubic = SolveEosCubic(run.model, run.T, p);
        if (cubic.failed || cubic.rootCount == 0)
            return true;
        const double v = StableRoot(run.model, cubic, p > pLV);
        if (v > run.model.eos.B)
            run.Add(p * run.options.pFactor, ordinate.ofVolume(run, p, v), run.T);
        return true;
    });
    const double x = pLV * run.options.pFactor;
    const std::array<double, 3> ends =
        SolveEosCubic(run.model, run.T, pLV).rootCount == 3 ? run.model.work.Roots : found;
    run.AddOutsideTest(x, ordinate.ofVolume(run, pLV, ends[2]), run.T);
    run.AddOutsideTest(x, ordinate.ofVolume(run, pLV, ends[0]), run.T);
    SortCurveByX(run.curve.Count(), run.curve);
}

// The loop between the saturated volumes, from the vapour to the liquid. Points closer than `thinning` to the
// last one in x are left out.
void IsothermLoop(CurveRun& run, const IsothermOrdinate& ordinate, int steps, double thinning) {
    const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
    if (saturation.failed)
        return;
    const double vLiquid = run.model.work.Roots[0];
    const double vVapour = run.model.work.Roots[2];
    const double step = (vVapour - vLiquid) / steps;
    double v = vVapour;
    double lastX = 0;
    for (int i = 0; i <= steps; ++i, v -= step) {
        const PressureResult pressure = EosPressure(run.model, run.T, v);
        const double x = pressure.p * run.options.pFactor;
        if (pressure.failed || std::abs(x - lastX) < thinning)
            continue;
        run.Add(x, ordinate.ofVolume(run, pressure.p, v), run.T);
        lastX = x;
    }
    run.AddOutsideTest(saturation.value * run.options.pFactor,
                       ordinate.ofVolume(run, saturation.value, vLiquid), run.T);
}

void PressureIsotherm(CurveRun& run, bool density) {
    run.curve.SetZKind(zTemperature);
    const IsothermOrdinate ordinate{density ? DensityOf : PvOf};
    if (run.model.selection.nonCubic)
        VirialIsotherm(run, density); // not sorted, so that it ends where its grid ends
    else if (!run.HasLoop()) {
        SupercriticalIsotherm(run, density);
        SortCurveByX(run.curve.Count(), run.curve);
    } else if (run.mode.sCurveMode)
        IsothermLoop(run, ordinate, density ? densityLoopSteps : pvLoopSteps,
                     density ? 0 : 0.5 * std::abs(run.stepX));
    else
        SubcriticalIsotherm(run, ordinate);
}

} // namespace

void IsothermPvOverP(CurveRun& run) {
    PressureIsotherm(run, false);
}

void IsothermDensityOverP(CurveRun& run) {
    PressureIsotherm(run, true);
}

} // namespace orva
