// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/saturation.h"

#include <cmath>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/saturation_bracket.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

// Limits of the search for p(LV).
constexpr int pressurePasses = 300;
constexpr double pressureRatioTolerance = 1e-5;
constexpr double pressureRelativeStep = 1e-10; // a smaller step is a failure
constexpr double pressureSmallestStep = 1e-5;  // kPa
constexpr double pressureFlatSecant = 1e-11;
constexpr double pressureFirstStep = 0.01; // of p

// Limits of the search for T(LV).
constexpr int temperaturePasses = 200;
constexpr double temperatureRatioTolerance = 5e-5;
constexpr double temperatureRelativeStep = 1e-12;
constexpr double temperatureSmallestStep = 1e-9; // K
constexpr double temperatureFlatSecant = 1e-7;
constexpr double temperatureFirstStep = 0.01; // of T, and the largest step

// Limits of the low-pressure scan for T(LV).
constexpr double scanBelow = 0.02; // of p(cr)
constexpr int scanPasses = 60;
constexpr double scanRatioTolerance = 2e-4;
constexpr double scanSmallestStep = 5e-4; // K

constexpr double roundingShare = 1e-3; // of the product of the smaller roots, beyond which they are lost

constexpr double stepReduction = 0.1;
constexpr double smallestIterate = 1e-10;

enum class Pass { Continue, Converged, Failed };

bool SameSingle(double a, double b) {
    return static_cast<float>(a) == static_cast<float>(b);
}

SaturationResult Failure(const SaturationResult& search = {}) {
    return {0, search.areaRatio, search.area1, search.area2, true};
}

// The critical point itself. Kept on purpose: the volumes are 1 / rhoCritCalc, not M / rhoCritCalc.
SaturationResult CriticalShortcut(SubstanceModel& model, double value) {
    if (model.eos.rhoCritCalc > 0)
        model.work.Roots[0] = 1 / model.eos.rhoCritCalc;
    model.work.Roots[2] = model.work.Roots[0];
    SaturationResult result;
    result.value = value;
    return result;
}

// Deflation forms the product of the smaller roots as a difference of numbers of the size of the largest root
// squared. Below about 1e-3 kPa their rounding hides the volume of the liquid, and areas that look equal can
// belong to twice the pressure.
bool LiquidIsLost(const std::array<double, 3>& roots) {
    constexpr double rounding = std::numeric_limits<double>::epsilon() / 2;
    return roots[2] * roots[2] * rounding > roundingShare * roots[0] * roots[1];
}

void TakeAreas(SaturationResult& search, const AreaRatio& areas) {
    search.areaRatio = areas.ratio;
    search.area1 = areas.area1;
    search.area2 = areas.area2;
    search.failed = areas.failed;
}

// What both secant searches remember between passes. `x` is the iterate, p or T.
struct SecantState {
    double value = 0;
    double step = 0;
    double wOld = 0;                   // kind of the last single root
    double valueOld = 0, ratioOld = 0; // last pass with three roots
    int singlePasses = 0, triplePasses = 0, restarts = 0;

    void Advance() { value += step; }

    // A search that ran below zero starts again near it.
    void RestartNearZero() {
        ++restarts;
        value = 0.01 / restarts;
        step = (valueOld - value) * stepReduction;
    }
};

// Kind of a single root: -1 for a liquid-like one, its volume for a vapour-like one.
double RootKind(double root, double vCrit) {
    return root < vCrit ? -1 : root;
}

// One root means that the trial pressure lies outside of the loop: too high for a liquid-like root, too low
// for a vapour-like one.
void SteerPressure(SecantState& s, double root, double vCrit) {
    ++s.singlePasses;
    const double w = RootKind(root, vCrit);
    if (s.singlePasses == 1) {
        s.step *= stepReduction;
        if (std::abs(s.step) < pressureSmallestStep)
            s.step = -pressureFirstStep * s.value;
    } else if (w * s.wOld < 1e-6) {
        s.step *= stepReduction;
    }
    s.step = root < vCrit ? -std::abs(s.step) : std::abs(s.step);
    s.wOld = w;
}

Pass SecantPressure(SecantState& s, double x) {
    ++s.triplePasses;
    if (s.triplePasses == 1) {
        if (std::abs(s.step) < pressureSmallestStep)
            s.step = pressureFirstStep * s.value;
        if (x < 0)
            s.step = -std::abs(s.step);
        if (x > 0)
            s.step = std::abs(s.step);
    } else {
        if (std::abs(x) < pressureRatioTolerance)
            return Pass::Converged;
        if (std::abs(x - s.ratioOld) > pressureFlatSecant) {
            s.step = -(s.value - s.valueOld) * x / (x - s.ratioOld);
        } else {
            s.step = pressureFirstStep * s.value;
            if (x < s.ratioOld)
                s.step = -s.step;
        }
        if (std::abs(s.step / s.value) < pressureRelativeStep)
            return Pass::Failed;
    }
    s.valueOld = s.value;
    s.ratioOld = x;
    return Pass::Continue;
}

double StartPressure(const SubstanceModel& model, double T) {
    double p = 0;
    if (model.selection.vaporPressure != vpNone)
        p = VapourPressure(model.substance, T, model.selection.vaporPressure).value;
    if (p < 1e-6)
        p = std::exp(T * std::log(model.substance.pc) / model.substance.Tc);
    return p;
}

// One root means that the trial temperature lies outside of the loop: too low for a liquid-like root.
void SteerTemperature(SecantState& s, double root, double vCrit) {
    ++s.singlePasses;
    const double w = RootKind(root, vCrit);
    if (s.singlePasses == 1) {
        s.step *= stepReduction;
        if (std::abs(s.step) < temperatureSmallestStep)
            s.step = temperatureFirstStep * s.value;
    } else if (w * s.wOld < 0) {
        s.step *= stepReduction;
    }
    s.step = root < vCrit ? std::abs(s.step) : -std::abs(s.step);
    s.wOld = w;
}

Pass SecantTemperature(SecantState& s, double x) {
    ++s.triplePasses;
    if (s.triplePasses == 1) {
        if (std::abs(s.step) < temperatureSmallestStep)
            s.step = temperatureFirstStep * s.value;
        if (x > 0)
            s.step = -std::abs(s.step);
        if (x < 0)
            s.step = std::abs(s.step);
    } else {
        if (std::abs(x) < temperatureRatioTolerance)
            return Pass::Converged;
        const double largest = temperatureFirstStep * s.value;
        if (std::abs(x - s.ratioOld) > temperatureFlatSecant) {
            s.step = -(s.value - s.valueOld) * x / (x - s.ratioOld);
            if (std::abs(s.step) > largest)
                s.step = std::copysign(largest, s.step);
        } else {
            s.step = x > s.ratioOld ? -largest : largest;
        }
        if (std::abs(s.step / s.value) < temperatureRelativeStep)
            return Pass::Failed;
    }
    s.valueOld = s.value;
    s.ratioOld = x;
    return Pass::Continue;
}

// The search for p(LV) at a temperature.
struct PressureSearch {
    static constexpr int passes = pressurePasses;
    double T, start, critical;

    void Enter(SubstanceModel&, double) const {} // the parameters stand at T
    double TemperatureOf(double) const { return T; }
    double PressureOf(double value) const { return value; }
    static void Steer(SecantState& s, double root, double vCrit) { SteerPressure(s, root, vCrit); }
    static Pass Step(SecantState& s, double x) { return SecantPressure(s, x); }
};

// The search for T(LV) at a pressure.
struct TemperatureSearch {
    static constexpr int passes = temperaturePasses;
    double p, start, critical;

    void Enter(SubstanceModel& model, double value) const { SetEosCoefficients(model, value); }
    double TemperatureOf(double value) const { return value; }
    double PressureOf(double) const { return p; }
    static void Steer(SecantState& s, double root, double vCrit) { SteerTemperature(s, root, vCrit); }
    static Pass Step(SecantState& s, double x) { return SecantTemperature(s, x); }
};

template<class Search> SaturationResult RunSearch(SubstanceModel& model, const Search& search) {
    SaturationResult result;
    SecantState s;
    s.value = search.start;
    for (int pass = 1; pass <= Search::passes; ++pass) {
        search.Enter(model, s.value);
        const double T = search.TemperatureOf(s.value);
        const double p = search.PressureOf(s.value);
        const CubicSolution cubic = SolveEosCubic(model, T, p);
        if (!(model.work.Roots[0] > model.eos.B) || cubic.rootCount == 0)
            return Failure(result);
        result.failed = false; // of the areas of the pass before
        if (cubic.rootCount == 1) {
            Search::Steer(s, model.work.Roots[0], model.eos.vCritCalc);
        } else {
            TakeAreas(result, MaxwellAreaRatio(model, T, p));
            const Pass next = Search::Step(s, result.areaRatio);
            if (next == Pass::Failed)
                return Failure(result);
            if (next == Pass::Converged) {
                result.value = s.value;
                result.rootsOfValue = true;
                return result.failed || LiquidIsLost(model.work.Roots) ? Failure(result) : result;
            }
        }
        s.Advance();
        if (SameSingle(s.value, search.critical)) {
            result.value = s.value;
            result.failed = result.failed || cubic.rootCount != 3; // no volumes to go with it
            return result;
        }
        if (s.value < smallestIterate)
            s.RestartNearZero();
    }
    return Failure(result);
}

SaturationResult SearchPressure(SubstanceModel& model, double T) {
    SetEosCoefficients(model, T);
    return RunSearch(model, PressureSearch{T, StartPressure(model, T), model.substance.pc});
}

SaturationResult SearchTemperature(SubstanceModel& model, double p, double Tstart) {
    const double Tc = model.substance.Tc;
    const double start = Tstart == 0 ? std::log(p) * Tc / std::log(model.substance.pc) : Tstart;
    return RunSearch(model, TemperatureSearch{p, start, Tc});
}

// Scan downward from T(cr). Kept on purpose: the first step in kelvins is the number (p(cr) - p) / 100 in
// kPa.
SaturationResult ScanTemperature(SubstanceModel& model, double p) {
    SaturationResult result;
    double q = (model.substance.pc - p) / 100;
    double T = model.substance.Tc + q;
    double xOld = p;
    for (int pass = 1; pass <= scanPasses; ++pass) {
        T -= q;
        if (T <= 0) {
            T += q;
            q *= stepReduction;
            continue;
        }
        SetEosCoefficients(model, T);
        const CubicSolution cubic = SolveEosCubic(model, T, p);
        if (!(model.work.Roots[0] > model.eos.B))
            return Failure(result);
        if (cubic.rootCount < 3)
            continue;
        const AreaRatio areas = MaxwellAreaRatio(model, T, p);
        TakeAreas(result, areas);
        const double r = xOld / areas.ratio;
        xOld = areas.ratio;
        if (r > 0)
            continue;
        q *= -stepReduction;
        if (std::abs(areas.ratio) < scanRatioTolerance || std::abs(q) < scanSmallestStep) {
            if (T < 1e-6 || !std::isfinite(T) || areas.failed || LiquidIsLost(model.work.Roots))
                return Failure(result);
            result.value = T;
            return result;
        }
    }
    return Failure(result);
}

} // namespace

SaturationResult EosSaturationPressure(SubstanceModel& model, double T) {
    if (T == model.substance.Tc)
        return CriticalShortcut(model, model.substance.pc);
    if (!(T < model.substance.Tc) || model.selection.eos == eosNotChosen || model.selection.nonCubic) {
        SetEosCoefficients(model, T);
        return Failure();
    }
    const SaturationResult found = SearchPressure(model, T);
    return found.failed ? BracketedSaturationPressure(model, T) : found;
}

SaturationResult EosSaturationTemperature(SubstanceModel& model, double p, double Tstart) {
    const double pc = model.substance.pc;
    if (p == pc)
        return CriticalShortcut(model, model.substance.Tc);
    if (!(p > 0 && p < pc) || model.selection.eos == eosNotChosen || model.selection.nonCubic)
        return Failure();
    const SaturationResult found =
        p / pc < scanBelow ? ScanTemperature(model, p) : SearchTemperature(model, p, Tstart);
    return found.failed ? BracketedSaturationTemperature(model, p) : found;
}

void SaturatedPhaseVolumes(SubstanceModel& model, double T, double p, const SaturationResult& saturation,
                           PhaseVolumes& state) {
    if (saturation.rootsOfValue)
        EosPhaseVolumes(model, T, p, {saturation.areaRatio, saturation.area1, saturation.area2, false},
                        state);
    else
        EosPhaseVolumes(model, T, p, state);
}

} // namespace orva
