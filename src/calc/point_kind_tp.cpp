// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "calc/report_functions.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
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
    if (!ShowsTexts(run))
        return;
    AppendLine(run, "kritischer Punkt!");
    AppendLine(run, " T(cr) = " + Format(substance.Tc, "####0.00 K", style));
    AppendLine(run, " p(cr) = " + Format(substance.pc, "#####.00 kPa", style));
    if (vCrit > missingValue) {
        AppendLine(run, "rho(cr) = " + Format(substance.molarMass / vCrit, "####.0", style) + " kg/m^3");
        AppendLine(run, "  v(cr) = " + General(static_cast<float>(vCrit), style) + " m^3/kmol");
    }
}

bool GivenPoint(PointRun& run) {
    PointResult& result = run.result;
    if (!TakeTemperature(run, result.par1) || !TakePressure(run, result.par2))
        return false;
    result.par1.text = TemperatureLabel(run);
    result.par2.text = PressureLabel(run);
    return true;
}

// Phases and volumes at T, p; false and told in the report where the equation has none.
bool SolvePhases(PointRun& run) {
    EosPhaseVolumes(run.context.model, run.T, run.p, run.phases);
    run.result.rootIndex = run.phases.rootCount;
    if (run.phases.failed) {
        ReportFailure(run, FailureNumber());
        return false;
    }
    FillEosState(run, run.phases.rootCount);
    return true;
}

// The cubic equation has a branch below the co-volume that describes nothing, yet fulfils p, rho.
bool BelowCoVolume(const PointRun& run, double T) {
    SubstanceModel& model = run.context.model;
    if (model.selection.nonCubic)
        return false;
    SetEosCoefficients(model, T);
    return model.substance.molarMass / run.rho <= model.eos.B;
}

void SolveAtTP(PointRun& run) {
    SubstanceModel& model = run.context.model;
    if (!GivenPoint(run))
        return;
    if (NearCriticalPoint(run))
        AppendCriticalPoint(run);
    if (model.selection.nonCubic && ShowsTexts(run)) {
        const auto B = static_cast<float>(VirialCoefficientB(model, model.selection.eos, run.T));
        run.result.co2.text = " Virialkoeff. B = " + General(B, run.context.style) + "  m^3/kmol";
    }
    const bool solved = SolvePhases(run);
    ShowText(run, run.result.co1, StatusText(run.phases));
    if (solved)
        AssumeEquilibriumAt(run);
}

} // namespace

void CalculateFromTP(PointRun& run) {
    SolveAtTP(run);
    AppendDensityTable(run);
    RecordPhases(run);
    run.result.record.hLV = 0;
}

void CalculateFromPRho(PointRun& run) {
    PointResult& result = run.result;
    if (!TakePressure(run, result.par1) || !TakeDensity(run, result.par2))
        return;
    result.par1.text = PressureLabel(run);
    result.par2.text = DensityLabel(run);
    const double T = EosTemperature(run.context.model, run.p, run.rho, false);
    if (!(T > 0) || BelowCoVolume(run, T)) {
        result.failed = true;
        result.co2.colour = TextColour::Blue;
        result.co2.text = " Fehler";
        return;
    }
    run.T = T;
    result.co2.reportBackground = true;
    ShowText(run, result.co2, ' ' + TemperatureLabel(run));
    if (!SolvePhases(run))
        return;
    AppendDensityTable(run);
    RecordPhases(run);
    result.results[slotT] = T;
    result.record.Tcalc = static_cast<float>(T);
}

void CalculateFunctions(PointRun& run) {
    if (!GivenPoint(run) || !SolvePhases(run))
        return;
    AppendFunctionRows(run);
}

} // namespace orva
