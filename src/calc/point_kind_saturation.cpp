// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "calc/report_blocks.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr std::size_t remarkIndent = 12;
constexpr std::size_t ruleWidth = 75;
constexpr double notComputed = 1e30; // a value from here on is no result

// Where the two-phase line is entered: the given coordinate and the one to be found.
bool FromTemperature(const PointRun& run) {
    return run.result.kind == kindSaturationPressure;
}

void Fail(PointRun& run, ResultLabel& label, std::string text) {
    label.colour = TextColour::Red;
    label.text = std::move(text);
    run.result.failed = true;
}

bool GivenCoordinate(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    ResultLabel& label = run.result.par1;
    if (FromTemperature(run)) {
        if (!TakeTemperature(run, label))
            return false;
        label.text = TemperatureLabel(run);
        SetEosCoefficients(run.context.model, run.T);
        if (run.T > substance.Tc)
            Fail(run, label, TemperatureLabel(run) + " > T(cr) !!!");
    } else {
        if (!TakePressure(run, label))
            return false;
        label.text = PressureLabel(run);
        if (run.p > substance.pc)
            Fail(run, label, "p = " + Format(run.p, "###0.000 kPa", run.context.style) + " > p(cr) !!!");
    }
    return !run.result.failed;
}

void KeepWarning(PointRun& run, const std::optional<Message>& warning) {
    if (warning)
        run.result.messages.push_back(*warning);
}

// The coordinate from the vapour-pressure equation in force.
bool FindByEquation(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    const int equation = run.context.model.selection.vaporPressure;
    const bool fromT = FromTemperature(run);
    const VapourPressureResult found = fromT ? VapourPressure(substance, run.T, equation)
                                             : VapourPressureTemperature(substance, run.p, equation);
    KeepWarning(run, fromT ? VapourPressureWarning(found) : VapourPressureTemperatureWarning(found));
    if (found.failed) {
        ReportFailure(run, FailureNumber());
        return false;
    }
    (fromT ? run.p : run.T) = found.value;
    return true;
}

std::string FoundPressure(const PointRun& run) {
    return " p(LV) = " + SmallOrMasked(run, run.p, "####0.000") + " kPa";
}

// Without a vapour-pressure equation the data row may bring the coordinate.
bool FindInDataRow(PointRun& run) {
    PointResult& result = run.result;
    const BatchRow& row = CurrentRow(run);
    ShowText(run, result.co1, "keine Dampfdruckgleichung verfügbar");
    if (FromTemperature(run)) {
        run.p = row.p;
        if (run.p < missingValue)
            Fail(run, result.co2, "  kein p(LV) aus Datensatz verfügbar");
        else
            ShowText(run, result.co2,
                     " p(LV)(aus Datensatz) = " + SmallOrMasked(run, run.p, "####0.0#") + " kPa");
    } else {
        run.T = row.T;
        if (run.T < missingValue)
            Fail(run, result.co2, " kein T(LV) verfügbar o. berechenbar");
        else
            ShowText(run, result.co2, " T(LV) (aus Datensatz) = " + Masked(run, run.T, "####.0# K"));
    }
    return !result.failed;
}

bool FindPartialCoordinate(PointRun& run) {
    if (run.context.model.selection.vaporPressure <= 0)
        return FindInDataRow(run);
    if (!FindByEquation(run))
        return false;
    PointResult& result = run.result;
    if (FromTemperature(run)) {
        ShowText(run, result.co1, "p(LV) aus aktueller Dampfdruckgleichung:");
        ShowText(run, result.co2, FoundPressure(run));
    } else {
        ShowText(run, result.co1, "T(LV) aus akt. Dampfdruckgleichung:");
        ShowText(run, result.co2, " T(LV) = " + Masked(run, run.T, "####.000 K"));
    }
    return true;
}

// Which volume of the cubic at the point of the vapour-pressure equation is the vapour: beyond the two-phase
// line of the cubic only a loop still has one.
double VapourRoot(const SubstanceModel& model, int rootCount, bool vapourSide) {
    const auto& roots = model.work.Roots;
    if (rootCount == 3)
        return roots[2];
    return vapourSide && rootCount == 1 ? roots[0] : 0;
}

bool SolveCubicVapour(PointRun& run) {
    SubstanceModel& model = run.context.model;
    const bool fromT = FromTemperature(run);
    const SaturationResult saturation =
        fromT ? EosSaturationPressure(model, run.T) : EosSaturationTemperature(model, run.p);
    if (saturation.failed) {
        ReportFailure(run, FailureNumber());
        return false;
    }
    SetEosCoefficients(model, run.T);
    const CubicSolution cubic = SolveEosCubic(model, run.T, run.p);
    run.result.rootIndex = cubic.rootCount;
    const bool vapourSide = fromT ? run.p <= saturation.value : run.T >= saturation.value;
    run.phases.vV = cubic.failed ? 0 : VapourRoot(model, cubic.rootCount, vapourSide);
    FillEosState(run, 3);
    run.context.calculation.eosState.pEos = fromT ? saturation.value : run.p;
    return true;
}

void SolvePartial(PointRun& run) {
    SubstanceModel& model = run.context.model;
    if (!FindPartialCoordinate(run))
        return;
    if (model.selection.nonCubic) {
        model.work.BVirial = VirialCoefficientB(model, model.selection.eos, run.T);
        run.phases.vV = gasConstant * run.T / run.p + model.work.BVirial;
    } else if (!SolveCubicVapour(run)) {
        return;
    }
    AppendPartialDensities(run);
}

void SolveByCubic(PointRun& run) {
    SubstanceModel& model = run.context.model;
    PointResult& result = run.result;
    const bool fromT = FromTemperature(run);
    const SaturationResult saturation =
        fromT ? EosSaturationPressure(model, run.T) : EosSaturationTemperature(model, run.p);
    if (saturation.failed) {
        ReportFailure(run, FailureNumber());
        return;
    }
    (fromT ? run.p : run.T) = saturation.value;
    result.rootIndex = 3;
    ShowText(run, result.co1, fromT ? "p(LV) aus kubischer EOS" : "T(LV) aus CEOS");
    ShowText(run, result.co2, fromT ? FoundPressure(run) : " T(LV) = " + Masked(run, run.T, "###0.000 K"));
    TakeSaturationRoots(run);
    FillEosState(run, 3);
    AppendLine(run, Spaces(remarkIndent) + "aus kubischer EOS:");
    AppendDensityTable(run);
}

// The vapour-pressure equation has the last word and knows no volumes.
void SolveWithoutPriority(PointRun& run) {
    PointResult& result = run.result;
    const bool fromT = FromTemperature(run);
    if (!FindByEquation(run))
        return;
    ShowText(run, result.co2, fromT ? FoundPressure(run) : "T(LV) = " + Masked(run, run.T, "###0.0# K"));
    result.reportColour = TextColour::Red;
    const std::string rule = Line(softHyphen, ruleWidth);
    AppendLine(run, rule);
    AppendLine(run, Spaces(10)
                        + (fromT ? "(Dichte-Berechnung nicht möglich mit Dampfdruckgleichung!)"
                                 : "(Dichte-Berechnung nicht möglich mit Dampfdruckgleichung)"));
    AppendLine(run, rule);
}

// Kept on purpose: from p, the enthalpy is formed only where the cubic equation has priority; from T always.
void SolveGlobal(PointRun& run, double& hLV) {
    SubstanceModel& model = run.context.model;
    const bool byCubic = model.selection.eosPriority;
    if (byCubic)
        SolveByCubic(run);
    else
        SolveWithoutPriority(run);
    if (run.result.failed || (!byCubic && !FromTemperature(run)))
        return;
    VaporisationRequest request;
    request.T = run.T;
    request.p = run.p;
    const VaporisationResult result =
        VaporisationEnthalpy(model, vaporisationCubic, model.selection.vaporPressure, request);
    if (!result.failed)
        hLV = result.h;
    SetEosCoefficients(model, run.T);
}

void Record(PointRun& run, double hLV) {
    ResultRecord& record = run.result.record;
    auto& results = run.result.results;
    const PhaseVolumes& phases = run.phases;
    record.phase = "V+L";
    if (FromTemperature(run)) {
        if (run.p < notComputed) {
            record.pcalc = static_cast<float>(run.p);
            results[slotP] = run.p;
        }
    } else if (run.T < notComputed) {
        record.Tcalc = static_cast<float>(run.T);
        results[slotT] = run.T;
    }
    if (phases.rhoV < notComputed)
        record.rhoV = static_cast<float>(phases.rhoV);
    if (phases.rhoL < notComputed)
        record.rhoL = static_cast<float>(phases.rhoL);
    if (static_cast<float>(hLV) < static_cast<float>(notComputed)) {
        record.hLV = static_cast<float>(hLV);
        results[slotVaporisationH] = hLV * run.context.options.energyFactor;
        if (run.T > 0)
            results[slotVaporisationS] = results[slotVaporisationH] / run.T;
    }
}

} // namespace

void CalculateSaturation(PointRun& run) {
    run.phases.hasL = run.phases.hasV = true;
    if (!GivenCoordinate(run))
        return;
    double hLV = notComputed;
    if (run.context.calculation.GlobalMethod)
        SolveGlobal(run, hLV);
    else
        SolvePartial(run);
    if (!run.result.failed)
        Record(run, hLV);
}

void AppendPartialDensities(PointRun& run) {
    PhaseVolumes& phases = run.phases;
    if (!run.context.calculation.ReferenceDensityPointValid || !(phases.vV > missingValue))
        return;
    const double M = run.context.model.substance.molarMass;
    phases.rhoV = M / phases.vV;
    phases.rhoL = PartialLiquidDensity(run);
    phases.vL = 0;
    if (phases.rhoL > missingValue)
        phases.vL = M / phases.rhoL;
    else
        phases.rhoL = 0;
    AppendLine(run, Spaces(remarkIndent) + std::string(LiquidDensitySourceText(run)));
    if (run.result.kind != kindTP)
        AppendDensityTable(run);
}

void AssumeEquilibriumAt(PointRun& run) {
    const CalculationState& calculation = run.context.calculation;
    if (!calculation.AssumeEquilibrium || !calculation.ReferenceDensityPointValid
        || !(run.phases.vV > missingValue))
        return;
    AppendPartialDensities(run);
    run.phases.hasL = run.phases.hasV = true;
}

} // namespace orva
