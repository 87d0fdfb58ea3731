// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "calc/report_functions.h"
#include "calc/vessel.h"
#include "state/constants.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr std::string_view vapourFractionLabel = "Verdampfungsgrad y(V) = ";

// The pressure that a volume gives, as one phase.
void TakeVapour(PointRun& run, double p, double v) {
    run.p = p;
    run.y = 1;
    run.phases.hasV = true;
    run.phases.hasL = false;
    run.phases.rhoV = run.rho;
    run.phases.vV = v;
}

bool GivenPoint(PointRun& run) {
    PointResult& result = run.result;
    if (!TakeTemperature(run, result.par1))
        return false;
    result.par1.text = TemperatureLabel(run);
    const bool taken =
        result.kind == kindTRho ? TakeDensity(run, result.par2) : TakeLiquidDensity(run, result.par2);
    if (taken)
        result.par2.text = DensityLabel(run);
    return taken;
}

// A virial row has one phase. Its pressure has no solution at or below B.
void SolveVirial(PointRun& run, double v) {
    SubstanceModel& model = run.context.model;
    run.phases.hasV = true;
    model.work.BVirial = VirialCoefficientB(model, model.selection.eos, run.T);
    if (v > model.work.BVirial) {
        TakeVapour(run, gasConstant * run.T / (v - model.work.BVirial), v);
        ShowText(run, run.result.co2, " p = " + SmallOrMasked(run, run.p, "######0.000") + " kPa");
    } else {
        ReportFailure(run, ", keine p-Lösung (v < b)");
    }
}

bool TakePressureOf(PointRun& run, double v) {
    const PressureResult pressure = EosPressure(run.context.model, run.T, v);
    run.p = pressure.p;
    return !pressure.failed;
}

bool SolveVapour(PointRun& run, double v) {
    TakeVapour(run, 0, v);
    if (TakePressureOf(run, v))
        return true;
    ReportFailure(run, FailureNumber());
    return false;
}

bool SolveLiquid(PointRun& run, double v) {
    run.phases.hasL = true;
    run.phases.hasV = false;
    run.y = 0;
    const bool aboveCoVolume = v > run.context.model.eos.B;
    if (!aboveCoVolume || !TakePressureOf(run, v)) {
        if (run.context.calculation.GlobalMethod)
            run.result.note = noteBelowCoVolume;
        ReportFailure(run, aboveCoVolume ? FailureNumber() : " (v <= b)");
        return false;
    }
    run.phases.vL = v;
    run.phases.rhoL = run.rho;
    return true;
}

// Below T(cr) the saturated volumes tell the phase; a volume equal to one of them counts as both phases.
bool SolveSubcritical(PointRun& run, double v) {
    SubstanceModel& model = run.context.model;
    const SaturationResult saturation = EosSaturationPressure(model, run.T);
    run.result.rootIndex = 3;
    if (saturation.failed || saturation.value < missingValue) {
        ReportFailure(run, FailureNumber(saturation.failed ? modelFailure : noModelFailure));
        return false;
    }
    const double pLV = saturation.value;
    if (v > model.work.Roots[2] || v < model.work.Roots[0]) {
        if (!(v > model.work.Roots[2] ? SolveVapour(run, v) : SolveLiquid(run, v)))
            return false;
        ShowText(run, run.result.co1,
                 "vgl. mit Dampfdruck aus EOS: p(LV) = " + SmallOrMasked(run, pLV, "###0.000") + " kPa");
        return true;
    }
    run.phases.hasL = run.phases.hasV = true;
    run.p = pLV;
    TakeSaturationRoots(run);
    run.y = (v - run.phases.vL) / (run.phases.vV - run.phases.vL);
    if (!IsVessel(run.result.kind) && ShowsTexts(run)) {
        AppendLine(run, Spaces(22) + std::string(vapourFractionLabel)
                            + Format(run.y, "0.0#######", run.context.style));
        AppendLine(run, "");
    }
    return true;
}

// The solution at the pressure found, which also tells the undivided fluid from a single phase. Near T(cr)
// its equal areas can miss what the saturated volumes decided; that decision stands.
void RefreshPhases(PointRun& run) {
    PhaseVolumes refreshed = run.phases;
    EosPhaseVolumes(run.context.model, run.T, run.p, refreshed);
    const bool both = run.phases.hasL && run.phases.hasV;
    if (refreshed.failed || (both && !(refreshed.hasL && refreshed.hasV)))
        return;
    run.phases = refreshed;
    run.result.rootIndex = refreshed.rootCount;
}

// False where the run ends without a table.
bool SolveCubic(PointRun& run, double v) {
    SubstanceModel& model = run.context.model;
    if (run.T < model.substance.Tc) {
        if (!SolveSubcritical(run, v))
            return false;
    } else {
        SetEosCoefficients(model, run.T);
        if (!SolveVapour(run, v))
            return false;
    }
    FillEosState(run, run.result.rootIndex);
    if (run.result.kind == kindVesselGlobal)
        SolveVessel(run);
    RefreshPhases(run);
    return true;
}

void WriteTable(PointRun& run) {
    const SubstanceData& substance = run.context.model.substance;
    const bool both = run.phases.hasL && run.phases.hasV;
    AppendDensityTable(run);
    if (both && run.T < substance.Tc && run.p < substance.pc)
        AppendGlobalList(run);
    const bool noPressure = run.p == 0 && !run.context.calculation.GlobalMethod;
    ShowText(run, run.result.co2,
             (both ? " Dampfdruck p/kPa = " : " Systemdruck p/kPa = ")
                 + (noPressure ? " (Fehler)" : SmallOrMasked(run, run.p, "####0.000")));
}

void TakeResult(PointRun& run) {
    RecordPhases(run);
    run.result.record.pcalc = static_cast<float>(run.p);
    run.result.results[slotP] = run.p;
}

} // namespace

void CalculateFromTRho(PointRun& run) {
    if (GivenPoint(run)) {
        const double v = run.context.model.substance.molarMass / run.rho;
        if (run.context.model.selection.nonCubic)
            SolveVirial(run, v);
        else if (SolveCubic(run, v))
            WriteTable(run);
    }
    TakeResult(run);
}

void CalculateVessel(PointRun& run) {
    if (!TakeVessel(run))
        return;
    const double v = run.context.model.substance.molarMass / run.rho;
    const bool nonCubic = run.context.model.selection.nonCubic;
    bool goesOn = true;
    if (nonCubic)
        SolveVirial(run, v);
    if (nonCubic || run.result.kind == kindVesselPartial)
        SolveVessel(run);
    else
        goesOn = SolveCubic(run, v);
    if (goesOn)
        WriteTable(run);
    TakeResult(run);
    KeepVesselResult(run);
}

} // namespace orva
