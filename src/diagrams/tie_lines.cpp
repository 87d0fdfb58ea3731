// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/tie_lines.h"

#include <cmath>

#include "diagrams/catalogue.h"
#include "state/constants.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

constexpr int freeEnthalpyRow = 5; // of the residual functions

// Both phases at the T of an isotherm, or at the p of any other curve.
struct Equilibrium {
    double T = 0, p = 0;
    double vL = 0, vV = 0;
    bool failed = true;
};

Equilibrium EquilibriumOf(CurveRun& run) {
    SubstanceModel& model = run.model;
    const bool isotherm = run.spec.curveKind == curveIsotherm;
    if (isotherm ? !(run.T < model.substance.Tc) : !(run.p < model.substance.pc && run.p > 0))
        return {};
    const SaturationResult saturation =
        isotherm ? EosSaturationPressure(model, run.T) : EosSaturationTemperature(model, run.p);
    if (saturation.failed)
        return {};
    Equilibrium state;
    state.T = isotherm ? run.T : saturation.value;
    state.p = isotherm ? saturation.value : run.p;
    state.vL = model.work.Roots[0];
    state.vV = model.work.Roots[2];
    state.failed = false;
    run.UseTemperature(state.T);
    return state;
}

struct Coordinates {
    double x = 0, y = 0;
};

TieLine Joined(const Coordinates& first, const Coordinates& second) {
    TieLine tie;
    tie.x1 = static_cast<float>(first.x);
    tie.y1 = static_cast<float>(first.y);
    tie.x2 = static_cast<float>(second.x);
    tie.y2 = static_cast<float>(second.y);
    tie.failed = !std::isfinite(tie.x1 + tie.x2 + tie.y1 + tie.y2); // beyond single precision
    if (tie.failed)
        tie.x1 = tie.y1 = tie.x2 = tie.y2 = 0;
    return tie;
}

TieLine NoTieLine() {
    TieLine tie;
    tie.failed = true;
    return tie;
}

// Joins what `coordinates` makes of T, p and the volume of each phase. It returns false where a model fails.
template<typename Place> TieLine Join(CurveRun& run, bool vapourFirst, Place place) {
    const Equilibrium state = EquilibriumOf(run);
    Coordinates liquid, vapour;
    if (state.failed || !place(state, state.vL, liquid) || !place(state, state.vV, vapour))
        return NoTieLine();
    return vapourFirst ? Joined(vapour, liquid) : Joined(liquid, vapour);
}

bool CaloricValue(CurveRun& run, const Equilibrium& state, double v, double CaloricValues::*value,
                  double& y) {
    const CaloricResult result = CaloricState(run.model, state.T, state.p, v, run.Ambient());
    if (!result.failed)
        y = result.values.*value * run.options.energyFactor;
    return !result.failed;
}

bool ResidualValue(CurveRun& run, const Equilibrium& state, double v, double& y) {
    const ResidualState result = ResidualFunctions(run.model, state.T, state.p, v);
    if (result.failed)
        return false;
    const int row = run.row.property.residualRow;
    const double value =
        row == freeEnthalpyRow ? result.table.h - state.T * result.table.s : result.table.Row(row);
    y = gasConstant * value * run.options.energyFactor;
    return true;
}

} // namespace

TieLine TieLinePv(CurveRun& run) {
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        at = {v * run.options.volumeFactor, state.p * run.options.pFactor};
        return true;
    });
}

TieLine TieLinePvOverP(CurveRun& run) {
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        const double x = state.p * run.options.pFactor;
        at = {x, x * v * run.options.volumeFactor};
        return true;
    });
}

TieLine TieLineDensity(CurveRun& run) {
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        at = {state.p * run.options.pFactor, run.model.substance.molarMass / v};
        return true;
    });
}

TieLine TieLineResidualOverT(CurveRun& run) {
    return Join(run, true, [&](const Equilibrium& state, double v, Coordinates& at) {
        at.x = state.T * run.options.TFactor;
        return ResidualValue(run, state, v, at.y);
    });
}

TieLine TieLineResidualOverP(CurveRun& run) {
    return Join(run, true, [&](const Equilibrium& state, double v, Coordinates& at) {
        at.x = state.p * run.options.pFactor;
        return ResidualValue(run, state, v, at.y);
    });
}

TieLine TieLineCaloricOverT(CurveRun& run) {
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        at.x = state.T * run.options.TFactor;
        return CaloricValue(run, state, v, run.row.property.y, at.y);
    });
}

TieLine TieLineCaloricOverP(CurveRun& run) {
    return Join(run, true, [&](const Equilibrium& state, double v, Coordinates& at) {
        at.x = state.p * run.options.pFactor;
        return CaloricValue(run, state, v, run.row.property.y, at.y);
    });
}

TieLine TieLineCaloricOverVolume(CurveRun& run) {
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        at.x = v * run.options.volumeFactor;
        return CaloricValue(run, state, v, run.row.property.y, at.y);
    });
}

TieLine TieLinePair(CurveRun& run) {
    const double scale = run.row.property.xTimesAmbientT ? run.model.reference.Tenv : 1;
    return Join(run, false, [&](const Equilibrium& state, double v, Coordinates& at) {
        if (!CaloricValue(run, state, v, run.row.property.x, at.x))
            return false;
        at.x *= scale;
        return CaloricValue(run, state, v, run.row.property.y, at.y);
    });
}

} // namespace orva
