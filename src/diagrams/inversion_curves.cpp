// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/inversion_curves.h"

#include <algorithm>
#include <cmath>

#include "state/constants.h"
#include "thermo/phase_volumes.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr int mostMarchSteps = 300;
constexpr double smallestStep = 0.001; // K
constexpr double refinement = -0.1;
constexpr int mostNewtonSteps = 200;
constexpr double pressureIncrement = 0.0001; // kPa
constexpr double relativeTolerance = 0.001;

// The curve starts at low pressure, high in temperature.
constexpr double startPressure = 0.02; // kPa
constexpr double lowCriticalT = 200;   // K, below which a fixed start serves
constexpr double fixedStart = 400;     // K
constexpr int mostStarts = 50;
constexpr double startDistance = 50; // K between two starts
constexpr double upperMarch = -10;   // K
constexpr double lowerMarch = 5;
constexpr double lowerStart = 10.5;
constexpr double leastPressure = 0.03; // kPa, in place of 0

struct Coefficient {
    double delta = 0, v = 0;
    bool failed = true;
    bool twoPhase = false; // both phases side by side
};

// The vapour where it exists; two phases side by side have no coefficient of their own.
Coefficient JouleThomsonAt(SubstanceModel& model, double T, double p) {
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    const bool both = phases.hasL && phases.hasV;
    if (both && phases.rootCount == 3)
        return {0, 0, true, true};
    if (phases.failed || !(phases.hasL || phases.hasV))
        return {};
    const double v = phases.hasV ? phases.vV : phases.vL;
    const ResidualState state = ResidualFunctions(model, T, p, v);
    return {state.table.jouleThomson, v, state.failed, false};
}

bool HasFixedStart(const SubstanceModel& model) {
    return model.substance.Tc < lowCriticalT;
}

InversionResult HighestInversion(SubstanceModel& model) {
    const double Tc = model.substance.Tc;
    if (HasFixedStart(model))
        return JouleThomsonInversionT(model, startPressure, fixedStart, upperMarch, 0, 1.3 * fixedStart);
    double start = 5 * Tc;
    for (int i = 0; i < mostStarts; ++i, start -= startDistance) {
        const InversionResult found =
            JouleThomsonInversionT(model, startPressure, start, upperMarch, 0, 1.3 * start);
        if (!found.failed && found.value > 0)
            return found;
    }
    return {};
}

// The lower branch falls with the pressure. Below its summit it falls faster than the march, which begins
// beside the last temperature, looks back, and would end on the upper branch.
InversionResult LowerInversion(SubstanceModel& model, double p, double lastT) {
    const double highest = 4 * model.substance.Tc;
    const InversionResult found = JouleThomsonInversionT(model, p, lastT, lowerMarch, 0, highest);
    const bool begun = lastT > lowerStart;
    if (begun && !found.failed && found.value > lastT)
        return JouleThomsonInversionT(model, p, lowerStart, lowerMarch, 0, highest);
    return found;
}

// Adds the state at p, T, with p times a factor of its own, since the branches store it differently.
void AddState(CurveRun& run, double p, double pFactor, double T) {
    PhaseVolumes phases;
    EosPhaseVolumes(run.model, T, p, phases);
    if (phases.failed || !(phases.hasL || phases.hasV))
        return;
    const double v = phases.hasL ? phases.vL : phases.vV;
    run.Add(p * pFactor, p * pFactor * v * run.options.volumeFactor, T);
}

double PressureAt(const CurveRun& run, double x) {
    const double p = x / run.options.pFactor;
    return p < missingValue ? leastPressure : p;
}

// Up in p, down in T, until no zero is found any more.
void UpperBranch(CurveRun& run, double T) {
    WalkGrid(run, run.spec.xMin, run.spec.xMax + 2 * run.stepX, 2 * run.stepX, [&](double x) {
        const double p = PressureAt(run, x);
        const InversionResult found = JouleThomsonInversionT(run.model, p, T, upperMarch, 0, 1.3 * T);
        if (found.failed)
            return false;
        T = found.value;
        // Kept on purpose: this branch goes without the factor of the pressure.
        AddState(run, p, 1, T);
        return true;
    });
}

void LowerBranch(CurveRun& run) {
    double T = lowerStart;
    WalkGrid(run, run.spec.xMax + 2 * run.stepX, run.spec.xMin, -2 * run.stepX, [&](double x) {
        const double p = PressureAt(run, x);
        const InversionResult found = LowerInversion(run.model, p, T);
        if (found.failed)
            return true;
        T = found.value;
        AddState(run, p, run.options.pFactor, T);
        return true;
    });
}

} // namespace

InversionResult JouleThomsonInversionT(SubstanceModel& model, double p, double start, double step,
                                       double Tmin, double Tmax) {
    double T = start - 2 * step;
    double last = 0;
    bool begun = false;
    for (int i = 0; i < mostMarchSteps; ++i, T += step) {
        if (!(T > Tmin && T < Tmax))
            return {};
        const Coefficient coefficient = JouleThomsonAt(model, T, p);
        if (coefficient.twoPhase || (!begun && !coefficient.failed && coefficient.delta == 0))
            return {};
        if (coefficient.failed) // near 0 K, where the lower branch begins its march
            continue;
        if (begun && coefficient.delta * last <= 0) {
            step *= refinement;
            if (std::abs(step) < smallestStep)
                return {T, coefficient.v, false};
        }
        last = coefficient.delta;
        begun = true;
    }
    return {};
}

InversionResult JouleThomsonInversionP(SubstanceModel& model, double T, double start) {
    double p = start;
    for (int i = 0; i < mostNewtonSteps; ++i) {
        const Coefficient here = JouleThomsonAt(model, T, p);
        const Coefficient beside = JouleThomsonAt(model, T, p + pressureIncrement);
        const double slope = (beside.delta - here.delta) / pressureIncrement;
        if (here.failed || beside.failed || slope == 0)
            return {};
        const double change = here.delta / slope;
        p -= change;
        if (!(p > 0) || !std::isfinite(p))
            return {};
        if (std::abs(change) / p < relativeTolerance)
            return {p, here.v, false};
    }
    return {};
}

void InversionPvOverP(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    const InversionResult highest = HighestInversion(run.model);
    if (!highest.failed)
        UpperBranch(run, highest.value);
    // Of several starts one must have led to the upper branch. The fixed one lies too low for many gases, and
    // their lower branch is drawn alone.
    if (!highest.failed || HasFixedStart(run.model))
        LowerBranch(run);
    run.givenUp = highest.failed && run.curve.Count() == 0;
}

void InversionPOverT(CurveRun& run) {
    SubstanceModel& model = run.model;
    constexpr double lowestT = 0.5; // K, in place of 0
    run.curve.SetZKind(zVolume);
    double start = model.substance.pc;
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX / 3, [&](double x) {
        const double given = x / run.options.TFactor;
        const double T = given < missingValue ? lowestT : given;
        if (run.options.curveTpRestricted && T < model.substance.Ttrip)
            return false;
        const InversionResult found = JouleThomsonInversionP(model, T, start);
        if (found.value > 0)
            start = found.value;
        if (T < model.substance.Tc) {
            const double pLV = EosSaturationPressure(model, T).value;
            if (found.value > 0 && found.value < pLV) {
                run.Add(T * run.options.TFactor, pLV * run.options.pFactor, model.work.Roots[0]);
                return false;
            }
        }
        if (!found.failed && found.value != 0)
            run.Add(T * run.options.TFactor, found.value * run.options.pFactor, found.v);
        return true;
    });
}

} // namespace orva
