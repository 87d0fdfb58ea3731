// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "diagrams/caloric_curves.h"
#include "diagrams/catalogue.h"
#include "state/constants.h"
#include "thermo/heat_capacity.h"
#include "thermo/phase_volumes.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

enum class Preferred : std::uint8_t { Liquid, Vapour };

// Residual functions of the phase that exists, the preferred one where both do.
bool ResidualAt(CurveRun& run, double T, double p, Preferred preferred, ResidualState& state) {
    PhaseVolumes phases;
    EosPhaseVolumes(run.model, T, p, phases);
    if (phases.failed || !(phases.hasL || phases.hasV))
        return false;
    const bool liquid = preferred == Preferred::Liquid ? phases.hasL : !phases.hasV;
    state = ResidualFunctions(run.model, T, p, liquid ? phases.vL : phases.vV);
    return !state.failed;
}

double RowOf(const CurveRun& run, const ResidualState& state) {
    return gasConstant * state.table.Row(run.row.property.residualRow) * run.options.energyFactor;
}

} // namespace

void HeatCapacityOverT(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = x / run.options.TFactor;
        if (!PassesTriplePoint(run, T, run.model.substance.Ttrip, TripRule::StopAnyEquation))
            return false;
        run.UseTemperature(T);
        ResidualState state;
        const HeatCapacityResult ideal = IdealGasCp(run.model.substance, T, run.model.selection.cpModel);
        if (!ideal.failed && ResidualAt(run, T, run.p, Preferred::Liquid, state))
            run.Add(x, (ideal.cp + gasConstant * state.table.cp) * run.options.energyFactor, run.p);
        return true;
    });
}

void JouleThomsonOverT(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    WalkGrid(run, run.spec.xMax, run.spec.xMin, -run.stepX, [&](double x) {
        const double T = x / run.options.TFactor;
        if (!PassesTriplePoint(run, T, run.model.substance.Ttrip, TripRule::StopAnyEquation))
            return false;
        ResidualState state;
        if (ResidualAt(run, T, run.p, Preferred::Vapour, state))
            run.Add(x, state.table.jouleThomson, run.p);
        return true;
    });
}

void ResidualOverT(CurveRun& run) {
    run.curve.SetZKind(zPressure);
    const double TFactor = run.options.TFactor;
    const bool subcritical = run.p < run.model.substance.pc;
    const double low = run.options.partialCurveGasOnly && subcritical ? run.outcome.TSatCurve * TFactor
                                                                      : static_cast<double>(run.spec.xMin);
    const bool mayJump = subcritical && run.HasTieLine();
    double TLV = mayJump ? EosSaturationTemperature(run.model, run.p).value : passed;
    WalkClampedGrid(run, run.spec.xMax, low, -run.stepX, [&](double x) {
        double T = x / TFactor;
        if (std::abs(T - TLV) * TFactor < std::abs(run.stepX)) {
            // Vapour is the first end of this family; the liquid comes first into the curve.
            run.Add(run.outcome.tie.x2, run.outcome.tie.y2, run.p);
            run.Add(run.outcome.tie.x1, run.outcome.tie.y1, run.p);
            T = TLV - besideTieLine;
            TLV = passed;
        }
        run.UseTemperature(T);
        ResidualState state;
        if (ResidualAt(run, T, run.p, Preferred::Liquid, state))
            run.Add(T * TFactor, RowOf(run, state), run.p);
        return true;
    });
    SortCurveByX(run.curve.Count(), run.curve);
}

void ResidualOverP(CurveRun& run) {
    run.curve.SetZKind(zTemperature);
    const double pFactor = run.options.pFactor;
    const bool gasOnly = run.options.partialCurveGasOnly && run.T < run.model.substance.Tc;
    const double high = gasOnly ? run.outcome.pSatCurve * pFactor : static_cast<double>(run.spec.xMax);
    const bool mayJump = run.HasLoop() && run.HasTieLine();
    double pLV = mayJump ? EosSaturationPressure(run.model, run.T).value : passed;
    WalkClampedGrid(run, high, run.spec.xMin, -run.stepX, [&](double x) {
        const double p = x / pFactor;
        if (p < pLV) {
            run.Add(run.outcome.tie.x1, run.outcome.tie.y1, run.T);
            run.Add(run.outcome.tie.x2, run.outcome.tie.y2, run.T);
            pLV = passed;
        }
        ResidualState state;
        if (p > 0 && ResidualAt(run, run.T, p, Preferred::Liquid, state))
            run.Add(x, RowOf(run, state), run.T);
        return true;
    });
    SortCurveByX(run.curve.Count(), run.curve);
}

} // namespace orva
