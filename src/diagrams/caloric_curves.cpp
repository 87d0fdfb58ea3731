// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/caloric_curves.h"

#include <algorithm>
#include <cmath>

#include "diagrams/catalogue.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr int isobarLoopSteps = 40000;
constexpr int isothermLoopSteps = 50000;
constexpr double isobarThinning = 1.5;    // of a step in x
constexpr double lowestP = 0.1;           // kPa, of a window that begins at 0
constexpr double insteadOfTension = 0.01; // kPa, for the negative pressures of a loop

// The function of the row for one phase; false where a model fails.
bool AddState(CurveRun& run, double x, double T, double p, double v, double z) {
    const CaloricResult state = CaloricState(run.model, T, p, v, run.Ambient());
    if (state.failed)
        return false;
    run.AddTestingY(x, state.values.*run.row.property.y * run.options.energyFactor, z);
    return true;
}

// Both ends of the jump, in the order of their numbers.
void AddTieLineEnds(CurveRun& run) {
    const TieLine& tie = run.outcome.tie;
    run.AddTestingY(tie.x1, tie.y1, 0);
    run.AddTestingY(tie.x2, tie.y2, 0);
}

struct OnePhase {
    double p = 0, v = 0;
    bool exists = false;
    bool ends = false; // the loop has left the states with a pressure
};

OnePhase StateAt(CurveRun& run, double T) {
    if (run.spec.curveKind == curveIsochor) {
        const PressureResult pressure = EosPressure(run.model, T, run.v);
        return {pressure.p, run.v, !pressure.failed, !pressure.failed && pressure.p <= 0};
    }
    PhaseVolumes phases;
    EosPhaseVolumes(run.model, T, run.p, phases);
    return {run.p, phases.hasL ? phases.vL : phases.vV, !phases.failed && (phases.hasL || phases.hasV),
            false};
}

double LowerTemperature(const CurveRun& run) {
    const bool gasOnly =
        run.options.partialCurveGasOnly && run.model.selection.nonCubic && run.p < run.model.substance.pc;
    return gasOnly ? run.outcome.TSatCurve * static_cast<double>(run.options.TFactor) : run.spec.xMin;
}

// The loop of an isobar between the saturated volumes. Not sorted: it runs forth and back in T.
void IsobarLoop(CurveRun& run) {
    const SaturationResult saturation = EosSaturationTemperature(run.model, run.p);
    if (saturation.failed)
        return;
    double v = run.model.work.Roots[0];
    const double vVapour = run.model.work.Roots[2];
    const double step = (vVapour - v) / isobarLoopSteps;
    const double thinning = isobarThinning * std::abs(run.stepX);
    const double M = run.model.substance.molarMass;
    double lastX = 0;
    for (int i = 0; i <= isobarLoopSteps; ++i, v += step) {
        const double T = EosTemperature(run.model, run.p, M / v, true);
        const double x = T * run.options.TFactor;
        if (!(T > 0) || std::abs(x - lastX) < thinning)
            continue;
        run.UseTemperature(T);
        if (AddState(run, x, T, run.p, v, 0))
            lastX = x;
    }
    run.UseTemperature(saturation.value);
    AddState(run, saturation.value * run.options.TFactor, saturation.value, run.p, vVapour, 0);
}

void IsothermLoop(CurveRun& run) {
    const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
    if (saturation.failed)
        return;
    double v = run.model.work.Roots[0];
    const double vVapour = run.model.work.Roots[2];
    const double step = (vVapour - v) / isothermLoopSteps;
    const double thinning = std::abs(run.stepX);
    double lastX = 0;
    for (int i = 0; i <= isothermLoopSteps; ++i, v += step) {
        const PressureResult pressure = EosPressure(run.model, run.T, v);
        const double x = pressure.p * run.options.pFactor;
        if (pressure.failed || pressure.p < 0 || std::abs(x - lastX) < thinning)
            continue;
        if (AddState(run, x, run.T, pressure.p, v, 0))
            lastX = x;
    }
    AddState(run, saturation.value * run.options.pFactor, run.T, saturation.value, vVapour, 0);
}

} // namespace

void CaloricOverT(CurveRun& run) {
    const bool isobar = run.spec.curveKind != curveIsochor;
    if (isobar && run.mode.sCurveMode && !run.model.selection.nonCubic && run.p < run.model.substance.pc) {
        IsobarLoop(run);
        return;
    }
    const bool mayJump = isobar && run.p < run.model.substance.pc && run.HasTieLine();
    double TLV = mayJump ? EosSaturationTemperature(run.model, run.p).value : passed;
    const double TFactor = run.options.TFactor;
    WalkClampedGrid(run, run.spec.xMax, LowerTemperature(run), -run.stepX, [&](double x) {
        double T = x / TFactor;
        if (!PassesTriplePoint(run, T, run.model.substance.Ttrip, TripRule::Stop))
            return false;
        if (std::abs(T - TLV) * TFactor < std::abs(run.stepX)) {
            AddTieLineEnds(run);
            T = TLV - besideTieLine;
            TLV = passed;
        }
        run.UseTemperature(T);
        const OnePhase state = StateAt(run, T);
        if (state.ends)
            return false;
        if (state.exists)
            AddState(run, T * TFactor, T, state.p, state.v, 0);
        return true;
    });
    SortCurveByX(run.curve.Count(), run.curve);
}

void CaloricOverP(CurveRun& run) {
    if (run.mode.sCurveMode && run.HasLoop()) {
        IsothermLoop(run);
        return;
    }
    const double pFactor = run.options.pFactor;
    const bool gasOnly =
        run.options.partialCurveGasOnly && run.model.selection.nonCubic && run.T < run.model.substance.Tc;
    const double high = gasOnly ? run.outcome.pSatCurve * pFactor : static_cast<double>(run.spec.xMax);
    const double low = run.spec.xMin > 0 ? static_cast<double>(run.spec.xMin) : lowestP * pFactor;
    const bool mayJump = run.HasLoop() && run.HasTieLine();
    double pLV = mayJump ? EosSaturationPressure(run.model, run.T).value : passed;
    WalkClampedGrid(run, high, low, -run.stepX, [&](double x) {
        const double p = x / pFactor;
        if (!PassesTriplePoint(run, p, run.model.substance.ptrip, TripRule::Stop))
            return false;
        if (p < pLV) {
            AddTieLineEnds(run);
            pLV = passed;
        }
        PhaseVolumes phases;
        EosPhaseVolumes(run.model, run.T, p, phases);
        if (!phases.failed && (phases.hasL || phases.hasV))
            AddState(run, x, run.T, p, phases.hasL ? phases.vL : phases.vV, 0);
        return true;
    });
    SortCurveByX(run.curve.Count(), run.curve);
}

void CaloricOverVolume(CurveRun& run) {
    const double volumeFactor = run.options.volumeFactor;
    run.curve.SetZKind(zPressure);
    double pLV = 0;
    std::array<double, 3> ends{};
    if (run.HasLoop()) {
        const SaturationResult saturation = EosSaturationPressure(run.model, run.T);
        if (saturation.failed)
            return;
        pLV = saturation.value;
        ends = run.model.work.Roots;
    }
    const bool absolute = run.row.property.y == &CaloricValues::cv;
    const auto add = [&](double v, double p) {
        const CaloricResult state = CaloricState(run.model, run.T, p, v, run.Ambient());
        if (state.failed)
            return;
        const double y = state.values.*run.row.property.y * run.options.energyFactor;
        run.Add(v * volumeFactor, absolute ? std::abs(y) : y, p);
    };
    bool jumps = pLV > 0 && !run.mode.sCurveMode;
    // Upwards in a reversed window too: the grid jumps towards larger volumes and does not go back.
    const auto [low, high] = std::minmax(run.spec.xMin, run.spec.xMax);
    const double step = std::abs(run.stepX) / 2;
    double next = low;
    for (int i = 0; i < mostGridSteps && next <= high + clampReach * step; ++i, next += step) {
        double x = std::min<double>(next, high);
        const double B = run.model.selection.nonCubic ? run.model.work.BVirial : run.model.eos.B;
        if (x / volumeFactor <= B)
            continue;
        if (jumps && x / volumeFactor < ends[2]) {
            next = x = ends[2] * volumeFactor;
            jumps = false;
            if (x > high)
                break;
        }
        const double v = x / volumeFactor;
        const PressureResult pressure = EosPressure(run.model, run.T, v);
        if (!pressure.failed)
            add(v, pressure.p < 0 ? insteadOfTension : pressure.p);
    }
    if (pLV > 0)
        for (const double v : {ends[0], ends[2]})
            add(v, pLV);
    SortCurveByX(run.curve.Count(), run.curve);
}

namespace {

// Takes both coordinates of a pair at one state.
void AddPair(CurveRun& run, double T, double p, double v, double z) {
    const CaloricResult state = CaloricState(run.model, T, p, v, run.Ambient());
    if (state.failed)
        return;
    const CurveProperty& property = run.row.property;
    const double factor = run.options.energyFactor;
    const double scale = property.xTimesAmbientT ? run.model.reference.Tenv : 1;
    run.Add(state.values.*property.x * scale * factor, state.values.*property.y * factor, z);
}

// The limits in order, cut into as many steps as a curve has points.
template<typename Visit> void WalkLimits(CurveRun& run, Visit visit) {
    const auto [low, high] = std::minmax(run.mode.limitLow, run.mode.limitHigh);
    const double step = (high - low) / run.options.curvePoints;
    if (step > 0)
        WalkGrid(run, low, high, step, visit);
}

} // namespace

void PairAlongP(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    WalkLimits(run, [&](double p) {
        if (run.model.selection.eos > 0 && IsBelowTriplePoint(run, p, run.model.substance.ptrip))
            return true;
        PhaseVolumes phases;
        EosPhaseVolumes(run.model, run.T, p, phases);
        if (!phases.failed && (phases.hasL || phases.hasV))
            AddPair(run, run.T, p, phases.hasL ? phases.vL : phases.vV, p);
        return true;
    });
}

void PairAlongT(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    WalkLimits(run, [&](double T) {
        if (!PassesTriplePoint(run, T, run.model.substance.Ttrip, TripRule::StopAnyEquation))
            return false;
        run.UseTemperature(T);
        PhaseVolumes phases;
        EosPhaseVolumes(run.model, T, run.p, phases);
        if (!phases.failed && (phases.hasL || phases.hasV))
            AddPair(run, T, run.p, phases.hasV ? phases.vV : phases.vL, T);
        return true;
    });
}

} // namespace orva
