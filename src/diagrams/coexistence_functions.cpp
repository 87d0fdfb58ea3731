// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/coexistence_functions.h"

#include <cmath>
#include <vector>

#include "diagrams/catalogue.h"
#include "state/constants.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr double lowestT = 0.1;             // K
constexpr double widestVolume = 50;         // times the window
constexpr double leastFreeVolume = 1.08;    // times the co-volume
constexpr double lowestP = 0.05;            // kPa, where the window begins at 0
constexpr double largestHeatCapacity = 1e6; // kJ/(kmol K), beyond every substance
constexpr double pairGrid = 0.3;            // of a step

struct SaturatedAt {
    double T;
    SaturationCaloricResult state;
};

double Lever(const CurveRun& run, double liquid, double vapour) {
    return liquid + (vapour - liquid) * run.mode.vapourFraction;
}

// The function at T(cr), p(cr), as the first point. False where the equation has no state there.
void AddCriticalPoint(CurveRun& run, bool overP, double CaloricValues::*value) {
    SubstanceModel& model = run.model;
    const double T = model.substance.Tc;
    const double p = model.substance.pc;
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    if (phases.failed || !(phases.hasL || phases.hasV))
        return;
    const CaloricResult state = CaloricState(model, T, p, phases.hasL ? phases.vL : phases.vV, run.Ambient());
    if (state.failed)
        return;
    // cp has no bound there. What rounding leaves of it has any sign and size, and stays where it points up.
    if (value == &CaloricValues::cp && !(state.values.cp > largestHeatCapacity))
        return;
    run.UseTemperature(T);
    const double y = state.values.*value * run.options.energyFactor;
    run.Add(overP ? p * run.options.pFactor : T * run.options.TFactor, y, overP ? T : p);
}

// The pair of values at one equilibrium, by the lever.
bool FunctionOnLine(CurveRun& run, double T, double p, const SaturationResult& saturation, double& y) {
    SubstanceModel& model = run.model;
    PhaseVolumes phases;
    SaturatedPhaseVolumes(model, T, p, saturation, phases);
    if (phases.failed || !(phases.vL > 0 && phases.vV > 0))
        return false;
    const CaloricResult liquid = CaloricState(model, T, p, phases.vL, run.Ambient());
    const CaloricResult vapour = CaloricState(model, T, p, phases.vV, run.Ambient());
    if (liquid.failed || vapour.failed)
        return false;
    const auto value = run.row.property.y;
    y = Lever(run, liquid.values.*value, vapour.values.*value) * run.options.energyFactor;
    return true;
}

// Walks down in T from the window's end; `visit` takes x, T and what the search for p(LV) found.
template<typename Visit> void WalkSaturation(CurveRun& run, Visit visit) {
    SubstanceModel& model = run.model;
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = x / run.options.TFactor;
        if (!PassesTriplePoint(run, T, model.substance.Ttrip, TripRule::Stop))
            return false;
        const SaturationResult saturation = EosSaturationPressure(model, T);
        if (saturation.failed || saturation.value < missingValue)
            return true;
        run.UseTemperature(T);
        visit(x, T, saturation);
        return true;
    });
}

} // namespace

void CoexistenceFunctionOverP(CurveRun& run) {
    SubstanceModel& model = run.model;
    run.curve.SetZKind(zTemperature);
    AddCriticalPoint(run, true, run.row.property.y);
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX, [&](double x) {
        const double p = x / run.options.pFactor;
        if (!PassesTriplePoint(run, p, model.substance.ptrip, TripRule::Stop))
            return false;
        if (p > model.substance.pc || !(p > 0))
            return true;
        const SaturationResult saturation = EosSaturationTemperature(model, p);
        const double T = saturation.value;
        double y = 0;
        if (saturation.failed || T < missingValue)
            return true;
        run.UseTemperature(T);
        if (FunctionOnLine(run, T, p, saturation, y))
            run.Add(x, y, T);
        return true;
    });
}

void CoexistenceFunctionOverT(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    AddCriticalPoint(run, false, run.row.property.y);
    WalkSaturation(run, [&](double x, double T, const SaturationResult& saturation) {
        const double p = saturation.value;
        double y = 0;
        if (FunctionOnLine(run, T, p, saturation, y))
            run.Add(x, y, p);
    });
}

// Kept on purpose: the critical point shows the free energy, the curve the parameter.
void CoexistenceParameterOverT(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    AddCriticalPoint(run, false, &CaloricValues::f);
    WalkSaturation(run, [&](double x, double, const SaturationResult& saturation) {
        run.Add(x, run.model.eos.A * run.options.energyFactor, saturation.value);
    });
}

void CoexistenceFunctionOverVolume(CurveRun& run) {
    SubstanceModel& model = run.model;
    const auto value = run.row.property.y;
    const double volumeFactor = run.options.volumeFactor;
    const double Tc = model.substance.Tc;
    run.curve.SetZKind(zTemperature);
    const auto add = [&](const SaturationCaloricResult& state, double vL, double vV, double T) {
        run.Add(Lever(run, vL, vV) * volumeFactor,
                Lever(run, state.liquid.*value, state.vapour.*value) * run.options.energyFactor, T);
    };
    std::vector<double> grid;
    grid.reserve(static_cast<std::size_t>(run.options.curvePoints) + 1);
    WalkGrid(run, lowestT, Tc, Tc / run.options.curvePoints, [&](double T) {
        grid.push_back(T);
        return true;
    });
    // From above: below the first vapour that is too wide all others are wider, and costly to find.
    std::vector<SaturatedAt> states;
    states.reserve(grid.size());
    for (std::size_t i = grid.size(); i-- > 0;) {
        const double T = grid[i];
        const SaturationCaloricResult state = SaturationCaloric(model, T, run.Ambient());
        const double least = leastFreeVolume * model.eos.B;
        if (state.failed)
            continue;
        if (state.vV * volumeFactor > widestVolume * run.spec.xMax)
            break;
        if (state.vL > least && state.vV > least)
            states.push_back({T, state});
    }
    for (auto at = states.rbegin(); at != states.rend(); ++at) {
        run.UseTemperature(at->T);
        add(at->state, at->state.vL, at->state.vV, at->T);
    }
    if (model.eos.rhoCritCalc > 0) {
        run.UseTemperature(Tc);
        const SaturationCaloricResult critical = SaturationCaloric(model, Tc, run.Ambient());
        // Two parts that grow beyond all bounds leave no heat capacity there, but a cancelled rest.
        const bool cancelled = value == &CaloricValues::cv
                               && !(critical.liquid.cv > 0 && critical.liquid.cv < largestHeatCapacity);
        if (!critical.failed && !cancelled)
            add(critical, critical.vL, critical.vV, Tc);
    }
    // Kept on purpose: a liquid line whose function turns zigzags between its two sides.
    if (run.mode.vapourFraction == 0)
        SortCurveByY(run.curve.Count(), run.curve);
}

void CoexistencePair(CurveRun& run) {
    SubstanceModel& model = run.model;
    const CurveProperty& property = run.row.property;
    const double scale = property.xTimesAmbientT ? model.reference.Tenv : 1;
    run.curve.SetZKind(zPressure);
    const auto add = [&](const SaturationCaloricResult& state, double p) {
        const double x = Lever(run, state.liquid.*property.x, state.vapour.*property.x) * scale;
        const double y = Lever(run, state.liquid.*property.y, state.vapour.*property.y);
        run.Add(x * run.options.energyFactor, y * run.options.energyFactor, p);
    };
    const double low = run.mode.pMin > 0 ? run.mode.pMin : lowestP;
    const double high = run.mode.pMax;
    WalkGrid(run, low, high, pairGrid * (high - low) / run.options.curvePoints, [&](double displayed) {
        const double p = displayed / run.options.pFactor;
        const double T = VapourPressureTemperature(model.substance, p, model.selection.vaporPressure).value;
        if (!(T > missingValue && T <= model.substance.Tc)
            || IsBelowTriplePoint(run, T, model.substance.Ttrip))
            return true;
        run.UseTemperature(T);
        const SaturationCaloricResult state = SaturationCaloric(model, T, run.Ambient());
        if (!state.failed)
            add(state, p);
        return true;
    });
    run.UseTemperature(model.substance.Tc);
    const SaturationCaloricResult critical = SaturationCaloric(model, model.substance.Tc, run.Ambient());
    if (!critical.failed)
        add(critical, model.substance.pc);
}

} // namespace orva
