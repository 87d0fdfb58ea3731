// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/curve_generator.h"

#include <cmath>
#include <exception>

#include "calc/units.h"
#include "diagrams/catalogue.h"
#include "diagrams/curve_run.h"
#include "thermo/cubic_equation.h"
#include "thermo/vapour_pressure.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

// The state of the models and units that every family starts from.
void Prepare(CurveRun& run) {
    SubstanceModel& model = run.model;
    const int equation = model.selection.vaporPressure;
    if (run.T > 0)
        run.outcome.pSatCurve = static_cast<float>(VapourPressure(model.substance, run.T, equation).value);
    if (run.p > 0)
        run.outcome.TSatCurve =
            static_cast<float>(VapourPressureTemperature(model.substance, run.p, equation).value);
    if (model.selection.nonCubic) {
        model.work.BVirial = VirialCoefficientB(model, model.selection.eos, run.T);
        model.eos.A = 0;
    } else {
        SetEosCoefficients(model, run.T);
    }
    SetUnits(model, run.options);
    run.options.energyFactor = EnergyFactor(run.options.unitBasis, run.T, model.substance);
}

// The constants of the equation stand at T again, wherever the tie line has been.
void RestoreStart(CurveRun& run) {
    if (!run.model.selection.nonCubic)
        SetEosCoefficients(run.model, run.T);
    run.UseTemperature(run.T);
}

// A type without a tie line keeps the ends at 0, and asking for it is impossible.
TieLine TieLineEnds(CurveRun& run) {
    TieLine tie;
    tie.failed = true;
    if (run.row.tieLine == nullptr)
        return tie;
    tie = run.row.tieLine(run);
    tie.stepX = (static_cast<double>(tie.x2) - tie.x1) / (tieLinePoints - 1);
    tie.stepY = (static_cast<double>(tie.y2) - tie.y1) / (tieLinePoints - 1);
    return tie;
}

void DrawTieLine(CurveRun& run) {
    const TieLine& tie = run.outcome.tie;
    if (tie.failed) {
        run.outcome.status = curveTieLineImpossible;
        return;
    }
    const bool isotherm = run.spec.curveKind == curveIsotherm;
    const double z = isotherm ? run.T : run.p;
    run.curve.SetZKind(isotherm ? zTemperature : zPressure);
    for (int i = 0; i < tieLinePoints; ++i)
        run.AddOutsideTest(tie.x1 + i * tie.stepX, tie.y1 + i * tie.stepY, z);
}

void RunFamily(CurveRun& run) {
    Prepare(run);
    run.outcome.tie = TieLineEnds(run);
    if (run.mode.tieLineMode) {
        DrawTieLine(run);
        return;
    }
    RestoreStart(run);
    run.row.family(run);
    if (run.windowEmpty && !run.givenUp && run.outcome.status != curveNoCriticalDensity)
        run.outcome.status = curveOutsideWindow;
}

} // namespace

void GenerateCurve(SubstanceModel& model, Options& options, const CurveMode& mode, DiagramSpec& spec,
                   CurvePoints& curve, double T, double p, double v, CurveOutcome& outcome) {
    const double width = static_cast<double>(spec.xMax) - spec.xMin;
    const double height = static_cast<double>(spec.yMax) - spec.yMin;
    if (width == 0 || height == 0)
        return;
    outcome = {};
    curve.Clear();
    if (options.curvePoints < 1 || !std::isfinite(width) || !std::isfinite(height)) {
        outcome.status = curveFault;
        outcome.resultText = "Koordinatenfenster oder Punktzahl ist nicht brauchbar";
        return;
    }
    const DiagramRow* row = FindDiagram(spec.type);
    if (row == nullptr) {
        outcome.status = curveFault;
        outcome.resultText = "Diagrammtyp " + std::to_string(spec.type) + " ist nicht vorhanden";
        return;
    }
    CurveRun run{model, options, mode, spec, curve, outcome, *row, T, p, v};
    run.stepX = width / options.curvePoints;
    run.stepY = height / options.curvePoints;
    curve.Reserve(options.curvePoints + 3);
    try {
        RunFamily(run);
    } catch (const std::exception& fault) { // memory
        outcome.status = curveFault;
        outcome.resultText = fault.what();
    }
}

} // namespace orva
