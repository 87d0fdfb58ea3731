// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "diagrams/projections.h"
#include "state/constants.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr double startStep = 0.05;    // K, of the search for the first point on the screen
constexpr double screenPart = 800;    // a step is too small below this part of the axis in both directions
constexpr int mostStartFailures = 20; // just below the critical point, where equal areas may not be found
constexpr double firstStepParts = 1000;
constexpr double leastFirstStep = 1e-3; // K, of a window too low for its logarithm
constexpr int mostSearchSteps = 40000;  // of either search

// A saturated state on the way down from the critical point.
struct Saturated {
    double T = 0, p = 0;
    double vL = 0, vV = 0;
    bool failed = true;
};

// The trace of the coexistence curve, with the limits of the window in K, kPa and m^3/kmol.
class CoexistenceTrace {
public:
    explicit CoexistenceTrace(CurveRun& owner)
        : run(owner), xMin(owner.spec.xMin), xMax(owner.spec.xMax),
          pRange(std::abs(static_cast<double>(owner.spec.yMax) - owner.spec.yMin) / owner.options.pFactor),
          xRange(std::abs(xMax - xMin)) {}

    void Draw();

private:
    double StartTemperature() const;
    bool FindFirstPoint();
    bool IsUsable(const Saturated& state) const;
    Saturated At(double T) const;
    Saturated NextState();
    bool IsTooClose(const Saturated& state) const;
    double VolumeOn(const Saturated& state) const {
        return state.vL + (state.vV - state.vL) * run.mode.vapourFraction;
    }
    double DisplayVolume(double v) const { return v * run.options.volumeFactor; }

    CurveRun& run;
    double xMin, xMax, pRange, xRange;
    double T = 0;    // the trace stands here
    double step = 0; // K
    double lastP = 0, lastV = 1000;
    bool ended = false;
};

Saturated CoexistenceTrace::At(double temperature) const {
    Saturated state;
    state.T = temperature;
    const SaturationResult saturation = EosSaturationPressure(run.model, temperature);
    if (saturation.failed)
        return state;
    state.p = saturation.value;
    state.vL = run.model.work.Roots[0];
    state.vV = run.model.work.Roots[2];
    state.failed = false;
    return state;
}

// The temperature at the upper edge of the window, 0 for a curve below it.
double CoexistenceTrace::StartTemperature() const {
    const double pCr = run.model.substance.pc * run.options.pFactor;
    if (pCr > run.spec.yMax) {
        const SaturationResult saturation =
            EosSaturationTemperature(run.model, run.spec.yMax / run.options.pFactor);
        return saturation.failed ? run.model.substance.Tc : saturation.value;
    }
    return pCr > run.spec.yMin ? run.model.substance.Tc : 0;
}

// One of both volumes is on the screen, on its own side of the critical volume.
bool CoexistenceTrace::IsUsable(const Saturated& state) const {
    const double vCrit = run.model.eos.vCritCalc;
    const double xL = DisplayVolume(state.vL);
    const double xV = DisplayVolume(state.vV);
    return (xMin <= xL && xL <= xMax && state.vL < vCrit) || (xMin < xV && xV <= xMax && state.vV > vCrit);
}

bool CoexistenceTrace::FindFirstPoint() {
    int failures = 0;
    for (int i = 0; i < mostSearchSteps; ++i) {
        T -= startStep;
        if (T <= 0)
            return false;
        const Saturated state = At(T);
        if (state.failed && ++failures < mostStartFailures)
            continue;
        if (state.p < missingValue)
            return false;
        if (IsUsable(state))
            return true;
    }
    return false;
}

bool CoexistenceTrace::IsTooClose(const Saturated& state) const {
    return std::abs(state.p - lastP) < pRange / screenPart
           && std::abs(DisplayVolume(VolumeOn(state)) - DisplayVolume(lastV)) < xRange / screenPart;
}

// Goes down by the step, doubled as long as the screen shows no distance.
Saturated CoexistenceTrace::NextState() {
    T -= step;
    Saturated state = At(T);
    for (int i = 0; i < mostSearchSteps && !state.failed && state.p != lastP && IsTooClose(state); ++i) {
        step *= 2;
        T -= step;
        if (T < missingValue || IsBelowTriplePoint(run, T, run.model.substance.Ttrip)) {
            ended = true;
            return state;
        }
        state = At(T);
    }
    return state;
}

void CoexistenceTrace::Draw() {
    const SubstanceModel& model = run.model;
    const double vCrit = model.eos.vCritCalc;
    T = StartTemperature();
    step = std::max(std::log(pRange) / firstStepParts, leastFirstStep);
    const bool noVolumeFits = xMin > xMax || xMax <= 0;
    if (T == 0 || noVolumeFits || !FindFirstPoint())
        return;
    lastP = 5 * model.substance.pc;
    run.Add(DisplayVolume(vCrit), model.substance.pc * run.options.pFactor, model.substance.Tc);
    bool entered = false;
    for (int i = 0; i < mostGridSteps && !ended; ++i) {
        const Saturated state = NextState();
        if (ended || T < missingValue || state.p == lastP)
            return;
        if (state.failed || state.p >= model.substance.pc || state.vL > vCrit || state.vV < vCrit)
            continue;
        lastP = state.p;
        lastV = VolumeOn(state);
        const double x = DisplayVolume(lastV);
        if (x <= xMax && lastV > missingValue && x >= xMin) {
            run.Add(x, state.p * run.options.pFactor, T);
            entered = true;
        } else if (entered && (x > xMax || x < 1.5 * xMin - 0.5 * xMax)) {
            return;
        }
    }
}

} // namespace

void CoexistencePv(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    if (!run.model.selection.nonCubic)
        CoexistenceTrace(run).Draw();
}

} // namespace orva
