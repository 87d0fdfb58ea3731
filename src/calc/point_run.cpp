// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/point_run.h"

#include "state/constants.h"
#include "text/number_format.h"
#include "thermo/density_correlations.h"

namespace orva {

namespace {

constexpr double smallestMasked = 0.01;

} // namespace

const BatchRow& CurrentRow(const PointRun& run) {
    static const BatchRow none;
    const auto index = static_cast<std::size_t>(run.context.calculation.CurrentDataSet);
    return index < run.context.batch.rows.size() ? run.context.batch.rows[index] : none;
}

void AppendLine(PointRun& run, std::string_view line) {
    if (!ShowsTexts(run))
        return;
    run.result.report += line;
    run.result.report += lineEnd;
}

void ShowText(PointRun& run, ResultLabel& label, std::string_view text) {
    if (ShowsTexts(run))
        label.text = text;
}

std::string Masked(const PointRun& run, double x, std::string_view mask) {
    return ShowsTexts(run) ? Format(x, mask, run.context.style) : std::string();
}

std::string SmallOrMasked(const PointRun& run, double x, std::string_view mask) {
    if (ShowsTexts(run) && x < smallestMasked)
        return General(static_cast<float>(x), run.context.style);
    return Masked(run, x, mask);
}

std::string TemperatureLabel(const PointRun& run) {
    return Masked(run, run.T, "T = ###0.000 K");
}

std::string PressureLabel(const PointRun& run) {
    return Masked(run, run.p, "p = ####0.000 kPa");
}

std::string DensityLabel(const PointRun& run) {
    return Masked(run, run.rho, "rho = ###0.0### kg/m^3");
}

void FillEosState(PointRun& run, int rootIndex) {
    const PhaseVolumes& phases = run.phases;
    EosStateRecord& state = run.context.calculation.eosState;
    const double RT = gasConstant * run.T;
    state.T = static_cast<float>(run.T);
    state.hasL = phases.hasL;
    state.hasV = phases.hasV;
    state.v = run.context.model.work.Roots;
    state.rootIndex = rootIndex;
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
}

void TakeSaturationRoots(PointRun& run) {
    const auto& roots = run.context.model.work.Roots;
    const double M = run.context.model.substance.molarMass;
    PhaseVolumes& phases = run.phases;
    phases.vL = roots[0];
    phases.vV = roots[2];
    phases.rhoL = M / phases.vL;
    phases.rhoV = M / phases.vV;
}

double PartialLiquidDensity(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    const CalculationState& calculation = run.context.calculation;
    if (calculation.BensonLiquid) {
        const ReferenceDensityPoint& point = calculation.referenceDensity;
        return DiameterLiquidDensity(run.T, substance.Tc, substance.rhoc, run.phases.rhoV, point.T,
                                     point.rhoV, point.rhoL);
    }
    const DensityResult density = LiquidDensity(substance, static_cast<float>(run.T));
    if (const auto warning = LiquidDensityWarning(density))
        run.result.messages.push_back(*warning);
    return density.failed ? 0 : density.rho;
}

std::string_view LiquidDensitySourceText(const PointRun& run) {
    return run.context.calculation.BensonLiquid ? "nach BENSON-Methode:" : "nach Datenbankgleichung rho(T):";
}

PhaseVolumes SolvedPhases(PointRun& run) {
    constexpr double largestRounding = 1e-4; // of the volume
    PhaseVolumes solved = run.phases;
    EosPhaseVolumes(run.context.model, run.T, run.p, solved);
    const PhaseVolumes& shown = run.phases;
    const bool both = shown.hasL && shown.hasV && shown.vL > 0 && shown.vV > 0;
    if (!both || !run.context.calculation.GlobalMethod)
        return solved;
    const bool lost = solved.failed || !(solved.hasL && solved.hasV)
                      || std::abs(solved.vL - shown.vL) > largestRounding * shown.vL;
    return lost ? shown : solved;
}

} // namespace orva
