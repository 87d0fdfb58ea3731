// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/vessel.h"

#include <cmath>

#include "calc/input_checks.h"
#include "calc/reference_density_point.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/vapour_pressure.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr std::size_t vapourColumn = 55;

// The reference point of the rectilinear diameter that the user settled, else the proposal. It stays a
// proposal: the next calculation that needs a settled point must not find one.
void SettleReferenceDensity(PointRun& run) {
    CalculationState& calculation = run.context.calculation;
    if (!calculation.ReferenceDensityPointValid)
        calculation.referenceDensity = AsReferencePoint(ProposeReferenceDensityPoint(run.context.model));
}

// The saturated vapour, or the vapour at the pressure of the virial equation where that is lower.
bool SolveVapourSide(PointRun& run, double v, double pLV) {
    SubstanceModel& model = run.context.model;
    double p = pLV;
    if (model.selection.nonCubic) {
        const double B = VirialCoefficientB(model, model.selection.eos, run.T);
        const double pVirial = gasConstant * run.T / (v - B);
        run.p = v > B && std::isfinite(pVirial) ? pVirial : 0;
        if (run.p > 0 && run.p < pLV)
            p = run.p;
    }
    PhaseVolumes saturated;
    EosPhaseVolumes(model, run.T, p, saturated);
    run.phases.vV = saturated.vV;
    run.phases.rhoV = saturated.rhoV;
    run.phases.rhoL = saturated.rhoL;
    run.result.rootIndex = saturated.rootCount;
    return !saturated.failed;
}

void TakeFullVessel(PointRun& run) {
    run.phases.hasL = true;
    run.phases.hasV = false;
    run.phases.rhoL = run.rho;
    run.y = 0;
    run.result.liquidPercent = 100;
    run.result.note = noteVesselFull;
}

void TakeVapourOnly(PointRun& run, double v) {
    run.phases.hasV = true;
    run.phases.hasL = false;
    run.phases.rhoV = run.rho;
    run.y = 1;
    run.result.liquidPercent = 0;
    const PressureResult pressure = EosPressure(run.context.model, run.T, v);
    if (pressure.failed)
        ReportFailure(run, FailureNumber());
    else
        run.p = pressure.p;
}

void TakeBothPhases(PointRun& run, double pLV) {
    const VesselInput& vessel = run.context.calculation.vessel;
    run.phases.hasL = run.phases.hasV = true;
    run.p = pLV;
    const double meanVolume = static_cast<double>(vessel.V) / vessel.m;
    run.y = (meanVolume - 1 / run.phases.rhoL) / (1 / run.phases.rhoV - 1 / run.phases.rhoL);
}

// False without a result.
bool SolvePartial(PointRun& run) {
    SubstanceModel& model = run.context.model;
    const double v = model.substance.molarMass / run.rho;
    const VapourPressureResult pressure =
        VapourPressure(model.substance, run.T, model.selection.vaporPressure);
    if (const auto warning = VapourPressureWarning(pressure))
        run.result.messages.push_back(*warning);
    if (pressure.failed || pressure.value == 0)
        return false;
    SettleReferenceDensity(run);
    if (!SolveVapourSide(run, v, pressure.value)) {
        ReportFailure(run, FailureNumber());
        return false;
    }
    run.phases.rhoL = PartialLiquidDensity(run);
    if (!(run.phases.rhoL > missingValue)) {
        run.phases.rhoL = 0;
        ReportFailure(run, ", keine L-Dichte");
        return false;
    }
    if (run.rho >= run.phases.rhoL)
        TakeFullVessel(run);
    else if (run.rho <= run.phases.rhoV)
        TakeVapourOnly(run, v);
    else
        TakeBothPhases(run, pressure.value);
    return !run.result.failed;
}

void AppendSplit(PointRun& run, double VV) {
    if (!ShowsTexts(run))
        return;
    const VesselInput& vessel = run.context.calculation.vessel;
    const NumberStyle style = run.context.style;
    const double M = run.context.model.substance.molarMass;
    const double VL = vessel.V - VV;
    const double mL = VL * run.phases.rhoL;
    const double mV = VV * run.phases.rhoV;
    const auto row = [&](std::string_view label, double liquid, double vapour, std::string_view mask) {
        AppendLine(run, PadRight(std::string(label) + Format(liquid, mask, style), vapourColumn)
                            + Format(vapour, mask, style));
    };
    AppendLine(run, Spaces(25) + "Verdampfungsgrad y(V) = "
                        + Format(static_cast<float>(run.y), "0.0#######", style));
    AppendLine(run,
               Spaces(16) + "Volumenanteil V-Phase phi(V),% = " + Format(VV / vessel.V, "0.0### %", style));
    AppendLine(run, Spaces(5) + "Massen-/Stoffmengenanteil V-Phase  y(V),% = "
                        + Str(static_cast<float>(mV / vessel.m * 100), style) + " %");
    AppendLine(run, "");
    row("Volumen                  V/m^3  =  ", VL, VV, "##0.0000##");
    row("Masse                     m/kg  =  ", mL, mV, "##0.0000##");
    row("Stoffmenge               n/kmol =  ", mL / M, mV / M, "##0.0000");
}

void Split(PointRun& run) {
    const VesselInput& vessel = run.context.calculation.vessel;
    PhaseVolumes& phases = run.phases;
    const double M = run.context.model.substance.molarMass;
    double VV = 0;
    if (phases.hasL != phases.hasV)
        VV = phases.hasV ? vessel.V : 0;
    else if (phases.rhoV * phases.rhoL > 0)
        VV = phases.rhoL * run.y * vessel.V / ((phases.rhoL - phases.rhoV) * run.y + phases.rhoV);
    if (phases.rhoL > 0)
        phases.vL = M / phases.rhoL;
    if (phases.rhoV > 0)
        phases.vV = M / phases.rhoV;
    AppendSplit(run, VV);
    run.result.liquidPercent = static_cast<float>((vessel.V - VV) * 100 / vessel.V);
}

double SegmentArea(double radius, double height) {
    const double fromCentre = radius - height;
    const double halfChord = std::sqrt(std::max(0.0, radius * radius - fromCentre * fromCentre));
    const double halfAngle = std::atan2(halfChord, fromCentre);
    return radius * radius * halfAngle - fromCentre * halfChord;
}

} // namespace

bool TakeVessel(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    const VesselInput& vessel = run.context.calculation.vessel;
    PointResult& result = run.result;
    const float product = vessel.T * vessel.m * vessel.V;
    if (!(product > static_cast<float>(missingValue)) || !std::isfinite(product)) {
        run.endsAtOnce = true;
        result.failed = true;
        return false;
    }
    run.T = vessel.T;
    result.results[slotT] = run.T;
    result.par1.text = TemperatureLabel(run);
    if (result.kind == kindVesselPartial && run.T >= substance.Tc) {
        result.messages.push_back({"Ausführung nicht möglich",
                                   "Partialberechnung nur für Phasengleichgewicht - also für T < T(cr) - "
                                   "sinnvoll\n(T(cr)/K ="
                                       + Str(substance.Tc, run.context.style) + ")",
                                   MessageIcon::Stop});
        result.note = noteExit;
        run.endsAtOnce = true;
        result.failed = true;
        return false;
    }
    if (vessel.T < substance.Ttrip && run.options.warn && !run.context.model.selection.nonCubic)
        result.messages.push_back(
            {"WARNUNG", "T ist kleiner als Tripelpunkt-Temperatur", MessageIcon::Exclamation});
    run.rho = static_cast<double>(vessel.m) / vessel.V;
    result.par2.text = DensityLabel(run);
    return true;
}

void SolveVessel(PointRun& run) {
    if (run.result.failed)
        return;
    if (run.result.kind == kindVesselPartial && !SolvePartial(run)) {
        run.result.failed = true;
        return;
    }
    Split(run);
}

void KeepVesselResult(PointRun& run) {
    VesselResult& kept = run.context.calculation.vesselResult;
    kept.T = run.T;
    kept.p = run.p;
    kept.liquidPercent = run.result.liquidPercent;
    kept.note = run.result.note;
}

FillHeightResult FillHeight(double percent, double radius) {
    constexpr double twicePi = 6.283185308; // the value of the first drawing
    constexpr int mostSteps = 3000;
    constexpr double smallestStep = 0.1;
    const double target = twicePi / 2 * radius * radius * percent / 100;
    if (!(target > 0) || !(radius > 0))
        return {0, !(radius > 0)};
    double height = 10.001;
    double step = 10;
    double previous = target; // of the empty circle
    for (int i = 0; i < mostSteps; ++i) {
        const double error = target - SegmentArea(radius, height);
        if (error * previous <= 0) {
            step *= -0.1;
            if (std::abs(step) < smallestStep)
                return {height * 50 / radius, false};
        }
        previous = error;
        height += step;
    }
    return {0, true};
}

} // namespace orva
