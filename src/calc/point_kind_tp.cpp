// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

// Distance from the critical point within which the report names it.
constexpr double criticalWidthT = 0.05; // K
constexpr double criticalWidthP = 0.02; // kPa

bool NearCriticalPoint(const PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    return std::abs(run.T - substance.Tc) < criticalWidthT && std::abs(run.p - substance.pc) < criticalWidthP;
}

void AppendCriticalPoint(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    const NumberStyle style = run.context.style;
    const double vCrit = run.context.model.eos.vCritCalc;
    AppendLine(run, "kritischer Punkt!");
    AppendLine(run, " T(cr) = " + Format(substance.Tc, "####0.00 K", style));
    AppendLine(run, " p(cr) = " + Format(substance.pc, "#####.00 kPa", style));
    if (vCrit > missingValue) {
        AppendLine(run, "rho(cr) = " + Format(substance.molarMass / vCrit, "####.0", style) + " kg/m^3");
        AppendLine(run, "  v(cr) = " + General(static_cast<float>(vCrit), style) + " m^3/kmol");
    }
}

void FillEosState(PointRun& run) {
    const PhaseVolumes& phases = run.phases;
    EosStateRecord& state = run.context.calculation.eosState;
    const double RT = gasConstant * run.T;
    state.T = static_cast<float>(run.T);
    state.hasL = phases.hasL;
    state.hasV = phases.hasV;
    state.v = run.context.model.work.Roots;
    state.rootIndex = phases.rootCount;
    state.zV = static_cast<float>(run.p * phases.vV / RT);
    state.zL = static_cast<float>(run.p * phases.vL / RT);
    state.pEos = run.p;
}

void RecordPhases(PointRun& run) {
    const PhaseVolumes& phases = run.phases;
    ResultRecord& record = run.result.record;
    if (phases.hasL && phases.hasV)
        record.phase = "V+L";
    else if (phases.hasV)
        record.phase = " V ";
    else if (phases.hasL)
        record.phase = " L ";
    if (phases.hasV)
        record.rhoV = static_cast<float>(phases.rhoV);
    if (phases.hasL)
        record.rhoL = static_cast<float>(phases.rhoL);
    record.hLV = 0;
}

void SolveAtTP(PointRun& run) {
    PointResult& result = run.result;
    SubstanceModel& model = run.context.model;
    const NumberStyle style = run.context.style;
    if (!TakeTemperature(run, result.par1) || !TakePressure(run, result.par2))
        return;
    result.par1.text = "T = " + Format(run.T, "###0.000 K", style);
    result.par2.text = "p = " + Format(run.p, "####0.000 kPa", style);
    if (NearCriticalPoint(run))
        AppendCriticalPoint(run);
    if (model.selection.nonCubic) {
        const auto B = static_cast<float>(VirialCoefficientB(model, model.selection.eos, run.T));
        result.co2.text = " Virialkoeff. B = " + General(B, style) + "  m^3/kmol";
    }
    EosPhaseVolumes(model, run.T, run.p, run.phases);
    result.rootIndex = run.phases.rootCount;
    result.co1.text = StatusText(run.phases);
    if (run.phases.failed) {
        ReportFailure(run, FailureNumber());
        return;
    }
    FillEosState(run);
}

} // namespace

void CalculateFromTP(PointRun& run) {
    SolveAtTP(run);
    AppendDensityTable(run);
    RecordPhases(run);
}

} // namespace orva
